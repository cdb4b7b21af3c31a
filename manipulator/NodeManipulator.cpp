// SPDX-License-Identifier: MIT
#include "manipulator/NodeManipulator.h"

#include "manipulator/handles/ContainerReference.h"

namespace nbec::manipulator {

void NodeManipulator::setNode(const osg::NodePtr& node)
{
    nodeId = containerId(node);
}

osg::NodePtr NodeManipulator::getNode() const
{
    return resolveContainer<osg::NodePtr>(nodeId);
}

}  // namespace nbec::manipulator
