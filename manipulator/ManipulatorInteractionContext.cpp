// SPDX-License-Identifier: MIT
#include "manipulator/ManipulatorInteractionContext.h"

#include "manipulator/Manipulator.h"

#include <nbInteraction/InteractionEvent.h>
#include <nbInteraction/Picker.h>

#include <algorithm>
#include <vector>

namespace nbec::manipulator {

using interaction::InteractionEvent;
using interaction::InteractionManager;
using interaction::MultimodeInteractionContext;

namespace {

/// All that live. Never destroyed, as contexts may be static objects themselves.
std::vector<ManipulatorInteractionContext*>& liveContexts()
{
    static auto* const all = new std::vector<ManipulatorInteractionContext*>;
    return *all;
}

}  // namespace

Manipulator::~Manipulator()
{
    for (ManipulatorInteractionContext* const context : liveContexts()) {
        if (context->manipulator == this) {
            context->manipulator = nullptr;
        }
    }
}

ManipulatorInteractionContext::ManipulatorInteractionContext(
    interaction::PreferredPosition position)
    : MultimodeInteractionContext(position)
{
    liveContexts().push_back(this);
}

ManipulatorInteractionContext::ManipulatorInteractionContext(
    const ManipulatorInteractionContext& other)
    : MultimodeInteractionContext(other)
    , manipulator(other.manipulator)
    , picker(other.picker)
    , toolName(other.toolName)
    , pointerPosition(other.pointerPosition)
{
    liveContexts().push_back(this);
}

ManipulatorInteractionContext::~ManipulatorInteractionContext()
{
    leaveManager();
    auto& all = liveContexts();
    all.erase(std::find(all.begin(), all.end(), this));
}

void ManipulatorInteractionContext::enabled(InteractionManager* manager)
{
    MultimodeInteractionContext::enabled(manager);
    if (manipulator != nullptr && isActive()) {
        manipulator->activate(this);
    }
}

void ManipulatorInteractionContext::disabled(InteractionManager* manager)
{
    MultimodeInteractionContext::disabled(manager);
    if (manipulator != nullptr && isActive()) {
        manipulator->deactivate(this);
    }
}

void ManipulatorInteractionContext::contextAdded(InteractionManager* manager)
{
    MultimodeInteractionContext::contextAdded(manager);
    if (manipulator != nullptr) {
        manipulator->activate(this);
    }
}

void ManipulatorInteractionContext::contextRemoved(InteractionManager* manager)
{
    if (manipulator != nullptr) {
        manipulator->deactivate(this);
    }
    MultimodeInteractionContext::contextRemoved(manager);
}

void ManipulatorInteractionContext::pointerMoved(const osg::Pnt2f& position)
{
    pointerPosition = position;
    if (manipulator != nullptr) {
        manipulator->setMousePosition(position);
    }
    MultimodeInteractionContext::pointerMoved(position);
}

bool ManipulatorInteractionContext::triggerEvent(InteractionManager* manager,
                                                 const InteractionEvent& event)
{
    const std::string& tool = event.getTool();
    const std::string& name = event.getEvent();
    // The manipulator receives a copy: what it does in return may end the event.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const std::string hint = event.getHint();
    if (manipulator == nullptr) {
        return MultimodeInteractionContext::triggerEvent(manager, event);
    }
    if (tool == toolName && (hint == "select" || hint == "toggle")) {
        if (name == "start") {
            return manipulator->startManipulator(this, hint);
        }
        if (name == "stop") {
            return manipulator->stopManipulator(this, hint);
        }
        if (name == "process") {
            return manipulator->processManipulator(this, hint);
        }
        if (name == "hover") {
            return manipulator->hover(this, hint);
        }
        if (name != "stopHover") {
            return false;
        }
        manipulator->reset(this, hint);
    } else if (tool == toolName && hint == "selectThrough" && name == "start") {
        manipulator->reset(this, hint);
    } else if (tool == "mode" && hint == "tool" && name == "start") {
        manipulator->hover(this, hint);
    } else if (tool == "mode" && hint == "tool" && name == "stop") {
        manipulator->reset(this, hint);
    }
    return MultimodeInteractionContext::triggerEvent(manager, event);
}

bool ManipulatorInteractionContext::selectMode(const std::string& mode)
{
    MultimodeInteractionContext::selectMode(mode);
    return manipulator != nullptr && manipulator->setManipulatorMode(mode);
}

void ManipulatorInteractionContext::setManipulator(Manipulator* current)
{
    manipulator = current;
    handOverCollider();
}

void ManipulatorInteractionContext::setPicker(interaction::Picker* current)
{
    if (picker != nullptr) {
        picker->setPickNode(osg::NullFC);
    }
    picker = current;
    handOverCollider();
}

void ManipulatorInteractionContext::handOverCollider()
{
    if (picker != nullptr && manipulator != nullptr) {
        picker->setPickNode(manipulator->getCollider());
    }
}

}  // namespace nbec::manipulator
