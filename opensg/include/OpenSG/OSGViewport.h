// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGBackgroundFields.h>
#include <OpenSG/OSGCameraFields.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGViewportFields.h>
#include <OpenSG/OSGWindowFields.h>

namespace osg {

#define OSG_VIEWPORT_FIELDS(VALUE, OWNED, LINK)                                                    \
    VALUE(Left, left, Real32, 0.0F)                                                                \
    VALUE(Right, right, Real32, 0.0F)                                                              \
    VALUE(Bottom, bottom, Real32, 0.0F)                                                            \
    VALUE(Top, top, Real32, 0.0F)                                                                  \
    LINK(Parent, parent, WindowPtr)                                                                \
    LINK(Camera, camera, CameraPtr)                                                                \
    LINK(Root, root, NodePtr)                                                                      \
    LINK(Background, background, BackgroundPtr)                                                    \
    VALUE(TravMask, travMask, UInt32, 0xffffffff)

/// Part of a window: which tree is shown there, by which camera. It counts none of its parts.
/// Edges up to 1 are fractions of the window's size, above 1 pixels from its left and bottom
/// edge. Deliberate: right and top pixel belong to the viewport, so that edges 0 and 400 are 401
/// pixels apart. All edges 0, as at first: no area.
/// Left out of OpenSG's class: foregrounds, drawing, tiles.
class Viewport : public AttachmentContainer
{
    OSG_CONTAINER(Viewport, AttachmentContainer, OSG_VIEWPORT_FIELDS);

public:
    void setSize(Real32 leftEdge, Real32 bottomEdge, Real32 rightEdge, Real32 topEdge);

    /// First and last pixel in each direction, y up, from the window's lower left corner. Without
    /// a window, fractions give the pixels of a window without size.
    Int32 getPixelLeft() const;
    Int32 getPixelRight() const;
    Int32 getPixelBottom() const;
    Int32 getPixelTop() const;

    /// Pixels from first to last, both included; 0 or less without an area.
    Int32 getPixelWidth() const;
    Int32 getPixelHeight() const;

protected:
    void noteEdit() override { }
};

}  // namespace osg
