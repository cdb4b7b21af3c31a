// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleMaterial.h>

namespace osg {
MaterialPtr getDefaultMaterial();
MaterialPtr getDefaultUnlitMaterial();
NodePtr makePlane(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert);
GeometryPtr makePlaneGeo(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert);
NodePtr makeBox(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert, UInt16 depth);
GeometryPtr makeBoxGeo(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert,
                       UInt16 depth);
NodePtr makeCone(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom);
GeometryPtr makeConeGeo(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom);
NodePtr makeCylinder(Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop,
                     bool doBottom);
GeometryPtr makeCylinderGeo(Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop,
                            bool doBottom);
NodePtr makeConicalFrustum(Real32 height, Real32 topradius, Real32 botradius, UInt16 sides,
                           bool doSide, bool doTop, bool doBottom);
GeometryPtr makeConicalFrustumGeo(Real32 height, Real32 topradius, Real32 botradius, UInt16 sides,
                                  bool doSide, bool doTop, bool doBottom);
NodePtr makeTorus(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings);
GeometryPtr makeTorusGeo(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings);
NodePtr makeSphere(UInt16 depth, Real32 radius);
GeometryPtr makeSphereGeo(UInt16 depth, Real32 radius);
NodePtr makeLatLongSphere(UInt16 latres, UInt16 longres, Real32 radius);
GeometryPtr makeLatLongSphereGeo(UInt16 latres, UInt16 longres, Real32 radius);
}  // namespace osg
