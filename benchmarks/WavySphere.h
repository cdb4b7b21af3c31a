// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUtils/nbGeoFactory.h>

#include <cmath>
#include <vector>

namespace bench {

/// A ball of radius 1 with waves, as latitudes and longitudes.
inline osg::GeometryPtr makeWavySphere(int triangles)
{
    const auto rows = static_cast<osg::UInt32>(std::lround(std::sqrt(triangles / 2.0)));
    std::vector<osg::Pnt3f> points;
    std::vector<osg::UInt32> indices;
    for (osg::UInt32 i = 0; i <= rows; ++i) {
        for (osg::UInt32 j = 0; j <= rows; ++j) {
            const float theta = osg::Pi * static_cast<float>(i) / static_cast<float>(rows);
            const float phi = 2.0f * osg::Pi * static_cast<float>(j) / static_cast<float>(rows);
            const float radius = 1.0f + 0.05f * std::sin(9.0f * theta) * std::sin(11.0f * phi);
            points.emplace_back(radius * std::sin(theta) * std::cos(phi), radius * std::cos(theta),
                                radius * std::sin(theta) * std::sin(phi));
        }
    }
    for (osg::UInt32 i = 0; i < rows; ++i) {
        for (osg::UInt32 j = 0; j < rows; ++j) {
            const osg::UInt32 a = i * (rows + 1) + j;
            indices.insert(indices.end(),
                           { a, a + 1, a + rows + 1, a + 1, a + rows + 2, a + rows + 1 });
        }
    }
    return nbGeoFactory::makeGeo(GL_TRIANGLES, points, indices);
}

}  // namespace bench
