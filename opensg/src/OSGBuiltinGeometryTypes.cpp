// SPDX-License-Identifier: MIT
#include <OpenSG/OSGGeometry.h>

#include "OSGBuiltinTypes.h"

namespace osg {

void referenceGeometryTypes()
{
    referenceTypes({
        &Geometry::getClassType(),        &GeoPTypesUI8::getClassType(),
        &GeoPLengthsUI8::getClassType(),  &GeoPLengthsUI16::getClassType(),
        &GeoPLengthsUI32::getClassType(), &GeoPositions2f::getClassType(),
        &GeoPositions3f::getClassType(),  &GeoPositions4f::getClassType(),
        &GeoPositions2d::getClassType(),  &GeoPositions3d::getClassType(),
        &GeoPositions4d::getClassType(),  &GeoNormals3f::getClassType(),
        &GeoColors3f::getClassType(),     &GeoColors4f::getClassType(),
        &GeoColors3ub::getClassType(),    &GeoColors4ub::getClassType(),
        &GeoTexCoords2f::getClassType(),  &GeoTexCoords3f::getClassType(),
        &GeoIndicesUI16::getClassType(),  &GeoIndicesUI32::getClassType(),
    });
}

}  // namespace osg
