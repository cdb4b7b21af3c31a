// SPDX-License-Identifier: MIT
#include "manipulator/ManipulatorInteractionContext.h"

#include "manipulator/AbstractManipulator.h"

#include <nbInteraction/InteractionEvent.h>
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>

#include <algorithm>
#include <utility>
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

/// The manipulator of a context as one that may have drags; null for another one.
AbstractManipulator* dragged(const ManipulatorInteractionContext& context)
{
    return dynamic_cast<AbstractManipulator*>(context.getManipulator());
}

}  // namespace

Manipulator::~Manipulator()
{
    ManipulatorInteractionContext::forget(this);
}

void ManipulatorInteractionContext::forget(const Manipulator* gone)
{
    for (ManipulatorInteractionContext* const context : liveContexts()) {
        if (context->manipulator == gone) {
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
            const bool isCancelled =
                manager != nullptr && manager->getDragEnd() == interaction::DragEnd::Cancelled;
            AbstractManipulator* const taken = isCancelled ? dragged(*this) : nullptr;
            return (taken != nullptr && taken->cancelDrag()) ||
                manipulator->stopManipulator(this, hint);
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
    } else if (tool == "mode" && hint == "tool" && name == "start") {
        manipulator->hover(this, hint);
    } else if ((tool == "mode" && hint == "tool" && name == "stop") ||
               (tool == toolName && hint == "selectThrough" && name == "start")) {
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

void ManipulatorInteractionContext::connectDragKeys(InteractionManager& manager)
{
    const auto current = [&manager]() -> AbstractManipulator* {
        for (const ManipulatorInteractionContext* const context : liveContexts()) {
            if (context == manager.getDragContext()) {
                return dragged(*context);
            }
        }
        return nullptr;
    };
    interaction::DragKeys keys;
    keys.typed = [current](QChar key) {
        constexpr ushort kEscape = 27;
        AbstractManipulator* const held = current();
        // With nothing typed the manager takes the drag back, with what the host has recorded.
        const bool isForManager = key == QChar(kEscape) && held != nullptr && !held->isTyping();
        return held != nullptr && !isForManager && held->typeKey(key);
    };
    keys.fine = [current](bool on) {
        if (AbstractManipulator* const held = current(); held != nullptr) {
            held->setFineMotion(on);
        }
    };
    manager.setDragKeys(std::move(keys));
}

}  // namespace nbec::manipulator
