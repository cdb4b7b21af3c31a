// SPDX-License-Identifier: MIT
#include "Transform3D.h"

#include <nbOpenSGExt/nbEulerRotation.h>

#include <array>
#include <cstring>

namespace osg {

NB_CONTAINER_TYPE(Transform3D, Transform, NB_TRANSFORM3D_FIELDS);

namespace {

template <class Value>
bool sameBits(const Value& a, const Value& b)
{
    return std::memcmp(a.getValues(), b.getValues(), sizeof(Value)) == 0;
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
    const Vec3f& angles = getEulerRotation();
    if (!sameBits(cache.angles, angles) || cache.order != getEulerRotationOrder()) {
        cache.turn = nbEulerRotation::toQuaternion(angles, getEulerRotationOrder());
        cache.angles = angles;
        cache.order = getEulerRotationOrder();
    }
    return cache.turn;
}

const nbRotationMath::Rows& Transform3D::getWholeRotation() const
{
    const Quaternion turn = getRotationAsQuaternion();
    const Quaternion& orientation = getRotationOrientation();
    if (!sameBits(cache.rowsTurn, turn) || !sameBits(cache.rowsOrientation, orientation)) {
        const nbQuaterniond whole = sameBits(orientation, Quaternion())
            ? nbRotationMath::toDouble(turn)
            : nbRotationMath::product(nbRotationMath::toDouble(turn),
                                      nbRotationMath::toDouble(orientation));
        cache.rows = nbRotationMath::rotationRows(whole);
        cache.rowsTurn = turn;
        cache.rowsOrientation = orientation;
    }
    return cache.rows;
}

Matrix Transform3D::computeMatrix() const
{
    const nbRotationMath::Rows& rotation = getWholeRotation();
    const Vec3f& pivot = getRotatePivot();
    const Vec3f& scalePivot = getScalePivot();
    const Vec3f& factors = getScale();
    // The image of the origin: what is left of the products of translations.
    std::array<double, 3> origin {};
    for (UInt32 row = 0; row < 3; ++row) {
        origin[row] = static_cast<double>(getTranslation()[row]) + pivot[row];
    }
    Matrix result;
    for (UInt32 column = 0; column < 3; ++column) {
        const double factor = factors[column];
        const double arm =
            static_cast<double>(scalePivot[column]) - pivot[column] - factor * scalePivot[column];
        for (UInt32 row = 0; row < 3; ++row) {
            result[column][row] = static_cast<Real32>(rotation[row][column] * factor);
            origin[row] += rotation[row][column] * arm;
        }
    }
    result.setTranslate(static_cast<Real32>(origin[0]), static_cast<Real32>(origin[1]),
                        static_cast<Real32>(origin[2]));
    return result;
}

void Transform3D::changed(BitVector whichField, UInt32 origin)
{
    if ((whichField & PartsFieldMask) == 0) {
        Inherited::changed(whichField, origin);
        return;
    }
    // The matrix is part of the edit that is ending: it is announced with it, not by one of its
    // own.
    setMatrix(computeMatrix());
    Inherited::changed(whichField | MatrixFieldMask, origin);
}

}  // namespace osg
