// SPDX-License-Identifier: MIT
#include "SnapSearch.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGExt/nbSameBits.h>

#include <algorithm>
#include <cmath>
#include <unordered_set>

#include "detail/ScenePicking.h"
#include "detail/WidgetView.h"

namespace nbec::interaction {

namespace {

using Target = SnapSearch::Target;
using Kind = SnapSearch::Kind;

/// A triangle that is seen near the pointer, world space.
struct SeenTriangle
{
    std::array<osg::Pnt3f, 3> corners;
    osg::Vec3f normal;  ///< unit length
    const detail::PickItem* item;
    std::uint32_t number;
};

bool hasCorner(const SeenTriangle& triangle, const osg::Pnt3f& corner)
{
    return std::any_of(triangle.corners.begin(), triangle.corners.end(),
                       [&](const osg::Pnt3f& own) { return nbSameValues(own, corner); });
}

/// Rank of a kind; lower ones go first.
int rankOf(Kind kind)
{
    return kind == Kind::Face ? 2 : (kind == Kind::Edge ? 1 : 0);
}

/// Point of a segment nearest to a ray: where the derivative of the squared distance is zero.
osg::Pnt3f nearestToRay(const std::array<osg::Pnt3f, 2>& ends, const detail::PickRay& ray)
{
    const osg::Vec3f along = ends[1] - ends[0];
    const osg::Vec3f from = ends[0] - ray.origin;
    const float slope = along.dot(ray.direction);
    const float squared = along.dot(along) - slope * slope;
    const float part =
        squared > 0.0F ? (slope * from.dot(ray.direction) - along.dot(from)) / squared : 0.0F;
    return ends[0] + along * std::clamp(part, 0.0F, 1.0F);
}

}  // namespace

/// The scene as it was taken up, and the view in which it was searched last.
struct SnapSearch::Scene
{
    /// A centre or pivot with its place on screen.
    struct Mark
    {
        Kind kind;
        osg::Pnt3f point;
        std::optional<detail::ScreenPoint> px {};
    };

    void take(const std::vector<osg::NodePtr>& without);
    void addMarks(const detail::PickItem& item, std::unordered_set<osg::UInt32>& known);
    bool look(const osg::Pnt2f& px);
    void see(const detail::ScreenPoint& position);
    std::optional<detail::ScreenPoint> placeOf(const osg::Pnt3f& point) const;
    void offer(Kind kind, const osg::Pnt3f& point, const std::array<osg::Pnt3f, 2>& ends,
               float nearer);
    void offerEdge(const SeenTriangle& triangle, const std::array<osg::Pnt3f, 2>& ends);
    void offerAll(const std::optional<Target>& held);

    detail::ScenePicking picking;
    const detail::ItemTree* tree = nullptr;
    std::vector<Mark> marks;
    detail::WidgetView widgetView;
    detail::PickView projectedView;
    detail::ScreenProjection projection;

    // Of one search.
    detail::ScreenPoint pointer;
    detail::PickRay ray;
    unsigned kinds = 0;
    float reach = 0.0F;
    std::vector<SeenTriangle> seen;
    std::optional<Target> best;
    float bestDistance = 0.0F;
};

SnapSearch::SnapSearch() = default;

SnapSearch::~SnapSearch() = default;

void SnapSearch::begin(const std::vector<osg::NodePtr>& without)
{
    scene = std::make_unique<Scene>();
    scene->take(without);
}

void SnapSearch::end()
{
    scene.reset();
}

std::optional<Target> SnapSearch::find(const osg::Pnt2f& px, unsigned kinds, float reachPx,
                                       const std::optional<Target>& held) const
{
    if (scene == nullptr || !scene->look(px)) {
        return std::nullopt;
    }
    scene->kinds = kinds;
    scene->reach = reachPx;
    scene->offerAll(held);
    return scene->best;
}

// == Taking the scene up

void SnapSearch::Scene::take(const std::vector<osg::NodePtr>& without)
{
    tree = &picking.hold(nbScenegraph::getWorldRoot(), without);
    std::unordered_set<osg::UInt32> known;
    for (const detail::PickItem& item : tree->getItems()) {
        addMarks(item, known);
    }
}

void SnapSearch::Scene::addMarks(const detail::PickItem& item,
                                 std::unordered_set<osg::UInt32>& known)
{
    if (!item.worldBounds.isEmpty) {
        marks.push_back(
            { Kind::Centre,
              item.worldBounds.min + (item.worldBounds.max - item.worldBounds.min) * 0.5F });
    }
    auto node = resolveContainer<osg::NodePtr>(item.nodeId);
    for (; node != osg::NullFC && known.insert(node.getFieldContainerId()).second;
         node = node->getParent()) {
        if (const auto transform = osg::Transform3DPtr::dcast(node->getCore());
            transform != osg::NullFC) {
            osg::Pnt3f place(transform->getTranslation() + transform->getRotatePivot());
            if (node->getParent() != osg::NullFC) {
                node->getParent()->getToWorld().multMatrixPnt(place);
            }
            marks.push_back({ Kind::Pivot, place });
        }
    }
}

// == Searching

/// Turns to the view as it is now. @return false if the pixel is not in it
bool SnapSearch::Scene::look(const osg::Pnt2f& px)
{
    const detail::PickView* const view = widgetView.current();
    if (view == nullptr || !view->pixelCentre(px, pointer)) {
        return false;
    }
    if (!view->isSame(projectedView)) {
        projectedView = *view;
        projection = detail::ScreenProjection(*view);
        for (Mark& mark : marks) {
            mark.px = projection.isValid() ? placeOf(mark.point) : std::nullopt;
        }
    }
    return projection.isValid();
}

std::optional<detail::ScreenPoint> SnapSearch::Scene::placeOf(const osg::Pnt3f& point) const
{
    const detail::ScreenProjection::Projected projected = projection.project(point);
    return projected.isVisible() && projected.clip[3] > 0.0
        ? std::optional<detail::ScreenPoint>(projection.toScreen(projected))
        : std::nullopt;
}

/// Notes the triangle that is seen at a position on screen; at the pointer's own its face, too.
void SnapSearch::Scene::see(const detail::ScreenPoint& position)
{
    detail::PickRay look = projection.rayThrough(position);
    detail::ItemTree::Hit hit;
    if (!tree->intersect(look, hit)) {
        return;
    }
    if (position.x == pointer.x && position.y == pointer.y) {
        const osg::Pnt3f point = look.origin + look.direction * look.tFar;
        offer(Kind::Face, point, { point, point }, 0.0F);
    }
    const auto isKnown = [&](const SeenTriangle& each) {
        return each.item == hit.item && each.number == hit.local.triangle;
    };
    if (std::none_of(seen.begin(), seen.end(), isKnown)) {
        SeenTriangle triangle {
            hit.item->tree->getTriangle(hit.local.triangle), {}, hit.item, hit.local.triangle
        };
        for (osg::Pnt3f& corner : triangle.corners) {
            hit.item->worldFromLocal.multMatrixPnt(corner);
        }
        triangle.normal = (triangle.corners[1] - triangle.corners[0])
                              .cross(triangle.corners[2] - triangle.corners[0]);
        triangle.normal.normalize();
        seen.push_back(triangle);
    }
}

/// @param nearer  pixels by which it counts as nearer
void SnapSearch::Scene::offer(Kind kind, const osg::Pnt3f& point,
                              const std::array<osg::Pnt3f, 2>& ends, float nearer)
{
    const std::optional<detail::ScreenPoint> px = placeOf(point);
    if ((kinds & kind) == 0 || !px) {
        return;
    }
    const float distance = std::hypot(px->x - pointer.x, px->y - pointer.y) - nearer;
    if (distance > reach) {
        return;
    }
    const int rank = rankOf(kind);
    const int bestRank = best ? rankOf(best->kind) : rank + 1;
    if (rank < bestRank || (rank == bestRank && distance < bestDistance)) {
        best = Target { kind, point, ends };
        bestDistance = distance;
    }
}

void SnapSearch::Scene::offerEdge(const SeenTriangle& triangle,
                                  const std::array<osg::Pnt3f, 2>& ends)
{
    constexpr float kFlat = 0.9999F;
    for (const SeenTriangle& other : seen) {
        if (&other != &triangle && std::abs(other.normal.dot(triangle.normal)) > kFlat &&
            hasCorner(other, ends[0]) && hasCorner(other, ends[1])) {
            return;  // a diagonal
        }
    }
    offer(Kind::Edge, nearestToRay(ends, ray), ends, 0.0F);
    const osg::Pnt3f middle = ends[0] + (ends[1] - ends[0]) * 0.5F;
    offer(Kind::EdgeMiddle, middle, { middle, middle }, 0.0F);
}

void SnapSearch::Scene::offerAll(const std::optional<Target>& held)
{
    best.reset();
    seen.clear();
    ray = projection.rayThrough(pointer);
    see(pointer);
    constexpr int kDirections = 8;
    const float kTurn = 2.0F * osg::Pi / kDirections;
    for (int i = 0;
         i < 2 * kDirections && (kinds & ~(Kind::Face | Kind::Centre | Kind::Pivot)) != 0; ++i) {
        const float distance = i < kDirections ? reach / 2 : reach;
        see({ pointer.x + distance * std::cos(kTurn * static_cast<float>(i)),
              pointer.y + distance * std::sin(kTurn * static_cast<float>(i)) });
    }
    for (const SeenTriangle& triangle : seen) {
        for (std::size_t i = 0; i < 3; ++i) {
            const osg::Pnt3f& corner = triangle.corners[i];
            offer(Kind::Vertex, corner, { corner, corner }, 0.0F);
            offerEdge(triangle, { corner, triangle.corners[(i + 1) % 3] });
        }
    }
    for (const Mark& mark : marks) {
        if (mark.px && std::abs(mark.px->x - pointer.x) <= reach &&
            std::abs(mark.px->y - pointer.y) <= reach) {
            offer(mark.kind, mark.point, { mark.point, mark.point }, 0.0F);
        }
    }
    if (held && held->kind != Kind::Face) {
        const bool isEdge = held->kind == Kind::Edge;
        offer(held->kind, isEdge ? nearestToRay(held->ends, ray) : held->point, held->ends,
              kStickPx);
    }
}

}  // namespace nbec::interaction
