// SPDX-License-Identifier: MIT
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGMatrixUtility.h>

namespace osg {

namespace {

bool refuse(const Char8* function, const Char8* reason)
{
    SWARNING << function << ": " << reason << std::endl;
    return true;
}

}  // namespace

bool MatrixPerspective(Matrix& result, Real32 halfFovY, Real32 aspect, Real32 nearPlane,
                       Real32 farPlane)
{
    if (!(halfFovY > 0.0F) || !(halfFovY < Pi / 2)) {
        return refuse("MatrixPerspective", "half the opening angle must lie between 0 and pi/2");
    }
    if (!(aspect > 0.0F)) {
        return refuse("MatrixPerspective", "the aspect must be positive");
    }
    const Real32 top = nearPlane * osgtan(halfFovY);
    return MatrixFrustum(result, -top * aspect, top * aspect, -top, top, nearPlane, farPlane);
}

bool MatrixFrustum(Matrix& result, Real32 left, Real32 right, Real32 bottom, Real32 top,
                   Real32 nearPlane, Real32 farPlane)
{
    const Real32 width = right - left;
    const Real32 height = top - bottom;
    const Real32 depth = farPlane - nearPlane;
    if (!(nearPlane > 0.0F) || !(depth > 0.0F)) {
        return refuse("MatrixFrustum", "near must be positive and far beyond it");
    }
    if (width == 0.0F || height == 0.0F) {
        return refuse("MatrixFrustum", "the window has no area");
    }
    // clang-format off
    result.setValue(2 * nearPlane / width, 0, (right + left) / width, 0,
                    0, 2 * nearPlane / height, (top + bottom) / height, 0,
                    0, 0, -(farPlane + nearPlane) / depth, -2 * farPlane * nearPlane / depth,
                    0, 0, -1, 0);
    // clang-format on
    return false;
}

bool MatrixOrthogonal(Matrix& result, Real32 left, Real32 right, Real32 bottom, Real32 top,
                      Real32 nearPlane, Real32 farPlane)
{
    const Real32 width = right - left;
    const Real32 height = top - bottom;
    const Real32 depth = farPlane - nearPlane;
    if (width == 0.0F || height == 0.0F || depth == 0.0F) {
        return refuse("MatrixOrthogonal", "the volume has no extent");
    }
    // clang-format off
    result.setValue(2 / width, 0, 0, -(right + left) / width,
                    0, 2 / height, 0, -(top + bottom) / height,
                    0, 0, -2 / depth, -(farPlane + nearPlane) / depth,
                    0, 0, 0, 1);
    // clang-format on
    return false;
}

bool MatrixLookAt(Matrix& result, Pnt3f from, Pnt3f at, Vec3f up)
{
    Vec3f back = from - at;
    if (back.length() < Eps) {
        return true;
    }
    back.normalize();
    Vec3f right = up.cross(back);
    if (right.length() < Eps) {
        return true;
    }
    right.normalize();
    result.setValue(right, back.cross(right), back, from.subZero());
    result[3][3] = 1.0F;
    return false;
}

}  // namespace osg
