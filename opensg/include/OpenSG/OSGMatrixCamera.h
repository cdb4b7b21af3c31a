// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMatrix.h>

namespace osg {

OSG_CONTAINER_POINTER(MatrixCamera, CameraPtr);

#define OSG_MATRIX_CAMERA_FIELDS(VALUE, OWNED, LINK)                                               \
    VALUE(ProjectionMatrix, projectionMatrix, Matrix, Matrix())                                    \
    VALUE(ModelviewMatrix, modelviewMatrix, Matrix, Matrix())

/// A camera that is its two matrices, eye to clip space and world to eye; it needs no beacon.
class MatrixCamera : public Camera
{
    OSG_CONTAINER(MatrixCamera, Camera, OSG_MATRIX_CAMERA_FIELDS);

public:
    void getProjection(Matrix& result, UInt32 /*width*/, UInt32 /*height*/) override
    {
        result = getProjectionMatrix();
    }

    void getViewing(Matrix& result, UInt32 /*width*/, UInt32 /*height*/) override
    {
        result = getModelviewMatrix();
    }
};

}  // namespace osg
