// SPDX-License-Identifier: MIT
#include "DepthLayout.h"

#include <QtGui/QOpenGLContext>

namespace nbrender {

namespace {

// Of GL_ARB_clip_control, which headers for 3.3 do not have.
constexpr GLenum kLowerLeft = 0x8CA1;
constexpr GLenum kNegativeOneToOne = 0x935E;
constexpr GLenum kZeroToOne = 0x935F;

}  // namespace

DepthLayout DepthLayout::choose()
{
    DepthLayout result;
    QOpenGLContext* context = QOpenGLContext::currentContext();
    if (context != nullptr && context->hasExtension("GL_ARB_clip_control")) {
        result.clipControl =
            reinterpret_cast<ClipControl>(context->getProcAddress("glClipControl"));
    }
    return result;
}

GLenum DepthLayout::getFormat() const
{
    return isReversed() ? GL_DEPTH_COMPONENT32F : GL_DEPTH_COMPONENT24;
}

void DepthLayout::enter() const
{
    if (isReversed()) {
        clipControl(kLowerLeft, kZeroToOne);
    }
}

void DepthLayout::leave() const
{
    if (isReversed()) {
        clipControl(kLowerLeft, kNegativeOneToOne);
    }
}

GLenum DepthLayout::getComparison(GLenum usual) const
{
    if (!isReversed()) {
        return usual;
    }
    switch (usual) {
    case GL_LESS:
        return GL_GREATER;
    case GL_LEQUAL:
        return GL_GEQUAL;
    case GL_GREATER:
        return GL_LESS;
    case GL_GEQUAL:
        return GL_LEQUAL;
    default:
        return usual;
    }
}

void DepthLayout::setRange(Gl& gl, double nearest, double farthest) const
{
    if (isReversed()) {
        gl.glDepthRange(1.0 - farthest, 1.0 - nearest);
    } else {
        gl.glDepthRange(nearest, farthest);
    }
}

void DepthLayout::setOffset(Gl& gl, float factor, float units) const
{
    const float sign = isReversed() ? -1.0F : 1.0F;
    gl.glPolygonOffset(sign * factor, sign * units);
}

osg::Matrix DepthLayout::project(const osg::Matrix& clipFromView, double nearDepth,
                                 double farDepth) const
{
    const bool perspective = clipFromView[2][3] == -1.0F && clipFromView[3][3] == 0.0F;
    const bool parallel = clipFromView[2][3] == 0.0F && clipFromView[3][3] == 1.0F;
    if (!(farDepth > nearDepth) || (!parallel && !(perspective && nearDepth > 0.0))) {
        return project(clipFromView);
    }
    // Row of z: depth' = (slope z + offset) / w is 1 at the near plane and 0 at the far one.
    const double inverse = 1.0 / (farDepth - nearDepth);
    double slope = parallel ? inverse : nearDepth * inverse;
    double offset = slope * farDepth;
    if (!isReversed()) {
        // w - 2 depth' w: -1 at the near plane, 1 at the far one.
        slope = (perspective ? -1.0 : 0.0) - 2.0 * slope;
        offset = (parallel ? 1.0 : 0.0) - 2.0 * offset;
    }
    osg::Matrix result = clipFromView;
    result[0][2] = 0.0F;
    result[1][2] = 0.0F;
    result[2][2] = static_cast<float>(slope);
    result[3][2] = static_cast<float>(offset);
    return result;
}

osg::Matrix DepthLayout::project(const osg::Matrix& clipFromView) const
{
    if (!isReversed()) {
        return clipFromView;
    }
    osg::Matrix result = clipFromView;
    for (osg::UInt32 column = 0; column < 4; ++column) {
        result[column][2] = 0.5F * (clipFromView[column][3] - clipFromView[column][2]);
    }
    return result;
}

}  // namespace nbrender
