// SPDX-License-Identifier: MIT
#include "tests/fuzz/WildGui.h"

namespace nbec::manipulator::test {

void WildGui::change(Bytes& bytes)
{
    hasAll = bytes.flag();
    value = bytes.number3();
}

bool WildGui::hasComponent(const std::string& /*component*/) const
{
    return hasAll;
}

osg::Vec3f WildGui::getTriplanarRotation(const std::string& /*component*/) const
{
    return value;
}

osg::Vec2f WildGui::getTriplanarOffset(const std::string& /*component*/, osg::UInt32 axis) const
{
    return { value[axis % 3], value.y() };
}

osg::Vec2f WildGui::getTriplanarRepeat(const std::string& /*component*/, osg::UInt32 axis) const
{
    return { value.z(), value[axis % 3] };
}

osg::Real32 WildGui::getRotate(const std::string& /*component*/) const
{
    return value.x();
}

osg::Vec2f WildGui::getOffset(const std::string& /*component*/) const
{
    return { value.x(), value.y() };
}

osg::Vec2f WildGui::getRepeat(const std::string& /*component*/) const
{
    return { value.y(), value.z() };
}

osg::Vec3f WildGui::getTireCenter(const std::string& /*component*/) const
{
    return value;
}

osg::Real32 WildGui::getTireScaleU(const std::string& /*component*/) const
{
    return value.x();
}

osg::Real32 WildGui::getTireScaleHeight(const std::string& /*component*/) const
{
    return value.y();
}

osg::Real32 WildGui::getTireScaleRadius(const std::string& /*component*/) const
{
    return value.z();
}

}  // namespace nbec::manipulator::test
