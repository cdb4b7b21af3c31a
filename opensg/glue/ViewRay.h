// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGCamera.h>

namespace osg {
namespace glue {

/// What Camera::calcViewRay says, worked out in double precision on every scene graph: that of a
/// real OpenSG works in single precision and errs by a pixel at near planes of a thousandth.
/// @param x, y  device pixels of the window, y down from its top
/// @param port  in a window
/// @return false if the viewport has no area or no window; the line is then left alone
__attribute__((visibility("default"))) bool viewRay(Line& line, const CameraPtr& camera, Int32 x,
                                                    Int32 y, const Viewport& port);

}  // namespace glue
}  // namespace osg
