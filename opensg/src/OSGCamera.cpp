// SPDX-License-Identifier: MIT
#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGViewport.h>
#include <OpenSG/OSGWindow.h>

#include <ViewRay.h>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(Camera, AttachmentContainer);

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

}  // namespace osg
