// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <array>

/// Vectors, colours and rotations of scene files as arrays of numbers.
namespace viewer {

/// A type that is no such array.
template <class Value>
struct SceneNumbers
{
    static constexpr int kCount = 0;
};

template <class Value, int Count>
struct IndexedNumbers
{
    static constexpr int kCount = Count;
    using Array = std::array<float, Count>;

    static Array of(const Value& value)
    {
        Array numbers {};
        for (int i = 0; i < Count; ++i) {
            numbers[static_cast<std::size_t>(i)] = value[static_cast<osg::UInt32>(i)];
        }
        return numbers;
    }

    static void assign(Value& value, const Array& numbers)
    {
        for (int i = 0; i < Count; ++i) {
            value[static_cast<osg::UInt32>(i)] = numbers[static_cast<std::size_t>(i)];
        }
    }
};

template <>
struct SceneNumbers<osg::Vec2f> : IndexedNumbers<osg::Vec2f, 2>
{ };

template <>
struct SceneNumbers<osg::Vec3f> : IndexedNumbers<osg::Vec3f, 3>
{ };

template <>
struct SceneNumbers<osg::Vec4f> : IndexedNumbers<osg::Vec4f, 4>
{ };

template <>
struct SceneNumbers<osg::Pnt3f> : IndexedNumbers<osg::Pnt3f, 3>
{ };

template <>
struct SceneNumbers<osg::Color3f> : IndexedNumbers<osg::Color3f, 3>
{ };

template <>
struct SceneNumbers<osg::Color4f> : IndexedNumbers<osg::Color4f, 4>
{ };

/// x, y, z, w.
template <>
struct SceneNumbers<osg::Quaternion>
{
    static constexpr int kCount = 4;
    using Array = std::array<float, kCount>;

    static Array of(const osg::Quaternion& value)
    {
        const float* const v = value.getValues();
        return { v[0], v[1], v[2], v[3] };
    }

    static void assign(osg::Quaternion& value, const Array& numbers)
    {
        value.setValueAsQuat(numbers[0], numbers[1], numbers[2], numbers[3]);
    }
};

}  // namespace viewer
