// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>

#include <vector>

/// Chosen nodes in the order of choosing, each once.
///
/// Nodes are kept by container id: the set keeps nothing alive, and a destroyed node reads as gone.
/// Null nodes and repetitions are ignored. Operations answer whether what can be read has changed.
class NB_PLATFORM_API nbNodeSet
{
public:
    /// Replaces the nodes.
    bool set(const std::vector<osg::NodePtr>& nodes);
    /// Appends nodes that are not in the set yet.
    bool add(const std::vector<osg::NodePtr>& nodes);
    /// Takes nodes out.
    bool remove(const std::vector<osg::NodePtr>& nodes);
    /// Takes those out that are in the set and appends the others.
    bool toggle(const std::vector<osg::NodePtr>& nodes);
    bool clear();

    /// @return the nodes that still exist
    std::vector<osg::NodePtr> getNodes() const;
    /// @return whether the node is in the set; false for null
    bool contains(const osg::NodePtr& node) const;

private:
    using Ids = std::vector<osg::UInt32>;

    Ids livingIds() const;
    bool replace(Ids newIds);

    Ids ids;
};
