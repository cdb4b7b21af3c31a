// SPDX-License-Identifier: MIT
#include "ItemTree.h"

#include <nbOpenSGExt/nbBoxCorners.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "EmbreeDevice.h"

namespace nbec::interaction::detail {

namespace {

/// Up to this many items are tested one after the other.
constexpr std::size_t kDirectItems = 4;
/// Bounds grow by this part of their largest coordinate, since the ray is rounded when it goes to
/// local space.
constexpr float kBoundsSlack = 4e-6F;

/// The part of a ray that is left of it, t from begin to end.
struct Stretch
{
    float begin;
    float end;

    /// Takes away what lies on the far side of a plane; nothing is left when begin > end.
    void cut(const osg::Vec4f& plane, const PickRay& ray)
    {
        const osg::Vec3f normal(plane[0], plane[1], plane[2]);
        const float height = normal.dot(ray.origin.subZero()) + plane[3];
        const float slope = normal.dot(ray.direction);
        if (slope > 0.0F) {
            begin = std::max(begin, -height / slope);
        } else if (slope < 0.0F) {
            end = std::min(end, -height / slope);
        } else if (height < 0.0F) {
            end = -1.0F;
        }
    }
};

PickBounds transformBounds(const PickBounds& local, const osg::Matrix& worldFromLocal)
{
    PickBounds result;
    if (local.isEmpty) {
        return result;
    }
    for (osg::Pnt3f corner : nbBoxCorners(local.min, local.max)) {
        worldFromLocal.multMatrixPnt(corner);
        result.extend(corner);
    }
    float largest = 0.0F;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        largest = std::max({ largest, std::abs(result.min[i]), std::abs(result.max[i]) });
    }
    for (osg::UInt32 i = 0; i < 3; ++i) {
        result.min[i] -= kBoundsSlack * largest;
        result.max[i] += kBoundsSlack * largest;
    }
    return result;
}

}  // namespace

// == PickItem

PickItem::PickItem(osg::UInt32 id, std::shared_ptr<const PickTree> geometryTree,
                   const osg::Matrix& matrix, osg::UInt32 clipSetOfPlace)
    : nodeId(id)
    , tree(std::move(geometryTree))
    , clipSet(clipSetOfPlace)
{
    place(matrix);
}

void PickItem::place(const osg::Matrix& matrix)
{
    worldFromLocal = matrix;
    isRegular = worldFromLocal.inverse(localFromWorld);
    worldBounds = transformBounds(tree->getBounds(), worldFromLocal);
}

bool PickItem::intersect(PickRay& worldRay, const nbClipSets::Planes& planes, TreeHit& hit) const
{
    Stretch seen { 0.0F, worldRay.tFar };
    for (const osg::Vec4f& plane : planes) {
        seen.cut(plane, worldRay);
    }
    if (!isRegular || seen.begin > seen.end) {
        return false;
    }
    // The direction keeps its length in the world, so that t is the same in both spaces.
    PickRay ray;
    localFromWorld.multMatrixPnt(worldRay.origin + worldRay.direction * seen.begin, ray.origin);
    localFromWorld.multMatrixVec(worldRay.direction, ray.direction);
    ray.tFar = seen.end - seen.begin;
    if (!tree->intersect(ray, hit)) {
        return false;
    }
    worldRay.tFar = ray.tFar + seen.begin;
    return true;
}

// == ItemTree

/// What one ray carries through Embree to the callbacks.
struct ItemTree::Query : RTCIntersectContext
{
    Hit hit;
};

void ItemTree::assign(std::vector<PickItem> newItems)
{
    dropTree();
    items = std::move(newItems);
    if (items.size() <= kDirectItems || embreeDevice() == nullptr) {
        return;
    }
    scene = rtcNewScene(embreeDevice());
    rtcSetSceneFlags(scene, RTC_SCENE_FLAG_ROBUST | RTC_SCENE_FLAG_DYNAMIC);
    boxes = rtcNewGeometry(embreeDevice(), RTC_GEOMETRY_TYPE_USER);
    rtcSetGeometryUserPrimitiveCount(boxes, static_cast<unsigned>(items.size()));
    rtcSetGeometryUserData(boxes, this);
    rtcSetGeometryBoundsFunction(boxes, &ItemTree::boundsOfItem, nullptr);
    rtcSetGeometryIntersectFunction(boxes, &ItemTree::intersectItem);
    rtcCommitGeometry(boxes);
    rtcAttachGeometry(scene, boxes);
    rtcReleaseGeometry(boxes);
    if (!commitScene(scene)) {
        dropTree();
    }
}

void ItemTree::refit()
{
    if (scene == nullptr) {
        return;
    }
    rtcSetGeometryBuildQuality(boxes, RTC_BUILD_QUALITY_REFIT);
    rtcCommitGeometry(boxes);
    if (!commitScene(scene)) {
        dropTree();
    }
}

void ItemTree::dropTree()
{
    if (scene != nullptr) {
        rtcReleaseScene(scene);
    }
    scene = nullptr;
    boxes = nullptr;
}

bool ItemTree::intersect(PickRay& ray, Hit& hit) const
{
    if (!isTraceable(ray)) {
        return false;
    }
    if (scene == nullptr) {
        bool isHit = false;
        for (const PickItem& item : items) {
            if (item.intersect(ray, clipSets.planesOf(item.clipSet), hit.local)) {
                hit.item = &item;
                isHit = true;
            }
        }
        return isHit;
    }
    Query query;
    rtcInitIntersectContext(&query);
    RTCRayHit rayHit = toEmbree(ray);
    rtcIntersect1(scene, &query, &rayHit);
    if (query.hit.item == nullptr) {
        return false;
    }
    ray.tFar = rayHit.ray.tfar;
    hit = query.hit;
    return true;
}

void ItemTree::boundsOfItem(const RTCBoundsFunctionArguments* arguments)
{
    const auto* self = static_cast<const ItemTree*>(arguments->geometryUserPtr);
    const PickBounds& bounds = self->items[arguments->primID].worldBounds;
    if (bounds.isEmpty) {
        // A box turned inside out: the builder leaves such a primitive out.
        *arguments->bounds_o = { 1.0F, 1.0F, 1.0F, 0.0F, -1.0F, -1.0F, -1.0F, 0.0F };
        return;
    }
    *arguments->bounds_o = { bounds.min[0], bounds.min[1], bounds.min[2], 0.0F,
                             bounds.max[0], bounds.max[1], bounds.max[2], 0.0F };
}

void ItemTree::intersectItem(const RTCIntersectFunctionNArguments* arguments)
{
    if (arguments->N != 1 || arguments->valid[0] == 0) {
        return;
    }
    const auto* self = static_cast<const ItemTree*>(arguments->geometryUserPtr);
    auto* rayHit = reinterpret_cast<RTCRayHit*>(arguments->rayhit);
    auto* query = static_cast<Query*>(arguments->context);
    const PickItem& item = self->items[arguments->primID];
    PickRay ray { { rayHit->ray.org_x, rayHit->ray.org_y, rayHit->ray.org_z },
                  { rayHit->ray.dir_x, rayHit->ray.dir_y, rayHit->ray.dir_z },
                  rayHit->ray.tfar };
    if (item.intersect(ray, self->clipSets.planesOf(item.clipSet), query->hit.local)) {
        query->hit.item = &item;
        rayHit->ray.tfar = ray.tFar;
        rayHit->hit.geomID = arguments->geomID;
    }
}

}  // namespace nbec::interaction::detail
