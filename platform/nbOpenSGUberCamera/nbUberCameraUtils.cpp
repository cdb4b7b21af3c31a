// SPDX-License-Identifier: MIT
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberCamera/nbUberCameraUtils.h>

#include <OpenSG/OSGOrthographicCamera.h>

bool nbUberCameraUtils::isOrthographicCamera(const osg::CameraPtr& camera)
{
    const osg::UberCameraPtr uberCamera = osg::UberCameraPtr::dcast(camera);
    if (uberCamera != osg::NullFC) {
        return uberCamera->isOrthographic();
    }
    return osg::OrthographicCameraPtr::dcast(camera) != osg::NullFC;
}
