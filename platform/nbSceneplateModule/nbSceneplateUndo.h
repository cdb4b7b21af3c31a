// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <string>
#include <vector>

/// Everything of a plate that undo brings back: its name and its fields except for the marker.
struct NB_PLATFORM_API nbSceneplateState
{
    std::string name;
    osg::RefPtr<osg::ImagePtr> image;
    osg::Color4f color;
    osg::Int32 anchor = 0;
    osg::Vec2f position;
    osg::Vec2f size;
    float scale = 1.0F;
    float rotation = 0.0F;
    bool front = true;
    osg::Int32 order = 0;
    float opacity = 1.0F;
    bool visible = true;

    /// @param node  with a Sceneplate core
    static nbSceneplateState of(const osg::NodePtr& node);

    /// The plate of a node as it is now; this state where the node is no plate any more.
    nbSceneplateState now(const osg::NodePtr& node) const
    {
        return nbSceneplateList::plateOf(node) == osg::NullFC ? *this : of(node);
    }

    /// Writes all back, as one edit. Does nothing for a node without a Sceneplate core.
    void applyTo(const osg::NodePtr& node) const;

    /// Whether all is the same, numbers exactly.
    bool isSame(const nbSceneplateState& other) const;
};

/// Notes scene plates for undo, to be called before they are edited, within a scope or group of
/// nbUndoService; outside of these it does nothing. What is noted again in the same step keeps its
/// first state.
class NB_PLATFORM_API nbSceneplateUndo
{
public:
    nbSceneplateUndo() = delete;

    /// Notes the states of plates. Nodes that are no plates are passed over.
    static void notePlates(const std::vector<osg::NodePtr>& nodes);

    /// Notes which children a node has and in which order. Children that are taken away are kept
    /// alive as long as the step can bring them back.
    static void noteChildren(const osg::NodePtr& parent);
};
