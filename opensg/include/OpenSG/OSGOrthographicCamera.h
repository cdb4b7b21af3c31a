// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>

namespace osg {

OSG_CONTAINER_POINTER(OrthographicCamera, CameraPtr);

#define OSG_ORTHOGRAPHIC_CAMERA_FIELDS(VALUE, OWNED, LINK)                                         \
    VALUE(VerticalSize, verticalSize, Real32, 0.0F)                                                \
    VALUE(Aspect, aspect, Real32, 1.0F)

/// VerticalSize is the visible height in the beacon's units. Aspect multiplies the width to
/// height ratio of the picture.
class OrthographicCamera : public Camera
{
    OSG_CONTAINER(OrthographicCamera, Camera, OSG_ORTHOGRAPHIC_CAMERA_FIELDS);

public:
    void getProjection(Matrix& result, UInt32 width, UInt32 height) override;
};

}  // namespace osg
