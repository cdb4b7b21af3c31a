// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/detail/MatchState.h>
#include <nbKernelServices/nbdObject.h>

#include <functional>

/// Edits the match of a camera: records it in the open undo step and, if a number has changed,
/// announces a property of an object.
/// @param object    the camera or its match; null or gone: nothing happens
void editMatch(const nbdObject& object, const char* property,
               const std::function<void(MatchState&)>& edit);
