// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/FrameView.h>
#include <nbOpenSGRenderAction/GpuMeshes.h>
#include <nbOpenSGRenderAction/GpuTextures.h>
#include <nbOpenSGRenderAction/ItemList.h>
#include <nbOpenSGRenderAction/ShaderPrograms.h>

namespace nbrender {

/// Draws items one after the other; keeps track of the OpenGL state that they share.
///
/// Handles take the front tenth of the depth range, everything else the other nine. Blended items
/// leave the effect buffer alone and write no depth, except that of a surface which only a picture
/// makes transparent the opaque parts do.
class ItemPainter
{
public:
    /// @param drawnFrame  receives what is drawn
    ItemPainter(Gl& functions, GpuMeshes& meshCache, GpuTextures& textureCache,
                ShaderPrograms& programCache, const FrameView& frameView, const Frame& drawnFrame);

    /// Puts back the OpenGL state that what is drawn next relies on.
    ~ItemPainter();

    ItemPainter(const ItemPainter&) = delete;
    ItemPainter& operator=(const ItemPainter&) = delete;

    /// Shader chunks are not cut by clip planes unless their programs see to it.
    /// @param list  that the item is of
    void draw(const RenderItem& item, const ItemList& list);

private:
    void drawMesh(const RenderItem& item, const DrawState& state, const GpuMesh& mesh);
    /// What is opaque first, with depth, so that it hides what it should; then the rest.
    void drawCutout(const RenderItem& item, const DrawState& state, const GpuMesh& mesh);
    void applyDepth(const RenderItem& item, const DrawState& state);
    void applyBlending(const RenderItem& item, const DrawState& state);
    void applyPolygons(const RenderItem& item, const DrawState& state);
    /// Sets the item's clip planes for a program that obeys them, and switches as many on.
    void setClipPlanes(GlProgram& program);
    void switchClipping(std::size_t count);
    void setPlace(GlProgram& program, const RenderItem& item);
    void setMaterial(GlProgram& program, const RenderItem& item, const DrawState& state,
                     bool isSurface, bool hasColors);
    /// Binds the state's texture, or none. @return whether there is one
    bool bindTexture(const DrawState& state);
    void setTexture(GlProgram& program);
    /// The state for items of a broken shader chunk: unlit, in the chunk's parameter "color" if it
    /// has one.
    static DrawState plainState(const DrawState& state);
    /// A program for the state, in use and with its values; null if the driver refuses it.
    GlProgram* prepareMaterial(const RenderItem& item, const DrawState& state,
                               ShaderPrograms::Shape shape, bool isSurface, const GpuMesh& mesh);
    /// The same for the state's shader chunk; null without one, or with a broken one.
    GlProgram* prepareShaderChunk(const RenderItem& item, const DrawState& state, bool lines);
    void drawSurfaces(const RenderItem& item, const DrawState& state, const GpuMesh& mesh);
    void drawLines(const RenderItem& item, const DrawState& state, const GpuMesh& mesh);
    void drawPoints(const RenderItem& item, const DrawState& state, const GpuMesh& mesh);

    Gl& gl;
    GpuMeshes& meshes;
    GpuTextures& textures;
    ShaderPrograms& programs;
    const FrameView& view;
    const Frame& frame;
    nbClipSets::Planes viewClipPlanes;  ///< of the item that is being drawn, in view space
    SurfaceSpace surfaceSpace;  ///< of the same item
    bool boundPictures = false;
    std::size_t clippingCount = 0;  ///< switched on
    osg::TextureChunkPtr boundChunk;
    GpuTexture boundTexture;
};

}  // namespace nbrender
