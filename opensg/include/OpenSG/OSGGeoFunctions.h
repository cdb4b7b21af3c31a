// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeometry.h>

/// @file
/// Normals worked out from the faces. Each function edits the geometry and gives it new normals;
/// null, and a geometry without triangles, are left as they are.

namespace osg {

/// One normal per position: the mean of the faces around it, weighted by area. Every triangle that
/// uses the position counts, so edges look round. The index mapping serves normals with positions.
void calcVertexNormals(GeometryPtr geometry);

/// Normals that are round only where faces meet at less than an angle.
/// The triangles become one GL_TRIANGLES primitive with normals and indices of their own; lines and
/// points follow it as they were.
/// @param creaseAngle radians; larger angles between faces stay sharp
void calcVertexNormals(GeometryPtr geometry, Real32 creaseAngle);

/// One normal per triangle; primitives as in the function above.
void calcFaceNormals(GeometryPtr geometry);

}  // namespace osg
