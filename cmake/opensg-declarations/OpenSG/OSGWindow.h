// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAttachmentContainer.h>

namespace osg {
OSG_DECLARED_POINTER(Viewport, AttachmentContainerPtr);
OSG_DECLARED_POINTER(Window, AttachmentContainerPtr);

class Window : public AttachmentContainer
{
    OSG_DECLARED_TYPE(Window, AttachmentContainer)
    OSG_DECLARED_VALUE(Width, UInt16)
    OSG_DECLARED_VALUE(Height, UInt16)
    virtual void setSize(UInt16 width, UInt16 height);
    virtual void resize(int width, int height);
    void addPort(const ViewportPtr& port);
    ViewportPtr getPort(UInt32 index);
};
}  // namespace osg
