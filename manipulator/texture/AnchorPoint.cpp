// SPDX-License-Identifier: MIT
#include "manipulator/texture/AnchorPoint.h"

#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/ContainerReference.h"

namespace nbec::manipulator::texture {

void AnchorPoint::set(const osg::NodePtr& node, const osg::Pnt3f& position)
{
    nodeId = containerId(node);
    localPosition = position;
    worldPosition = position;
    if (node != osg::NullFC) {
        follow(node->getToWorld());
    }
}

osg::NodePtr AnchorPoint::getNode() const
{
    return resolveContainer<osg::NodePtr>(nodeId);
}

void AnchorPoint::follow(const osg::Matrix& worldFromNode)
{
    worldPosition = mapped(worldFromNode, localPosition);
}

}  // namespace nbec::manipulator::texture
