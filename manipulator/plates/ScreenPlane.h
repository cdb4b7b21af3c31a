// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/View.h"

#include <OpenSG/OSGMatrix.h>

namespace nbec::manipulator::plates {

/// Part of the plane's distance by which a layer lies nearer to the eye. Rounding of coordinates is
/// far less; what lies r pixels off the view's centre is displaced by 1e-5 r pixels.
constexpr double kScreenLayer = 1e-5;

/// World from the pixels of a view, for handles that lie flat on the screen: x to the right and y
/// down in device pixels from the view's top left corner, z in layers towards the eye, which order
/// what overlaps. The plane stands at right angles to the view axis, as far away as the point that
/// the camera looks at, or the nearest distance inside of the depth range.
/// @return 4x4, column vectors, affine; nothing for a view without area
std::optional<osg::Matrix> worldFromPixels(const View& view);

}  // namespace nbec::manipulator::plates
