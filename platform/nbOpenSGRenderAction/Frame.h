// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/GlProgram.h>
#include <nbOpenSGRenderAction/nbRenderAction.h>

#include <OpenSG/OSGVector.h>

#include <algorithm>
#include <cstddef>

namespace nbrender {

/// One frame to be drawn, device pixels.
struct Frame
{
    int widthPx = 0;
    int heightPx = 0;
    float pixelRatio = 1.0F;  ///< device pixels per logical pixel
    float shiftXPx = 0.0F;  ///< of the picture, to the right
    float shiftYPx = 0.0F;  ///< of the picture, up
    GLuint emptyArray = 0;  ///< vertex array of programs that have no attributes
    nbRenderAction::Statistics* count = nullptr;  ///< of what is drawn; never null while drawing

    /// Counts a call that draws.
    void drew(std::size_t triangles) const
    {
        ++count->drawCalls;
        count->triangles += triangles;
    }
};

/// A rectangle of whole device pixels, x to the right and y up, without the right column and the
/// top row that it names.
struct PixelBox
{
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;

    bool isEmpty() const { return left >= right || bottom >= top; }

    /// Number of pixels.
    std::size_t area() const
    {
        return isEmpty()
            ? 0
            : static_cast<std::size_t>(right - left) * static_cast<std::size_t>(top - bottom);
    }

    /// Grows to enclose another one; an empty one adds nothing.
    void unite(const PixelBox& other)
    {
        if (other.isEmpty()) {
            return;
        }
        *this = isEmpty() ? other
                          : PixelBox { std::min(left, other.left), std::min(bottom, other.bottom),
                                       std::max(right, other.right), std::max(top, other.top) };
    }
};

/// All pixels of a frame.
inline PixelBox wholeOf(const Frame& frame)
{
    return { 0, 0, frame.widthPx, frame.heightPx };
}

/// The whole pixels of a frame that a rectangle touches, with a margin.
/// @param low, high  corners, device pixels from the lower left one; not finite: the whole frame
/// @param marginPx   >= 0
PixelBox pixelsAround(const Frame& frame, const osg::Pnt2f& low, const osg::Pnt2f& high,
                      float marginPx);

}  // namespace nbrender
