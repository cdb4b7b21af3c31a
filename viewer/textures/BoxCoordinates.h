// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeometry.h>

namespace viewer {

/// Gives the triangles of a geometry without texture coordinates those of the box around it: each
/// triangle is seen from the side of the box that it faces most, upright and not mirrored. 1 is the
/// longest side of the box, so that pictures keep their aspect. Points and lines of the geometry
/// go. Nothing of it is seen until a picture is laid by texture coordinates, so it is no step of
/// undo.
/// @param geometry  may be null; one with coordinates of its own stays as it is
void layBoxCoordinates(const osg::GeometryPtr& geometry);

/// Whether a geometry's texture coordinates came from there. False for null.
bool hasBoxCoordinates(const osg::GeometryPtr& geometry);

}  // namespace viewer
