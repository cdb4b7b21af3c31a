// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberMaterial/UberMaterial.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>
#include <nbOpenSGUberMaterial/nbTextureValues.h>
#include <nbUtils/nbPlatformExport.h>

#include <string>

/// Delivers the values of an UberMaterial's components as they are at the time of asking; reports
/// those that have settings.
class NB_PLATFORM_API nbMaterialStateChunk : public nbStateChunkBase
{
public:
    /// Not counted: a material that is destroyed has no components.
    void setMaterial(const osg::UberMaterialPtr& material);
    osg::UberMaterialPtr getMaterial() const;

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
    osg::ColorComponentSettingsPtr settingsOf(const std::string& component) const;
    nbTextureValues valuesOf(const std::string& component) const;

    osg::UInt32 materialId = 0;
};
