// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGViewportFields.h>
#include <OpenSG/OSGWindowFields.h>

namespace osg {

#define OSG_WINDOW_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)                               \
    VALUE(Width, width, UInt16, 0)                                                                 \
    VALUE(Height, height, UInt16, 0)                                                               \
    LINKS(Port, port, ViewportPtr)

/// An area of pixels with viewports in it, none of them counted.
/// Left out of OpenSG's class: windows of a window system, drawing, GL objects and extensions.
class Window : public AttachmentContainer
{
    OSG_ABSTRACT_MULTI_CONTAINER(Window, AttachmentContainer, OSG_WINDOW_FIELDS);

public:
    /// Takes over a new size in pixels, 0 .. 65535 each; setSize and resize do the same here.
    void setSize(UInt16 newWidth, UInt16 newHeight);
    virtual void resize(Int32 newWidth, Int32 newHeight);

    /// Appends a viewport and becomes its parent; null is ignored.
    void addPort(const ViewportPtr& port);

    /// Takes a viewport out, whose parent becomes null; a warning if it is not here.
    void subPort(const ViewportPtr& port);

protected:
    void noteEdit() override { }
};

}  // namespace osg
