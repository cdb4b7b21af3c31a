// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbMessage.h>
#include <nbUtils/nbPlatformExport.h>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>

/// Delivers messages by name to the parts of the application, synchronously.
/// Belongs to the user-interface thread. Receivers may call, add and remove receivers, themselves
/// included, while they run. Nothing that a receiver throws leaves call().
class NB_PLATFORM_API nbController
{
public:
    /// Handles a message; may write replies into it.
    using Receiver = std::function<void(nbMessage&)>;

    /// Delivers a message to the receiver of that name.
    /// @param name   compared exactly; null is the empty name
    /// @param flags  no meaning here; pass 0
    /// @return true if a receiver ran to its end. False without a word if there is none (the call
    /// is
    ///         counted as lost), or with an entry in the log if it threw
    static bool call(const char* name, nbMessage& msg, int flags);

    /// The same with an empty message that nobody sees afterwards.
    static bool call(const char* name, int flags);

    /// Registers the receiver of a name; takes the place of an earlier one. An empty function
    /// removes it.
    static void addReceiver(const std::string& name, Receiver receiver);

    /// Removes the receiver of a name; an unknown name is ignored. A receiver that runs finishes.
    static void removeReceiver(const std::string& name);

    /// Whether a name has a receiver.
    static bool hasReceiver(std::string_view name);

    /// How often names were called that had no receiver, since the start or the last clear(); to
    /// look for typing mistakes.
    using LostCalls = std::map<std::string, std::size_t, std::less<>>;
    static LostCalls getLostCalls();

    /// Marks the scene as modified (other than 0) or saved (0).
    static void setModified(int modified);
    /// What was set last; 0 at the start.
    static int getModified();

    /// Whether the application presents, so that editing tools hold back; false at the start.
    static bool getPresenterMode();
    static void setPresenterMode(bool presenterMode);

    /// Removes all receivers, forgets the lost calls, and puts the switches back to the start.
    static void clear();
};
