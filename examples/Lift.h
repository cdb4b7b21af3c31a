// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>

/// Data of the program's own: how high an object hangs, in world units.
class Lift
{
public:
    /// @param liftedNode  with a Transform3D core, below the scene root; outlives the lift
    explicit Lift(const osg::NodePtr& liftedNode)
        : node(liftedNode)
    { }

    osg::NodePtr getNode() const { return node; }

    float getHeight() const { return height; }

    /// Sets the height and moves the object, recorded for undo.
    void setHeight(float newHeight);

private:
    class Record;
    void show(float newHeight);

    osg::NodePtr node;
    float height = 0.0F;
};
