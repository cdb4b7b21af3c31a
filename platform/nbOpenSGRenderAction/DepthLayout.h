// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/GlProgram.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGMatrix.h>

namespace nbrender {

/// How depths lie in the depth buffer.
///
/// Where the driver has GL_ARB_clip_control, they run backwards, from 1 at the near plane to 0 at
/// the far one, in floats: the fine steps of floats around 0 then meet the coarse ones of the
/// projection, and a near plane right before the eye costs no precision. Otherwise they run as
/// usual, in 24 bits. The functions take depths and comparisons as usual, 0 nearest, and answer in
/// the layout's terms.
class NB_PLATFORM_API DepthLayout
{
public:
    /// Usual depths.
    DepthLayout() = default;

    /// The best that the current context has.
    static DepthLayout choose();

    bool isReversed() const { return clipControl != nullptr; }

    /// Format of a depth buffer.
    GLenum getFormat() const;

    /// Switches the context to the layout, or back to usual depths.
    void enter() const;
    void leave() const;

    float getClearValue() const { return isReversed() ? 0.0F : 1.0F; }

    /// Comparison that lets pass what the given one lets pass for usual depths.
    GLenum getComparison(GLenum usual) const;

    /// Sets the range of depths to draw into, 0 .. 1 each.
    void setRange(Gl& gl, double nearest, double farthest) const;

    /// Sets the offset of polygons; negative is nearer.
    void setOffset(Gl& gl, float factor, float units) const;

    /// Rewrites a usual projection for the layout, with new planes.
    /// @param clipFromView  4x4, column vectors, w = -z or w = 1; others keep their planes
    /// @param nearDepth, farDepth  along the view axis, near < far; in a perspective 0 < near
    osg::Matrix project(const osg::Matrix& clipFromView, double nearDepth, double farDepth) const;

    /// The same with the planes that the projection has.
    osg::Matrix project(const osg::Matrix& clipFromView) const;

private:
    using ClipControl = void (*)(GLenum origin, GLenum depth);

    ClipControl clipControl = nullptr;
};

}  // namespace nbrender
