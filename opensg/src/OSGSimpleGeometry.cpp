// SPDX-License-Identifier: MIT
#include <OpenSG/OSGSimpleGeometry.h>

#include "ShapeBuilder.h"

namespace osg {

namespace {

/// A divided rectangle: its lower left corner and its edges.
struct Rectangle
{
    Pnt3f corner;
    Vec3f right;
    Vec3f up;
    Vec3f normal;
    UInt16 columns;
    UInt16 rows;
};

std::size_t vertexCountOf(const Rectangle& r)
{
    return (std::size_t(r.columns) + 1) * (std::size_t(r.rows) + 1);
}

std::size_t indexCountOf(const Rectangle& r)
{
    return 2 * (std::size_t(r.columns) + 1) * r.rows;
}

/// Rows of vertices from bottom to top; one strip per row that takes the upper vertex first.
void addRectangle(detail::ShapeBuilder& shape, const Rectangle& rectangle)
{
    const UInt32 first = shape.getVertexCount();
    for (UInt32 row = 0; row <= rectangle.rows; ++row) {
        for (UInt32 column = 0; column <= rectangle.columns; ++column) {
            const Real32 u = Real32(column) / Real32(rectangle.columns);
            const Real32 v = Real32(row) / Real32(rectangle.rows);
            shape.addVertex(rectangle.corner + rectangle.right * u + rectangle.up * v,
                            rectangle.normal, Vec2f(u, v));
        }
    }
    const UInt32 width = rectangle.columns + 1u;
    for (UInt32 row = 0; row < rectangle.rows; ++row) {
        shape.addStrip(width, first + (row + 1) * width, first + row * width, 1);
    }
}

}  // namespace

GeometryPtr makePlaneGeo(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert)
{
    if (hor == 0 || vert == 0) {
        return detail::refuseShape("makePlane", "a subdivision is 0");
    }
    const Rectangle rectangle { Pnt3f(-xsize / 2, -ysize / 2, 0),
                                Vec3f(xsize, 0, 0),
                                Vec3f(0, ysize, 0),
                                Vec3f(0, 0, 1),
                                hor,
                                vert };
    detail::ShapeBuilder shape(vertexCountOf(rectangle), indexCountOf(rectangle));
    addRectangle(shape, rectangle);
    return shape.build();
}

GeometryPtr makeBoxGeo(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert,
                       UInt16 depth)
{
    if (hor == 0 || vert == 0 || depth == 0) {
        return detail::refuseShape("makeBox", "a subdivision is 0");
    }
    const Vec3f x(xsize, 0, 0);
    const Vec3f y(0, ysize, 0);
    const Vec3f z(0, 0, zsize);

    const auto face = [](const Vec3f& right, const Vec3f& up, const Vec3f& outward,
                         const Vec3f& normal, UInt16 columns, UInt16 rows) {
        const Pnt3f corner = Pnt3f() + (outward - right - up) * 0.5F;
        return Rectangle { corner, right, up, normal, columns, rows };
    };
    const Rectangle faces[] = {
        face(x, y, z, Vec3f(0, 0, 1), hor, vert),    face(-x, y, -z, Vec3f(0, 0, -1), hor, vert),
        face(-z, y, x, Vec3f(1, 0, 0), depth, vert), face(z, y, -x, Vec3f(-1, 0, 0), depth, vert),
        face(x, -z, y, Vec3f(0, 1, 0), hor, depth),  face(x, z, -y, Vec3f(0, -1, 0), hor, depth),
    };

    std::size_t vertexCount = 0;
    std::size_t indexCount = 0;
    for (const Rectangle& rectangle : faces) {
        vertexCount += vertexCountOf(rectangle);
        indexCount += indexCountOf(rectangle);
    }
    detail::ShapeBuilder shape(vertexCount, indexCount);
    for (const Rectangle& rectangle : faces) {
        addRectangle(shape, rectangle);
    }
    return shape.build();
}

// == Nodes

NodePtr makePlane(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert)
{
    return detail::shapeNode(makePlaneGeo(xsize, ysize, hor, vert));
}

NodePtr makeBox(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert, UInt16 depth)
{
    return detail::shapeNode(makeBoxGeo(xsize, ysize, zsize, hor, vert, depth));
}

NodePtr makeCone(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom)
{
    return detail::shapeNode(makeConeGeo(height, botradius, sides, doSide, doBottom));
}

NodePtr makeCylinder(Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop,
                     bool doBottom)
{
    return detail::shapeNode(makeCylinderGeo(height, radius, sides, doSide, doTop, doBottom));
}

NodePtr makeConicalFrustum(Real32 height, Real32 topradius, Real32 botradius, UInt16 sides,
                           bool doSide, bool doTop, bool doBottom)
{
    return detail::shapeNode(
        makeConicalFrustumGeo(height, topradius, botradius, sides, doSide, doTop, doBottom));
}

NodePtr makeTorus(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings)
{
    return detail::shapeNode(makeTorusGeo(innerRadius, outerRadius, sides, rings));
}

NodePtr makeSphere(UInt16 depth, Real32 radius)
{
    return detail::shapeNode(makeSphereGeo(depth, radius));
}

NodePtr makeLatLongSphere(UInt16 latres, UInt16 longres, Real32 radius)
{
    return detail::shapeNode(makeLatLongSphereGeo(latres, longres, radius));
}

}  // namespace osg
