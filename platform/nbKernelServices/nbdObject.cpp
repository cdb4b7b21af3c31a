// SPDX-License-Identifier: MIT
#include "nbdObject.h"

#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUberCamera/nbUberCameraPool.h>

#include <OpenSG/OSGNode.h>

bool nbdObject::isNull() const
{
    switch (kind) {
    case Kind::Node:
        return resolveContainer<osg::NodePtr>(id) == osg::NullFC;
    case Kind::CameraNode:
    case Kind::PerspectiveMatch:
        return nbUberCameraPool::getByNode(id) == osg::NullFC;
    case Kind::None:
        break;
    }
    return true;
}
