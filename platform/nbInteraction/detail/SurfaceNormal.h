// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeometry.h>

#include <optional>

#include "PickTree.h"

namespace nbec::interaction::detail {

/// Normal at a place of a triangle as it is shaded: those of its corners, mixed, on the side to
/// which the triangle winds; that of the triangle where the corners have none.
/// @param geometry  of the tree that was hit, may be null
/// @param place     on the triangle, in the geometry's frame
/// @return in that frame, any length
osg::Vec3f surfaceNormal(const osg::GeometryPtr& geometry, const TreeHit& hit,
                         const osg::Pnt3f& place);

/// First texture coordinates at that place, those of the corners mixed; nothing where they have
/// none.
std::optional<osg::Vec2f> surfaceTexCoord(const osg::GeometryPtr& geometry, const TreeHit& hit,
                                          const osg::Pnt3f& place);

}  // namespace nbec::interaction::detail
