// SPDX-License-Identifier: MIT
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberCamera/nbCameraUtils.h>

bool nbCameraUtils::getVerticalSizing(const osg::CameraPtr& camera, int /*width*/, int /*height*/)
{
    const osg::UberCameraPtr uberCamera = osg::UberCameraPtr::dcast(camera);
    return uberCamera == osg::NullFC || !uberCamera->getHorizontalSizing();
}
