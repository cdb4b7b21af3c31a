// SPDX-License-Identifier: MIT
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGeometryView.h>
#include <OpenSG/OSGLineIterator.h>
#include <OpenSG/OSGTriangleIterator.h>
#include <OpenSG/OSGVolume.h>

namespace osg {

namespace {

/// A coordinate that is no number changes nothing.
void extendBounds(Pnt3f& low, Pnt3f& high, const Pnt3f& point)
{
    for (UInt32 i = 0; i < 3; ++i) {
        low[i] = osgMin(point[i], low[i]);
        high[i] = osgMax(high[i], point[i]);
    }
}

}  // namespace

OSG_ABSTRACT_CONTAINER_TYPE(Drawable, NodeCore);
OSG_ABSTRACT_CONTAINER_TYPE(MaterialDrawable, Drawable);
OSG_CONTAINER_TYPE(Geometry, MaterialDrawable);

Int16 Geometry::calcMappingIndex(UInt16 attribute) const
{
    if (mfIndexMapping.empty()) {
        return 0;
    }
    for (UInt32 i = 0; i < mfIndexMapping.getSize(); ++i) {
        if ((mfIndexMapping[i] & attribute) != 0) {
            return static_cast<Int16>(i);
        }
    }
    return -1;
}

GeometryPtr Geometry::clone()
{
    return GeometryPtr::dcast(deepClone(GeometryPtr(*this), "Material"));
}

PrimitiveIterator Geometry::beginPrimitives() const
{
    PrimitiveIterator result((GeometryPtr(*this)));
    result.setToBegin();
    return result;
}

PrimitiveIterator Geometry::endPrimitives() const
{
    return PrimitiveIterator(GeometryPtr(*this), PrimitiveIterator::End());
}

TriangleIterator Geometry::beginTriangles() const
{
    TriangleIterator result((GeometryPtr(*this)));
    result.setToBegin();
    return result;
}

TriangleIterator Geometry::endTriangles() const
{
    return TriangleIterator(endPrimitives());
}

LineIterator Geometry::beginLines() const
{
    LineIterator result((GeometryPtr(*this)));
    result.setToBegin();
    return result;
}

LineIterator Geometry::endLines() const
{
    return LineIterator(endPrimitives());
}

void Geometry::adjustVolume(Volume& volume)
{
    Inherited::adjustVolume(volume);

    const GeometryView view((GeometryPtr(*this)));
    const UInt32 positionCount = getPositions() != NullFC ? getPositions()->getSize() : 0;
    // Bare bounds, not a volume: its state would be asked at every vertex.
    Pnt3f low(Inf, Inf, Inf);
    Pnt3f high(NegInf, NegInf, NegInf);
    UInt64 first = 0;
    for (UInt32 i = 0; i < view.getPrimitiveCount(); ++i) {
        const UInt64 end = first + view.getLength(i);
        const UInt32 stop = static_cast<UInt32>(osgMin(end, UInt64(view.getVertexCount())));
        for (UInt64 vertex = first; vertex < stop; ++vertex) {
            const Int32 index = view.getPositionIndex(static_cast<UInt32>(vertex));
            if (static_cast<UInt32>(index) < positionCount) {
                extendBounds(low, high, view.getPosition(static_cast<UInt32>(vertex)));
            }
        }
        first = end;
    }
    if (low[0] <= high[0] && low[1] <= high[1] && low[2] <= high[2]) {
        volume.extendBy(low);
        volume.extendBy(high);
    }
}

void Geometry::changed(BitVector whichField, UInt32 origin)
{
    invalidateVolume();
    Inherited::changed(whichField, origin);
}

// == Reading

namespace {

template <class Concrete, class Property, class Value>
void openSource(const Property& source, const GeoProperty<Value>*& property, const Value*& raw,
                UInt32& size)
{
    if (source == NullFC) {
        return;
    }
    property = source.getCPtr();
    size = source->getSize();
    if (source->getType() == Concrete::getClassType()) {
        raw = static_cast<const Concrete*>(source.getCPtr())->getField().getValues().data();
    }
}

}  // namespace

GeometryView::GeometryView(const GeometryPtr& geometry)
{
    if (geometry == NullFC || geometry->getTypes() == NullFC || geometry->getLengths() == NullFC) {
        return;
    }
    const Geometry& geo = *geometry;
    types = geo.getTypes().getCPtr();
    lengths = geo.getLengths().getCPtr();
    primitiveCount = osgMin(types->getSize(), lengths->getSize());
    stride = osgMax(geo.getIndexMapping().getSize(), 1u);

    const auto entryOf = [&geo](UInt16 attribute) -> Int32 {
        return geo.getIndices() == NullFC ? 0 : geo.calcMappingIndex(attribute);
    };
    const auto open = [](auto concrete, const auto& property, Int32 entry, auto& source) {
        using Concrete = std::remove_pointer_t<decltype(concrete)>;
        openSource<Concrete>(property, source.property, source.raw, source.size);
        source.entry = property == NullFC ? -1 : entry;
    };
    open(static_cast<GeoIndicesUI32*>(nullptr), geo.getIndices(), 0, indices);
    open(static_cast<GeoPositions3f*>(nullptr), geo.getPositions(), entryOf(Geometry::MapPosition),
         positions);
    open(static_cast<GeoNormals3f*>(nullptr), geo.getNormals(), entryOf(Geometry::MapNormal),
         normals);
    open(static_cast<GeoColors3f*>(nullptr), geo.getColors(), entryOf(Geometry::MapColor), colors);
    open(static_cast<GeoTexCoords2f*>(nullptr), geo.getTexCoords(), entryOf(Geometry::MapTexCoords),
         texCoords);
}

}  // namespace osg
