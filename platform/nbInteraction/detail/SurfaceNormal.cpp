// SPDX-License-Identifier: MIT
#include "SurfaceNormal.h"

#include <OpenSG/OSGTriangleIterator.h>

#include <cmath>

namespace nbec::interaction::detail {

namespace {

/// What corners of a triangle have, mixed at a place of it.
/// @param ofCorner  (const osg::TriangleIterator&, number of the corner)
/// @return nothing if the number is none of the geometry's
template <class Value, class OfCorner>
std::optional<Value> mixed(const osg::GeometryPtr& geometry, const TreeHit& hit,
                           const osg::Pnt3f& place, OfCorner ofCorner)
{
    osg::TriangleIterator triangle(geometry);
    triangle.seek(static_cast<osg::Int32>(hit.triangle));
    if (triangle.isAtEnd()) {
        return std::nullopt;
    }
    const float size = hit.normal.length();
    const osg::Vec3f front = hit.normal * (size > 0.0F ? 1.0F / size : 0.0F);
    Value sum;
    osg::Vec3f flat;
    for (osg::Int32 i = 0; i < 3; ++i) {
        const osg::Vec3f toNext = triangle.getPosition((i + 1) % 3) - place;
        const osg::Vec3f toLast = triangle.getPosition((i + 2) % 3) - place;
        const osg::Vec3f opposite = toNext.cross(toLast);  // as large as the corner's share
        sum += ofCorner(triangle, i) * opposite.dot(front);
        flat += opposite;
    }
    // The tree leaves out what is broken, after which numbers would not be those of the geometry.
    constexpr float kSameDirection = 0.99F;
    const float share = flat.dot(front);
    if (!(share > kSameDirection * flat.length()) || !std::isfinite(sum.length())) {
        return std::nullopt;
    }
    return sum * (1.0F / share);
}

}  // namespace

osg::Vec3f surfaceNormal(const osg::GeometryPtr& geometry, const TreeHit& hit,
                         const osg::Pnt3f& place)
{
    if (geometry == osg::NullFC || geometry->getNormals() == osg::NullFC) {
        return hit.normal;
    }
    const auto normal =
        mixed<osg::Vec3f>(geometry, hit, place, [](const auto& triangle, osg::Int32 corner) {
            osg::Vec3f own = triangle.getNormal(corner);
            own.normalize();
            return own;
        });
    if (!normal || !(normal->length() > 0.0F)) {
        return hit.normal;
    }
    return normal->dot(hit.normal) < 0.0F ? -*normal : *normal;
}

std::optional<osg::Vec2f> surfaceTexCoord(const osg::GeometryPtr& geometry, const TreeHit& hit,
                                          const osg::Pnt3f& place)
{
    if (geometry == osg::NullFC || geometry->getTexCoords() == osg::NullFC ||
        geometry->getTexCoords()->getSize() == 0) {
        return std::nullopt;
    }
    return mixed<osg::Vec2f>(geometry, hit, place, [](const auto& triangle, osg::Int32 corner) {
        return triangle.getTexCoords(corner);
    });
}

}  // namespace nbec::interaction::detail
