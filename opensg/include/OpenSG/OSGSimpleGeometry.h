// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGDefaultMaterials.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>

/// @file
/// Simple shapes, each as geometry and as a node with it (count 0, unnamed). All arguments are
/// needed.
///
/// The material is the shared default material; types, lengths and indices are GeoPTypesUI8,
/// GeoPLengthsUI32, GeoIndicesUI32; normals and texture coordinates are there; front faces are
/// counter-clockwise seen from outside. Two calls share nothing but the material. Arguments that
/// make no shape (a subdivision of 0, less than 3 sides, a height <= 0, a radius < 0 or a torus
/// radius <= 0) give NullFC and a warning.

namespace osg {

/// In the XY plane, centred, normal +z; rows of vertices from bottom to top, a strip per row.
NodePtr makePlane(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert);
GeometryPtr makePlaneGeo(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert);

/// Full sizes, centred; hor, vert, depth divide x, y, z. Faces +z, -z, +x, -x, +y, -y, each like a
/// plane.
NodePtr makeBox(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert, UInt16 depth);
GeometryPtr makeBoxGeo(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert,
                       UInt16 depth);

/// About y, from -height / 2 (base) to height / 2 (tip).
/// Deliberate: normals of the side are 1 + (botradius / height)^2 long.
NodePtr makeCone(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom);
GeometryPtr makeConeGeo(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom);

/// About y, centred.
NodePtr makeCylinder(Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop,
                     bool doBottom);
GeometryPtr makeCylinderGeo(Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop,
                            bool doBottom);

/// About y, centred. The angle starts at -z and goes to +x; top ring, bottom ring, then the caps.
/// Deliberate: normals of the side are 1 + ((botradius - topradius) / height)^2 long.
NodePtr makeConicalFrustum(Real32 height, Real32 topradius, Real32 botradius, UInt16 sides,
                           bool doSide, bool doTop, bool doBottom);
GeometryPtr makeConicalFrustumGeo(Real32 height, Real32 topradius, Real32 botradius, UInt16 sides,
                                  bool doSide, bool doTop, bool doBottom);

/// In the XY plane, about z.
/// @param innerRadius radius of the tube
/// @param outerRadius radius of the ring's centre line
NodePtr makeTorus(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings);
GeometryPtr makeTorusGeo(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings);

/// Icosahedron divided depth times: 20 * 4^depth triangles. A depth above 10 makes no shape.
NodePtr makeSphere(UInt16 depth, Real32 radius);
GeometryPtr makeSphereGeo(UInt16 depth, Real32 radius);

/// Sphere of latres rows and longres columns, poles on y.
NodePtr makeLatLongSphere(UInt16 latres, UInt16 longres, Real32 radius);
GeometryPtr makeLatLongSphereGeo(UInt16 latres, UInt16 longres, Real32 radius);

}  // namespace osg
