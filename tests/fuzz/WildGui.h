// SPDX-License-Identifier: MIT
#pragma once

#include "tests/fuzz/Bytes.h"

#include <nbOpenSGUberMaterial/nbStateChunkBase.h>

#include <string>

namespace nbec::manipulator::test {

/// An editor object of a host whose values are whatever the bytes say.
class WildGui : public nbStateChunkBase
{
public:
    void change(Bytes& bytes)
    {
        hasAll = bytes.flag();
        value = bytes.number3();
    }

    using Name = const std::string&;

    bool hasComponent(Name) const override { return hasAll; }

    osg::Vec3f getTriplanarRotation(Name) const override { return value; }

    osg::Vec2f getTriplanarOffset(Name, osg::UInt32 axis) const override
    {
        return { value[axis % 3], value.y() };
    }

    osg::Vec2f getTriplanarRepeat(Name, osg::UInt32 axis) const override
    {
        return { value.z(), value[axis % 3] };
    }

    osg::Real32 getRotate(Name) const override { return value.x(); }

    osg::Vec2f getOffset(Name) const override { return { value.x(), value.y() }; }

    osg::Vec2f getRepeat(Name) const override { return { value.y(), value.z() }; }

    osg::Vec3f getTireCenter(Name) const override { return value; }

    osg::Real32 getTireScaleU(Name) const override { return value.x(); }

    osg::Real32 getTireScaleHeight(Name) const override { return value.y(); }

    osg::Real32 getTireScaleRadius(Name) const override { return value.z(); }

private:
    bool hasAll = false;
    osg::Vec3f value;
};

}  // namespace nbec::manipulator::test
