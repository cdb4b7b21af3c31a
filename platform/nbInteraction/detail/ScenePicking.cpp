// SPDX-License-Identifier: MIT
#include "ScenePicking.h"

#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUtils/nbEnteredChildren.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "PickTreeCache.h"
#include "SurfaceNormal.h"
#include "TreeWalk.h"
#include <ChangeCount.h>

namespace nbec::interaction::detail {

namespace {

bool isCutAway(const osg::Pnt3f& world, const nbClipSets::Planes& planes)
{
    return std::any_of(planes.begin(), planes.end(), [&world](const osg::Vec4f& plane) {
        return plane[0] * world[0] + plane[1] * world[1] + plane[2] * world[2] + plane[3] < 0.0F;
    });
}

/// Whether two lists have the same nodes with the same trees, so that only places can differ.
bool haveSameParts(const std::vector<PickItem>& a, const std::vector<PickItem>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const PickItem& left, const PickItem& right) {
                          return left.nodeId == right.nodeId && left.tree == right.tree &&
                              left.clipSet == right.clipSet;
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
    hit.node = resolveContainer<osg::NodePtr>(found.item->nodeId);
    hit.point = ray.origin + ray.direction * ray.tFar;
    if (hit.node == osg::NullFC) {
        return false;
    }
    osg::Pnt3f place;
    found.item->localFromWorld.multMatrixPnt(hit.point, place);
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(hit.node->getCore());
    hit.normal =
        transformNormal(found.item->worldFromLocal, surfaceNormal(geometry, found.local, place));
    hit.texCoord = surfaceTexCoord(geometry, found.local, place);
    return true;
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
        if (const auto node = resolveContainer<osg::NodePtr>(item.nodeId); node != osg::NullFC) {
            nodes.push_back(node);
        }
    }
    return nodes;
}

bool ScenePicking::isInside(const PickItem& item, const ScreenBox& box) const
{
    bool isAnyInside = false;
    const nbClipSets::Planes& planes = tree.getClipSets().planesOf(item.clipSet);
    for (const osg::Pnt3f& local : item.tree->getPositions()) {
        osg::Pnt3f world;
        item.worldFromLocal.multMatrixPnt(local, world);
        const ScreenProjection::Projected projected = projection.project(world);
        if (!std::isfinite(projected.clip[3]) || isCutAway(world, planes)) {
            continue;
        }
        if (!projected.isVisible() || !(projected.clip[3] > 0.0) ||
            !box.isNear(projection.toScreen(projected), 0.0F)) {
            return false;
        }
        isAnyInside = true;
    }
    return isAnyInside;
}

const ItemTree& ScenePicking::hold(const osg::NodePtr& root,
                                   const std::vector<osg::NodePtr>& without)
{
    leftOut = without;
    if (root != osg::NullFC) {
        walk(root);
        tree.editClipSets().update();
    }
    leftOut.clear();
    return tree;
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
    const osg::UInt64 changes = osg::getSubtreeChangeCount(root);
    if (id == rootId && changes == rootChanges) {
        return;
    }
    std::vector<osg::UInt32> touched;
    if (id != rootId || !outline.isCurrent(root, touched)) {
        walk(root);
    } else {
        refreshItems(touched);
    }
    tree.editClipSets().update();
    rootId = id;
    rootChanges = changes;
}

void ScenePicking::walk(const osg::NodePtr& root)
{
    outline.clear();
    sources.clear();
    tree.editClipSets().clear();
    std::vector<PickItem> items;
    collect(root, items);
    if (haveSameParts(items, tree.getItems())) {
        tree.editItems() = std::move(items);
        tree.refit();
    } else {
        tree.assign(std::move(items));
        PickTreeCache::the().dropDead();
    }
}

void ScenePicking::collect(const osg::NodePtr& root, std::vector<PickItem>& items)
{
    std::vector<Step> steps { { root, osg::Matrix(), 0, 0 } };
    while (!steps.empty()) {
        const Step step = steps.back();
        steps.pop_back();
        if (step.node == osg::NullFC) {
            outline.closeNode(step.record);
        } else {
            enter(step, steps, items);
        }
    }
}

void ScenePicking::enter(Step step, std::vector<Step>& steps, std::vector<PickItem>& items)
{
    const osg::NodePtr node = step.node;
    if (SceneOutline::isPassedBy(node) ||
        std::find(leftOut.begin(), leftOut.end(), node) != leftOut.end()) {
        outline.closeNode(outline.openNode(node, SceneOutline::kNoItem));
        return;
    }
    step.clipSet = tree.editClipSets().below(step.clipSet, node);
    osg::UInt32 item = SceneOutline::kNoItem;
    if (const osg::NodeCorePtr core = node->getCore(); core != osg::NullFC) {
        accumulateMatrix(core, step.matrix);
        if (const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(core);
            geometry != osg::NullFC) {
            item = static_cast<osg::UInt32>(items.size());
            sources.push_back({ geometry.getFieldContainerId(), osg::getChangeCount(geometry) });
            items.emplace_back(node.getFieldContainerId(), PickTreeCache::the().treeOf(geometry),
                               step.matrix, step.clipSet);
        }
    }
    steps.push_back({ {}, {}, 0, outline.openNode(node, item) });
    const auto firstChild = static_cast<std::ptrdiff_t>(steps.size());
    nbForEachEnteredChild(node, [&](const osg::NodePtr& child) {
        steps.push_back({ child, step.matrix, step.clipSet, 0 });
        return true;
    });
    std::reverse(steps.begin() + firstChild, steps.end());
}

void ScenePicking::refreshItems(const std::vector<osg::UInt32>& touched)
{
    bool isAnyRefreshed = false;
    for (const osg::UInt32 i : touched) {
        isAnyRefreshed |= refreshItem(i);
    }
    if (isAnyRefreshed) {
        tree.refit();
    }
}

bool ScenePicking::refreshItem(std::size_t index)
{
    const auto geometry = resolveContainer<osg::GeometryPtr>(sources[index].geometryId);
    if (geometry == osg::NullFC || osg::getChangeCount(geometry) == sources[index].changeCount) {
        return false;
    }
    sources[index].changeCount = osg::getChangeCount(geometry);
    PickTreeCache::the().treeOf(geometry);
    PickItem& item = tree.editItems()[index];
    item.place(osg::Matrix(item.worldFromLocal));
    return true;
}

}  // namespace nbec::interaction::detail
