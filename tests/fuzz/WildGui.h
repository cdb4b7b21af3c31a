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
    void change(Bytes& bytes);

    bool hasComponent(const std::string& component) const override;
    osg::Vec3f getTriplanarRotation(const std::string& component) const override;
    osg::Vec2f getTriplanarOffset(const std::string& component, osg::UInt32 axis) const override;
    osg::Vec2f getTriplanarRepeat(const std::string& component, osg::UInt32 axis) const override;
    osg::Real32 getRotate(const std::string& component) const override;
    osg::Vec2f getOffset(const std::string& component) const override;
    osg::Vec2f getRepeat(const std::string& component) const override;
    osg::Vec3f getTireCenter(const std::string& component) const override;
    osg::Real32 getTireScaleU(const std::string& component) const override;
    osg::Real32 getTireScaleHeight(const std::string& component) const override;
    osg::Real32 getTireScaleRadius(const std::string& component) const override;

private:
    bool hasAll = false;
    osg::Vec3f value;
};

}  // namespace nbec::manipulator::test
