// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class nbMessage;

namespace nbec::manipulator {

/// Tells the kernel that transforms have changed: "nbTransform::changedTransformation", then
/// "nbTransform::updateTransformation", each without attributes, and marks the scene as modified.
void sendTransformationChanged();

/// Sends a message to a host's editor: the receiver's name followed directly by the suffix. The
/// editor may write replies into the message; a name without a receiver loses it. Afterwards
/// nothing that was edited need exist any more (see Manipulator): it is looked up by its id again.
/// @param receiver  as the host gave it, may be empty
/// @param suffix    begins with "::"
void sendToReceiver(const std::string& receiver, const char* suffix, nbMessage& message);

}  // namespace nbec::manipulator
