// SPDX-License-Identifier: MIT
#include "nbdObject.h"

#include <nbOpenSGUberCamera/nbUberCameraPool.h>

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGNode.h>

bool nbdObject::isNull() const
{
    switch (kind) {
    case Kind::Node:
        return osg::NodePtr::dcast(osg::FieldContainerFactory::the()->getContainer(id)) ==
            osg::NullFC;
    case Kind::CameraNode:
    case Kind::PerspectiveMatch:
        return nbUberCameraPool::getByNode(id) == osg::NullFC;
    case Kind::None:
        break;
    }
    return true;
}
