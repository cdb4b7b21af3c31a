// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGGeoProperty.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGVolume.h>

namespace osg {
class LineIterator;
class PrimitiveIterator;
class TriangleIterator;
OSG_DECLARED_POINTER(Material, AttachmentContainerPtr);
OSG_DECLARED_POINTER(Geometry, NodeCorePtr);

class Geometry : public NodeCore
{
    OSG_DECLARED_CLASS(Geometry, NodeCore)

    enum
    {
        MapPosition = 1,
        MapNormal = 2,
        MapColor = 4,
        MapSecondaryColor = 8,
        MapTexCoords = 16
    };
    OSG_DECLARED_VALUE(Types, GeoPTypesPtr)
    OSG_DECLARED_VALUE(Lengths, GeoPLengthsPtr)
    OSG_DECLARED_VALUE(Positions, GeoPositionsPtr)
    OSG_DECLARED_VALUE(Normals, GeoNormalsPtr)
    OSG_DECLARED_VALUE(Colors, GeoColorsPtr)
    OSG_DECLARED_VALUE(TexCoords, GeoTexCoordsPtr)
    OSG_DECLARED_VALUE(TexCoords1, GeoTexCoordsPtr)
    OSG_DECLARED_VALUE(TexCoords2, GeoTexCoordsPtr)
    OSG_DECLARED_VALUE(TexCoords3, GeoTexCoordsPtr)
    OSG_DECLARED_VALUE(Indices, GeoIndicesPtr)
    OSG_DECLARED_VALUE(Material, MaterialPtr)
    OSG_DECLARED_VALUE(DlistCache, bool)
    OSG_DECLARED_VALUE(Vbo, bool)
    OSG_DECLARED_VALUES(IndexMapping, UInt16)
    GeometryPtr clone();
    void adjustVolume(Volume& volume);
    Int16 calcMappingIndex(UInt16 attribute) const;
    PrimitiveIterator beginPrimitives() const;
    PrimitiveIterator endPrimitives() const;
    TriangleIterator beginTriangles() const;
    TriangleIterator endTriangles() const;
    LineIterator beginLines() const;
    LineIterator endLines() const;
};
}  // namespace osg
