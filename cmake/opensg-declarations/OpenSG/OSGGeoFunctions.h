// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGGeometry.h>

namespace osg {
void calcVertexNormals(GeometryPtr geometry);
void calcVertexNormals(GeometryPtr geometry, Real32 creaseAngle);
void calcFaceNormals(GeometryPtr geometry);
}  // namespace osg
