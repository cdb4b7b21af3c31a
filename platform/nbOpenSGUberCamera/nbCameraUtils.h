// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGConfig.h>

/// How a camera's picture is fitted into a view.
class NB_PLATFORM_API nbCameraUtils
{
public:
    /// Whether the height of a view is its reference size, the side of which a resized view keeps
    /// the same part of the picture; otherwise the width is.
    /// An UberCamera says so by its field HorizontalSizing; every other camera, and null, keeps
    /// the height. The view's own size makes no difference to the cameras of this host.
    /// @param width, height  of the view, device pixels
    static bool getVerticalSizing(const osg::CameraPtr& camera, int width, int height);
};
