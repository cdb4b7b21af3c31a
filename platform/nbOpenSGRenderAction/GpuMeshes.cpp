// SPDX-License-Identifier: MIT
#include "GpuMeshes.h"

#include <nbOpenSGUtils/nbDropDead.h>

#include <cstddef>

namespace nbrender {

namespace {

/// glVertexAttribPointer takes offsets in the form of pointers.
const void* bufferOffset(std::size_t bytes)
{
    return reinterpret_cast<const void*>(bytes);  // NOLINT(performance-no-int-to-ptr): GL's form
}

void floats(Gl& gl, GLuint location, GLint count, std::size_t stride, std::size_t offset)
{
    gl.glEnableVertexAttribArray(location);
    gl.glVertexAttribPointer(location, count, GL_FLOAT, GL_FALSE, static_cast<GLsizei>(stride),
                             bufferOffset(offset));
}

void bytes(Gl& gl, GLuint location, std::size_t stride, std::size_t offset)
{
    gl.glEnableVertexAttribArray(location);
    gl.glVertexAttribPointer(location, 4, GL_UNSIGNED_BYTE, GL_TRUE, static_cast<GLsizei>(stride),
                             bufferOffset(offset));
}

template <class Element>
GLuint makeBuffer(Gl& gl, GLenum target, const std::vector<Element>& data)
{
    GLuint buffer = 0;
    gl.glGenBuffers(1, &buffer);
    gl.glBindBuffer(target, buffer);
    gl.glBufferData(target, static_cast<GLsizeiptr>(data.size() * sizeof(Element)), data.data(),
                    GL_STATIC_DRAW);
    return buffer;
}

GLuint makeVertexArray(Gl& gl)
{
    GLuint array = 0;
    gl.glGenVertexArrays(1, &array);
    gl.glBindVertexArray(array);
    return array;
}

/// Position and colour of single vertices.
void describePoints(Gl& gl)
{
    floats(gl, 0, 3, sizeof(LineVertex), offsetof(LineVertex, position));
    bytes(gl, 2, sizeof(LineVertex), offsetof(LineVertex, color));
}

/// Both ends of a line per instance.
void describeLines(Gl& gl)
{
    constexpr std::size_t kStride = 2 * sizeof(LineVertex);
    floats(gl, 0, 3, kStride, offsetof(LineVertex, position));
    bytes(gl, 1, kStride, offsetof(LineVertex, color));
    floats(gl, 2, 3, kStride, sizeof(LineVertex) + offsetof(LineVertex, position));
    bytes(gl, 3, kStride, sizeof(LineVertex) + offsetof(LineVertex, color));
    for (GLuint location = 0; location < 4; ++location) {
        gl.glVertexAttribDivisor(location, 1);
    }
}

}  // namespace

const GpuMesh& GpuMeshes::get(Gl& gl, const osg::GeometryPtr& geometry)
{
    Entry& entry = entries[geometry.getFieldContainerId()];
    const osg::UInt64 stamp = geometryStamp(geometry);
    if (entry.stamp != stamp) {
        destroy(gl, entry);
        upload(gl, buildMesh(geometry), entry);
        entry.stamp = stamp;
    }
    return entry.mesh;
}

void GpuMeshes::upload(Gl& gl, const Mesh& mesh, Entry& entry)
{
    entry.mesh.hasColors = mesh.hasColors;
    entry.mesh.hasTexCoords = mesh.hasTexCoords;
    if (!mesh.triangles.empty()) {
        entry.mesh.surfaces = makeVertexArray(gl);
        entry.buffers[0] = makeBuffer(gl, GL_ARRAY_BUFFER, mesh.vertices);
        entry.buffers[1] = makeBuffer(gl, GL_ELEMENT_ARRAY_BUFFER, mesh.triangles);
        floats(gl, 0, 3, sizeof(MeshVertex), offsetof(MeshVertex, position));
        floats(gl, 1, 3, sizeof(MeshVertex), offsetof(MeshVertex, normal));
        bytes(gl, 2, sizeof(MeshVertex), offsetof(MeshVertex, color));
        floats(gl, 3, 2, sizeof(MeshVertex), offsetof(MeshVertex, texCoord));
        entry.mesh.triangleIndexCount = static_cast<GLsizei>(mesh.triangles.size());
    }
    if (!mesh.lines.empty()) {
        entry.mesh.lines = makeVertexArray(gl);
        entry.buffers[2] = makeBuffer(gl, GL_ARRAY_BUFFER, mesh.lines);
        describeLines(gl);
        entry.mesh.plainLines = makeVertexArray(gl);
        describePoints(gl);
        entry.mesh.lineCount = static_cast<GLsizei>(mesh.lines.size() / 2);
    }
    if (!mesh.points.empty()) {
        entry.mesh.points = makeVertexArray(gl);
        entry.buffers[3] = makeBuffer(gl, GL_ARRAY_BUFFER, mesh.points);
        describePoints(gl);
        entry.mesh.pointCount = static_cast<GLsizei>(mesh.points.size());
    }
    gl.glBindVertexArray(0);
    gl.glBindBuffer(GL_ARRAY_BUFFER, 0);
}

void GpuMeshes::destroy(Gl& gl, Entry& entry)
{
    const GLuint arrays[] = { entry.mesh.surfaces, entry.mesh.lines, entry.mesh.plainLines,
                              entry.mesh.points };
    gl.glDeleteVertexArrays(4, arrays);
    gl.glDeleteBuffers(4, entry.buffers);
    entry = Entry();
}

std::size_t GpuMeshes::getTriangles(osg::UInt32 geometryId) const
{
    const auto known = entries.find(geometryId);
    return known == entries.end()
        ? 0
        : static_cast<std::size_t>(known->second.mesh.triangleIndexCount) / 3;
}

void GpuMeshes::collect(Gl& gl)
{
    nbDropDead(entries, [&gl](Entry& entry) { destroy(gl, entry); });
}

void GpuMeshes::release(Gl& gl)
{
    for (auto& [id, entry] : entries) {
        destroy(gl, entry);
    }
    entries.clear();
}

}  // namespace nbrender
