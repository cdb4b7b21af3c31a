// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGSceneplate/Sceneplate.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGVector.h>

/// What a plate shows at a place of it.
class NB_PLATFORM_API nbSceneplatePicture
{
public:
    nbSceneplatePicture() = delete;

    /// Alpha of a plate at a place, 0 .. 1: of the nearest pixel of the picture, or of the colour.
    /// Opacity does not count. A picture without alpha, or one that cannot be shown, is opaque.
    /// @param position  0 .. 1 from the plate's lower left corner, limited to that
    static osg::Real32 alphaAt(const osg::SceneplatePtr& plate, const osg::Pnt2f& position);
};
