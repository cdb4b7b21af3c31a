// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGCamera.h>

namespace osg {
OSG_DECLARED_POINTER(PerspectiveCamera, CameraPtr);

class PerspectiveCamera : public Camera
{
    OSG_DECLARED_CLASS(PerspectiveCamera, Camera)
    OSG_DECLARED_VALUE(Fov, Real32)
    OSG_DECLARED_VALUE(Aspect, Real32)
    void getProjection(Matrix& result, UInt32 width, UInt32 height) override;
};
}  // namespace osg
