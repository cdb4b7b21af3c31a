// SPDX-License-Identifier: MIT
#include <OpenSG/OSGGeoProperty.h>
#include <OpenSG/OSGGeometry.h>

namespace osg {

void GeoPropertyBase::changed(BitVector whichField, UInt32 origin)
{
    // By index: a reaction may change who uses the property.
    for (UInt32 i = 0; i < mfParents.getSize(); ++i) {
        changedCP(mfParents[i], Geometry::PropertyFieldsMask, ChangedOrigin::Child);
    }
    Inherited::changed(whichField, origin);
}

void GeoPropertyBase::ownerAdded(FieldContainer& owner)
{
    addParent(FieldContainerPtr(owner));
}

void GeoPropertyBase::ownerRemoved(FieldContainer& owner)
{
    subParent(FieldContainerPtr(owner));
}

void GeoPropertyBase::noteEdit() { }

OSG_ABSTRACT_CONTAINER_TYPE(GeoPTypes, Attachment);
OSG_ABSTRACT_CONTAINER_TYPE(GeoPLengths, Attachment);
OSG_ABSTRACT_CONTAINER_TYPE(GeoPositions, Attachment);
OSG_ABSTRACT_CONTAINER_TYPE(GeoNormals, Attachment);
OSG_ABSTRACT_CONTAINER_TYPE(GeoColors, Attachment);
OSG_ABSTRACT_CONTAINER_TYPE(GeoTexCoords, Attachment);
OSG_ABSTRACT_CONTAINER_TYPE(GeoIndices, Attachment);

OSG_CONTAINER_TYPE(GeoPTypesUI8, GeoPTypes);
OSG_CONTAINER_TYPE(GeoPLengthsUI8, GeoPLengths);
OSG_CONTAINER_TYPE(GeoPLengthsUI16, GeoPLengths);
OSG_CONTAINER_TYPE(GeoPLengthsUI32, GeoPLengths);
OSG_CONTAINER_TYPE(GeoPositions2f, GeoPositions);
OSG_CONTAINER_TYPE(GeoPositions3f, GeoPositions);
OSG_CONTAINER_TYPE(GeoPositions4f, GeoPositions);
OSG_CONTAINER_TYPE(GeoPositions2d, GeoPositions);
OSG_CONTAINER_TYPE(GeoPositions3d, GeoPositions);
OSG_CONTAINER_TYPE(GeoPositions4d, GeoPositions);
OSG_CONTAINER_TYPE(GeoNormals3f, GeoNormals);
OSG_CONTAINER_TYPE(GeoColors3f, GeoColors);
OSG_CONTAINER_TYPE(GeoColors4f, GeoColors);
OSG_CONTAINER_TYPE(GeoColors3ub, GeoColors);
OSG_CONTAINER_TYPE(GeoColors4ub, GeoColors);
OSG_CONTAINER_TYPE(GeoTexCoords2f, GeoTexCoords);
OSG_CONTAINER_TYPE(GeoTexCoords3f, GeoTexCoords);
OSG_CONTAINER_TYPE(GeoIndicesUI16, GeoIndices);
OSG_CONTAINER_TYPE(GeoIndicesUI32, GeoIndices);

}  // namespace osg
