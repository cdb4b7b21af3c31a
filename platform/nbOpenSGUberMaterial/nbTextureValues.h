// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberMaterial/ColorComponentSettings.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGVector.h>

/// The UV, triplanar and tire projection of a component as plain values, and the angles of the
/// planar one, which ColorComponentSettings explains. A fresh one has the values of fresh settings.
struct NB_PLATFORM_API nbTextureValues
{
    osg::Vec2f offset { 0.0F, 0.0F };
    osg::Vec2f repeat { 1.0F, 1.0F };
    osg::Real32 rotate = 0.0F;  ///< degrees

    osg::Vec3f triplanarRotation { 0.0F, 0.0F, 0.0F };  ///< radians
    osg::Vec3f triplanarOffsetU { 0.0F, 0.0F, 0.0F };
    osg::Vec3f triplanarOffsetV { 0.0F, 0.0F, 0.0F };
    osg::Vec3f triplanarRepeatU { 1.0F, 1.0F, 1.0F };
    osg::Vec3f triplanarRepeatV { 1.0F, 1.0F, 1.0F };

    osg::Vec3f tireCenter { 0.0F, 0.0F, 0.0F };
    osg::Real32 tireScaleU = 1.0F;
    osg::Real32 tireScaleHeight = 1.0F;
    osg::Real32 tireScaleRadius = 1.0F;
    bool tireAutoParameter = true;

    osg::Vec2f planarAngles { 180.0F, 0.0F };  ///< degrees

    static nbTextureValues of(const osg::ColorComponentSettings& settings);

    /// Writes all values, in an edit of its own.
    void applyTo(const osg::ColorComponentSettingsPtr& settings) const;

    /// Whether all values are finite and no repeat or scale is (or is as good as) zero.
    bool isSound() const;

    /// Whether the triplanar projection is the same.
    bool hasSameTriplanar(const nbTextureValues& other) const;

    bool operator==(const nbTextureValues& other) const;

    bool operator!=(const nbTextureValues& other) const { return !(*this == other); }
};
