// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMatrix.h>

/// @file
/// Projections and views. All return false on success, true on bad input (one line in the log, the
/// result as it was).

namespace osg {

/// Perspective projection.
/// @param halfFovY half the vertical opening angle, radians, 0 < halfFovY < pi/2
/// @param aspect width / height, > 0
bool MatrixPerspective(Matrix& result, Real32 halfFovY, Real32 aspect, Real32 nearPlane,
                       Real32 farPlane);

/// Perspective projection through a window on the near plane, all edges in world units.
bool MatrixFrustum(Matrix& result, Real32 left, Real32 right, Real32 bottom, Real32 top,
                   Real32 nearPlane, Real32 farPlane);

/// Parallel projection, all edges in world units.
bool MatrixOrthogonal(Matrix& result, Real32 left, Real32 right, Real32 bottom, Real32 top,
                      Real32 nearPlane, Real32 farPlane);

/// Placement of an eye, world from camera (not the viewing matrix): it looks along -z, y is up.
/// @return true if from = at or if the view is along up
bool MatrixLookAt(Matrix& result, Pnt3f from, Pnt3f at, Vec3f up);

}  // namespace osg
