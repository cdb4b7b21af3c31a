// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <QJsonValue>

namespace viewer {

/// What gives a number back, bit for bit, when it is read in double precision and brought back to
/// this type, written with the fewest digits. JSON knows no negative zero: it becomes the text
/// "-0".
/// @param value  finite
QJsonValue exactJson(float value);
QJsonValue exactJson(double value);

/// How many numbers of single precision, told by [], make a vector, colour or rotation (x, y, z,
/// w); 0 for other types.
template <class Value>
constexpr int kNumberCount = 0;
template <>
constexpr int kNumberCount<osg::Vec2f> = 2;
template <>
constexpr int kNumberCount<osg::Vec3f> = 3;
template <>
constexpr int kNumberCount<osg::Vec4f> = 4;
template <>
constexpr int kNumberCount<osg::Pnt3f> = 3;
template <>
constexpr int kNumberCount<osg::Color3f> = 3;
template <>
constexpr int kNumberCount<osg::Color4f> = 4;
template <>
constexpr int kNumberCount<osg::Quaternion> = 4;

}  // namespace viewer
