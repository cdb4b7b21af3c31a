// SPDX-License-Identifier: MIT
#include <OpenSG/OSGMatrixCamera.h>

namespace osg {

OSG_CONTAINER_TYPE(MatrixCamera, Camera);

void MatrixCamera::getProjection(Matrix& result, UInt32, UInt32)
{
    result = getProjectionMatrix();
}

void MatrixCamera::getViewing(Matrix& result, UInt32, UInt32)
{
    result = getModelviewMatrix();
}

}  // namespace osg
