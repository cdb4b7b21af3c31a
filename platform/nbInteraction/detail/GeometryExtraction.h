// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeometry.h>

#include <array>

#include "GeometrySoup.h"

namespace nbec::interaction::detail {

/// Reads the primitives of a geometry.
/// Strips, fans, quads and polygons are split as osg::TriangleIterator does it, line strips and
/// loops into segments. Types that OpenGL does not know, and primitives with an index beyond the
/// positions, are left out.
/// @param geometry  may be null or lack properties: the result is then empty
GeometrySoup extractGeometry(const osg::GeometryPtr& geometry);

/// Equal for two calls only if no edit of the geometry's shape ended between them: ids and change
/// counts of the geometry and its properties. Null gives zeros.
using GeometryStamp = std::array<osg::UInt32, 9>;

GeometryStamp stampOf(const osg::GeometryPtr& geometry);

}  // namespace nbec::interaction::detail
