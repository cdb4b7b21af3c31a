// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernel/nbController.h>

#include <string>

namespace nbec::manipulator {

/// Sends a message to a host's editor: the receiver's name followed directly by the suffix. The
/// editor may write replies into the message; a name without a receiver loses it. Afterwards
/// nothing that was edited need exist any more (see Manipulator): it is looked up by its id again.
/// @param receiver  as the host gave it, may be empty
/// @param suffix    begins with "::"
inline void sendToReceiver(const std::string& receiver, const char* suffix, nbMessage& message)
{
    nbController::call((receiver + suffix).c_str(), message, 0);
}

}  // namespace nbec::manipulator
