// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/nbGlProgram.h>

#include <OpenSG/OSGViewport.h>

namespace nbrender {

/// Draws the lens of nbMagnifierRenderer over a finished picture of the main render widget.
///
/// The lens is a disc about the cursor's pixel, whose middle stays in its place, with a rim that is
/// seen on any ground. Within it every pixel of the picture is a square, as large as the scale is,
/// without smoothing, so that a whole scale shows pixels exactly. Beyond the picture its outermost
/// pixels go on. Needs the current context of its first use.
class MagnifierPainter
{
public:
    /// Radius of the lens with its rim, logical pixels.
    static constexpr float kRadius = 80.f;
    /// Width of the rim, logical pixels: its inner half is white, its outer half dark.
    static constexpr float kRim = 3.f;

    /// Whether a viewport is that of the main render widget and its magnifier is shown.
    static bool isShown(const osg::ViewportPtr& viewport);

    /// Draws into the bound framebuffer, in which the picture lies from its lower left corner on.
    /// @param picture     texture with the finished picture, widthPx x heightPx
    /// @param pixelRatio  device pixels per logical pixel
    /// @param emptyArray  vertex array of programs that have no attributes
    void draw(Gl& gl, GLuint picture, int widthPx, int heightPx, float pixelRatio,
              GLuint emptyArray);

    void release(Gl& gl);

    void forget() { *this = MagnifierPainter(); }

private:
    GlProgram lens;
    bool isTried = false;
};

}  // namespace nbrender
