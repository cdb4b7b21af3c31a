// SPDX-License-Identifier: MIT
#include <OpenSG/OSGViewport.h>
#include <OpenSG/OSGWindow.h>

namespace osg {

OSG_CONTAINER_TYPE(Viewport, AttachmentContainer);

namespace {

/// First pixel of an edge: a fraction of the size, or a pixel.
Int32 firstPixel(Real32 edge, Int32 size)
{
    return static_cast<Int32>(edge > 1.0F ? edge : edge * static_cast<Real32>(size));
}

/// Last pixel of an edge: a fraction ends one pixel before it, a pixel is itself the last.
Int32 lastPixel(Real32 edge, Int32 size)
{
    return static_cast<Int32>(edge > 1.0F ? edge : edge * static_cast<Real32>(size) - 1.0F);
}

Int32 windowWidth(const Viewport& port)
{
    return port.getParent() != NullFC ? port.getParent()->getWidth() : 0;
}

Int32 windowHeight(const Viewport& port)
{
    return port.getParent() != NullFC ? port.getParent()->getHeight() : 0;
}

}  // namespace

void Viewport::setSize(Real32 leftEdge, Real32 bottomEdge, Real32 rightEdge, Real32 topEdge)
{
    setLeft(leftEdge);
    setBottom(bottomEdge);
    setRight(rightEdge);
    setTop(topEdge);
}

Int32 Viewport::getPixelLeft() const
{
    return firstPixel(getLeft(), windowWidth(*this));
}

Int32 Viewport::getPixelRight() const
{
    return lastPixel(getRight(), windowWidth(*this));
}

Int32 Viewport::getPixelBottom() const
{
    return firstPixel(getBottom(), windowHeight(*this));
}

Int32 Viewport::getPixelTop() const
{
    return lastPixel(getTop(), windowHeight(*this));
}

Int32 Viewport::getPixelWidth() const
{
    return getPixelRight() - getPixelLeft() + 1;
}

Int32 Viewport::getPixelHeight() const
{
    return getPixelTop() - getPixelBottom() + 1;
}

}  // namespace osg
