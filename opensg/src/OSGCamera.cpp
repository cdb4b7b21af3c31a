// SPDX-License-Identifier: MIT
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGMatrixCamera.h>
#include <OpenSG/OSGMatrixUtility.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGOrthographicCamera.h>
#include <OpenSG/OSGPerspectiveCamera.h>
#include <OpenSG/OSGViewport.h>

#include <ViewRay.h>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(Camera, AttachmentContainer);
OSG_CONTAINER_TYPE(MatrixCamera, Camera);

void Camera::getProjectionTranslation(Matrix& result, UInt32, UInt32)
{
    result.setIdentity();
}

void Camera::getViewing(Matrix& result, UInt32, UInt32)
{
    if (getBeacon() == NullFC) {
        SWARNING << "Camera::getViewing: camera " << this << " has no beacon" << std::endl;
        return;
    }
    getBeacon()->getToWorld(result);
    result.invert();
}

void Camera::getWorldToScreen(Matrix& result, const Viewport& port)
{
    const auto width = static_cast<UInt32>(osgMax(port.getPixelWidth(), 0));
    const auto height = static_cast<UInt32>(osgMax(port.getPixelHeight(), 0));
    Matrix translation;
    Matrix viewing;
    getProjection(result, width, height);
    getProjectionTranslation(translation, width, height);
    getViewing(viewing, width, height);
    result.mult(translation);
    result.mult(viewing);
}

bool Camera::calcViewRay(Line& line, Int32 x, Int32 y, const Viewport& port)
{
    return glue::viewRay(line, CameraPtr(this), x, y, port);
}

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
