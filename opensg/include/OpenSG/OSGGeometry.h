// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGCoredNodePtr.h>
#include <OpenSG/OSGGeoProperty.h>
#include <OpenSG/OSGGeometryFields.h>
#include <OpenSG/OSGMaterialDrawable.h>

namespace osg {

class LineIterator;
class PrimitiveIterator;
class TriangleIterator;

#define OSG_GEOMETRY_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)                             \
    OWNED(Types, types, GeoPTypesPtr)                                                              \
    OWNED(Lengths, lengths, GeoPLengthsPtr)                                                        \
    OWNED(Positions, positions, GeoPositionsPtr)                                                   \
    OWNED(Normals, normals, GeoNormalsPtr)                                                         \
    OWNED(Colors, colors, GeoColorsPtr)                                                            \
    OWNED(TexCoords, texCoords, GeoTexCoordsPtr)                                                   \
    OWNED(TexCoords1, texCoords1, GeoTexCoordsPtr)                                                 \
    OWNED(TexCoords2, texCoords2, GeoTexCoordsPtr)                                                 \
    OWNED(TexCoords3, texCoords3, GeoTexCoordsPtr)                                                 \
    OWNED(TexCoords4, texCoords4, GeoTexCoordsPtr)                                                 \
    OWNED(TexCoords5, texCoords5, GeoTexCoordsPtr)                                                 \
    OWNED(TexCoords6, texCoords6, GeoTexCoordsPtr)                                                 \
    OWNED(TexCoords7, texCoords7, GeoTexCoordsPtr)                                                 \
    OWNED(Indices, indices, GeoIndicesPtr)                                                         \
    VALUES(IndexMapping, indexMapping, UInt16)                                                     \
    VALUE(DlistCache, dlistCache, bool, true)                                                      \
    VALUE(Vbo, vbo, bool, false)

/// Primitives made of properties, each of which several geometries may share.
///
/// Without indices the primitives take the vertices in order. With indices and an empty index
/// mapping there is one index per vertex for all properties; with a mapping there are as many as it
/// has entries, each a mask of the properties that it serves.
/// Left out of real OpenSG: secondary colours, display lists, merging.
class Geometry : public MaterialDrawable
{
    OSG_MULTI_CONTAINER(Geometry, MaterialDrawable, OSG_GEOMETRY_FIELDS);

public:
    /// What an edit of one of the properties counts as.
    static constexpr BitVector PropertyFieldsMask = (IndicesFieldMask << 1) - TypesFieldMask;

    /// Masks of the index mapping.
    enum : UInt16
    {
        MapPosition = 1,
        MapNormal = 2,
        MapColor = 4,
        MapSecondaryColor = 8,
        MapTexCoords = 16,
        MapTexCoords1 = 32,
        MapTexCoords2 = 64,
        MapTexCoords3 = 128,
        MapTexCoords4 = 256,
        MapTexCoords5 = 512,
        MapTexCoords6 = 1024,
        MapTexCoords7 = 2048
    };

    /// Entry of the index mapping that serves a property.
    /// @return -1 if there is none; 0 for every property if the mapping is empty
    Int16 calcMappingIndex(UInt16 attribute) const;

    /// A geometry with properties of its own and the same material. Count 0.
    GeometryPtr clone();

    // == Iterators; the end ones are cheap and may be made in a loop's condition

    PrimitiveIterator beginPrimitives() const;
    PrimitiveIterator endPrimitives() const;
    TriangleIterator beginTriangles() const;
    TriangleIterator endTriangles() const;
    LineIterator beginLines() const;
    LineIterator endLines() const;

    /// Extends the volume by the vertices of all primitives.
    void adjustVolume(Volume& volume) override;

    /// Every edit invalidates the volumes of the nodes and of their ancestors.
    void changed(BitVector whichField, UInt32 origin) override;
};

typedef CoredNodePtr<Geometry> GeometryNodePtr;

}  // namespace osg
