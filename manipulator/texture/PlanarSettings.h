// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGVector.h>

namespace nbec::manipulator::texture {

/// Settings of one planar gizmo; see PlanarTextureManipulator.
struct PlanarSettings
{
    bool keepAspectRatio = false;
    bool useTextureScale = false;
    bool useObjectScale = false;
    bool useObjectTranslation = false;
    bool applyRotationToTranslation = false;
    bool areRingsTilted = false;
    float aspectRatio = 1.0F;
    // What the receiver answers
    osg::Vec3f initialTextureScale { 1.0F, 1.0F, 1.0F };
    osg::Vec2f projectionSize;
};

}  // namespace nbec::manipulator::texture
