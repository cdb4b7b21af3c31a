// SPDX-License-Identifier: MIT
#include "manipulator/NodeManipulator.h"

#include "manipulator/detail/ContainerReference.h"

namespace nbec::manipulator {

void NodeManipulator::setNode(const osg::NodePtr& node)
{
    nodeId = detail::containerId(node);
}

osg::NodePtr NodeManipulator::getNode() const
{
    return detail::resolveContainer<osg::NodePtr>(nodeId);
}

}  // namespace nbec::manipulator
