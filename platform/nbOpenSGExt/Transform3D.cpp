// SPDX-License-Identifier: MIT
#include "Transform3D.h"

#include <nbOpenSGExt/nbEulerRotation.h>

namespace osg {

NB_CONTAINER_TYPE(Transform3D, Transform, NB_TRANSFORM3D_FIELDS);

namespace {

Matrix translationMatrix(const Vec3f& translation)
{
    Matrix result;
    result.setTranslate(translation);
    return result;
}

Matrix rotationMatrix(const Quaternion& rotation)
{
    Matrix result;
    result.setRotate(rotation);
    return result;
}

}  // namespace

Vec3f Transform3D::getRotation() const
{
    if (getRotationMode() == QuaternionMode) {
        return nbEulerRotation::fromQuaternion(getRotationQuaternion(), getEulerRotationOrder());
    }
    return getEulerRotation();
}

void Transform3D::setRotation(const Vec3f& anglesDeg)
{
    setEulerRotation(anglesDeg);
    if (getRotationMode() == QuaternionMode) {
        setRotationMode(EulerMode);
    }
}

void Transform3D::setRotation(const Quaternion& rotation)
{
    if (getRotationMode() == AxisAlignedMode) {
        setEulerRotation(nbEulerRotation::fromQuaternion(rotation, getEulerRotationOrder()));
        return;
    }
    setRotationQuaternion(rotation);
    setRotationMode(QuaternionMode);
}

Quaternion Transform3D::getRotationAsQuaternion() const
{
    if (getRotationMode() == QuaternionMode) {
        return getRotationQuaternion();
    }
    return nbEulerRotation::toQuaternion(getEulerRotation(), getEulerRotationOrder());
}

Matrix Transform3D::computeMatrix() const
{
    Matrix scaling;
    scaling.setScale(getScale());
    // The three translations that meet are one each.
    Matrix result = translationMatrix(getTranslation() + getRotatePivot());
    result.mult(rotationMatrix(getRotationAsQuaternion()));
    result.mult(rotationMatrix(getRotationOrientation()));
    result.mult(translationMatrix(getScalePivot() - getRotatePivot()));
    result.mult(scaling);
    result.mult(translationMatrix(-getScalePivot()));
    return result;
}

void Transform3D::changed(BitVector whichField, UInt32 origin)
{
    constexpr BitVector kParts = TranslationFieldMask | RotatePivotFieldMask | ScalePivotFieldMask |
        RotationFieldMask | RotationOrientationFieldMask | ScaleFieldMask;
    if ((whichField & kParts) != 0) {
        const Transform3DPtr self(*this);
        beginEditCP(self, MatrixFieldMask);
        setMatrix(computeMatrix());
        endEditCP(self, MatrixFieldMask);
    }
    Inherited::changed(whichField, origin);
}

}  // namespace osg
