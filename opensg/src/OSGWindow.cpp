// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBackground.h>
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGPassiveWindow.h>
#include <OpenSG/OSGSolidBackground.h>
#include <OpenSG/OSGViewport.h>
#include <OpenSG/OSGWindow.h>

#include <limits>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(Window, AttachmentContainer);
OSG_CONTAINER_TYPE(PassiveWindow, Window);
OSG_ABSTRACT_CONTAINER_TYPE(Background, AttachmentContainer);
OSG_CONTAINER_TYPE(SolidBackground, Background);

void Window::setSize(UInt16 newWidth, UInt16 newHeight)
{
    const WindowPtr self(*this);
    beginEditCP(self, WidthFieldMask | HeightFieldMask);
    setWidth(newWidth);
    setHeight(newHeight);
    endEditCP(self, WidthFieldMask | HeightFieldMask);
}

void Window::resize(Int32 newWidth, Int32 newHeight)
{
    constexpr Int32 kMost = std::numeric_limits<UInt16>::max();
    setSize(static_cast<UInt16>(osgClamp(0, newWidth, kMost)),
            static_cast<UInt16>(osgClamp(0, newHeight, kMost)));
}

void Window::addPort(const ViewportPtr& port)
{
    if (port == NullFC) {
        return;
    }
    const WindowPtr self(*this);
    beginEditCP(self, PortFieldMask);
    mfPort.push_back(port);
    endEditCP(self, PortFieldMask);
    port->setParent(self);
}

void Window::subPort(const ViewportPtr& port)
{
    const auto found = mfPort.find(port);
    if (found == mfPort.end()) {
        SWARNING << "Window::subPort: the viewport is not in the window" << std::endl;
        return;
    }
    const WindowPtr self(*this);
    beginEditCP(self, PortFieldMask);
    mfPort.erase(found);
    endEditCP(self, PortFieldMask);
    port->setParent(NullFC);
}

}  // namespace osg
