// SPDX-License-Identifier: MIT
#include "nbBoxCoordinates.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

namespace {

constexpr const char* kName = "box coordinates";

/// What runs to the right and up on a side of the box, and from which end.
struct Side
{
    osg::UInt32 right;
    bool isRightBack;
    osg::UInt32 up;
    bool isUpBack;
};

/// By axis, its positive end first.
constexpr Side kSides[] = { { 2, true, 1, false },  { 2, false, 1, false }, { 0, false, 2, true },
                            { 0, false, 2, false }, { 0, false, 1, false }, { 0, true, 1, false } };
constexpr std::size_t kSideCount = 6;

std::size_t sideOf(const osg::TriangleIterator& it)
{
    const osg::Vec3f normal =
        (it.getPosition(1) - it.getPosition(0)).cross(it.getPosition(2) - it.getPosition(0));
    osg::UInt32 axis = 0;
    for (const osg::UInt32 other : { 1U, 2U }) {
        axis = std::abs(normal[other]) > std::abs(normal[axis]) ? other : axis;
    }
    return 2 * axis + (normal[axis] < 0.0F ? 1 : 0);
}

osg::BoxVolume boundsOf(const osg::GeoPositionsPtr& positions)
{
    osg::BoxVolume bounds;
    for (osg::UInt32 i = 0; i < positions->getSize(); ++i) {
        bounds.extendBy(positions->getValue(i));
    }
    return bounds;
}

/// The arrays that replace those of a geometry.
class Builder
{
public:
    explicit Builder(const osg::GeometryPtr& source)
        : geometry(source)
        , bounds(boundsOf(source->getPositions()))
        , known(kSideCount * source->getPositions()->getSize(), 0)
    {
        const osg::Vec3f sides = bounds.getMax() - bounds.getMin();
        const float longest = std::max({ sides.x(), sides.y(), sides.z() });
        unit = longest > 0.0F ? longest : 1.0F;
    }

    void build()
    {
        const nbEdit coordinatesEdit(coordinates, osg::FieldBits::AllFields);
        const nbEdit indicesEdit(indices, osg::FieldBits::AllFields);
        osg::UInt32 corners = 0;
        const osg::TriangleIterator end = geometry->endTriangles();
        for (osg::TriangleIterator it = geometry->beginTriangles(); it != end; ++it) {
            const std::size_t side = sideOf(it);
            for (osg::Int32 corner = 0; corner < 3; ++corner) {
                add(it, corner, side);
            }
            corners += 3;
        }
        put(corners);
    }

private:
    void add(const osg::TriangleIterator& it, osg::Int32 corner, std::size_t side)
    {
        const auto position = static_cast<std::size_t>(it.getPositionIndex(corner));
        osg::UInt32& number = known[kSideCount * position + side];
        if (number == 0) {
            coordinates->push_back(coordinateOf(it.getPosition(corner), kSides[side]));
            number = coordinates->getSize();
        }
        indices->push_back(static_cast<osg::UInt32>(position));
        if (geometry->getNormals() != osg::NullFC) {
            indices->push_back(static_cast<osg::UInt32>(it.getNormalIndex(corner)));
        }
        if (geometry->getColors() != osg::NullFC) {
            indices->push_back(static_cast<osg::UInt32>(it.getColorIndex(corner)));
        }
        indices->push_back(number - 1);
    }

    osg::Vec2f coordinateOf(const osg::Pnt3f& place, const Side& side) const
    {
        const auto along = [&](osg::UInt32 axis, bool isBack) {
            return (isBack ? bounds.getMax()[axis] - place[axis]
                           : place[axis] - bounds.getMin()[axis]) /
                unit;
        };
        return { along(side.right, side.isRightBack), along(side.up, side.isUpBack) };
    }

    void put(osg::UInt32 corners)
    {
        const osg::GeoPTypesUI8Ptr types = osg::GeoPTypesUI8::create();
        types->push_back(GL_TRIANGLES);
        const osg::GeoPLengthsUI32Ptr lengths = osg::GeoPLengthsUI32::create();
        lengths->push_back(corners);
        const nbEdit edit(geometry, osg::FieldBits::AllFields);
        auto& mapping = *geometry->getMFIndexMapping();
        mapping.clear();
        mapping.push_back(osg::Geometry::MapPosition);
        if (geometry->getNormals() != osg::NullFC) {
            mapping.push_back(osg::Geometry::MapNormal);
        }
        if (geometry->getColors() != osg::NullFC) {
            mapping.push_back(osg::Geometry::MapColor);
        }
        mapping.push_back(osg::Geometry::MapTexCoords);
        geometry->setTypes(types);
        geometry->setLengths(lengths);
        geometry->setIndices(indices);
        geometry->setTexCoords(coordinates);
        osg::setName(geometry, kName);
    }

    osg::GeometryPtr geometry;
    osg::BoxVolume bounds;
    float unit = 1.0F;
    /// Numbers, from 1, of coordinates that are made, by position and side.
    std::vector<osg::UInt32> known;
    osg::GeoTexCoords2fPtr coordinates = osg::GeoTexCoords2f::create();
    osg::GeoIndicesUI32Ptr indices = osg::GeoIndicesUI32::create();
};

}  // namespace

void nbBoxCoordinates::layOn(const osg::GeometryPtr& geometry)
{
    if (geometry != osg::NullFC && geometry->getPositions() != osg::NullFC &&
        geometry->getTexCoords() == osg::NullFC) {
        Builder(geometry).build();
    }
}

bool nbBoxCoordinates::lieOn(const osg::GeometryPtr& geometry)
{
    const char* const name = geometry != osg::NullFC ? osg::getName(geometry) : nullptr;
    return name != nullptr && std::string_view(name) == kName;
}
