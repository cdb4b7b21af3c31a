// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/GlProgram.h>
#include <nbOpenSGRenderAction/StandardShaders.h>

#include <OpenSG/OSGSHLChunk.h>

#include <array>
#include <memory>
#include <unordered_map>

namespace nbrender {

/// The renderer's own programs and those of shader chunks, the latter by container id, compiled on
/// first use and again when the text was edited. Needs the current context of its first use.
class ShaderPrograms
{
public:
    /// Programs that every frame needs.
    enum class Standard
    {
        Background,
        Present
    };
    /// What a material is drawn on.
    enum class Shape
    {
        Surface,
        Line
    };

    /// Compiles the renderer's own programs, as far as every frame needs them.
    /// @param error  receives a line on failure
    bool initialise(Gl& gl, std::string& error);

    GlProgram& getStandard(Standard which) { return standard[static_cast<std::size_t>(which)]; }

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
    static void setParameters(Gl& gl, const osg::SHLChunkPtr& chunk, GlProgram& program);

    /// Without projected pictures, and each component with none or one of four kinds.
    static constexpr std::size_t kPlainPrograms = 32;
    static constexpr std::size_t kPictureKinds = 5;
    static constexpr std::size_t kMaterialPrograms = kPlainPrograms * kPictureKinds * kPictureKinds;

    std::array<GlProgram, 2> standard;
    std::array<std::unique_ptr<GlProgram>, kMaterialPrograms> material;  ///< null until wanted
    std::unordered_map<osg::UInt32, Entry> entries;
};

}  // namespace nbrender
