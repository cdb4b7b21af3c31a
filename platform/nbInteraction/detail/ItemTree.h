// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/nbClipSets.h>

#include <memory>
#include <vector>

#include "PickTree.h"

using RTCGeometry = struct RTCGeometryTy*;
using RTCScene = struct RTCSceneTy*;
struct RTCBoundsFunctionArguments;
struct RTCIntersectFunctionNArguments;

namespace nbec::interaction::detail {

/// One geometry at one place in the world.
struct PickItem
{
    /// @param clipSetOfPlace  set of the planes that cut the item
    PickItem(osg::UInt32 id, std::shared_ptr<const PickTree> geometryTree,
             const osg::Matrix& matrix, osg::UInt32 clipSetOfPlace);

    /// Moves the item, and takes up the present bounds of its tree.
    void place(const osg::Matrix& matrix);

    /// As PickTree::intersect, but with ray and t in the world.
    /// A singular matrix flattens the geometry: it cannot be hit.
    /// @param planes  what they cut away is not hit
    bool intersect(PickRay& worldRay, const nbClipSets::Planes& planes, TreeHit& hit) const;

    osg::UInt32 nodeId;
    std::shared_ptr<const PickTree> tree;
    osg::Matrix worldFromLocal;
    osg::Matrix localFromWorld;
    PickBounds worldBounds;
    osg::UInt32 clipSet = 0;
    bool isRegular = false;
};

/// Finds the item nearest along a ray among many, through a tree over their bounds.
class ItemTree
{
public:
    struct Hit
    {
        const PickItem* item = nullptr;
        TreeHit local;
    };

    ItemTree() = default;

    ~ItemTree() { dropTree(); }

    ItemTree(const ItemTree&) = delete;
    ItemTree& operator=(const ItemTree&) = delete;

    /// Takes over a new list of items.
    void assign(std::vector<PickItem> newItems);

    const std::vector<PickItem>& getItems() const { return items; }

    /// The items, to be moved in place; refit is called afterwards.
    std::vector<PickItem>& editItems() { return items; }

    void refit();

    /// The planes that cut the items, by their sets.
    nbClipSets& editClipSets() { return clipSets; }

    const nbClipSets& getClipSets() const { return clipSets; }

    /// Finds the nearest hit with 0 <= t <= ray.tFar; tFar becomes its t. A ray that is not finite
    /// or comes from beyond 1e18 hits nothing.
    bool intersect(PickRay& ray, Hit& hit) const;

private:
    struct Query;

    void dropTree();
    static void boundsOfItem(const RTCBoundsFunctionArguments* arguments);
    static void intersectItem(const RTCIntersectFunctionNArguments* arguments);

    std::vector<PickItem> items;
    nbClipSets clipSets;
    RTCScene scene = nullptr;
    RTCGeometry boxes = nullptr;  ///< owned by the scene
};

}  // namespace nbec::interaction::detail
