// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>

#include <functional>
#include <vector>

/// The current selection of scene nodes, one per process, in the order of selecting.
///
/// Nodes are kept by container id: the selection keeps nothing alive, and a destroyed node reads as
/// gone. Null nodes and repetitions are ignored. User-interface thread only.
class NB_PLATFORM_API nbSelection
{
public:
    using ChangedCallback = std::function<void()>;

    nbSelection() = delete;

    /// Replaces the selection; null clears it.
    static void set(const osg::NodePtr& node);
    /// Replaces the selection.
    static void set(const std::vector<osg::NodePtr>& nodes);
    /// Appends a node, if it is not selected yet.
    static void add(const osg::NodePtr& node);
    /// Takes a node out.
    static void remove(const osg::NodePtr& node);
    /// Takes a selected node out, appends another.
    static void toggle(const osg::NodePtr& node);
    static void clear();

    /// @return the selected nodes that still exist
    static std::vector<osg::NodePtr> getNodes();
    /// @return the node selected last that still exists; null if there is none
    static osg::NodePtr getLast();
    /// @return whether the node is selected; false for null
    static bool contains(const osg::NodePtr& node);
    /// @return whether no existing node is selected
    static bool isEmpty();

    /// Registers a callback for changes of the selection; calls that change nothing do not call it.
    /// It may change the selection and register and remove callbacks. What it throws is logged.
    /// @return a number for removeChangedCallback, never 0; 0 for an empty callback
    static int addChangedCallback(ChangedCallback callback);
    /// Removes a callback; unknown numbers: nothing.
    static void removeChangedCallback(int number);
};
