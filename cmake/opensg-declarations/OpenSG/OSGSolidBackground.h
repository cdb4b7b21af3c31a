// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGBackground.h>
#include <OpenSG/OSGColor.h>

namespace osg {
OSG_DECLARED_POINTER(SolidBackground, BackgroundPtr);

class SolidBackground : public Background
{
    OSG_DECLARED_CLASS(SolidBackground, Background)
    OSG_DECLARED_VALUE(Color, Color3f)
};
}  // namespace osg
