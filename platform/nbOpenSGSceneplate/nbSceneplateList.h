// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGSceneplate/Sceneplate.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>

#include <vector>

/// The scene plates of a tree.
class NB_PLATFORM_API nbSceneplateList
{
public:
    nbSceneplateList() = delete;

    /// A plate and the node that it hangs in.
    struct Entry
    {
        osg::NodePtr node;
        osg::SceneplatePtr plate;
    };

    /// Core of a node as a plate; null if it is none, and for null.
    static osg::SceneplatePtr plateOf(const osg::NodePtr& node);

    /// All plates below a node (itself included), hidden ones too, in the order of the tree. Below
    /// means through groups alone: who looks for plates does not search the scene, so that it costs
    /// next to nothing beside a large one.
    static std::vector<Entry> collect(const osg::NodePtr& root);

    /// Brings plates into the order of drawing: behind the scene before in front of it, then by
    /// Order, then as they were.
    static void sort(std::vector<Entry>& entries);

    /// Those that are seen (see nbSceneplateLayout::isShown, nodes that are not active left out
    /// with all below), in the order of drawing: behind the scene before in front of it, then by
    /// Order, then as in the tree.
    static std::vector<Entry> collectShown(const osg::NodePtr& root);
};
