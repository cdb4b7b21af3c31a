// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGConfig.h>

/// Questions about cameras of any class.
class NB_PLATFORM_API nbUberCameraUtils
{
public:
    /// Whether a camera shows its view without perspective: an UberCamera by its switch, another
    /// camera by its class. False for null.
    static bool isOrthographicCamera(const osg::CameraPtr& camera);
};
