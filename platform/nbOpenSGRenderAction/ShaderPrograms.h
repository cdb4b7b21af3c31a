// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/GlProgram.h>
#include <nbOpenSGRenderAction/StandardShaders.h>

#include <OpenSG/OSGSHLChunk.h>

#include <array>
#include <map>
#include <memory>
#include <string_view>
#include <unordered_map>

namespace nbrender {

/// The renderer's own programs and those of shader chunks, the latter by container id, compiled on
/// first use and again when the text was edited. Needs the current context of its first use.
class ShaderPrograms
{
public:
    /// What a material is drawn on.
    enum class Shape
    {
        Surface,
        Line
    };

    /// Program of the renderer's own, in use; compiled on first use.
    /// @param name  differs for each; a literal
    /// @param vertexBody, fragmentBody  what follows the header
    /// @return null if the driver refuses it, of which the log has a line
    GlProgram* use(Gl& gl, const char* name, const char* vertexBody, const char* fragmentBody);

    /// Program for materials, compiled on first use; null if the driver refuses it, of which the
    /// log has a line.
    GlProgram* getMaterialProgram(Gl& gl, Shape shape, shaders::Clipping clipping,
                                  const shaders::Features& features);

    /// Program of a shader chunk, with its parameters set and in use.
    /// @param lines  the program draws lines: without a geometry program of its own it gets one
    /// that
    ///               widens them, if the interface between its stages allows that
    /// @return null if the chunk's text does not compile; the log got one line about it
    GlProgram* use(Gl& gl, const osg::SHLChunkPtr& chunk, bool lines);

    void collect(Gl& gl);
    void release(Gl& gl);
    void forget();

private:
    struct Entry
    {
        std::string text;  ///< of all stages
        GlProgram surface;
        GlProgram line;
    };

    static void build(Gl& gl, const osg::SHLChunkPtr& chunk, Entry& entry);

    /// Without projected pictures, and each component with none or one of four kinds.
    static constexpr std::size_t kPlainPrograms = 32;
    static constexpr std::size_t kPictureKinds = 5;
    static constexpr std::size_t kMaterialPrograms = kPlainPrograms * kPictureKinds * kPictureKinds;

    std::map<std::string_view, GlProgram> own;
    std::array<std::unique_ptr<GlProgram>, kMaterialPrograms> material;  ///< null until wanted
    std::unordered_map<osg::UInt32, Entry> entries;
};

}  // namespace nbrender
