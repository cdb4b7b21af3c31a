// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/nbGpuTextures.h>
#include <nbOpenSGRenderAction/nbShaderPrograms.h>

#include <OpenSG/OSGViewport.h>

namespace nbrender {

/// What the background is drawn into.
struct BackgroundFrame
{
    int widthPx = 0;
    int heightPx = 0;
    /// Shift of the scene, device pixels, x to the right and y up.
    float shiftX = 0.f;
    float shiftY = 0.f;
    GLuint emptyArray = 0;  ///< vertex array of programs that have no attributes
};

/// Draws what lies behind the scene: the gradient or colour of a viewport, and over it the
/// photograph of an UberViewport, where nbPhotographFit places it. Touches the colours alone.
/// Needs the current context of its first use.
class BackgroundPainter
{
public:
    /// @param viewport  null: black
    void draw(Gl& gl, const osg::ViewportPtr& viewport, const BackgroundFrame& frame,
              ShaderPrograms& programs, GpuTextures& textures);

    /// Draws the photograph once more, over the scene, as far as the viewport's veil says.
    void drawVeil(Gl& gl, const osg::ViewportPtr& viewport, const BackgroundFrame& frame,
                  GpuTextures& textures);

    /// Whether a viewport has a photograph, and one that covers the scene.
    static bool hasPhotograph(const osg::ViewportPtr& viewport);
    static bool hasVeil(const osg::ViewportPtr& viewport);

    void release(Gl& gl);

    void forget() { *this = BackgroundPainter(); }

private:
    /// @param opacity  0 .. 1
    void drawPhotograph(Gl& gl, const osg::ViewportPtr& viewport, float opacity,
                        const BackgroundFrame& frame, GpuTextures& textures);

    GlProgram photograph;
    bool isTried = false;
};

}  // namespace nbrender
