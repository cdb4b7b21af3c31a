// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGSceneplate/Sceneplate.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGVector.h>

/// What a plate shows.
class NB_PLATFORM_API nbSceneplatePicture
{
public:
    nbSceneplatePicture() = delete;

    /// The image that a plate shows; null if it shows its colour, because it has no image or one
    /// without pixels of 8 bits per component.
    static osg::ImagePtr imageOf(const osg::SceneplatePtr& plate);

    /// Alpha of a plate at a place, 0 .. 1: of the nearest pixel of the picture, or of the colour.
    /// Opacity does not count. A picture without alpha is opaque.
    /// @param position  0 .. 1 from the plate's lower left corner, limited to that
    static osg::Real32 alphaAt(const osg::SceneplatePtr& plate, const osg::Pnt2f& position);
};
