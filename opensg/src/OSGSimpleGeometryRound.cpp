// SPDX-License-Identifier: MIT
// The round ones of the simple shapes.
#include <OpenSG/OSGSimpleGeometry.h>

#include <vector>

#include "ShapeBuilder.h"

namespace osg {

namespace {

using detail::refuseShape;
using detail::ShapeBuilder;

/// 20 * 4^10 triangles are 21 millions.
constexpr UInt16 kMaxSphereDepth = 10;

/// Sine and cosine of a part of the full turn.
struct TurnPart
{
    TurnPart(UInt32 part, UInt32 parts)
        : sine(Real32(std::sin(2. * 3.14159265358979323846 * part / parts)))
        , cosine(Real32(std::cos(2. * 3.14159265358979323846 * part / parts)))
    { }

    Real32 sine;
    Real32 cosine;
};

// == Cylinder, cone, frustum

struct Frustum
{
    Real32 height;
    Real32 topRadius;
    Real32 bottomRadius;
    UInt16 sides;
};

void addSide(ShapeBuilder& shape, const Frustum& frustum)
{
    const Real32 slope = (frustum.bottomRadius - frustum.topRadius) / frustum.height;
    // Deliberate: multiplied where dividing would give unit normals.
    const Real32 stretch = osgsqrt(1.0F + slope * slope);
    for (const bool top : { true, false }) {
        const Real32 radius = top ? frustum.topRadius : frustum.bottomRadius;
        const Real32 y = top ? frustum.height / 2 : -frustum.height / 2;
        for (UInt32 i = 0; i <= frustum.sides; ++i) {
            const TurnPart angle(i, frustum.sides);
            shape.addVertex(Pnt3f(radius * angle.sine, y, -radius * angle.cosine),
                            Vec3f(angle.sine, slope, -angle.cosine) * stretch,
                            Vec2f(1.0F - Real32(i) / Real32(frustum.sides), top ? 1.0F : 0.0F));
        }
    }
    shape.addStrip(frustum.sides + 1u, frustum.sides + 1u, 0, 1);
}

/// A ring from the last angle to the first; the top polygon takes it so, the bottom one in reverse.
void addCap(ShapeBuilder& shape, const Frustum& frustum, bool top)
{
    const Real32 radius = top ? frustum.topRadius : frustum.bottomRadius;
    const Real32 sign = top ? 1.0F : -1.0F;
    const UInt32 first = shape.getVertexCount();
    for (UInt32 i = frustum.sides; i-- > 0;) {
        const TurnPart angle(i, frustum.sides);
        shape.addVertex(
            Pnt3f(radius * angle.sine, sign * frustum.height / 2, -radius * angle.cosine),
            Vec3f(0.0F, sign, 0.0F), Vec2f(0.5F + angle.sine / 2, 0.5F + sign * angle.cosine / 2));
    }
    shape.beginPrimitive(GL_POLYGON);
    for (UInt32 i = 0; i < frustum.sides; ++i) {
        shape.addIndex(first + (top ? i : frustum.sides - 1u - i));
    }
}

GeometryPtr makeFrustum(const Char8* function, const Frustum& frustum, bool doSide, bool doTop,
                        bool doBottom)
{
    if (!(frustum.height > 0.0F)) {
        return refuseShape(function, "the height must be positive");
    }
    if (!(frustum.topRadius >= 0.0F) || !(frustum.bottomRadius >= 0.0F)) {
        return refuseShape(function, "a radius is negative");
    }
    if (frustum.sides < 3) {
        return refuseShape(function, "less than 3 sides");
    }
    const std::size_t ring = frustum.sides + std::size_t(1);
    ShapeBuilder shape(4 * ring, 4 * ring);
    if (doSide) {
        addSide(shape, frustum);
    }
    if (doTop && frustum.topRadius > 0.0F) {
        addCap(shape, frustum, true);
    }
    if (doBottom && frustum.bottomRadius > 0.0F) {
        addCap(shape, frustum, false);
    }
    return shape.build();
}

// == Icosahedron

struct Facet
{
    UInt32 vertices[3];
};

/// 12 points on the unit sphere: +x and the five around it, then the opposite ones.
void addIcosahedron(std::vector<Vec3f>& points, std::vector<Facet>& facets)
{
    const Real32 height = 1.0F / osgsqrt(5.0F);
    points.push_back(Vec3f(1.0F, 0.0F, 0.0F));
    for (UInt32 i = 0; i < 5; ++i) {
        const TurnPart angle(i, 5);
        points.push_back(Vec3f(height, 2 * height * angle.sine, -2 * height * angle.cosine));
    }
    for (UInt32 i = 0; i < 6; ++i) {
        points.push_back(-points[i]);
    }

    const auto upper = [](UInt32 i) { return 1 + i % 5; };
    // The lower ring is half a turn on: its point (i + 3) lies between the upper ones i and i + 1.
    const auto lower = [](UInt32 i) { return 7 + (i + 3) % 5; };
    for (UInt32 i = 0; i < 5; ++i) {
        facets.push_back({ { 0, upper(i), upper(i + 1) } });
    }
    for (UInt32 i = 0; i < 5; ++i) {
        facets.push_back({ { upper(i + 1), upper(i), lower(i) } });
        facets.push_back({ { upper(i + 1), lower(i), lower(i + 1) } });
    }
    for (UInt32 i = 0; i < 5; ++i) {
        facets.push_back({ { 6, lower(i + 1), lower(i) } });
    }
}

/// Each facet becomes four; the midpoints are its own.
void divideFacets(std::vector<Vec3f>& points, std::vector<Facet>& facets)
{
    std::vector<Facet> result;
    result.reserve(4 * facets.size());
    points.reserve(points.size() + 3 * facets.size());
    for (const Facet& facet : facets) {
        const UInt32* const v = facet.vertices;
        const UInt32 middle = static_cast<UInt32>(points.size());
        for (UInt32 i = 0; i < 3; ++i) {
            points.push_back(points[v[i]] + points[v[(i + 1) % 3]]);
            points.back().normalize();
        }
        result.push_back({ { v[0], middle, middle + 2 } });
        result.push_back({ { middle, v[1], middle + 1 } });
        result.push_back({ { middle + 2, middle + 1, v[2] } });
        result.push_back({ { middle, middle + 1, middle + 2 } });
    }
    facets.swap(result);
}

/// Longitude from -z over the poles' axis y, latitude from the south pole.
Vec2f sphereTexCoords(const Vec3f& direction)
{
    return Vec2f(0.5F + osgatan2(direction[0], -direction[2]) / (2 * Pi),
                 0.5F + osgasin(osgClamp(-1.0F, direction[1], 1.0F)) / Pi);
}

/// A triangle's texture coordinates lie on one side of the seam.
void addFacet(ShapeBuilder& shape, const std::vector<Vec3f>& points, const Facet& facet)
{
    Vec2f corners[3];
    Real32 largest = 0.0F;
    for (UInt32 i = 0; i < 3; ++i) {
        corners[i] = sphereTexCoords(points[facet.vertices[i]]);
        largest = osgMax(largest, corners[i][0]);
    }
    for (UInt32 i = 0; i < 3; ++i) {
        if (largest - corners[i][0] > 0.5F) {
            corners[i][0] += 1.0F;
        }
        shape.addIndex(facet.vertices[i], corners[i]);
    }
}

}  // namespace

GeometryPtr makeConeGeo(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom)
{
    return makeFrustum("makeCone", { height, 0.0F, botradius, sides }, doSide, false, doBottom);
}

GeometryPtr makeCylinderGeo(Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop,
                            bool doBottom)
{
    return makeFrustum("makeCylinder", { height, radius, radius, sides }, doSide, doTop, doBottom);
}

GeometryPtr makeConicalFrustumGeo(Real32 height, Real32 topradius, Real32 botradius, UInt16 sides,
                                  bool doSide, bool doTop, bool doBottom)
{
    return makeFrustum("makeConicalFrustum", { height, topradius, botradius, sides }, doSide, doTop,
                       doBottom);
}

GeometryPtr makeTorusGeo(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings)
{
    if (!(innerRadius > 0.0F) || !(outerRadius > 0.0F)) {
        return refuseShape("makeTorus", "both radii must be positive");
    }
    if (sides < 3 || rings < 3) {
        return refuseShape("makeTorus", "less than 3 sides or rings");
    }
    const UInt32 width = sides + 1u;
    ShapeBuilder shape(std::size_t(width) * (rings + 1u), std::size_t(2) * sides * (rings + 1u));
    std::vector<TurnPart> tubes;
    tubes.reserve(width);
    for (UInt32 side = 0; side <= sides; ++side) {
        tubes.emplace_back(side, sides);
    }
    for (UInt32 ring = 0; ring <= rings; ++ring) {
        const TurnPart around(ring, rings);
        for (UInt32 side = 0; side <= sides; ++side) {
            const TurnPart& tube = tubes[side];
            const Real32 radius = outerRadius + innerRadius * tube.cosine;
            shape.addVertex(
                Pnt3f(radius * around.cosine, -radius * around.sine, innerRadius * tube.sine),
                Vec3f(around.cosine * tube.cosine, -around.sine * tube.cosine, tube.sine),
                Vec2f(1.0F - Real32(ring) / Real32(rings), Real32(side) / Real32(sides)));
        }
    }
    for (UInt32 side = 0; side < sides; ++side) {
        shape.addStrip(rings + 1u, side, side + 1, width);
    }
    return shape.build();
}

GeometryPtr makeSphereGeo(UInt16 depth, Real32 radius)
{
    if (!(radius >= 0.0F)) {
        return refuseShape("makeSphere", "the radius is negative");
    }
    if (depth > kMaxSphereDepth) {
        return refuseShape("makeSphere", "a depth above 10 is too fine");
    }
    std::vector<Vec3f> points;
    std::vector<Facet> facets;
    addIcosahedron(points, facets);
    for (UInt16 level = 0; level < depth; ++level) {
        divideFacets(points, facets);
    }

    // An index of the position and one of the texture coordinates per corner.
    ShapeBuilder shape(points.size(), 6 * facets.size());
    for (const Vec3f& point : points) {
        shape.addPosition(Pnt3f(point * radius), point);
    }
    shape.beginPrimitive(GL_TRIANGLES);
    for (const Facet& facet : facets) {
        addFacet(shape, points, facet);
    }
    return shape.build();
}

GeometryPtr makeLatLongSphereGeo(UInt16 latres, UInt16 longres, Real32 radius)
{
    if (!(radius >= 0.0F)) {
        return refuseShape("makeLatLongSphere", "the radius is negative");
    }
    if (latres < 2 || longres < 3) {
        return refuseShape("makeLatLongSphere", "less than 2 rows or 3 columns");
    }
    const UInt32 width = longres + 1u;
    ShapeBuilder shape(std::size_t(width) * (latres + 1u), std::size_t(2) * width * latres);
    for (UInt32 row = 0; row <= latres; ++row) {
        // Half a turn from the south pole to the north pole.
        const TurnPart latitude(row, 2u * latres);
        for (UInt32 column = 0; column <= longres; ++column) {
            const TurnPart longitude(column, longres);
            const Vec3f direction(latitude.sine * longitude.sine, -latitude.cosine,
                                  latitude.sine * longitude.cosine);
            shape.addVertex(Pnt3f(direction * radius), direction,
                            Vec2f(Real32(column) / Real32(longres), Real32(row) / Real32(latres)));
        }
    }
    for (UInt32 row = 0; row < latres; ++row) {
        shape.addStrip(width, (row + 1) * width, row * width, 1);
    }
    return shape.build();
}

}  // namespace osg
