// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGWindow.h>

namespace osg {
OSG_DECLARED_POINTER(PassiveWindow, WindowPtr);

class PassiveWindow : public Window
{
    OSG_DECLARED_CLASS(PassiveWindow, Window)
};
}  // namespace osg
