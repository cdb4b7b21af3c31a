// SPDX-License-Identifier: MIT
#include "manipulator/course/DragListeners.h"

#include <nbUtils/nbGuard.h>

#include <deque>
#include <map>
#include <utility>

namespace nbec::manipulator {

namespace {

struct Entry
{
    DragListener listener;
    bool hasBegun = false;  ///< has heard of the drag that runs
};

/// Whether a listener is to hear of an event, which it then has.
bool takes(Entry& entry, DragEvent::Phase phase)
{
    const bool isBegin = phase == DragEvent::Phase::Begin;
    const bool isHeard = isBegin || entry.hasBegun;
    entry.hasBegun = isBegin || (entry.hasBegun && phase == DragEvent::Phase::Change);
    return isHeard;
}

}  // namespace

struct DragListeners::State
{
    std::map<int, Entry> entries;  ///< by their numbers, so as they came
    std::deque<DragEvent> noted;
    DragEvent current;  ///< which is being delivered
    int lastNumber = 0;
    bool isDelivering = false;

    void deliverTo(int number)
    {
        const auto entry = entries.find(number);
        if (entry != entries.end() && takes(entry->second, current.phase)) {
            const DragListener listener = entry->second.listener;  // which may take itself away
            nbGuarded("a listener of drags", [&] { listener(current); });
        }
    }

    void deliver()
    {
        isDelivering = true;
        while (!noted.empty()) {
            current = std::move(noted.front());
            noted.pop_front();
            std::vector<int> numbers;
            for (const auto& [number, entry] : entries) {
                numbers.push_back(number);
            }
            for (const int number : numbers) {
                deliverTo(number);
            }
        }
        isDelivering = false;
    }
};

DragListeners::DragListeners()
    : state(std::make_shared<State>())
{ }

DragListeners::~DragListeners()
{
    state->current.manipulator = nullptr;
    for (DragEvent& each : state->noted) {
        each.manipulator = nullptr;
    }
    deliver();
}

int DragListeners::add(DragListener listener)
{
    state->entries[++state->lastNumber].listener = std::move(listener);
    return state->lastNumber;
}

void DragListeners::remove(int number)
{
    state->entries.erase(number);
}

bool DragListeners::isEmpty() const
{
    return state->entries.empty();
}

void DragListeners::note(const DragEvent& event)
{
    if (!isEmpty()) {
        state->noted.push_back(event);
    }
}

void DragListeners::deliver()
{
    if (!state->noted.empty() && !state->isDelivering) {
        const std::shared_ptr<State> kept = state;  // beyond the end of this
        kept->deliver();
    }
}

}  // namespace nbec::manipulator
