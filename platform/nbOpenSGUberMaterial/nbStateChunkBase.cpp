// SPDX-License-Identifier: MIT
#include "nbStateChunkBase.h"

using osg::Real32;
using osg::UInt32;
using osg::Vec2f;
using osg::Vec3f;

nbStateChunkBase::~nbStateChunkBase() = default;

void nbStateChunkBase::componentChanged(const std::string&) { }

bool nbStateChunkBase::hasComponent(const std::string&) const
{
    return false;
}

Vec3f nbStateChunkBase::getTriplanarRotation(const std::string&) const
{
    return { 0.0F, 0.0F, 0.0F };
}

Vec2f nbStateChunkBase::getTriplanarOffset(const std::string&, UInt32) const
{
    return { 0.0F, 0.0F };
}

Vec2f nbStateChunkBase::getTriplanarRepeat(const std::string&, UInt32) const
{
    return { 1.0F, 1.0F };
}

Real32 nbStateChunkBase::getRotate(const std::string&) const
{
    return 0.0F;
}

Vec2f nbStateChunkBase::getOffset(const std::string&) const
{
    return { 0.0F, 0.0F };
}

Vec2f nbStateChunkBase::getRepeat(const std::string&) const
{
    return { 1.0F, 1.0F };
}

Vec3f nbStateChunkBase::getTireCenter(const std::string&) const
{
    return { 0.0F, 0.0F, 0.0F };
}

Real32 nbStateChunkBase::getTireScaleU(const std::string&) const
{
    return 1.0F;
}

Real32 nbStateChunkBase::getTireScaleHeight(const std::string&) const
{
    return 1.0F;
}

Real32 nbStateChunkBase::getTireScaleRadius(const std::string&) const
{
    return 1.0F;
}
