// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGVector.h>

#include <cstdint>
#include <vector>

namespace nbec::interaction::detail {

/// A geometry as plain arrays, in its own frame. Every index is valid.
struct GeometrySoup
{
    std::vector<osg::Pnt3f> positions;
    std::vector<std::uint32_t>
        triangles;  ///< three per triangle, in the order of osg::TriangleIterator
    std::vector<std::uint32_t> segments;  ///< two per segment of a line
    std::vector<std::uint32_t> points;  ///< one per point
};

}  // namespace nbec::interaction::detail
