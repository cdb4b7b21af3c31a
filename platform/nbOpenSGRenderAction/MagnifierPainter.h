// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/ShaderPrograms.h>

#include <OpenSG/OSGViewport.h>

namespace nbrender {

/// Draws the lens of nbMagnifierRenderer over the pictures of the main render widget.
///
/// The lens is a disc about the cursor's pixel, moved as far as it takes to lie within the picture,
/// with a rim that is seen on any ground and, if it is asked for, a thin cross that leaves the
/// middle free; there is none about a cursor outside of the picture. Within it every pixel of the
/// picture is a square, as large as the scale is, without smoothing, so that a whole scale shows
/// pixels exactly. Beyond the picture its outermost pixels go on. Needs the current context of its
/// first use.
class MagnifierPainter
{
public:
    /// Radius of the lens with its rim, logical pixels.
    static constexpr float kRadius = 80.0F;
    /// Width of the rim, logical pixels: its inner half is white, its outer half dark.
    static constexpr float kRim = 3.0F;

    /// Whether a viewport is that of the main render widget and its magnifier is shown.
    static bool isShown(const osg::ViewportPtr& viewport);

    /// Keeps what the lens shows of a picture, until draw().
    /// @param picture  framebuffer that holds it from its lower left corner on, widthPx x heightPx,
    ///                 in its first buffer
    /// @param crossed  whether there is a cross
    void keep(Gl& gl, GLuint picture, int widthPx, int heightPx, float pixelRatio, bool crossed);

    /// Draws into the bound framebuffer, in which a picture of the size that keep() was given lies
    /// from its lower left corner on.
    /// @param pixelRatio  device pixels per logical pixel
    /// @param emptyArray  vertex array of programs that have no attributes
    void draw(Gl& gl, float pixelRatio, GLuint emptyArray, ShaderPrograms& programs);

    void release(Gl& gl);

    void forget() { *this = MagnifierPainter(); }

private:
    GLuint texture = 0;
    // What is kept: a part of the picture, y up.
    int originX = 0;
    int originY = 0;
    int keptWidth = 0;
    int keptHeight = 0;
    int pictureWidth = 0;
    int pictureHeight = 0;
    bool hasCross = false;
};

}  // namespace nbrender
