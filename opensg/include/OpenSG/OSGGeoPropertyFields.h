// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentFields.h>
#include <OpenSG/OSGContainerMacros.h>

namespace osg {

OSG_CONTAINER_POINTER(GeoPTypes, AttachmentPtr);
OSG_CONTAINER_POINTER(GeoPLengths, AttachmentPtr);
OSG_CONTAINER_POINTER(GeoPositions, AttachmentPtr);
OSG_CONTAINER_POINTER(GeoNormals, AttachmentPtr);
OSG_CONTAINER_POINTER(GeoColors, AttachmentPtr);
OSG_CONTAINER_POINTER(GeoTexCoords, AttachmentPtr);
OSG_CONTAINER_POINTER(GeoIndices, AttachmentPtr);

OSG_CONTAINER_POINTER(GeoPTypesUI8, GeoPTypesPtr);
OSG_CONTAINER_POINTER(GeoPLengthsUI8, GeoPLengthsPtr);
OSG_CONTAINER_POINTER(GeoPLengthsUI16, GeoPLengthsPtr);
OSG_CONTAINER_POINTER(GeoPLengthsUI32, GeoPLengthsPtr);
OSG_CONTAINER_POINTER(GeoPositions2f, GeoPositionsPtr);
OSG_CONTAINER_POINTER(GeoPositions3f, GeoPositionsPtr);
OSG_CONTAINER_POINTER(GeoPositions4f, GeoPositionsPtr);
OSG_CONTAINER_POINTER(GeoPositions2d, GeoPositionsPtr);
OSG_CONTAINER_POINTER(GeoPositions3d, GeoPositionsPtr);
OSG_CONTAINER_POINTER(GeoPositions4d, GeoPositionsPtr);
OSG_CONTAINER_POINTER(GeoNormals3f, GeoNormalsPtr);
OSG_CONTAINER_POINTER(GeoColors3f, GeoColorsPtr);
OSG_CONTAINER_POINTER(GeoColors4f, GeoColorsPtr);
OSG_CONTAINER_POINTER(GeoColors3ub, GeoColorsPtr);
OSG_CONTAINER_POINTER(GeoColors4ub, GeoColorsPtr);
OSG_CONTAINER_POINTER(GeoTexCoords2f, GeoTexCoordsPtr);
OSG_CONTAINER_POINTER(GeoTexCoords3f, GeoTexCoordsPtr);
OSG_CONTAINER_POINTER(GeoIndicesUI16, GeoIndicesPtr);
OSG_CONTAINER_POINTER(GeoIndicesUI32, GeoIndicesPtr);

}  // namespace osg
