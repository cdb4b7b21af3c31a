// SPDX-License-Identifier: MIT
#include "nbGeoFactory.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGGeoProperty.h>
#include <OpenSG/OSGNodePtr.h>

#include <cmath>
#include <vector>

namespace {

osg::NodePtr nodeFor(const osg::GeometryPtr& geometry)
{
    return geometry == osg::NullFC ? osg::NodePtr() : osg::makeNodeFor(geometry);
}

}  // namespace

osg::NodePtr nbGeoFactory::makeLine(float length)
{
    return nodeFor(makeLineGeo(length));
}

osg::GeometryPtr nbGeoFactory::makeLineGeo(float length)
{
    if (!(length > 0.0F)) {
        return osg::NullFC;
    }
    return makeGeo(
        GL_LINES, { osg::Pnt3f(0.0F, -0.5F * length, 0.0F), osg::Pnt3f(0.0F, 0.5F * length, 0.0F) },
        { 0, 1 });
}

osg::NodePtr nbGeoFactory::makeLineTorus(float radius, osg::UInt16 segments, bool dashed)
{
    return nodeFor(makeLineTorusGeo(radius, segments, dashed));
}

osg::GeometryPtr nbGeoFactory::makeLineTorusGeo(float radius, osg::UInt16 segments, bool dashed)
{
    if (!(radius > 0.0F) || segments < 3) {
        return osg::NullFC;
    }
    constexpr double kFullTurn = 2.0 * 3.14159265358979323846;
    std::vector<osg::Pnt3f> points;
    std::vector<osg::UInt32> pointIndices;
    for (osg::UInt32 i = 0; i < segments; ++i) {
        const double angle = kFullTurn * i / segments;
        points.emplace_back(static_cast<float>(radius * std::cos(angle)), 0.0F,
                            static_cast<float>(radius * std::sin(angle)));
        if (!dashed || i % 2 == 0) {
            pointIndices.push_back(i);
            pointIndices.push_back((i + 1) % segments);
        }
    }
    return makeGeo(GL_LINES, points, pointIndices);
}

osg::GeometryPtr nbGeoFactory::makeGeo(GLenum type, const std::vector<osg::Pnt3f>& points,
                                       const std::vector<osg::UInt32>& pointIndices)
{
    const osg::GeoPositions3fPtr positions = osg::GeoPositions3f::create();
    const osg::GeoPTypesUI8Ptr types = osg::GeoPTypesUI8::create();
    const osg::GeoPLengthsUI32Ptr lengths = osg::GeoPLengthsUI32::create();
    const osg::GeometryPtr geometry = osg::Geometry::create();
    const nbEdit positionEdit(positions, osg::FieldBits::AllFields);
    const nbEdit typeEdit(types, osg::FieldBits::AllFields);
    const nbEdit lengthEdit(lengths, osg::FieldBits::AllFields);
    const nbEdit edit(geometry, osg::FieldBits::AllFields);
    for (const osg::Pnt3f& point : points) {
        positions->addValue(point);
    }
    types->addValue(type);
    lengths->addValue(
        static_cast<osg::UInt32>(pointIndices.empty() ? points.size() : pointIndices.size()));
    geometry->setTypes(types);
    geometry->setLengths(lengths);
    geometry->setPositions(positions);
    if (!pointIndices.empty()) {
        const osg::GeoIndicesUI32Ptr indices = osg::GeoIndicesUI32::create();
        const nbEdit indexEdit(indices, osg::FieldBits::AllFields);
        for (const osg::UInt32 index : pointIndices) {
            indices->addValue(index);
        }
        geometry->setIndices(indices);
    }
    return geometry;
}
