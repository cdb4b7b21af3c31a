// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/MultimodeInteractionContext.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace nbtest {

/// What was called, in order, one line per call.
using CallLog = std::vector<std::string>;

/// Context that writes its calls as "name call" and takes the events that it is told to take.
class RecordingContext : public nbec::interaction::MultimodeInteractionContext
{
public:
    RecordingContext(CallLog& calls, const std::string& contextName, int position,
                     const std::set<std::string>& takenEvents = {})
        : MultimodeInteractionContext(nbec::interaction::PreferredPosition(position))
        , taken(takenEvents)
        , log(calls)
        , name(contextName)
    { }

    ~RecordingContext() override { leaveManager(); }

    void enabled(nbec::interaction::InteractionManager* manager) override
    {
        MultimodeInteractionContext::enabled(manager);
        record("enabled");
    }

    void disabled(nbec::interaction::InteractionManager* manager) override
    {
        MultimodeInteractionContext::disabled(manager);
        record("disabled");
    }

    void contextAdded(nbec::interaction::InteractionManager* manager) override
    {
        MultimodeInteractionContext::contextAdded(manager);
        record("added");
    }

    void contextRemoved(nbec::interaction::InteractionManager* manager) override
    {
        MultimodeInteractionContext::contextRemoved(manager);
        record("removed");
    }

    void pointerMoved(const osg::Pnt2f& positionPx) override
    {
        record("pointer " + std::to_string(int(positionPx[0])) + " " +
               std::to_string(int(positionPx[1])));
    }

    bool triggerEvent(nbec::interaction::InteractionManager* manager,
                      const nbec::interaction::InteractionEvent& event) override
    {
        record(event.getEvent() + " " + event.getTool() + "/" + event.getHint());
        MultimodeInteractionContext::triggerEvent(manager, event);
        const bool takes = taken.count(event.getEvent()) != 0;
        if (onEvent) {
            // A copy, as the reaction may destroy this context.
            const auto reaction = onEvent;
            reaction(event);
        }
        return takes;
    }

    bool selectMode(const std::string& mode) override
    {
        record("mode " + mode);
        return MultimodeInteractionContext::selectMode(mode);
    }

    std::set<std::string> taken;
    std::function<void(const nbec::interaction::InteractionEvent&)> onEvent;

private:
    void record(const std::string& call) { log.push_back(name + " " + call); }

    CallLog& log;
    std::string name;
};

/// Takes the log's lines out.
inline CallLog takeLog(CallLog& log)
{
    CallLog lines;
    lines.swap(log);
    return lines;
}

}  // namespace nbtest
