// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>

#include <memory>
#include <unordered_map>

#include "PickTree.h"

namespace nbec::interaction::detail {

/// The search trees of all geometries, by container id; shared by all pickers and all nodes with
/// the same core.
class PickTreeCache
{
public:
    static PickTreeCache& the();

    /// The tree of a geometry, built or brought up to date first if the geometry has changed.
    /// @param geometry  not null
    std::shared_ptr<const PickTree> treeOf(const osg::GeometryPtr& geometry);

    /// Takes over a tree that was built elsewhere.
    /// @param changeCount  that of the geometry when its triangles were read
    void adopt(osg::UInt32 geometryId, std::shared_ptr<PickTree> tree, osg::UInt32 changeCount)
    {
        entries[geometryId] = { std::move(tree), changeCount };
    }

    /// Whether the tree of a geometry is there and up to date. @param geometry  not null
    bool isCurrent(const osg::GeometryPtr& geometry) const;

    /// As treeOf, for all geometry of a subtree. Null: nothing.
    void buildBelow(const osg::NodePtr& root);

    /// Forgets the trees of geometries that no longer exist.
    void dropDead();

private:
    struct Entry
    {
        std::shared_ptr<PickTree> tree;
        osg::UInt32 changeCount = 0;
    };

    std::unordered_map<osg::UInt32, Entry> entries;
};

}  // namespace nbec::interaction::detail
