// SPDX-License-Identifier: MIT
#include "ItemList.h"

#include <nbOpenSGExt/NodeFlags.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGRenderAction/Mesh.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbDropDead.h>
#include <nbOpenSGUtils/nbEnteredChildren.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGTransform.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <set>
#include <tuple>

#include <ChangeCount.h>
#include <ContentStamp.h>

namespace nbrender {

namespace {

/// Handles more transparent than this are blended; their materials use tiny transparencies to get
/// sorted.
constexpr float kOpaqueHandleTransparency = 0.01F;
constexpr float kRounding = 1e-6F;

osg::UInt32 idOf(const osg::FieldContainerPtr& container)
{
    return container == osg::NullFC ? 0 : container.getFieldContainerId();
}

using MatrixValues = std::array<float, kMatrixSize>;

/// What two copies of one handle have in common.
using Likeness = std::tuple<osg::UInt32, osg::UInt32, osg::UInt32, MatrixValues>;

/// Items of one sort key and kind stand together in the sorted list.
bool sameRun(const RenderItem& a, const RenderItem& b)
{
    return a.key == b.key && a.secondKey == b.secondKey && a.blended == b.blended &&
        a.sortsFreely == b.sortsFreely;
}

bool isOfScene(const RenderItem& item)
{
    return !item.handle && !item.auxiliary;
}

bool sortsFreely(const DrawState& state)
{
    return !state.transparent && state.depthTest && state.depthWrite && state.shaderId == 0 &&
        (state.depthFunc == GL_LESS || state.depthFunc == GL_LEQUAL) &&
        state.blendSource == GL_ONE && state.blendDestination == GL_ZERO;
}

bool encloses(const osg::BoxVolume& box, const osg::BoxVolume& inner)
{
    osg::BoxVolume both = box;
    both.extendBy(inner);
    return !box.isEmpty() && both.getMin() == box.getMin() && both.getMax() == box.getMax();
}

}  // namespace

/// What holds at a place of the tree.
struct ItemList::Place
{
    osg::Matrix worldFromParent;
    osg::MaterialPtr group;
    /// Of the node that carries the group's material; belongs to a visit further up.
    const osg::Matrix* worldFromGroup = nullptr;
    osg::UInt32 manipulator = 0;
    osg::UInt32 clipSet = 0;
    bool auxiliary = false;
};

bool ItemList::update(const osg::NodePtr& root)
{
    const osg::UInt32 id = idOf(root);
    const osg::UInt64 count = osg::getTreeChangeCount(root);
    if (id == rootId && count == treeCount) {
        // What moves a plane may be outside of the tree.
        clipSets.update();
        return false;
    }
    rootId = id;
    treeCount = count;
    items.clear();
    states.clear();
    stateStamps.clear();
    stateIndices.clear();
    clipSets.clear();
    surfaceSpaces.clear();
    manipulatorCount = 0;
    if (root != osg::NullFC) {
        visit(root, Place());
    }
    clipSets.update();
    noteMoved();
    assignDepthSteps();
    sortItems();
    dropCopies();
    measure();
    nbDropDead(boundsById);
    return true;
}

void ItemList::visit(const osg::NodePtr& node, const Place& above)
{
    // A scene plate has no place in 3D.
    if (node->getTravMask() == 0 || nbSceneplateList::plateOf(node) != osg::NullFC) {
        return;
    }
    Place place = above;
    const osg::UInt32 flags = nbNodeUtils::getNodeFlags(node);
    place.auxiliary = place.auxiliary || (flags & osg::NodeFlags::Auxiliary) != 0;
    if ((flags & osg::NodeFlags::ManipulatorNode) != 0 && place.manipulator == 0) {
        place.manipulator = ++manipulatorCount;
        place.group = osg::NullFC;
    }
    place.clipSet = clipSets.below(above.clipSet, node);
    const osg::NodeCorePtr core = node->getCore();
    if (const auto transform = osg::TransformPtr::dcast(core); transform != osg::NullFC) {
        place.worldFromParent.mult(transform->getMatrix());
    } else if (const auto group = osg::MaterialGroupPtr::dcast(core); group != osg::NullFC) {
        if (place.group == osg::NullFC) {
            place.group = group->getMaterial();
            place.worldFromGroup = &place.worldFromParent;
        }
    } else if (const auto geometry = osg::GeometryPtr::dcast(core); geometry != osg::NullFC) {
        addItem(node, geometry, place);
    }
    nbForEachEnteredChild(node, [&](const osg::NodePtr& child) {
        visit(child, place);
        return true;
    });
}

void ItemList::addItem(const osg::NodePtr& node, const osg::GeometryPtr& geometry,
                       const Place& place)
{
    const LocalBounds& local = localBounds(geometry);
    if (local.box.isEmpty()) {
        return;
    }
    RenderItem item;
    item.geometryId = geometry.getFieldContainerId();
    item.nodeId = node.getFieldContainerId();
    item.handle = place.manipulator != 0;
    item.manipulator = place.manipulator;
    item.auxiliary = place.auxiliary;
    item.clipSet = item.handle ? 0 : place.clipSet;
    item.worldFromObject = place.worldFromParent;
    item.bounds = local.box;
    item.bounds.transform(place.worldFromParent);
    item.stateIndex = stateFor(geometry->getMaterial(), place.group, item.handle);
    const DrawState& state = states[item.stateIndex];
    item.key = state.sortKey;
    if (item.handle) {
        item.secondKey = state.sortKey;
        item.key = place.group == osg::NullFC ? state.sortKey : place.group->getSortKey();
    }
    item.blended = state.transparent;
    item.sortsFreely = !item.handle && sortsFreely(state);
    placePictures(item, place);
    item.stamp = stampOf(item, local.stamp);
    items.push_back(item);
}

osg::UInt64 ItemList::stampOf(const RenderItem& item, osg::UInt64 geometry) const
{
    osg::ContentStamp stamp;
    stamp.add(osg::UInt64(item.geometryId));
    stamp.add(geometry);
    stamp.add(stateStamps[item.stateIndex]);
    stamp.add(osg::UInt64(item.blended ? 1 : 0));
    stamp.add(item.worldFromObject.getValues(), kMatrixSize);
    if (item.surfaceSpace != 0) {
        const SurfaceSpace& space = getSurfaceSpace(item.surfaceSpace);
        stamp.add(space.surfaceFromItem.getValues(), kMatrixSize);
        stamp.add(space.worldFromSurface.getValues(), kMatrixSize);
    }
    return stamp.get();
}

void ItemList::placePictures(RenderItem& item, const Place& place)
{
    if (states[item.stateIndex].uber == nullptr || item.handle || place.group == osg::NullFC) {
        return;
    }
    SurfaceSpace space;
    space.worldFromSurface = *place.worldFromGroup;
    place.worldFromGroup->inverse(space.surfaceFromItem);
    space.surfaceFromItem.mult(item.worldFromObject);
    surfaceSpaces.push_back(space);
    item.surfaceSpace = static_cast<osg::UInt32>(surfaceSpaces.size());
}

osg::UInt32 ItemList::stateFor(const osg::MaterialPtr& material, const osg::MaterialPtr& group,
                               bool handle)
{
    const StateKey key { idOf(material), idOf(group), handle };
    const auto known = stateIndices.find(key);
    if (known != stateIndices.end()) {
        return known->second;
    }
    const bool ownMaterial = group == osg::NullFC || (handle && material != osg::NullFC);
    DrawState state = resolveMaterial(ownMaterial ? material : group);
    if (handle) {
        applyChunks(state, group);
        state.transparent =
            state.shaderId == 0 && state.alpha < 1.0F - kOpaqueHandleTransparency - kRounding;
        state.depthTest = true;
        state.depthFunc = GL_LEQUAL;
        state.depthWrite = true;
    }
    if (state.transparent) {
        state.depthWrite = false;
    }
    const auto index = static_cast<osg::UInt32>(states.size());
    stateStamps.push_back(nbrender::stampOf(state));
    states.push_back(state);
    stateIndices.emplace(key, index);
    return index;
}

const ItemList::LocalBounds& ItemList::localBounds(const osg::GeometryPtr& geometry)
{
    LocalBounds& known = boundsById[geometry.getFieldContainerId()];
    const osg::UInt64 stamp = geometryStamp(geometry);
    if (known.stamp != stamp) {
        known.stamp = stamp;
        known.box = osg::BoxVolume();
        known.box.setEmpty();
        geometry->adjustVolume(known.box);
    }
    return known;
}

void ItemList::assignDepthSteps()
{
    constexpr osg::Int32 kHighest = std::numeric_limits<osg::Int32>::max();
    std::vector<osg::Int32> lowest(manipulatorCount + 1, kHighest);
    for (const RenderItem& item : items) {
        lowest[item.manipulator] = std::min(lowest[item.manipulator], item.secondKey);
    }
    for (RenderItem& item : items) {
        if (item.handle) {
            const osg::Int64 steps = osg::Int64(item.secondKey) - lowest[item.manipulator];
            item.depthSteps = static_cast<osg::Int32>(std::min<osg::Int64>(steps, kMostDepthSteps));
        }
    }
}

void ItemList::sortItems()
{
    const auto rank = [](const RenderItem& item) {
        return std::make_tuple(item.key, item.secondKey, item.blended,
                               item.blended ? 0 : item.stateIndex);
    };
    std::stable_sort(items.begin(), items.end(), [&rank](const RenderItem& a, const RenderItem& b) {
        return rank(a) < rank(b);
    });
}

void ItemList::dropCopies()
{
    if (manipulatorCount == 0) {
        return;
    }
    std::set<Likeness> seen;
    std::vector<RenderItem> kept;
    kept.reserve(items.size());
    for (auto item = items.rbegin(); item != items.rend(); ++item) {
        if (item->handle) {
            MatrixValues place {};
            std::memcpy(place.data(), item->worldFromObject.getValues(), sizeof(MatrixValues));
            const auto geometry = resolveContainer<osg::GeometryPtr>(item->geometryId);
            if (!seen.emplace(item->manipulator, item->geometryId, idOf(geometry->getMaterial()),
                              place)
                     .second) {
                continue;
            }
        }
        kept.push_back(*item);
    }
    std::reverse(kept.begin(), kept.end());
    items.swap(kept);
}

void ItemList::measure()
{
    sceneBounds = osg::BoxVolume();
    sceneBounds.setEmpty();
    for (const RenderItem& item : items) {
        if (isOfScene(item)) {
            sceneBounds.extendBy(item.bounds);
        }
    }
    if (movedNodes.empty()) {
        roomyBounds.setEmpty();
        return;
    }
    if (!encloses(roomyBounds, sceneBounds)) {
        osg::Vec3f room;
        sceneBounds.getSize(room);
        room.setValues(room.length(), room.length(), room.length());
        roomyBounds.setBounds(sceneBounds.getMin() - room, sceneBounds.getMax() + room);
    }
    sceneBounds = roomyBounds;
}

void ItemList::noteMoved()
{
    std::vector<std::pair<osg::UInt32, osg::UInt64>> stamps;
    std::vector<osg::UInt32> moved;
    for (const RenderItem& item : items) {
        if (!isOfScene(item)) {
            continue;
        }
        const std::size_t i = stamps.size();
        if (i < sceneStamps.size() && sceneStamps[i].first == item.nodeId &&
            sceneStamps[i].second != item.stamp) {
            moved.push_back(item.nodeId);
        }
        stamps.emplace_back(item.nodeId, item.stamp);
    }
    sceneStamps.swap(stamps);
    std::sort(moved.begin(), moved.end());
    if (!std::includes(movedNodes.begin(), movedNodes.end(), moved.begin(), moved.end())) {
        movedNodes.swap(moved);
        roomyBounds.setEmpty();
    }
    for (RenderItem& item : items) {
        item.moved = std::binary_search(movedNodes.begin(), movedNodes.end(), item.nodeId);
    }
}

void ItemList::forgetMoved()
{
    if (movedNodes.empty()) {
        return;
    }
    movedNodes.clear();
    for (RenderItem& item : items) {
        item.moved = false;
    }
    measure();
}

void ItemList::sortFromBack(Order::iterator first, Order::iterator last,
                            const osg::Matrix& viewFromWorld) const
{
    std::vector<std::pair<float, osg::UInt32>> run;
    for (auto i = first; i != last; ++i) {
        osg::Pnt3f center;
        items[*i].bounds.getCenter(center);
        viewFromWorld.multMatrixPnt(center);
        run.emplace_back(center.z(), *i);
    }
    std::stable_sort(run.begin(), run.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::transform(run.begin(), run.end(), first, [](const auto& entry) { return entry.second; });
}

const ItemList::Order& ItemList::getOrder(const osg::Matrix& viewFromWorld)
{
    order.resize(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        order[i] = static_cast<osg::UInt32>(i);
    }
    for (std::size_t begin = 0; begin < items.size();) {
        std::size_t end = begin + 1;
        while (end < items.size() && sameRun(items[begin], items[end])) {
            ++end;
        }
        const auto first = order.begin() + static_cast<std::ptrdiff_t>(begin);
        const auto last = order.begin() + static_cast<std::ptrdiff_t>(end);
        if (items[begin].blended) {
            sortFromBack(first, last, viewFromWorld);
        } else if (items[begin].sortsFreely && !movedNodes.empty()) {
            // What is auxiliary follows what is moved, as frames around it do.
            const auto rank = [this](osg::UInt32 i) {
                return items[i].auxiliary ? 2 : (items[i].moved ? 1 : 0);
            };
            std::stable_sort(first, last, [&](auto a, auto b) { return rank(a) < rank(b); });
        }
        begin = end;
    }
    return order;
}

}  // namespace nbrender
