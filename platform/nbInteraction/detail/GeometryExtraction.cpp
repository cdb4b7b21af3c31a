// SPDX-License-Identifier: MIT
#include "GeometryExtraction.h"

#include <OpenSG/OSGChangeCount.h>
#include <OpenSG/OSGGeoProperty.h>

#include <algorithm>

namespace nbec::interaction::detail {

namespace {

std::vector<osg::Pnt3f> readPositions(const osg::GeometryPtr& geometry)
{
    const osg::GeoPositionsPtr property = geometry->getPositions();
    if (property == osg::NullFC) {
        return {};
    }
    if (const osg::GeoPositions3fPtr plain = osg::GeoPositions3fPtr::dcast(property);
        plain != osg::NullFC) {
        return { plain->getField().begin(), plain->getField().end() };
    }
    std::vector<osg::Pnt3f> positions(property->getSize());
    for (osg::UInt32 i = 0; i < property->getSize(); ++i) {
        positions[i] = property->getValue(i);
    }
    return positions;
}

/// Position indices of all vertices, one after the other; empty stands for 0, 1, 2 ...
struct VertexIndices
{
    std::vector<std::uint32_t> values;
    std::size_t count = 0;

    std::uint32_t at(std::size_t vertex) const
    {
        return values.empty() ? static_cast<std::uint32_t>(vertex) : values[vertex];
    }
};

VertexIndices readIndices(const osg::GeometryPtr& geometry, std::size_t positionCount)
{
    const osg::GeoIndicesPtr property = geometry->getIndices();
    if (property == osg::NullFC || property->getSize() == 0) {
        return { {}, positionCount };
    }
    const osg::MFUInt16& mapping = geometry->getIndexMapping();
    const std::size_t stride = std::max<std::size_t>(mapping.size(), 1);
    std::size_t offset = 0;
    while (offset < mapping.size() &&
           (mapping[static_cast<osg::UInt32>(offset)] & osg::Geometry::MapPosition) == 0) {
        ++offset;
    }
    if (offset == stride) {
        return {};  // a mapping without positions
    }
    VertexIndices result;
    result.count = property->getSize() / stride;
    result.values.resize(result.count);
    if (const osg::GeoIndicesUI32Ptr plain = osg::GeoIndicesUI32Ptr::dcast(property);
        plain != osg::NullFC) {
        const auto first = plain->getField().begin();
        for (std::size_t i = 0; i < result.count; ++i) {
            result.values[i] = first[static_cast<std::ptrdiff_t>(i * stride + offset)];
        }
        return result;
    }
    for (std::size_t i = 0; i < result.count; ++i) {
        result.values[i] = property->getValue(static_cast<osg::UInt32>(i * stride + offset));
    }
    return result;
}

/// Splits primitives into triangles, segments and points.
class Splitter
{
public:
    Splitter(GeometrySoup& target, const VertexIndices& vertexIndices)
        : soup(target)
        , indices(vertexIndices)
    { }

    void add(osg::UInt32 type, std::size_t first, std::size_t length)
    {
        switch (type) {
        case GL_POINTS:
            for (std::size_t i = 0; i < length; ++i) {
                point(first + i);
            }
            break;
        case GL_LINES:
            for (std::size_t i = 0; i + 1 < length; i += 2) {
                segment(first + i, first + i + 1);
            }
            break;
        case GL_LINE_STRIP:
        case GL_LINE_LOOP:
            for (std::size_t i = 0; i + 1 < length; ++i) {
                segment(first + i, first + i + 1);
            }
            if (type == GL_LINE_LOOP && length > 2) {
                segment(first + length - 1, first);
            }
            break;
        default:
            addFaces(type, first, length);
        }
    }

private:
    void addFaces(osg::UInt32 type, std::size_t first, std::size_t length)
    {
        switch (type) {
        case GL_TRIANGLES:
            soup.triangles.reserve(soup.triangles.size() + length);
            for (std::size_t i = 0; i + 2 < length; i += 3) {
                triangle(first + i, first + i + 1, first + i + 2);
            }
            break;
        case GL_TRIANGLE_STRIP:
            for (std::size_t i = 0; i + 2 < length; ++i) {
                const std::size_t odd = i % 2;
                triangle(first + i + odd, first + i + 1 - odd, first + i + 2);
            }
            break;
        case GL_QUAD_STRIP:
            for (std::size_t i = 0; i + 3 < length; i += 2) {
                triangle(first + i, first + i + 1, first + i + 2);
                triangle(first + i + 2, first + i + 1, first + i + 3);
            }
            break;
        case GL_QUADS:
            for (std::size_t i = 0; i + 3 < length; i += 4) {
                triangle(first + i, first + i + 1, first + i + 2);
                triangle(first + i, first + i + 2, first + i + 3);
            }
            break;
        case GL_TRIANGLE_FAN:
        case GL_POLYGON:
            for (std::size_t i = 0; i + 2 < length; ++i) {
                triangle(first, first + i + 1, first + i + 2);
            }
            break;
        default:
            break;
        }
    }

    void triangle(std::size_t a, std::size_t b, std::size_t c)
    {
        const std::uint32_t i0 = indices.at(a);
        const std::uint32_t i1 = indices.at(b);
        const std::uint32_t i2 = indices.at(c);
        if (std::max({ i0, i1, i2 }) < soup.positions.size()) {
            soup.triangles.insert(soup.triangles.end(), { i0, i1, i2 });
        }
    }

    void segment(std::size_t a, std::size_t b)
    {
        const std::uint32_t i0 = indices.at(a);
        const std::uint32_t i1 = indices.at(b);
        if (std::max(i0, i1) < soup.positions.size()) {
            soup.segments.insert(soup.segments.end(), { i0, i1 });
        }
    }

    void point(std::size_t a)
    {
        if (indices.at(a) < soup.positions.size()) {
            soup.points.push_back(indices.at(a));
        }
    }

    GeometrySoup& soup;
    const VertexIndices& indices;
};

}  // namespace

GeometrySoup extractGeometry(const osg::GeometryPtr& geometry)
{
    GeometrySoup soup;
    if (geometry == osg::NullFC || geometry->getTypes() == osg::NullFC) {
        return soup;
    }
    soup.positions = readPositions(geometry);
    const VertexIndices indices = readIndices(geometry, soup.positions.size());
    const osg::GeoPTypesPtr types = geometry->getTypes();
    const osg::GeoPLengthsPtr lengths = geometry->getLengths();
    Splitter splitter(soup, indices);
    std::size_t first = 0;
    for (osg::UInt32 i = 0; i < types->getSize() && first < indices.count; ++i) {
        const std::size_t left = indices.count - first;
        std::size_t length = left;
        if (lengths != osg::NullFC) {
            length = i < lengths->getSize() ? std::min<std::size_t>(lengths->getValue(i), left) : 0;
        }
        splitter.add(types->getValue(i), first, length);
        first += length;
    }
    return soup;
}

GeometryStamp stampOf(const osg::GeometryPtr& geometry)
{
    GeometryStamp stamp {};
    if (geometry == osg::NullFC) {
        return stamp;
    }
    const osg::FieldContainerPtr parts[] = { geometry->getPositions(), geometry->getIndices(),
                                             geometry->getTypes(), geometry->getLengths() };
    stamp[0] = osg::getChangeCount(geometry);
    std::size_t next = 1;
    for (const osg::FieldContainerPtr& part : parts) {
        if (part != osg::NullFC) {
            stamp[next] = part.getFieldContainerId();
            stamp[next + 1] = osg::getChangeCount(part);
        }
        next += 2;
    }
    return stamp;
}

}  // namespace nbec::interaction::detail
