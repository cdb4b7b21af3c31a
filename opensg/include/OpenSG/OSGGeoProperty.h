// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGGeoPropertyArray.h>
#include <OpenSG/OSGGeoPropertyFields.h>

/// @file
/// The properties that a geometry is made of. The abstract classes read and write one generic type
/// whatever the numbers behind; the concrete ones also hand out their field.
/// Left out of real OpenSG: properties of shorts, normals of bytes, one-component texture
/// coordinates, interleaved arrays, binary forms.

namespace osg {

// clang-format off
#define OSG_GEO_PROPERTY_KIND_(Class, Generic)                                                     \
    class Class : public GeoProperty<Generic>                                                      \
    {                                                                                              \
        OSG_ABSTRACT_CONTAINER(Class, GeoProperty<Generic>, OSG_NO_FIELDS);                        \
    }

#define OSG_GEO_PROPERTY_(Class, Kind, Stored)                                                     \
    using Class##Array = GeoPropertyArray<Kind, Stored>;                                           \
    class Class : public Class##Array                                                              \
    {                                                                                              \
        OSG_CONTAINER(Class, Class##Array, OSG_NO_FIELDS);                                         \
    }
// clang-format on

/// Kinds of the primitives (GL_TRIANGLES ...), one each.
OSG_GEO_PROPERTY_KIND_(GeoPTypes, UInt32);
/// Numbers of vertices of the primitives.
OSG_GEO_PROPERTY_KIND_(GeoPLengths, UInt32);
OSG_GEO_PROPERTY_KIND_(GeoPositions, Pnt3f);
OSG_GEO_PROPERTY_KIND_(GeoNormals, Vec3f);
/// Components 0 to 1 in the generic form, 0 to 255 in the field of a property of bytes.
OSG_GEO_PROPERTY_KIND_(GeoColors, Color3f);
OSG_GEO_PROPERTY_KIND_(GeoTexCoords, Vec2f);
OSG_GEO_PROPERTY_KIND_(GeoIndices, UInt32);

OSG_GEO_PROPERTY_(GeoPTypesUI8, GeoPTypes, UInt8);
OSG_GEO_PROPERTY_(GeoPLengthsUI8, GeoPLengths, UInt8);
OSG_GEO_PROPERTY_(GeoPLengthsUI16, GeoPLengths, UInt16);
OSG_GEO_PROPERTY_(GeoPLengthsUI32, GeoPLengths, UInt32);
OSG_GEO_PROPERTY_(GeoPositions2f, GeoPositions, Pnt2f);
OSG_GEO_PROPERTY_(GeoPositions3f, GeoPositions, Pnt3f);
OSG_GEO_PROPERTY_(GeoPositions4f, GeoPositions, Pnt4f);
OSG_GEO_PROPERTY_(GeoPositions2d, GeoPositions, Pnt2d);
OSG_GEO_PROPERTY_(GeoPositions3d, GeoPositions, Pnt3d);
OSG_GEO_PROPERTY_(GeoPositions4d, GeoPositions, Pnt4d);
OSG_GEO_PROPERTY_(GeoNormals3f, GeoNormals, Vec3f);
OSG_GEO_PROPERTY_(GeoColors3f, GeoColors, Color3f);
OSG_GEO_PROPERTY_(GeoColors4f, GeoColors, Color4f);
OSG_GEO_PROPERTY_(GeoColors3ub, GeoColors, Color3ub);
OSG_GEO_PROPERTY_(GeoColors4ub, GeoColors, Color4ub);
OSG_GEO_PROPERTY_(GeoTexCoords2f, GeoTexCoords, Vec2f);
OSG_GEO_PROPERTY_(GeoTexCoords3f, GeoTexCoords, Vec3f);
OSG_GEO_PROPERTY_(GeoIndicesUI16, GeoIndices, UInt16);
OSG_GEO_PROPERTY_(GeoIndicesUI32, GeoIndices, UInt32);

}  // namespace osg
