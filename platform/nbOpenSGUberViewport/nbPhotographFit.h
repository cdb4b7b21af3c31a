// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGConfig.h>

/// Where a photograph lies in a view, device pixels from the view's lower left corner, y up.
/// Its reference side covers that of the view (see nbCameraUtils::getVerticalSizing) and its middle
/// is the view's middle, where the view axis of the camera is: a photograph that keeps its height
/// leaves room at the left and right of a wider view, and is cut off there by a narrower one.
/// So a picture taken through a camera lies exactly over what that camera shows, in a view of any
/// shape.
struct nbPhotographFit
{
    osg::Real32 left = 0.0F;
    osg::Real32 bottom = 0.0F;
    osg::Real32 width = 0.0F;
    osg::Real32 height = 0.0F;

    /// @param imageWidth, imageHeight  of the photograph, its own pixels; 0: an empty fit
    /// @param viewWidth, viewHeight    device pixels
    /// @param verticalSizing           whether the height is the reference side
    NB_PLATFORM_API static nbPhotographFit of(osg::Int32 imageWidth, osg::Int32 imageHeight,
                                              osg::Int32 viewWidth, osg::Int32 viewHeight,
                                              bool verticalSizing);
};
