// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeometryView.h>
#include <OpenSG/OSGNodeFields.h>

namespace osg {

/// Walks over the primitives of a geometry. One made by its constructor is not at the first
/// primitive: seek(0) it. The geometry must not change meanwhile.
class PrimitiveIterator
{
public:
    PrimitiveIterator() = default;

    explicit PrimitiveIterator(const GeometryPtr& geometry);

    /// Of the node's core; a node without a geometry has no primitives.
    explicit PrimitiveIterator(const NodePtr& node);

    void setGeo(const GeometryPtr& geometry) { *this = PrimitiveIterator(geometry); }

    void setGeo(const NodePtr& node) { *this = PrimitiveIterator(node); }

    void setToBegin();

    void setToEnd() { atEnd = true; }

    /// To the primitive with this number, from 0; beyond the last is the end.
    void seek(Int32 wanted);

    PrimitiveIterator& operator++();

    bool isAtEnd() const { return atEnd; }

    /// Number of the primitive, from 0.
    Int32 getIndex() const { return static_cast<Int32>(primitive); }

    /// GL_TRIANGLES, GL_LINES ...
    UInt32 getType() const { return type; }

    /// Number of vertices.
    UInt32 getLength() const { return length; }

    // == Vertices of the primitive, from 0; a missing property gives index -1 and zeros

    Int32 getPositionIndex(Int32 which) const { return view.getPositionIndex(vertex(which)); }

    Int32 getNormalIndex(Int32 which) const { return view.getNormalIndex(vertex(which)); }

    Int32 getColorIndex(Int32 which) const { return view.getColorIndex(vertex(which)); }

    Int32 getTexCoordsIndex(Int32 which) const { return view.getTexCoordsIndex(vertex(which)); }

    Pnt3f getPosition(Int32 which) const { return view.getPosition(vertex(which)); }

    Vec3f getNormal(Int32 which) const { return view.getNormal(vertex(which)); }

    Color3f getColor(Int32 which) const { return view.getColor(vertex(which)); }

    Vec2f getTexCoords(Int32 which) const { return view.getTexCoords(vertex(which)); }

    /// The same place of the same geometry.
    bool operator==(const PrimitiveIterator& other) const
    {
        return geo == other.geo && atEnd == other.atEnd && (atEnd || primitive == other.primitive);
    }

    bool operator!=(const PrimitiveIterator& other) const { return !(*this == other); }

private:
    friend class Geometry;
    template <class Splitter>
    friend class GeoPartIterator;

    struct End
    { };

    /// The end, without looking at the geometry.
    PrimitiveIterator(const GeometryPtr& geometry, End)
        : geo(geometry)
    { }

    UInt32 vertex(Int32 which) const { return firstVertex + static_cast<UInt32>(which); }

    void load();

    GeometryPtr geo;
    bool atEnd = true;
    UInt32 primitive = 0;
    UInt32 type = 0;
    UInt32 length = 0;
    UInt32 firstVertex = 0;
    GeometryView view;
};

}  // namespace osg
