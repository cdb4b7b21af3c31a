// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

namespace osg::detail {

/// 3x3 matrix, element[row][column].
struct Linear
{
    Real64 element[3][3] = { { 1, 0, 0 }, { 0, 1, 0 }, { 0, 0, 1 } };
};

/// M = axes * diag(scale) * transpose(axes) * rotation.
struct PolarParts
{
    Linear rotation;
    Linear axes;
    Real64 scale[3] = { 1, 1, 1 };
};

/// Polar decomposition M = P R with a symmetric P that acts after the rotation R; P is
/// diagonalised. R is the limit of R <- (R + R^-T) / 2 from M on; P's axes come from Jacobi
/// rotations. A mirroring M gives a rotation and three negative scales.
/// @return false if M is singular, with the parts unchanged
bool decomposePolar(const Linear& m, PolarParts& parts);

}  // namespace osg::detail
