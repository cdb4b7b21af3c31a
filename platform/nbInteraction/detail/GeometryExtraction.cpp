// SPDX-License-Identifier: MIT
#include "GeometryExtraction.h"

#include <OpenSG/OSGGeoProperty.h>
#include <OpenSG/OSGLineIterator.h>
#include <OpenSG/OSGPrimitiveIterator.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <algorithm>

namespace nbec::interaction::detail {

namespace {

std::vector<osg::Pnt3f> readPositions(const osg::GeometryPtr& geometry)
{
    const osg::GeoPositionsPtr property = geometry->getPositions();
    if (property == osg::NullFC) {
        return {};
    }
    std::vector<osg::Pnt3f> positions;
    // Room for one more, which a search tree over the array needs behind the last position.
    positions.reserve(std::size_t(property->getSize()) + 1);
    if (const osg::GeoPositions3fPtr plain = osg::GeoPositions3fPtr::dcast(property);
        plain != osg::NullFC) {
        positions.assign(plain->getField().begin(), plain->getField().end());
        return positions;
    }
    for (osg::UInt32 i = 0; i < property->getSize(); ++i) {
        positions.push_back(property->getValue(i));
    }
    return positions;
}

/// Appends the position indices of all parts.
/// @param cornerCount  corners of a part
template <osg::Int32 cornerCount, class Iterator>
void readParts(Iterator part, std::size_t positionCount, bool isIndexed,
               std::vector<std::uint32_t>& indices)
{
    for (; !part.isAtEnd(); ++part) {
        std::uint32_t corners[cornerCount];
        bool isComplete = true;
        for (osg::Int32 i = 0; i < cornerCount; ++i) {
            const osg::Int32 index = part.getPositionIndex(i);
            const bool isKnown = index >= 0 && static_cast<std::size_t>(index) < positionCount;
            if (!isKnown && (index < 0 || !isIndexed)) {
                return;  // no later vertex exists either; a broken length must not take long
            }
            isComplete = isComplete && isKnown;
            corners[i] = static_cast<std::uint32_t>(index);
        }
        if (isComplete) {
            indices.insert(indices.end(), corners, corners + cornerCount);
        }
    }
}

/// The quick way for what loaders make: triangle lists with plain 32-bit indices, taken over in one
/// piece.
/// @return false, and nothing is read, for everything else
bool readTriangleLists(const osg::GeometryPtr& geometry, GeometrySoup& soup)
{
    const osg::GeoIndicesUI32Ptr indices = osg::GeoIndicesUI32Ptr::dcast(geometry->getIndices());
    if (indices == osg::NullFC || geometry->getIndexMapping().size() > 1 ||
        geometry->calcMappingIndex(osg::Geometry::MapPosition) != 0) {
        return false;
    }
    std::size_t count = 0;
    for (osg::PrimitiveIterator primitive = geometry->beginPrimitives(); !primitive.isAtEnd();
         ++primitive) {
        if (primitive.getType() != GL_TRIANGLES || primitive.getLength() % 3 != 0) {
            return false;
        }
        count += primitive.getLength();
    }
    const auto first = indices->getField().begin();
    if (count > indices->getSize() || count == 0 ||
        *std::max_element(first, first + static_cast<std::ptrdiff_t>(count)) >=
            soup.positions.size()) {
        return false;
    }
    soup.triangles.assign(first, first + static_cast<std::ptrdiff_t>(count));
    return true;
}

void readPoints(const osg::GeometryPtr& geometry, GeometrySoup& soup)
{
    for (osg::PrimitiveIterator primitive = geometry->beginPrimitives(); !primitive.isAtEnd();
         ++primitive) {
        if (primitive.getType() != GL_POINTS) {
            continue;
        }
        for (osg::UInt32 i = 0; i < primitive.getLength(); ++i) {
            const osg::Int32 index = primitive.getPositionIndex(static_cast<osg::Int32>(i));
            if (index < 0) {
                return;
            }
            if (static_cast<std::size_t>(index) < soup.positions.size()) {
                soup.points.push_back(static_cast<std::uint32_t>(index));
            }
        }
    }
}

}  // namespace

GeometrySoup extractGeometry(const osg::GeometryPtr& geometry)
{
    GeometrySoup soup;
    if (geometry == osg::NullFC) {
        return soup;
    }
    soup.positions = readPositions(geometry);
    const std::size_t positionCount = soup.positions.size();
    if (readTriangleLists(geometry, soup)) {
        return soup;
    }
    const bool isIndexed = geometry->getIndices() != osg::NullFC;
    if (isIndexed) {
        soup.triangles.reserve(geometry->getIndices()->getSize());
    }
    readParts<3>(geometry->beginTriangles(), positionCount, isIndexed, soup.triangles);
    readParts<2>(geometry->beginLines(), positionCount, isIndexed, soup.segments);
    readPoints(geometry, soup);
    return soup;
}

}  // namespace nbec::interaction::detail
