// SPDX-License-Identifier: MIT
#pragma once

#include <Eigen/Core>

namespace osg::detail {

/// M = axes * diag(scale) * transpose(axes) * rotation.
struct PolarParts
{
    Eigen::Matrix3d rotation;
    Eigen::Matrix3d axes;
    Eigen::Vector3d scale;
};

/// Polar decomposition M = P R with a symmetric P that acts after the rotation R; P is
/// diagonalised. R is the limit of R <- (R + R^-T) / 2 from M on; P's axes come from Jacobi
/// rotations. A mirroring M gives a rotation and three negative scales.
/// @return false if M is singular, with the parts unchanged
bool decomposePolar(const Eigen::Matrix3d& m, PolarParts& parts);

}  // namespace osg::detail
