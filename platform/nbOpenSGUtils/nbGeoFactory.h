// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>

#include <vector>

/// Makes geometry, most of it of lines, no normals, material null.
/// Results have reference count 0 and belong to the caller. Arguments that make no shape give null.
class NB_PLATFORM_API nbGeoFactory
{
public:
    /// A line along the y axis from (0, -length / 2, 0) to (0, length / 2, 0), as a node.
    /// @param length  world units, > 0
    static osg::NodePtr makeLine(float length);

    /// The geometry of makeLine.
    static osg::GeometryPtr makeLineGeo(float length);

    /// A closed circle about the y axis, in the xz plane, that starts at +x, as a node.
    /// @param radius    world units, > 0
    /// @param segments  number of straight pieces of the whole circle, >= 3
    /// @param dashed    only every second piece, from the first on
    static osg::NodePtr makeLineTorus(float radius, osg::UInt16 segments, bool dashed);

    /// The geometry of makeLineTorus.
    static osg::GeometryPtr makeLineTorusGeo(float radius, osg::UInt16 segments, bool dashed);

    /// A geometry of one primitive over shared points.
    /// @param type          such as GL_LINES or GL_TRIANGLES
    /// @param pointIndices  of the primitive's corners; empty: the points in their order, and the
    /// geometry has no indices
    static osg::GeometryPtr makeGeo(GLenum type, const std::vector<osg::Pnt3f>& points,
                                    const std::vector<osg::UInt32>& pointIndices = {});
};
