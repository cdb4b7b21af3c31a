// SPDX-License-Identifier: MIT
#include "Transform3D.h"

#include <nbOpenSGExt/nbEulerRotation.h>
#include <nbOpenSGExt/nbSameBits.h>

#include <array>

namespace osg {

NB_CONTAINER_TYPE(Transform3D, Transform, NB_TRANSFORM3D_FIELDS);

namespace {

bool isSameOrder(const Char8 (&kept)[3], const std::string& order)
{
    return order.size() == sizeof kept && order[0] == kept[0] && order[1] == kept[1] &&
        order[2] == kept[2];
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
    return currentTurn();
}

/// R, with the rows of the cache brought into step with it.
const Quaternion& Transform3D::currentTurn() const
{
    const Quaternion& orientation = getRotationOrientation();
    bool isCurrent = nbSameBits(cache.orientation, orientation);
    if (getRotationMode() == QuaternionMode) {
        const Quaternion& turn = getRotationQuaternion();
        isCurrent = isCurrent && nbSameBits(cache.turn, turn);
        cache.turn = turn;
        cache.isOfAngles = false;
    } else if (const Vec3f& angles = getEulerRotation(); !cache.isOfAngles ||
               !nbSameBits(cache.angles, angles) ||
               !isSameOrder(cache.order, getEulerRotationOrder())) {
        const std::string& order = getEulerRotationOrder();
        cache.turn = nbEulerRotation::toQuaternion(angles, order);
        cache.angles = angles;
        cache.isOfAngles = order.size() == sizeof cache.order;  // others are not kept
        if (cache.isOfAngles) {
            std::memcpy(cache.order, order.data(), sizeof cache.order);
        }
        isCurrent = false;
    }
    if (!isCurrent) {
        cache.orientation = orientation;
        const nbQuaterniond turn = nbRotationMath::toDouble(cache.turn);
        cache.rows = nbRotationMath::rotationRows(
            nbSameBits(orientation, Quaternion())
                ? turn
                : nbRotationMath::product(turn, nbRotationMath::toDouble(orientation)));
    }
    return cache.turn;
}

const nbRotationMath::Rows& Transform3D::getWholeRotation() const
{
    currentTurn();
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
    if (const Vec3f& by = getShear(); by != Vec3f()) {
        Matrix shear(1.0F, by.x(), by.y(), 0.0F, 0.0F, 1.0F, by.z(), 0.0F, 0.0F, 0.0F, 1.0F, 0.0F,
                     0.0F, 0.0F, 0.0F, 1.0F);
        Vec3f moved;
        shear.multMatrixVec(scalePivot, moved);
        shear.setTranslate(scalePivot - moved);
        result.mult(shear);
    }
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
