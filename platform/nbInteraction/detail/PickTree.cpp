// SPDX-License-Identifier: MIT
#include "PickTree.h"

#include <nbOpenSGExt/nbIsFinite.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "EmbreeDevice.h"

namespace nbec::interaction::detail {

namespace {

/// A refitted tree keeps the shape it had, which suits the positions less and less.
constexpr std::size_t kRefitsBeforeRebuild = 64;

/// Bit by bit: what compares as equal within a tolerance may still have moved.
bool haveSameValues(const std::vector<osg::Pnt3f>& a, const std::vector<osg::Pnt3f>& b)
{
    return a.size() == b.size() &&
        (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(osg::Pnt3f)) == 0);
}

/// Moeller and Trumbore: solves origin + t d = p0 + u e1 + v e2 by Cramer's rule.
/// Both faces; a triangle without area or parallel to the ray is missed.
bool intersectTriangle(const PickRay& ray, const osg::Pnt3f& p0, const osg::Vec3f& e1,
                       const osg::Vec3f& e2, float& t)
{
    const osg::Vec3f p = ray.direction.cross(e2);
    const float determinant = e1.dot(p);
    if (determinant == 0.0F) {
        return false;
    }
    const float inverse = 1.0F / determinant;
    const osg::Vec3f s = ray.origin - p0;
    const float u = s.dot(p) * inverse;
    const osg::Vec3f q = s.cross(e1);
    const float v = ray.direction.dot(q) * inverse;
    t = e2.dot(q) * inverse;
    return u >= 0.0F && v >= 0.0F && u + v <= 1.0F && t >= 0.0F && t <= ray.tFar;
}

}  // namespace

void PickBounds::extend(const osg::Pnt3f& p)
{
    if (!nbIsFinite(p)) {
        return;
    }
    if (isEmpty) {
        min = p;
        max = p;
        isEmpty = false;
        return;
    }
    for (osg::UInt32 i = 0; i < 3; ++i) {
        min[i] = std::min(min[i], p[i]);
        max[i] = std::max(max[i], p[i]);
    }
}

bool PickTree::assign(GeometrySoup newSoup, const BuildMonitor& monitor)
{
    const bool sameTopology =
        newSoup.positions.size() == soup.positions.size() && newSoup.triangles == soup.triangles;
    if (sameTopology && haveSameValues(newSoup.positions, soup.positions)) {
        return true;  // geometry is also edited for its material alone
    }
    bool isBuilt = true;
    const bool hadTree = scene != nullptr;
    soup = std::move(newSoup);
    if (getTriangleCount() <= kDirectTriangles || embreeDevice() == nullptr) {
        dropTree();
    } else if (sameTopology && isRefittable && refitsSinceBuild < kRefitsBeforeRebuild) {
        isBuilt = refitTree();
    } else {
        // Whose positions changed once will change again: from now on built so that it can be
        // refitted, which costs a little at each pick.
        dropTree();
        isBuilt = buildTree(hadTree && sameTopology, monitor);
    }
    measure();
    return isBuilt;
}

void PickTree::shareArrays()
{
    // Embree reads 16 bytes at each position, 4 beyond the last one.
    soup.positions.reserve(soup.positions.size() + 1);
    rtcSetSharedGeometryBuffer(mesh, RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3,
                               soup.positions.data(), 0, sizeof(osg::Pnt3f), soup.positions.size());
    rtcSetSharedGeometryBuffer(mesh, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3,
                               soup.triangles.data(), 0, 3 * sizeof(std::uint32_t),
                               getTriangleCount());
}

bool PickTree::buildTree(bool expectsRefits, const BuildMonitor& monitor)
{
    isRefittable = expectsRefits;
    refitsSinceBuild = 0;
    scene = rtcNewScene(embreeDevice());
    mesh = rtcNewGeometry(embreeDevice(), RTC_GEOMETRY_TYPE_TRIANGLE);
    // Robust: no ray slips through between two triangles that share an edge.
    rtcSetSceneFlags(scene,
                     expectsRefits ? RTC_SCENE_FLAG_ROBUST | RTC_SCENE_FLAG_DYNAMIC
                                   : RTC_SCENE_FLAG_ROBUST);
    shareArrays();
    rtcCommitGeometry(mesh);
    rtcAttachGeometry(scene, mesh);
    rtcReleaseGeometry(mesh);
    const bool isBuilt = commitScene(scene, monitor);
    if (!isBuilt) {
        dropTree();
    }
    return isBuilt;
}

bool PickTree::refitTree()
{
    shareArrays();
    rtcSetGeometryBuildQuality(mesh, RTC_BUILD_QUALITY_REFIT);
    rtcCommitGeometry(mesh);
    if (!commitScene(scene)) {
        dropTree();
        return false;
    }
    ++refitsSinceBuild;
    return true;
}

void PickTree::dropTree()
{
    if (scene != nullptr) {
        rtcReleaseScene(scene);
    }
    scene = nullptr;
    mesh = nullptr;
    isRefittable = false;
}

void PickTree::measure()
{
    bounds = PickBounds();
    if (scene == nullptr) {
        for (const std::uint32_t index : soup.triangles) {
            bounds.extend(soup.positions[index]);
        }
        return;
    }
    RTCBounds box;
    rtcGetSceneBounds(scene, &box);
    if (box.lower_x <= box.upper_x) {
        bounds.extend({ box.lower_x, box.lower_y, box.lower_z });
        bounds.extend({ box.upper_x, box.upper_y, box.upper_z });
    }
}

bool PickTree::intersect(PickRay& ray, TreeHit& hit) const
{
    if (!isTraceable(ray)) {
        return false;
    }
    if (scene == nullptr) {
        return intersectDirectly(ray, hit);
    }
    RTCRayHit query = toEmbree(ray);
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    rtcIntersect1(scene, &context, &query);
    if (query.hit.geomID == RTC_INVALID_GEOMETRY_ID) {
        return false;
    }
    ray.tFar = query.ray.tfar;
    hit = { { query.hit.Ng_x, query.hit.Ng_y, query.hit.Ng_z }, query.hit.primID };
    return true;
}

bool PickTree::intersectDirectly(PickRay& ray, TreeHit& hit) const
{
    bool isHit = false;
    for (std::size_t i = 0; i + 2 < soup.triangles.size(); i += 3) {
        const osg::Pnt3f& p0 = soup.positions[soup.triangles[i]];
        const osg::Vec3f e1 = soup.positions[soup.triangles[i + 1]] - p0;
        const osg::Vec3f e2 = soup.positions[soup.triangles[i + 2]] - p0;
        float t = 0.0F;
        if (intersectTriangle(ray, p0, e1, e2, t)) {
            ray.tFar = t;
            hit = { e1.cross(e2), static_cast<std::uint32_t>(i / 3) };
            isHit = true;
        }
    }
    return isHit;
}

}  // namespace nbec::interaction::detail
