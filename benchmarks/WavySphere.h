// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGGeometry.h>

#include <cmath>

namespace bench {

/// A ball of radius 1 with waves, as latitudes and longitudes.
inline osg::GeometryPtr makeWavySphere(int triangles)
{
    const auto rows = static_cast<osg::UInt32>(std::lround(std::sqrt(triangles / 2.0)));
    const osg::GeoPositions3fPtr positions = osg::GeoPositions3f::create();
    const osg::GeoIndicesUI32Ptr indices = osg::GeoIndicesUI32::create();
    for (osg::UInt32 i = 0; i <= rows; ++i) {
        for (osg::UInt32 j = 0; j <= rows; ++j) {
            const float theta = osg::Pi * static_cast<float>(i) / static_cast<float>(rows);
            const float phi = 2.0f * osg::Pi * static_cast<float>(j) / static_cast<float>(rows);
            const float radius = 1.0f + 0.05f * std::sin(9.0f * theta) * std::sin(11.0f * phi);
            positions->push_back({ radius * std::sin(theta) * std::cos(phi),
                                   radius * std::cos(theta),
                                   radius * std::sin(theta) * std::sin(phi) });
        }
    }
    for (osg::UInt32 i = 0; i < rows; ++i) {
        for (osg::UInt32 j = 0; j < rows; ++j) {
            const osg::UInt32 a = i * (rows + 1) + j;
            for (const osg::UInt32 index :
                 { a, a + 1, a + rows + 1, a + 1, a + rows + 2, a + rows + 1 }) {
                indices->push_back(index);
            }
        }
    }
    const osg::GeoPTypesUI8Ptr types = osg::GeoPTypesUI8::create();
    const osg::GeoPLengthsUI32Ptr lengths = osg::GeoPLengthsUI32::create();
    types->push_back(GL_TRIANGLES);
    lengths->push_back(indices->getSize());
    const osg::GeometryPtr geometry = osg::Geometry::create();
    const nbEdit edit(geometry, osg::FieldBits::AllFields);
    geometry->setTypes(types);
    geometry->setLengths(lengths);
    geometry->setPositions(positions);
    geometry->setIndices(indices);
    return geometry;
}

}  // namespace bench
