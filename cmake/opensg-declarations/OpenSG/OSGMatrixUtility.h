// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMatrix.h>

namespace osg {
bool MatrixPerspective(Matrix& result, Real32 halfFov, Real32 aspect, Real32 near, Real32 far);
bool MatrixFrustum(Matrix& result, Real32 l, Real32 r, Real32 b, Real32 t, Real32 n, Real32 f);
bool MatrixOrthogonal(Matrix& result, Real32 l, Real32 r, Real32 b, Real32 t, Real32 n, Real32 f);
bool MatrixLookAt(Matrix& result, Pnt3f from, Pnt3f at, Vec3f up);
}  // namespace osg
