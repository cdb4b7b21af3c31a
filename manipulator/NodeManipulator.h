// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/AbstractManipulator.h"

#include <nbOpenSGExt/nbContainerId.h>

namespace nbec::manipulator {

/// A manipulator bound to one scene node, which it holds weakly.
///
/// Deliberate: the node is kept by its container id and not by a counted pointer, so that the
/// manipulator never keeps a deleted node alive; getNode() answers null once it is gone.
class NB_MANIPULATOR_API NodeManipulator : public AbstractManipulator
{
public:
    /// Binds the manipulator to a node. @param node  not owned; null unbinds
    virtual void setNode(const osg::NodePtr& node) { nodeId = containerId(node); }

    /// The node bound to; null if there is none or it no longer exists.
    osg::NodePtr getNode() const { return resolveContainer<osg::NodePtr>(nodeId); }

private:
    osg::UInt32 nodeId = 0;
};

}  // namespace nbec::manipulator
