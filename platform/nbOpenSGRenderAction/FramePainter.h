// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/BackgroundPainter.h>
#include <nbOpenSGRenderAction/FrameTargets.h>
#include <nbOpenSGRenderAction/ItemPainter.h>
#include <nbOpenSGRenderAction/SceneImage.h>
#include <nbOpenSGRenderAction/SceneplatePainter.h>

#include <OpenSG/OSGViewport.h>

namespace nbrender {

/// Draws what a viewport shows, step by step: background, plates behind the scene, the items in
/// their order; where there is a veil or a plate before the scene, these between scene and
/// handles. The beginning of a frame may come from a copy, see SceneImage. Keeps what that takes
/// on the graphics card; needs the current context of its first use.
class FramePainter
{
public:
    /// Makes ready for a context.
    /// @param error  receives a line on failure
    bool initialise(Gl& gl, std::string& error);

    const DepthLayout& getDepth() const { return depth; }

    ShaderPrograms& getPrograms() { return programs; }

    /// Draws a frame into targets that are bound.
    void draw(Gl& gl, const Frame& frame, const osg::ViewportPtr& viewport, FrameTargets& targets);

    /// Draws what lies below handles and plates before the scene, of a viewport with a camera.
    void drawScene(Gl& gl, const Frame& frame, const osg::ViewportPtr& viewport,
                   FrameTargets& targets);

    /// Draws background and photograph alone.
    void drawBackground(Gl& gl, const Frame& frame, const osg::ViewportPtr& viewport,
                        FrameTargets& targets);

    /// Draws the plates before the scene and handles over a picture of the scene, where they are;
    /// of a viewport with a camera.
    /// @param scene  texture, spread over the frame
    /// @return outside of which nothing was drawn
    PixelBox drawHandles(Gl& gl, const Frame& frame, const osg::ViewportPtr& viewport,
                         FrameTargets& targets, GLuint scene);

    /// Spreads a texture over what is bound. @param filter  of a texture that is smaller
    void drawPicture(Gl& gl, const Frame& frame, GLuint texture, GLint filter = GL_NEAREST);

    void setSceneKept(bool on) { image.setEnabled(on); }

    void setMovedLast(bool on) { isMovedLast = on; }

    std::size_t getMeshCount() const { return meshes.size(); }

    void collect(Gl& gl);
    void release(Gl& gl);
    void forget();

private:
    GlProgram* usePictureProgram(Gl& gl);
    FrameView prepareView(const Frame& frame, const osg::ViewportPtr& viewport);
    FrameSteps makeSteps(const Frame& frame, const osg::ViewportPtr& viewport,
                         const FrameView& view);
    /// Adds those items that are in view, of handles, of the scene or of both.
    void addItems(FrameSteps& steps, osg::ContentStamp& stamp, const Frame& frame,
                  const FrameView& view, bool scene, bool handles);
    SceneImage::Plan makePlan(const Frame& frame, const FrameView& view, const FrameSteps& steps,
                              const FrameTargets& targets);
    PixelBox pixelsOf(const FrameStep& step, const Frame& frame, const FrameView& view) const;
    void drawSteps(Gl& gl, const Frame& frame, const osg::ViewportPtr& viewport,
                   const FrameView& view, const FrameSteps& steps, std::size_t first,
                   std::size_t last);
    void drawItems(Gl& gl, const Frame& frame, const FrameView& view, const FrameSteps& steps,
                   std::size_t first, std::size_t last);

    DepthLayout depth;
    ShaderPrograms programs;
    GpuMeshes meshes;
    GpuTextures textures;
    SceneplatePainter plates;
    ItemList list;
    SceneImage image;
    bool isMovedLast = false;
    osg::Matrix lastViewFromWorld;
};

}  // namespace nbrender
