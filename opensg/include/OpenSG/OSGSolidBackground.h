// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBackground.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>

namespace osg {

OSG_CONTAINER_POINTER(SolidBackground, BackgroundPtr);

#define OSG_SOLID_BACKGROUND_FIELDS(VALUE, OWNED, LINK)                                            \
    VALUE(Color, color, Color3f, Color3f(0.0F, 0.0F, 0.0F))                                        \
    VALUE(Alpha, alpha, Real32, 1.0F)

/// One colour everywhere, components and alpha 0 .. 1.
class SolidBackground : public Background
{
    OSG_CONTAINER(SolidBackground, Background, OSG_SOLID_BACKGROUND_FIELDS);
};

}  // namespace osg
