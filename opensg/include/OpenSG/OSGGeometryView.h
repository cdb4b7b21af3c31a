// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeometry.h>

namespace osg {

/// Quick reading of a geometry, an extension of the bundled scene graph: looks the properties up
/// once and then reads the usual ones (floats, 32-bit indices) without virtual calls.
/// Valid as long as the geometry and its properties live and are not changed. Indices that point
/// nowhere read as zeros.
class GeometryView
{
public:
    /// Empty.
    GeometryView() = default;

    /// Null gives an empty view.
    explicit GeometryView(const GeometryPtr& geometry);

    UInt32 getPrimitiveCount() const { return primitiveCount; }

    UInt32 getType(UInt32 primitive) const { return types->getValue(primitive); }

    UInt32 getLength(UInt32 primitive) const { return lengths->getValue(primitive); }

    /// Vertices that there are data for, whatever the lengths say: tuples of indices, or positions.
    UInt32 getVertexCount() const
    {
        return indices.property != nullptr ? indices.size / stride : positions.size;
    }

    // == Index of a vertex in a property, counting the vertices of all primitives; -1 if there is
    // none

    Int32 getPositionIndex(UInt32 vertex) const { return index(positions.entry, vertex); }

    Int32 getNormalIndex(UInt32 vertex) const { return index(normals.entry, vertex); }

    Int32 getColorIndex(UInt32 vertex) const { return index(colors.entry, vertex); }

    Int32 getTexCoordsIndex(UInt32 vertex) const { return index(texCoords.entry, vertex); }

    // == Value of a vertex

    Pnt3f getPosition(UInt32 vertex) const { return positions.read(getPositionIndex(vertex)); }

    Vec3f getNormal(UInt32 vertex) const { return normals.read(getNormalIndex(vertex)); }

    Color3f getColor(UInt32 vertex) const { return colors.read(getColorIndex(vertex)); }

    Vec2f getTexCoords(UInt32 vertex) const { return texCoords.read(getTexCoordsIndex(vertex)); }

private:
    template <class Value>
    struct Source
    {
        Value read(Int32 at) const
        {
            // A negative index is a very large one here.
            if (static_cast<UInt32>(at) >= size) {
                return Value();
            }
            return raw != nullptr ? raw[at] : property->getValue(static_cast<UInt32>(at));
        }

        const GeoProperty<Value>* property = nullptr;
        const Value* raw = nullptr;
        UInt32 size = 0;
        Int32 entry = -1;
    };

    Int32 index(Int32 entry, UInt32 vertex) const
    {
        if (entry < 0) {
            return -1;
        }
        if (indices.property == nullptr) {
            return static_cast<Int32>(vertex);
        }
        const std::size_t at = std::size_t(vertex) * stride + static_cast<UInt32>(entry);
        if (at >= indices.size) {
            return -1;
        }
        return static_cast<Int32>(indices.read(static_cast<Int32>(at)));
    }

    const GeoPTypes* types = nullptr;
    const GeoPLengths* lengths = nullptr;
    UInt32 primitiveCount = 0;
    UInt32 stride = 1;
    Source<UInt32> indices;
    Source<Pnt3f> positions;
    Source<Vec3f> normals;
    Source<Color3f> colors;
    Source<Vec2f> texCoords;
};

}  // namespace osg
