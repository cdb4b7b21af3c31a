// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>

namespace osg::detail {

/// Collects the vertices and primitives of a simple shape and makes the geometry.
/// Vertices have one index for all properties unless texture coordinates are indexed separately.
class ShapeBuilder
{
public:
    /// Room for so many vertices and indices.
    ShapeBuilder(std::size_t vertexCount, std::size_t indexCount);

    /// @return index of the new vertex
    UInt32 addVertex(const Pnt3f& position, const Vec3f& normal, const Vec2f& texCoords);

    /// A position and its normal, for shapes with separate texture coordinates.
    UInt32 addPosition(const Pnt3f& position, const Vec3f& normal);

    /// Begins a primitive; the indices added from here on belong to it.
    void beginPrimitive(GLenum type);

    void addIndex(UInt32 index);

    /// For shapes with separate texture coordinates, which are added with the index.
    void addIndex(UInt32 index, const Vec2f& texCoords);

    /// A strip of triangles between two lines of vertices.
    /// @param count  vertices of a line
    /// @param first, second  where the lines begin
    /// @param step   from one vertex of a line to its next
    void addStrip(UInt32 count, UInt32 first, UInt32 second, UInt32 step);

    UInt32 getVertexCount() const { return positions->getSize(); }

    /// The geometry with the default material; count 0. To be called once.
    GeometryPtr build() const;

private:
    GeoPTypesUI8Ptr types = GeoPTypesUI8::create();
    GeoPLengthsUI32Ptr lengths = GeoPLengthsUI32::create();
    GeoPositions3fPtr positions = GeoPositions3f::create();
    GeoNormals3fPtr normals = GeoNormals3f::create();
    GeoTexCoords2fPtr texCoords2 = GeoTexCoords2f::create();
    GeoIndicesUI32Ptr indices = GeoIndicesUI32::create();
    bool separateTexCoords = false;
};

/// Null and a line in the log.
GeometryPtr refuseShape(const Char8* function, const Char8* reason);

/// A node for a geometry; null for null.
NodePtr shapeNode(const GeometryPtr& geometry);

}  // namespace osg::detail
