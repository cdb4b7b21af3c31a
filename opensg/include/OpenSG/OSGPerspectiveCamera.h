// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>

namespace osg {

OSG_CONTAINER_POINTER(PerspectiveCamera, CameraPtr);

#define OSG_PERSPECTIVE_CAMERA_FIELDS(VALUE, OWNED, LINK)                                          \
    VALUE(Fov, fov, Real32, 0.0F)                                                                  \
    VALUE(Aspect, aspect, Real32, 1.0F)

/// Fov is the vertical opening angle in radians; above pi it is read as degrees. Aspect
/// multiplies the width to height ratio of the picture.
class PerspectiveCamera : public Camera
{
    OSG_CONTAINER(PerspectiveCamera, Camera, OSG_PERSPECTIVE_CAMERA_FIELDS);

public:
    void getProjection(Matrix& result, UInt32 width, UInt32 height) override;
};

}  // namespace osg
