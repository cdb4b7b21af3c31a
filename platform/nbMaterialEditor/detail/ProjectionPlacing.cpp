// SPDX-License-Identifier: MIT
#include "ProjectionPlacing.h"

#include <nbOpenSGExt/nbEulerRotation.h>
#include <nbOpenSGExt/nbIsFinite.h>
#include <nbOpenSGExt/nbRotationMath.h>

#include <OpenSG/OSGRefPtr.h>

#include <algorithm>
#include <cmath>

namespace {

using nbRotationMath::product;
using nbRotationMath::toDouble;
using nbRotationMath::toFloat;

/// R of a Transform3D, which is what its matrix turns by before the rotation orientation.
nbQuaterniond rotationOf(const nbTransformState& state)
{
    return state.rotationMode == osg::Transform3D::QuaternionMode
        ? toDouble(state.rotationQuaternion)
        : toDouble(nbEulerRotation::toQuaternion(state.eulerRotation, state.eulerRotationOrder));
}

nbQuaterniond unit(double x, double y, double z, double w)
{
    const double length = std::sqrt(x * x + y * y + z * z + w * w);
    nbQuaterniond result;
    if (length > 0.0) {
        result.setValueAsQuat(x / length, y / length, z / length, w / length);
    }
    return result;
}

nbQuaterniond unit(const nbQuaterniond& q)
{
    return unit(q.x(), q.y(), q.z(), q.w());
}

nbQuaterniond inverse(const nbQuaterniond& q)
{
    return unit(-q.x(), -q.y(), -q.z(), q.w());
}

void setRotation(const nbQuaterniond& rotation, nbTransformState& state)
{
    const osg::Quaternion turn = toFloat(unit(rotation));
    if (state.rotationMode == osg::Transform3D::AxisAlignedMode) {
        state.eulerRotation = nbEulerRotation::fromQuaternion(turn, state.eulerRotationOrder);
        return;
    }
    state.rotationQuaternion = turn;
    state.rotationMode = osg::Transform3D::QuaternionMode;
}

osg::Vec3d axis(const nbTransformState& projection, std::size_t index)
{
    const nbRotationMath::Rows rows = nbRotationMath::rotationRows(
        product(rotationOf(projection), toDouble(projection.rotationOrientation)));
    return { rows[0][index], rows[1][index], rows[2][index] };
}

osg::Vec3d mapped(const osg::Matrix& matrix, const osg::Vec3d& vector)
{
    osg::Vec3d result;
    for (osg::UInt32 column = 0; column < 3; ++column) {
        for (osg::UInt32 row = 0; row < 3; ++row) {
            result[row] += double(matrix[column][row]) * vector[column];
        }
    }
    return result;
}

/// The part of a vector at right angles to a unit vector, of unit length where it has one.
osg::Vec3d across(const osg::Vec3d& vector, const osg::Vec3d& normal)
{
    osg::Vec3d part = vector - normal * vector.dot(normal);
    part.normalize();
    return part;
}

/// Way up on a surface of the world. From steep to flat it goes over to the way from the front to
/// the back, for up and down are no ways on a flat one.
osg::Vec3d wayUp(const osg::Vec3d& normal, bool isZUp)
{
    constexpr double kFlat = 0.1;
    constexpr double kSteep = 0.3;
    const osg::Vec3d up(0.0, isZUp ? 0.0 : 1.0, isZUp ? 1.0 : 0.0);
    const osg::Vec3d back(0.0, isZUp ? 1.0 : 0.0, isZUp ? 0.0 : -1.0);
    const double slope = up.cross(normal).length();
    const double share = std::clamp((slope - kFlat) / (kSteep - kFlat), 0.0, 1.0);
    const double side = up.dot(normal) < 0.0 ? -1.0 : 1.0;
    return across(across(up, normal) * share + across(back, normal) * (side * (1.0 - share)),
                  normal);
}

/// Rotation with the axes y and z, of unit length and at right angles.
nbQuaterniond turnOnto(const osg::Vec3d& z, const osg::Vec3d& y)
{
    osg::Matrix axes;
    axes.setValue(osg::Vec3f(y.cross(z)), osg::Vec3f(y), osg::Vec3f(z));
    axes[3][3] = 1.0F;
    return toDouble(osg::Quaternion(axes));
}

/// Of unit length: normals go by the transposed inverse.
osg::Vec3d normalInWorld(const osg::Matrix& objectFromWorld, const osg::Vec3d& normal)
{
    osg::Vec3d inWorld;
    for (osg::UInt32 row = 0; row < 3; ++row) {
        for (osg::UInt32 i = 0; i < 3; ++i) {
            inWorld[row] += double(objectFromWorld[row][i]) * normal[i];
        }
    }
    inWorld.normalize();
    return inWorld;
}

/// Rotation of a projection that stands upright on a surface. @param normal  in the object's space
nbQuaterniond uprightTurn(const osg::Matrix& worldFromObject, osg::Vec3d normal, bool isZUp)
{
    normal.normalize();
    osg::Matrix objectFromWorld;
    worldFromObject.inverse(objectFromWorld);
    const osg::Vec3d way = wayUp(normalInWorld(objectFromWorld, normal), isZUp);
    return turnOnto(normal, across(mapped(objectFromWorld, way), normal));
}

/// Takes the size over that a projection has had in the world.
void keepSize(const osg::Matrix& worldFromObject, const nbTransformState& start,
              nbTransformState& result)
{
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const double ratio = mapped(worldFromObject, axis(start, i)).length() /
            mapped(worldFromObject, axis(result, i)).length();
        result.scale[i] =
            std::isnormal(ratio) ? static_cast<float>(start.scale[i] * ratio) : start.scale[i];
    }
}

void takeRotation(const nbTransformState& start, nbTransformState& result)
{
    result.rotationMode = start.rotationMode;
    result.eulerRotation = start.eulerRotation;
    result.eulerRotationOrder = start.eulerRotationOrder;
    result.rotationQuaternion = start.rotationQuaternion;
    result.rotationOrientation = start.rotationOrientation;
}

}  // namespace

osg::Vec3f turned(const nbTransformState& projection, const osg::Vec3f& vector)
{
    osg::Vec3d sum;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        sum += axis(projection, i) * double(vector[i]);
    }
    return osg::Vec3f(sum);
}

void turnAboutOwnZ(const nbTransformState& start, float angle, nbTransformState& result)
{
    takeRotation(start, result);
    if (angle == 0.0F) {
        return;
    }
    const nbQuaterniond turn = unit(0.0, 0.0, std::sin(0.5 * angle), std::cos(0.5 * angle));
    const nbQuaterniond orientation = unit(toDouble(start.rotationOrientation));
    setRotation(
        product(product(rotationOf(start), orientation), product(turn, inverse(orientation))),
        result);
}

void standOn(const osg::Matrix& worldFromObject, const osg::Vec3f& normal, bool isZUp, float angle,
             const nbTransformState& start, nbTransformState& result)
{
    const osg::Vec3d before = axis(start, 2);
    const nbQuaterniond turn = product(uprightTurn(worldFromObject, osg::Vec3d(normal), isZUp),
                                       inverse(uprightTurn(worldFromObject, before, isZUp)));
    takeRotation(start, result);
    setRotation(product(turn, rotationOf(start)), result);
    turnAboutOwnZ(nbTransformState(result), angle, result);
    keepSize(worldFromObject, start, result);
}

void lieAlong(const osg::Matrix& worldFromObject, const osg::Vec3f& normal, const osg::Vec3f& up,
              const osg::Vec3f& otherUp, nbTransformState& state)
{
    constexpr double kFlat = 0.1;
    const nbTransformState start = state;
    osg::Matrix objectFromWorld;
    worldFromObject.inverse(objectFromWorld);
    osg::Vec3d z(normal);
    z.normalize();
    // Upright is meant in the world, where the object may have unequal scales.
    const osg::Vec3d inWorld = normalInWorld(objectFromWorld, z);
    for (const osg::Vec3f& wanted : { up, otherUp, osg::Vec3f(0, 1, 0), osg::Vec3f(1, 0, 0) }) {
        osg::Vec3d along(wanted);
        along.normalize();
        if (along.cross(inWorld).length() > kFlat) {
            along = mapped(objectFromWorld, across(along, inWorld));
            state.rotationOrientation = osg::Quaternion();
            setRotation(turnOnto(z, across(along, z)), state);
            keepSize(worldFromObject, start, state);
            return;
        }
    }
}

bool toObject(const osg::Matrix& worldFromObject, const osg::Pnt3f& worldPoint,
              const osg::Vec3f& worldNormal, osg::Pnt3f& point, osg::Vec3f& normal)
{
    osg::Matrix objectFromWorld;
    if (!worldFromObject.inverse(objectFromWorld)) {
        return false;
    }
    point = worldPoint;
    objectFromWorld.multMatrixPnt(point);
    // Normals go by the transposed matrix on this way.
    osg::Vec3d back;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        for (osg::UInt32 k = 0; k < 3; ++k) {
            back[i] += double(worldFromObject[i][k]) * worldNormal[k];
        }
    }
    const double length = back.length();
    if (length > 0.0) {
        back *= 1.0 / length;
    }
    normal = osg::Vec3f(back);
    return nbIsFinite(back) && nbIsFinite(point);
}

osg::Vec3f naturalScale(float aspect)
{
    return { aspect, 1.0F, 1.0F };
}

nbTransformState fittedProjection(const osg::BoxVolume& bounds, const osg::Matrix& worldFromObject,
                                  float aspect)
{
    const double ratio = mapped(worldFromObject, { 0.0, 1.0, 0.0 }).length() /
        mapped(worldFromObject, { 1.0, 0.0, 0.0 }).length();
    aspect *= std::isnormal(ratio) ? static_cast<float>(ratio) : 1.0F;
    const osg::RefPtr<osg::Transform3DPtr> fresh(osg::Transform3D::create());
    nbTransformState state = nbTransformState::of(*fresh.get());
    float half = 1.0F;
    if (!bounds.isEmpty()) {
        const osg::Pnt3f low = bounds.getMin();
        const osg::Pnt3f high = bounds.getMax();
        const osg::Vec3f size = high - low;
        const float largest = std::max({ size.x(), size.y(), size.z() });
        constexpr float kPartOfLargest = 0.25F;
        half = largest > 0.0F ? kPartOfLargest * largest : 1.0F;
        state.translation =
            osg::Vec3f(0.5F * (low.x() + high.x()), 0.5F * (low.y() + high.y()), high.z());
    }
    state.scale = naturalScale(aspect) * (half / std::max(aspect, 1.0F));
    state.scale[2] = half;
    return state;
}

void fitTriplanar(const osg::BoxVolume& bounds, const osg::Matrix& worldFromObject, float aspect,
                  nbTextureValues& values)
{
    if (bounds.isEmpty()) {
        return;
    }
    const osg::Vec3f size = bounds.getMax() - bounds.getMin();
    float largest = 0.0F;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const osg::Vec4f& axis = worldFromObject[i];
        largest = std::max(largest, size[i] * osg::Vec3f(axis.x(), axis.y(), axis.z()).length());
    }
    // A picture that repeats once is this large.
    constexpr float kUnits = 100.0F;
    constexpr float kHalf = 0.5F;
    const float repeatV = kUnits / (kHalf * largest);
    const float repeatU = repeatV / aspect;
    if (std::isnormal(repeatV) && std::isnormal(repeatU)) {
        values.triplanarRepeatU = osg::Vec3f(repeatU, repeatU, repeatU);
        values.triplanarRepeatV = osg::Vec3f(repeatV, repeatV, repeatV);
    }
}

void fitTire(const osg::BoxVolume& bounds, nbTextureValues& values)
{
    if (bounds.isEmpty()) {
        return;
    }
    osg::Pnt3f middle;
    bounds.getCenter(middle);
    const osg::Vec3f size = bounds.getMax() - bounds.getMin();
    constexpr float kHalf = 0.5F;
    const float radius = kHalf * std::max(size.y(), size.z());
    values.tireCenter = osg::Vec3f(middle.x(), middle.y(), middle.z());
    values.tireScaleHeight = size.x() > 0.0F ? size.x() : values.tireScaleHeight;
    values.tireScaleRadius = radius > 0.0F ? radius : values.tireScaleRadius;
}
