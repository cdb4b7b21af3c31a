// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGNode.h>

namespace viewer {

/// Hangs a node below another one, where it leaves its former parent.
inline void addChild(const osg::NodePtr& parent, const osg::NodePtr& child)
{
    const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
    parent->addChild(child);
}

/// Takes a node from its parent, if it has one.
inline void takeFromParent(const osg::NodePtr& node)
{
    if (const osg::NodePtr parent = node->getParent(); parent != osg::NullFC) {
        const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
        parent->subChild(node);
    }
}

inline void removeChildren(const osg::NodePtr& node)
{
    const nbEdit edit(node, osg::Node::ChildrenFieldMask);
    while (node->getNChildren() > 0) {
        node->subChild(node->getNChildren() - 1);
    }
}

}  // namespace viewer
