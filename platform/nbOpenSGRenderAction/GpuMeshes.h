// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/GlProgram.h>
#include <nbOpenSGRenderAction/Mesh.h>

#include <OpenSG/OSGGeometry.h>

#include <unordered_map>

namespace nbrender {

/// Buffers of one geometry. Attribute locations of surfaces, points and plainLines: 0 position,
/// 1 normal, 2 colour, 3 texture coordinates (the latter two as far as they exist); of lines, one
/// instance per line: 0 and 1 position and colour of the start, 2 and 3 of the end.
struct GpuMesh
{
    GLuint surfaces = 0;  ///< vertex array with an index buffer
    GLuint lines = 0;  ///< vertex array, instanced
    GLuint plainLines = 0;  ///< vertex array, two vertices per line
    GLuint points = 0;  ///< vertex array
    GLsizei triangleIndexCount = 0;
    GLsizei lineCount = 0;
    GLsizei pointCount = 0;
    bool hasColors = false;
    bool hasTexCoords = false;
};

/// Vertex buffers of geometries by container id: made on first use, made anew when the geometry's
/// stamp has moved, dropped when the geometry is gone. Needs the current context of its first use.
class GpuMeshes
{
public:
    /// Buffers of a geometry; valid until the next call of a non-const function.
    const GpuMesh& get(Gl& gl, const osg::GeometryPtr& geometry);

    /// Triangles of a geometry as it was last drawn, by its container id; 0 before.
    std::size_t getTriangles(osg::UInt32 geometryId) const;

    /// Drops the buffers of geometries that no longer exist.
    void collect(Gl& gl);

    /// Drops all buffers.
    void release(Gl& gl);

    /// Forgets all buffers of a context that is gone.
    void forget() { entries.clear(); }

    /// Number of geometries that have buffers.
    std::size_t size() const { return entries.size(); }

private:
    struct Entry
    {
        osg::UInt64 stamp = 0;
        GpuMesh mesh;
        GLuint buffers[4] = { 0, 0, 0, 0 };  ///< vertices, indices, line ends, points
    };

    static void destroy(Gl& gl, Entry& entry);
    static void upload(Gl& gl, const Mesh& mesh, Entry& entry);

    std::unordered_map<osg::UInt32, Entry> entries;
};

}  // namespace nbrender
