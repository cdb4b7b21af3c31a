// SPDX-License-Identifier: MIT
#include "ScenePicking.h"

#include <nbOpenSGExt/NodeFlags.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGChangeCount.h>
#include <OpenSG/OSGFieldContainerFactory.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "PickTreeCache.h"
#include "TreeWalk.h"

namespace nbec::interaction::detail {

namespace {

osg::FieldContainerPtr containerOf(osg::UInt32 id)
{
    return osg::FieldContainerFactory::the()->getContainer(id);
}

bool isPassedBy(const osg::NodePtr& node)
{
    return node->getTravMask() == 0 ||
        (nbNodeUtils::getNodeFlags(node) & osg::NodeFlags::Auxiliary) != 0;
}

/// Whether two lists have the same nodes with the same trees, so that only places can differ.
bool haveSameParts(const std::vector<PickItem>& a, const std::vector<PickItem>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const PickItem& left, const PickItem& right) {
                          return left.nodeId == right.nodeId && left.tree == right.tree;
                      });
}

}  // namespace

// == Picking

bool ScenePicking::pick(const osg::NodePtr& root, const PickView& view, const ScreenPoint& position,
                        SceneHit& hit)
{
    useView(view);
    if (!projection.isValid() || root == osg::NullFC) {
        return false;
    }
    refresh(root);
    PickRay ray = projection.rayThrough(position);
    ItemTree::Hit found;
    if (!tree.intersect(ray, found)) {
        return false;
    }
    hit.node = osg::NodePtr::dcast(containerOf(found.item->nodeId));
    hit.point = ray.origin + ray.direction * ray.tFar;
    hit.normal = transformNormal(found.item->worldFromLocal, found.local.normal);
    return hit.node != osg::NullFC;
}

std::vector<osg::NodePtr> ScenePicking::pickInside(const osg::NodePtr& root, const PickView& view,
                                                   const ScreenBox& box)
{
    std::vector<osg::NodePtr> nodes;
    useView(view);
    if (!projection.isValid() || root == osg::NullFC) {
        return nodes;
    }
    refresh(root);
    for (const PickItem& item : tree.getItems()) {
        if (!isInside(item, box)) {
            continue;
        }
        if (const osg::NodePtr node = osg::NodePtr::dcast(containerOf(item.nodeId));
            node != osg::NullFC) {
            nodes.push_back(node);
        }
    }
    return nodes;
}

bool ScenePicking::isInside(const PickItem& item, const ScreenBox& box) const
{
    bool isAnyInside = false;
    for (const osg::Pnt3f& local : item.tree->getPositions()) {
        osg::Pnt3f world;
        item.worldFromLocal.multMatrixPnt(local, world);
        const ScreenProjection::Projected projected = projection.project(world);
        if (!std::isfinite(projected.clip[3])) {
            continue;
        }
        if (!projected.isVisible() || !(projected.clip[3] > 0.0) ||
            !box.isNear(projection.toScreen(projected), 0.0f)) {
            return false;
        }
        isAnyInside = true;
    }
    return isAnyInside;
}

void ScenePicking::useView(const PickView& view)
{
    if (!view.isSame(projectedView)) {
        projectedView = view;
        projection = ScreenProjection(view);
    }
}

// == Following the scene

void ScenePicking::refresh(const osg::NodePtr& root)
{
    const osg::UInt32 id = root.getFieldContainerId();
    const osg::UInt64 changes = root->getSubtreeChangeCount();
    const osg::UInt64 shared = osg::getSharedChangeCount();
    if (id == rootId && changes == rootChanges && shared == sharedChanges) {
        return;
    }
    std::vector<osg::UInt32> touched;
    if (id != rootId || !outline.isCurrent(root, touched)) {
        walk(root);
    } else {
        // Geometry properties that no node's counter tells of are among the shared changes.
        refreshItems(touched, shared != sharedChanges);
    }
    rootId = id;
    rootChanges = changes;
    sharedChanges = shared;
}

void ScenePicking::walk(const osg::NodePtr& root)
{
    ++walkCount;
    outline.clear();
    sources.clear();
    std::vector<PickItem> items;
    collect(root, osg::Matrix(), items);
    if (haveSameParts(items, tree.getItems())) {
        tree.editItems() = std::move(items);
        tree.refit();
    } else {
        tree.assign(std::move(items));
        PickTreeCache::the().dropDead();
    }
}

void ScenePicking::collect(const osg::NodePtr& node, osg::Matrix worldFromParent,
                           std::vector<PickItem>& items)
{
    if (isPassedBy(node)) {
        outline.closeNode(outline.openNode(node, true, SceneOutline::kNoItem));
        return;
    }
    osg::UInt32 item = SceneOutline::kNoItem;
    if (const osg::NodeCorePtr core = node->getCore(); core != osg::NullFC) {
        core->accumulateMatrix(worldFromParent);
        if (const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(core);
            geometry != osg::NullFC) {
            item = static_cast<osg::UInt32>(items.size());
            sources.push_back({ geometry.getFieldContainerId(), stampOf(geometry) });
            items.emplace_back(node.getFieldContainerId(), PickTreeCache::the().treeOf(geometry),
                               worldFromParent);
        }
    }
    const std::size_t record = outline.openNode(node, false, item);
    forEachEnteredChild(node, [&](const osg::NodePtr& child) {
        collect(child, worldFromParent, items);
        return true;
    });
    outline.closeNode(record);
}

void ScenePicking::refreshItems(const std::vector<osg::UInt32>& touched, bool all)
{
    bool isAnyRefreshed = false;
    if (all) {
        for (std::size_t i = 0; i < sources.size(); ++i) {
            isAnyRefreshed |= refreshItem(i);
        }
    } else {
        for (const osg::UInt32 i : touched) {
            isAnyRefreshed |= refreshItem(i);
        }
    }
    if (isAnyRefreshed) {
        tree.refit();
    }
}

bool ScenePicking::refreshItem(std::size_t index)
{
    const osg::GeometryPtr geometry =
        osg::GeometryPtr::dcast(containerOf(sources[index].geometryId));
    const GeometryStamp stamp = stampOf(geometry);
    if (geometry == osg::NullFC || stamp == sources[index].stamp) {
        return false;
    }
    sources[index].stamp = stamp;
    PickTreeCache::the().treeOf(geometry);
    PickItem& item = tree.editItems()[index];
    item.place(osg::Matrix(item.worldFromLocal));
    return true;
}

}  // namespace nbec::interaction::detail
