// SPDX-License-Identifier: MIT
#include "MatrixDecomposition.h"

#include <cmath>

#include <Eigen/Jacobi>
#include <Eigen/LU>

namespace osg::detail {

namespace {

constexpr int kMaxSteps = 60;
constexpr double kConverged = 1e-14;

/// The orthogonal factor of the polar decomposition; false if the matrix is singular.
/// Balancing both terms by their norms makes the first steps quick for large and small scales
/// alike.
bool orthogonalFactor(Eigen::Matrix3d& m)
{
    for (int step = 0; step < kMaxSteps; ++step) {
        const double det = m.determinant();
        if (det == 0. || !std::isfinite(det)) {
            return false;
        }
        const Eigen::Matrix3d turned = m.inverse().transpose();
        const double balance = std::sqrt(turned.norm() / m.norm());
        const Eigen::Matrix3d next = (m * balance + turned / balance) / 2;
        const double change = (next - m).cwiseAbs().maxCoeff();
        m = next;
        if (change < kConverged) {
            break;
        }
    }
    return true;
}

void diagonalise(Eigen::Matrix3d symmetric, PolarParts& parts)
{
    const double size = symmetric.norm();
    parts.axes.setIdentity();
    for (int sweep = 0; sweep < kMaxSteps; ++sweep) {
        const double off =
            std::fabs(symmetric(0, 1)) + std::fabs(symmetric(0, 2)) + std::fabs(symmetric(1, 2));
        // Rounding noise is not turned away: axes that line up stay lined up.
        if (off <= 1e-7 * size) {
            break;
        }
        for (const auto& [p, q] : { std::pair(0, 1), std::pair(0, 2), std::pair(1, 2) }) {
            Eigen::JacobiRotation<double> turn;
            turn.makeJacobi(symmetric, p, q);
            symmetric.applyOnTheLeft(p, q, turn.adjoint());
            symmetric.applyOnTheRight(p, q, turn);
            parts.axes.applyOnTheRight(p, q, turn);
        }
    }
    parts.scale = symmetric.diagonal();
}

}  // namespace

bool decomposePolar(const Eigen::Matrix3d& m, PolarParts& parts)
{
    Eigen::Matrix3d rotation = m;
    if (!orthogonalFactor(rotation)) {
        return false;
    }

    // P = M R^T; with a mirroring the factor is turned round as a whole, which negates P.
    parts.rotation = rotation.determinant() < 0 ? Eigen::Matrix3d(-rotation) : rotation;
    diagonalise(m * parts.rotation.transpose(), parts);
    return true;
}

}  // namespace osg::detail
