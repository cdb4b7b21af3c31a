// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

namespace nbec::manipulator {

/// The lines of a camera's perspective match: two along each axis of the world.
enum class PerspectiveMatchLine : osg::UInt32
{
    NoLine = 0,
    XLine1 = 1,
    XLine2 = 2,
    YLine1 = 3,
    YLine2 = 4,
    ZLine1 = 5,
    ZLine2 = 6
};

}  // namespace nbec::manipulator
