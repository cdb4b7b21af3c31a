// SPDX-License-Identifier: MIT
#pragma once

#include <embree3/rtcore.h>

namespace nbec::interaction::detail {

/// The process's Embree device, made on first use and kept to the end of the process; null if it
/// cannot be made.
RTCDevice embreeDevice();

/// Commits a scene.
/// @return false (with a line in the log) if Embree reports an error, such as lack of memory
bool commitScene(RTCScene scene);

}  // namespace nbec::interaction::detail
