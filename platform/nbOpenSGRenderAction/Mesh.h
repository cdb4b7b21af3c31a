// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGGeometry.h>

#include <array>
#include <vector>

namespace nbrender {

/// Red, green, blue and alpha.
using ColorBytes = std::array<osg::UInt8, 4>;
constexpr osg::UInt8 kFullByte = 0xff;
constexpr ColorBytes kWhite { kFullByte, kFullByte, kFullByte, kFullByte };

/// A corner of a triangle, as it lies in a vertex buffer.
struct MeshVertex
{
    std::array<float, 3> position {};
    std::array<float, 3> normal {};
    ColorBytes color = kWhite;
    std::array<float, 2> texCoord {};
};

/// An end of a line or a point.
struct LineVertex
{
    std::array<float, 3> position {};
    ColorBytes color = kWhite;
};

/// A geometry as plain arrays: strips, fans, quads, polygons, loops and index mappings are
/// resolved.
struct Mesh
{
    std::vector<MeshVertex> vertices;
    std::vector<osg::UInt32> triangles;  ///< three indices into vertices each
    std::vector<LineVertex> lines;  ///< two ends each
    std::vector<LineVertex> points;
    bool hasColors = false;
    bool hasTexCoords = false;
};

/// Reads a geometry; null gives an empty mesh. A geometry without normals gets one per triangle.
NB_PLATFORM_API Mesh buildMesh(const osg::GeometryPtr& geometry);

/// Differs when something that buildMesh reads was edited or replaced; the material does not count.
NB_PLATFORM_API osg::UInt64 geometryStamp(const osg::GeometryPtr& geometry);

}  // namespace nbrender
