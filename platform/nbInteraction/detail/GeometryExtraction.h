// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeometry.h>

#include "GeometrySoup.h"

namespace nbec::interaction::detail {

/// Reads the primitives of a geometry, split into triangles, segments and points as the scene
/// graph's iterators do it. Parts with an index beyond the positions are left out.
/// @param geometry  may be null or lack properties: the result is then empty
GeometrySoup extractGeometry(const osg::GeometryPtr& geometry);

}  // namespace nbec::interaction::detail
