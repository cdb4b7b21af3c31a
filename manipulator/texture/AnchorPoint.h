// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

namespace nbec::manipulator::texture {

/// A point on a node of the scene. The node is kept by its container id and looked up on each use,
/// so that one that was deleted reads as null.
class AnchorPoint
{
public:
    /// @param node      null: the position is one of the world
    /// @param position  in the node's coordinates
    void set(const osg::NodePtr& node, const osg::Pnt3f& position);

    /// The node; null if there is none or it no longer exists.
    osg::NodePtr getNode() const;

    /// Place in the world when the node was looked at last: by set() or follow().
    const osg::Pnt3f& getWorldPosition() const { return worldPosition; }

    /// Looks where the node has brought the point. @param worldFromNode  its world matrix
    void follow(const osg::Matrix& worldFromNode);

private:
    osg::UInt32 nodeId = 0;
    osg::Pnt3f localPosition;
    osg::Pnt3f worldPosition;
};

}  // namespace nbec::manipulator::texture
