// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGVector.h>

#include <string>

/// Editor object of the host that mirrors the settings of components of a material, such as a
/// panel that shows them. Manipulators keep a pointer to it for the host; nobody but the host owns
/// it.
///
/// Values are asked for only of components that hasComponent() reports. What a derived class does
/// not answer has the values of fresh ColorComponentSettings, where the values are explained.
class NB_PLATFORM_API nbStateChunkBase
{
public:
    nbStateChunkBase() = default;
    virtual ~nbStateChunkBase();

    nbStateChunkBase(const nbStateChunkBase&) = delete;
    nbStateChunkBase& operator=(const nbStateChunkBase&) = delete;

    /// Called after an editor changed values of a component, for a manipulator or otherwise; undo
    /// and redo are not told. Does nothing here.
    virtual void componentChanged(const std::string& /*component*/) { }

    /// Whether the values below are known for a component; false here.
    virtual bool hasComponent(const std::string& /*component*/) const { return false; }

    // == Triplanar projection; axis 0, 1, 2 for the projections along x, y, z

    /// Radians.
    virtual osg::Vec3f getTriplanarRotation(const std::string& /*component*/) const
    {
        return { 0.0F, 0.0F, 0.0F };
    }

    virtual osg::Vec2f getTriplanarOffset(const std::string& /*component*/,
                                          osg::UInt32 /*axis*/) const
    {
        return { 0.0F, 0.0F };
    }

    virtual osg::Vec2f getTriplanarRepeat(const std::string& /*component*/,
                                          osg::UInt32 /*axis*/) const
    {
        return { 1.0F, 1.0F };
    }

    // == UV projection

    /// Degrees.
    virtual osg::Real32 getRotate(const std::string& /*component*/) const { return 0.0F; }

    virtual osg::Vec2f getOffset(const std::string& /*component*/) const { return { 0.0F, 0.0F }; }

    virtual osg::Vec2f getRepeat(const std::string& /*component*/) const { return { 1.0F, 1.0F }; }

    // == Tire projection; lengths in the object's space

    virtual osg::Vec3f getTireCenter(const std::string& /*component*/) const
    {
        return { 0.0F, 0.0F, 0.0F };
    }

    virtual osg::Real32 getTireScaleU(const std::string& /*component*/) const { return 1.0F; }

    virtual osg::Real32 getTireScaleHeight(const std::string& /*component*/) const { return 1.0F; }

    virtual osg::Real32 getTireScaleRadius(const std::string& /*component*/) const { return 1.0F; }
};
