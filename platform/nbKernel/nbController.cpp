// SPDX-License-Identifier: MIT
#include <nbKernel/nbController.h>
#include <nbUtils/nbLog.h>

#include <exception>
#include <memory>
#include <utility>

namespace {

struct ControllerState
{
    /// Shared, so that a receiver that is removed while it runs lives to its end. Transparent
    /// comparison: names are looked up without making a string of them.
    std::map<std::string, std::shared_ptr<const nbController::Receiver>, std::less<>> receivers;
    nbController::LostCalls lostCalls;
    int modified = 0;
    bool presenterMode = false;
};

/// Made on first use and never destroyed: static objects of other sources may use it both ways.
ControllerState& state()
{
    static ControllerState* const theState = new ControllerState;
    return *theState;
}

void countLostCall(std::string_view name)
{
    const auto found = state().lostCalls.find(name);
    if (found != state().lostCalls.end()) {
        ++found->second;
    } else {
        state().lostCalls.emplace(name, 1);
    }
}

bool deliver(std::string_view name, const nbController::Receiver& receiver, nbMessage& msg)
{
    try {
        receiver(msg);
        return true;
    } catch (const std::exception& error) {
        nbLog::error("nbController: receiver '" + std::string(name) + "' failed: " + error.what());
    } catch (...) {
        nbLog::error("nbController: receiver '" + std::string(name) +
                     "' failed with an unknown exception");
    }
    return false;
}

}  // namespace

bool nbController::call(const char* name, nbMessage& msg, int /*flags*/)
{
    const std::string_view key = name == nullptr ? std::string_view() : std::string_view(name);
    const auto found = state().receivers.find(key);
    if (found == state().receivers.end()) {
        countLostCall(key);
        return false;
    }
    const std::shared_ptr<const Receiver> receiver = found->second;
    return deliver(key, *receiver, msg);
}

bool nbController::call(const char* name, int flags)
{
    nbMessage msg;
    return call(name, msg, flags);
}

void nbController::addReceiver(const std::string& name, Receiver receiver)
{
    if (receiver) {
        state().receivers[name] = std::make_shared<const Receiver>(std::move(receiver));
    } else {
        removeReceiver(name);
    }
}

void nbController::removeReceiver(const std::string& name)
{
    state().receivers.erase(name);
}

bool nbController::hasReceiver(std::string_view name)
{
    return state().receivers.find(name) != state().receivers.end();
}

nbController::LostCalls nbController::getLostCalls()
{
    return state().lostCalls;
}

void nbController::setModified(int modified)
{
    state().modified = modified;
}

int nbController::getModified()
{
    return state().modified;
}

bool nbController::getPresenterMode()
{
    return state().presenterMode;
}

void nbController::setPresenterMode(bool presenterMode)
{
    state().presenterMode = presenterMode;
}

void nbController::clear()
{
    // Out of the registry first: a receiver's destructor may come back here.
    const ControllerState old = std::exchange(state(), ControllerState());
}
