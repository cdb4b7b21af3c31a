// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGNodePtr.h>

namespace osg {
OSG_DECLARED_POINTER(Background, AttachmentContainerPtr);
OSG_DECLARED_POINTER(Camera, AttachmentContainerPtr);
OSG_DECLARED_POINTER(Window, AttachmentContainerPtr);
OSG_DECLARED_POINTER(Viewport, AttachmentContainerPtr);

class Viewport : public AttachmentContainer
{
    OSG_DECLARED_CLASS(Viewport, AttachmentContainer)
    OSG_DECLARED_VALUE(Left, Real32)
    OSG_DECLARED_VALUE(Right, Real32)
    OSG_DECLARED_VALUE(Bottom, Real32)
    OSG_DECLARED_VALUE(Top, Real32)
    OSG_DECLARED_VALUE(Parent, WindowPtr)
    OSG_DECLARED_VALUE(Camera, CameraPtr)
    OSG_DECLARED_VALUE(Root, NodePtr)
    OSG_DECLARED_VALUE(Background, BackgroundPtr)
    OSG_DECLARED_VALUE(TravMask, UInt32)
    void setSize(Real32 left, Real32 bottom, Real32 right, Real32 top);
    Int32 getPixelLeft() const;
    Int32 getPixelRight() const;
    Int32 getPixelBottom() const;
    Int32 getPixelTop() const;
    Int32 getPixelWidth() const;
    Int32 getPixelHeight() const;
};
}  // namespace osg
