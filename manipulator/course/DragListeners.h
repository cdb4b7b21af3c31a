// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragParameters.h"
#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGNode.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nbec::manipulator {

class Manipulator;

/// What a listener is told of a drag.
struct DragEvent
{
    enum class Phase
    {
        Begin,  ///< the start is captured, nothing has moved
        Change,  ///< parameters have been applied
        Commit,  ///< it is over, and what it did stays
        Cancel  ///< it is over, and the start was restored
    };

    Phase phase = Phase::Begin;
    Manipulator* manipulator = nullptr;  ///< null when it is just being destroyed
    int handle = 0;  ///< number as in the class's enumeration of handles
    std::string handleName;  ///< as its nodes are called, such as "xaShape"
    HandleAction action;
    DragParameters parameters;  ///< applied last; at the begin those of the start
    std::vector<osg::NodePtr> targets;  ///< what is edited, as far as it is nodes; no count is held
};

using DragListener = std::function<void(const DragEvent&)>;

/// Who is told of the drags of one manipulator. Each listener hears one begin and one end of every
/// drag; one that comes in the middle of a drag hears of the next one first.
///
/// Events are noted when they happen and delivered when the manipulator has done its work, so that
/// a listener may do anything: take listeners away, itself included, end the drag, and destroy the
/// manipulator. What throws is logged. Belongs to the user-interface thread.
class NB_MANIPULATOR_API DragListeners
{
public:
    DragListeners();

    /// A copied manipulator has listeners of its own, none at first.
    DragListeners(const DragListeners&)
        : DragListeners()
    { }

    /// Keeps its own.
    DragListeners& operator=(const DragListeners&) { return *this; }

    /// Delivers what is noted; the manipulator is null in it.
    ~DragListeners();

    /// @return number to take it away by, not 0
    int add(DragListener listener);
    /// Unknown numbers: nothing.
    void remove(int number);

    bool isEmpty() const;

    /// Has an event delivered, if there is who listens.
    void note(const DragEvent& event);
    /// Delivers what is noted. The listeners may be gone afterwards, with all that holds them.
    void deliver();

private:
    struct State;
    std::shared_ptr<State> state;
};

/// Has listeners told of what an event did, the last thing before its answer.
class ToldLast
{
public:
    explicit ToldLast(DragListeners& ofEvent)
        : listeners(ofEvent)
    { }

    ToldLast(const ToldLast&) = delete;
    ToldLast& operator=(const ToldLast&) = delete;

    ~ToldLast() { listeners.deliver(); }

private:
    DragListeners& listeners;
};

}  // namespace nbec::manipulator
