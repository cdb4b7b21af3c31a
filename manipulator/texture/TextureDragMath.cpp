// SPDX-License-Identifier: MIT
#include "manipulator/texture/TextureDragMath.h"

#include "manipulator/drag/DragGeometry.h"

#include <nbOpenSGExt/nbEulerRotation.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::texture {

namespace {

constexpr float kShortest = 1e-6F;
constexpr double kLeastFactor = 0.001;
constexpr float kUnitsPerOffset = 100.0F;
constexpr float kUniformShare = 0.01F;
/// Deliberate: as many digits as the receivers of angles in degrees count with.
constexpr double kHalfTurn = 3.14159265358;
constexpr double kHalfTurnDeg = 180.0;
constexpr const char* kOrder = "xyz";
constexpr double kPi = 3.14159265358979324;

float atLeastLeast(float factor)
{
    return static_cast<double>(factor) < kLeastFactor ? static_cast<float>(kLeastFactor) : factor;
}

/// Angle between two directions, 0 .. pi, which rounding cannot make undefined.
/// @param count  of components
template <class Vector>
double angleBetween(const Vector& left, const Vector& right, osg::UInt32 count)
{
    double dot = 0.0;
    double leftSquare = 0.0;
    double rightSquare = 0.0;
    for (osg::UInt32 i = 0; i < count; ++i) {
        dot += static_cast<double>(left[i]) * static_cast<double>(right[i]);
        leftSquare += static_cast<double>(left[i]) * static_cast<double>(left[i]);
        rightSquare += static_cast<double>(right[i]) * static_cast<double>(right[i]);
    }
    const auto divisor = [](double square) {
        const double length = std::sqrt(square);
        return length < static_cast<double>(kShortest) ? 1.0 : length;
    };
    const double cosine = dot / (divisor(leftSquare) * divisor(rightSquare));
    return std::acos(std::isfinite(cosine) ? std::clamp(cosine, -1.0, 1.0) : cosine);
}

/// The two projections that contain an axis.
std::array<osg::UInt32, 2> projectionsWith(osg::UInt32 axis)
{
    return { axis == 0 ? 1U : 0U, axis == 2 ? 1U : 2U };
}

/// Which half of a projection's pair an axis is: 0 for u, 1 for v.
osg::UInt32 triplanarComponent(osg::UInt32 projection, osg::UInt32 axis)
{
    const osg::UInt32 other = 3 - projection - axis;
    return axis < other ? 0 : 1;
}

}  // namespace

TriplanarPairs shiftedOffsets(const TriplanarPairs& start, osg::UInt32 axis, float shift)
{
    TriplanarPairs offsets = start;
    for (const osg::UInt32 projection : projectionsWith(axis)) {
        offsets[projection][triplanarComponent(projection, axis)] -= shift / kUnitsPerOffset;
    }
    return offsets;
}

TriplanarPairs scaledAlong(const TriplanarPairs& start, osg::UInt32 axis, float factor)
{
    TriplanarPairs scales = start;
    for (osg::UInt32 projection = 0; projection < 3; ++projection) {
        if (axis > 2) {
            scales[projection] *= factor;
        } else if (projection != axis) {
            scales[projection][triplanarComponent(projection, axis)] *= factor;
        }
    }
    return scales;
}

float axisScaleFactor(float current, float start)
{
    return atLeastLeast(current / start);
}

float uniformScaleFactor(float current, float start)
{
    return atLeastLeast((current / start - 1.0F) * kUniformShare + 1.0F);
}

std::optional<double> turnAbout(const osg::Vec3f& from, const osg::Vec3f& to, osg::UInt32 axis)
{
    const auto angle = static_cast<float>(angleBetween(to, from, 3));
    if (!std::isfinite(angle)) {
        return std::nullopt;
    }
    const osg::UInt32 first = (axis + 1) % 3;
    const osg::UInt32 second = (axis + 2) % 3;
    const bool isPositive = to[first] * from[second] - to[second] * from[first] < 0.0F;
    return static_cast<double>(isPositive ? angle : -angle) * kDegPerRad;
}

osg::Vec3f turnedTriplanar(const osg::Vec3f& start, osg::UInt32 axis, double turnDeg)
{
    const auto turn = static_cast<float>(turnDeg / kDegPerRad);
    osg::Vec3f rotation = start;
    rotation[axis] += axis == 1 ? -turn : turn;
    return rotation;
}

osg::Quaternion triplanarTurn(const osg::Vec3f& rotation)
{
    const auto degPerRad = static_cast<float>(kDegPerRad);
    return nbEulerRotation::toQuaternion(
        osg::Vec3f(rotation.x(), -rotation.y(), rotation.z()) * degPerRad, kOrder);
}

osg::Vec3f triplanarRotation(const osg::Quaternion& turn)
{
    const osg::Vec3f angles = nbEulerRotation::fromQuaternion(turn, kOrder);
    return osg::Vec3f(angles.x(), -angles.y(), angles.z()) * static_cast<float>(1.0 / kDegPerRad);
}

osg::Vec3f triplanarOffset(const TriplanarPairs& offsets, osg::UInt32 projection)
{
    constexpr float kHalf = 0.5F;
    osg::Vec3f offset;
    for (osg::UInt32 axis = 0; axis < 3; ++axis) {
        const auto of = [&](osg::UInt32 i) { return offsets[i][triplanarComponent(i, axis)]; };
        const auto [first, second] = projectionsWith(axis);
        offset[axis] = projection == first ? of(first)
            : projection == second         ? of(second)
                                           : kHalf * (of(first) + of(second));
    }
    return offset;
}

osg::Vec3f shiftKeeping(const osg::Vec3f& place, const osg::Quaternion& before,
                        const osg::Quaternion& after, const osg::Vec3f& growth)
{
    osg::Vec3f inFrame = rotated(before.inverse(), place);
    for (osg::UInt32 i = 0; i < 3; ++i) {
        inFrame[i] *= growth[i];
    }
    return place - rotated(after, inFrame);
}

osg::Vec2f offsetKeeping(const osg::Vec2f& place, const UVPlacing& before, const UVPlacing& after)
{
    const osg::Vec2f middle(0.5F, 0.5F);
    const auto turned = [](const osg::Vec2f& way, double angleDeg) {
        const auto cosine = static_cast<float>(std::cos(angleDeg / kDegPerRad));
        const auto sine = static_cast<float>(std::sin(angleDeg / kDegPerRad));
        return osg::Vec2f(cosine * way.x() - sine * way.y(), sine * way.x() + cosine * way.y());
    };
    osg::Vec2f texel = turned(place - before.offset - middle, before.rotateDeg) + middle;
    for (osg::UInt32 i = 0; i < 2; ++i) {
        texel[i] *= after.scale[i] / before.scale[i];
    }
    return place - middle - turned(texel - middle, -after.rotateDeg);
}

osg::Matrix unitFrame(const osg::Matrix& matrix, const osg::Pnt3f& origin)
{
    osg::Matrix frame = matrix;
    for (osg::UInt32 axis = 0; axis < 3; ++axis) {
        const float length = column(matrix, axis).length();
        if (!(length > 0.0F) || !std::isfinite(length)) {
            frame = orthonormalised(matrix);
            break;
        }
        for (osg::UInt32 i = 0; i < 3; ++i) {
            frame[axis][i] /= length;
        }
    }
    frame.setTranslate(origin.x(), origin.y(), origin.z());
    return frame;
}

std::optional<float> turnOnScreen(const osg::Vec2f& from, const osg::Vec2f& to)
{
    if (from.length() < kShortest || to.length() < kShortest) {
        return std::nullopt;
    }
    const auto angleDeg = static_cast<float>(angleBetween(to, from, 2) * kHalfTurnDeg / kHalfTurn);
    if (!std::isfinite(angleDeg)) {
        return std::nullopt;
    }
    return from.x() * to.y() - from.y() * to.x() < 0.0F ? -angleDeg : angleDeg;
}

float pictureFactor(const osg::Vec2f& from, const osg::Vec2f& to, unsigned axis)
{
    const osg::Vec2f ratio(to.x() / from.x(), to.y() / from.y());
    return axis == kNoAxis ? std::max(ratio.x(), ratio.y()) : ratio[axis];
}

osg::Vec2f scaledPicture(const osg::Vec2f& start, float factor, unsigned axis, bool isProportional)
{
    osg::Vec2f scale = start;
    for (osg::UInt32 i = 0; i < 2; ++i) {
        scale[i] *= isProportional || axis == kNoAxis || axis == i ? factor : 1.0F;
    }
    return scale;
}

float grownCircumferencePart(float start, double turnRad)
{
    return atLeastLeast(static_cast<float>(static_cast<double>(start) + turnRad / kPi));
}

}  // namespace nbec::manipulator::texture
