// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGCamera.h>

namespace osg {
OSG_DECLARED_POINTER(MatrixCamera, CameraPtr);

class MatrixCamera : public Camera
{
    OSG_DECLARED_CLASS(MatrixCamera, Camera)
    OSG_DECLARED_VALUE(ProjectionMatrix, Matrix)
    OSG_DECLARED_VALUE(ModelviewMatrix, Matrix)
    void getProjection(Matrix& result, UInt32 width, UInt32 height) override;
};
}  // namespace osg
