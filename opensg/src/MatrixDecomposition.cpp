// SPDX-License-Identifier: MIT
#include "MatrixDecomposition.h"

#include <cmath>

namespace osg::detail {

namespace {

constexpr UInt32 kMaxSteps = 60;
constexpr Real64 kConverged = 1e-14;

/// Determinant times the transposed inverse.
Linear cofactors(const Linear& m)
{
    Linear result;
    for (UInt32 i = 0; i < 3; ++i) {
        for (UInt32 j = 0; j < 3; ++j) {
            const UInt32 r0 = (i + 1) % 3, r1 = (i + 2) % 3;
            const UInt32 c0 = (j + 1) % 3, c1 = (j + 2) % 3;
            result.element[i][j] =
                m.element[r0][c0] * m.element[r1][c1] - m.element[r0][c1] * m.element[r1][c0];
        }
    }
    return result;
}

Real64 determinant(const Linear& m, const Linear& cofactor)
{
    return m.element[0][0] * cofactor.element[0][0] + m.element[0][1] * cofactor.element[0][1] +
        m.element[0][2] * cofactor.element[0][2];
}

Real64 norm(const Linear& m)
{
    Real64 sum = 0;
    for (const auto& row : m.element) {
        for (const Real64 value : row) {
            sum += value * value;
        }
    }
    return std::sqrt(sum);
}

/// The orthogonal factor of the polar decomposition; false if the matrix is singular.
/// Balancing both terms by their norms makes the first steps quick for large and small scales
/// alike.
bool orthogonalFactor(Linear& m)
{
    for (UInt32 step = 0; step < kMaxSteps; ++step) {
        const Linear cofactor = cofactors(m);
        const Real64 det = determinant(m, cofactor);
        if (det == 0. || !std::isfinite(det)) {
            return false;
        }
        const Real64 balance = std::sqrt(norm(cofactor) / (std::fabs(det) * norm(m)));
        Real64 change = 0;
        for (UInt32 i = 0; i < 3; ++i) {
            for (UInt32 j = 0; j < 3; ++j) {
                const Real64 next =
                    (m.element[i][j] * balance + cofactor.element[i][j] / (det * balance)) / 2;
                change = std::fmax(change, std::fabs(next - m.element[i][j]));
                m.element[i][j] = next;
            }
        }
        if (change < kConverged) {
            break;
        }
    }
    return true;
}

/// Turns the plane (p, q) so that the element (p, q) of a symmetric matrix vanishes.
void annihilate(Linear& symmetric, Linear& axes, UInt32 p, UInt32 q)
{
    const Real64 off = symmetric.element[p][q];
    if (off == 0.) {
        return;
    }
    const Real64 theta = (symmetric.element[q][q] - symmetric.element[p][p]) / (2 * off);
    const Real64 tangent =
        std::copysign(1., theta) / (std::fabs(theta) + std::sqrt(theta * theta + 1));
    const Real64 cosine = 1 / std::sqrt(tangent * tangent + 1);
    const Real64 sine = tangent * cosine;
    for (UInt32 k = 0; k < 3; ++k) {
        const Real64 a = symmetric.element[k][p], b = symmetric.element[k][q];
        symmetric.element[k][p] = cosine * a - sine * b;
        symmetric.element[k][q] = sine * a + cosine * b;
    }
    for (UInt32 k = 0; k < 3; ++k) {
        const Real64 a = symmetric.element[p][k], b = symmetric.element[q][k];
        symmetric.element[p][k] = cosine * a - sine * b;
        symmetric.element[q][k] = sine * a + cosine * b;
    }
    for (auto& row : axes.element) {
        const Real64 a = row[p], b = row[q];
        row[p] = cosine * a - sine * b;
        row[q] = sine * a + cosine * b;
    }
}

void diagonalise(Linear symmetric, PolarParts& parts)
{
    const Real64 size = norm(symmetric);
    parts.axes = Linear();
    for (UInt32 sweep = 0; sweep < kMaxSteps; ++sweep) {
        const Real64 off = std::fabs(symmetric.element[0][1]) + std::fabs(symmetric.element[0][2]) +
            std::fabs(symmetric.element[1][2]);
        // Rounding noise is not turned away: axes that line up stay lined up.
        if (off <= 1e-7 * size) {
            break;
        }
        annihilate(symmetric, parts.axes, 0, 1);
        annihilate(symmetric, parts.axes, 0, 2);
        annihilate(symmetric, parts.axes, 1, 2);
    }
    for (UInt32 i = 0; i < 3; ++i) {
        parts.scale[i] = symmetric.element[i][i];
    }
}

}  // namespace

bool decomposePolar(const Linear& m, PolarParts& parts)
{
    Linear rotation = m;
    if (!orthogonalFactor(rotation)) {
        return false;
    }

    // P = M R^T; with a mirroring the factor is turned round as a whole, which negates P.
    const Real64 sign = determinant(rotation, cofactors(rotation)) < 0 ? -1. : 1.;
    Linear symmetric;
    for (UInt32 i = 0; i < 3; ++i) {
        for (UInt32 j = 0; j < 3; ++j) {
            Real64 sum = 0;
            for (UInt32 k = 0; k < 3; ++k) {
                sum += m.element[i][k] * rotation.element[j][k];
            }
            symmetric.element[i][j] = sign * sum;
        }
    }
    for (auto& row : rotation.element) {
        for (Real64& value : row) {
            value *= sign;
        }
    }
    parts.rotation = rotation;
    diagonalise(symmetric, parts);
    return true;
}

}  // namespace osg::detail
