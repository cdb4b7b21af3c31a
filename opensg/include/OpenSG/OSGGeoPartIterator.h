// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGPrimitiveIterator.h>

namespace osg {

/// Walks over parts of primitives: triangles or lines. Splitter tells by two static
/// functions how many parts a primitive has and which of its vertices are the corners of one of
/// them:
///     UInt32 count(UInt32 type, UInt32 length);
///     UInt32 corners(UInt32 type, UInt32 part, UInt32 length, UInt32 (&vertices)[4]);   // how
///     many corners
/// One made by its constructor is not at the first part: seek(0) it.
template <class Splitter>
class GeoPartIterator
{
public:
    GeoPartIterator() = default;

    explicit GeoPartIterator(const GeometryPtr& geometry)
        : primitives(geometry)
    { }

    explicit GeoPartIterator(const NodePtr& node)
        : primitives(node)
    { }

    void setGeo(const GeometryPtr& geometry) { *this = GeoPartIterator(geometry); }

    void setGeo(const NodePtr& node) { *this = GeoPartIterator(node); }

    void setToBegin() { seek(0); }

    void setToEnd() { primitives.setToEnd(); }

    /// To the part with this number, from 0; beyond the last is the end.
    void seek(Int32 wanted)
    {
        primitives.setToBegin();
        index = wanted;
        part = static_cast<UInt32>(wanted);
        partCount = 0;
        while (!primitives.isAtEnd()) {
            partCount = Splitter::count(primitives.getType(), primitives.getLength());
            if (part < partCount) {
                load();
                return;
            }
            part -= partCount;
            ++primitives;
        }
    }

    GeoPartIterator& operator++()
    {
        ++index;
        if (++part < partCount) {
            load();
            return *this;
        }
        do {
            ++primitives;
            part = 0;
            partCount = primitives.isAtEnd()
                ? 0
                : Splitter::count(primitives.getType(), primitives.getLength());
        } while (!primitives.isAtEnd() && partCount == 0);
        if (partCount > 0) {
            load();
        }
        return *this;
    }

    bool isAtEnd() const { return primitives.isAtEnd(); }

    /// Number of the part in the geometry, from 0.
    Int32 getIndex() const { return index; }

    /// Number of corners.
    UInt32 getLength() const { return cornerCount; }

    // == Corners of the part, from 0; a missing property gives index -1 and zeros

    Int32 getPositionIndex(Int32 which) const { return primitives.getPositionIndex(corner(which)); }

    Int32 getNormalIndex(Int32 which) const { return primitives.getNormalIndex(corner(which)); }

    Int32 getColorIndex(Int32 which) const { return primitives.getColorIndex(corner(which)); }

    Int32 getTexCoordsIndex(Int32 which) const
    {
        return primitives.getTexCoordsIndex(corner(which));
    }

    Pnt3f getPosition(Int32 which) const { return primitives.getPosition(corner(which)); }

    Vec3f getNormal(Int32 which) const { return primitives.getNormal(corner(which)); }

    Color3f getColor(Int32 which) const { return primitives.getColor(corner(which)); }

    Vec2f getTexCoords(Int32 which) const { return primitives.getTexCoords(corner(which)); }

    /// The same place of the same geometry.
    bool operator==(const GeoPartIterator& other) const
    {
        return primitives == other.primitives && (isAtEnd() || part == other.part);
    }

    bool operator!=(const GeoPartIterator& other) const { return !(*this == other); }

protected:
    friend class Geometry;

    explicit GeoPartIterator(const PrimitiveIterator& place)
        : primitives(place)
    { }

private:
    Int32 corner(Int32 which) const { return static_cast<Int32>(vertices[which]); }

    void load()
    {
        cornerCount =
            Splitter::corners(primitives.getType(), part, primitives.getLength(), vertices);
    }

    PrimitiveIterator primitives;
    Int32 index = 0;
    UInt32 part = 0;
    UInt32 partCount = 0;
    UInt32 cornerCount = 0;
    UInt32 vertices[4] = {};
};

}  // namespace osg
