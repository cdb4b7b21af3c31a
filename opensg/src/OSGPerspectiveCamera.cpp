// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGMatrixUtility.h>
#include <OpenSG/OSGPerspectiveCamera.h>

namespace osg {

OSG_CONTAINER_TYPE(PerspectiveCamera, Camera);

void PerspectiveCamera::getProjection(Matrix& result, UInt32 width, UInt32 height)
{
    const Real32 fovRad = getFov() > Pi ? osgdegree2rad(getFov()) : getFov();
    const Real32 ratio =
        height > 0 ? static_cast<Real32>(width) / static_cast<Real32>(height) * getAspect() : 0.0F;
    if (MatrixPerspective(result, fovRad / 2.0F, ratio, getNear(), getFar())) {
        result.setIdentity();
    }
}

}  // namespace osg
