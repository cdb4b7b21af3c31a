// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGWindow.h>

namespace osg {

OSG_CONTAINER_POINTER(PassiveWindow, WindowPtr);

/// A window whose pixels somebody else looks after: here, all there is of a window.
class PassiveWindow : public Window
{
    OSG_CONTAINER(PassiveWindow, Window, OSG_NO_FIELDS);
};

}  // namespace osg
