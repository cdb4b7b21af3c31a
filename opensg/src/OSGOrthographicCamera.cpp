// SPDX-License-Identifier: MIT
#include <OpenSG/OSGMatrixUtility.h>
#include <OpenSG/OSGOrthographicCamera.h>

namespace osg {

OSG_CONTAINER_TYPE(OrthographicCamera, Camera);

void OrthographicCamera::getProjection(Matrix& result, UInt32 width, UInt32 height)
{
    const Real32 ratio =
        height > 0 ? static_cast<Real32>(width) / static_cast<Real32>(height) * getAspect() : 0.0F;
    const Real32 halfHeight = getVerticalSize() / 2.0F;
    const Real32 halfWidth = halfHeight * ratio;
    if (MatrixOrthogonal(result, -halfWidth, halfWidth, -halfHeight, halfHeight, getNear(),
                         getFar())) {
        result.setIdentity();
    }
}

}  // namespace osg
