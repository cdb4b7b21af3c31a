// SPDX-License-Identifier: MIT
#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionManager.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbUtils/nbGuard.h>

#include <QtCore/QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <utility>

namespace nbec::interaction {

InteractionManager::~InteractionManager()
{
    closing = true;
    endDrag();
    while (!entries.empty()) {
        removeContext(entries.back().context);
    }
}

// == Contexts

bool InteractionManager::addContext(InteractionContext* context)
{
    if (!context || closing || findEntry(context) != entries.end()) {
        return false;
    }
    InteractionManager* const former = context->getInteractionManager();
    if (former && former != this) {
        former->removeContext(context);
    }
    const Entry entry { context, context->getPreferredPosition(), ++lastSerial, 0 };
    entries.push_back(entry);
    sortEntries();
    notify(entry.serial, [this](InteractionContext& added) { added.contextAdded(this); });
    tellMode(entry.serial);
    return true;
}

bool InteractionManager::removeContext(InteractionContext* context)
{
    const auto found = findEntry(context);
    if (context == nullptr || found == entries.end()) {
        return false;
    }
    const std::uint64_t serial = found->serial;
    if (dragOwner == serial) {
        breakDrag(DragEnd::Interrupted);
    }
    // The stop event may have removed or destroyed the context, or changed the list.
    if (contextOf(serial) != context) {
        return true;
    }
    entries.erase(findEntry(context));
    if (hoverOwner == serial) {
        hoverOwner = 0;
    }
    nbGuarded("InteractionManager: a removed context",
              [this, context] { context->contextRemoved(this); });
    return true;
}

void InteractionManager::raise(InteractionContext* context)
{
    const auto found = findEntry(context);
    if (found == entries.end()) {
        return;
    }
    const std::uint64_t serial = found->serial;
    const bool wasRaised = found->raiseNumber != 0;
    found->raiseNumber = ++lastRaiseNumber;
    sortEntries();
    if (!wasRaised) {
        notify(serial, [this](InteractionContext& raised) { raised.contextRaised(this); });
    }
}

void InteractionManager::lower(InteractionContext* context)
{
    const auto found = findEntry(context);
    if (found == entries.end() || found->raiseNumber == 0) {
        return;
    }
    const std::uint64_t serial = found->serial;
    found->raiseNumber = 0;
    sortEntries();
    notify(serial, [this](InteractionContext& lowered) { lowered.contextLowered(this); });
}

void InteractionManager::setEnabled(InteractionContext* context, bool on)
{
    const auto found = findEntry(context);
    if (found == entries.end() || context->isEnabled() == on) {
        return;
    }
    const std::uint64_t serial = found->serial;
    if (on) {
        notify(serial, [this](InteractionContext& target) { target.enabled(this); });
        tellMode(serial);
        return;
    }
    if (dragOwner == serial) {
        breakDrag(DragEnd::Interrupted);
    }
    notify(serial, [this](InteractionContext& target) { target.disabled(this); });
}

// == Input

void InteractionManager::pointerMoved(const osg::Pnt2f& positionPx)
{
    if (!std::isfinite(positionPx.x()) || !std::isfinite(positionPx.y())) {
        return;
    }
    forEachEnabled([&positionPx](InteractionContext& context) {
        context.pointerMoved(positionPx);
        return true;
    });
}

void InteractionManager::cameraMoved(const osg::Matrix& worldFromCamera)
{
    forEachEnabled([&worldFromCamera](InteractionContext& context) {
        context.cameraMoved(worldFromCamera);
        return true;
    });
}

bool InteractionManager::triggerEvent(const InteractionEvent& event)
{
    const std::string& name = event.getEvent();
    if (event.getTool() == names::kModeTool) {
        if (name == names::kStart) {
            mode = event.getHint();
        } else if (name == names::kStop && mode == event.getHint()) {
            mode = names::kNoMode;
        }
        return broadcast(event);
    }
    if (name == names::kStart) {
        return startDrag(event);
    }
    if (name == names::kProcess) {
        return continueDrag(event);
    }
    if (name == names::kStop) {
        return finishDrag(event, DragEnd::Released);
    }
    if (name == names::kHover) {
        return hover(event);
    }
    if (name == names::kStopHover) {
        hoverOwner = 0;
        return broadcast(event);
    }
    return offer(event) != 0;
}

bool InteractionManager::selectMode(const std::string& newMode)
{
    mode = newMode;
    // A copy, as a context may select another mode meanwhile.
    const std::string told = newMode;
    return forEachEnabled(
        [&told](InteractionContext& context) { return context.selectMode(told); });
}

// == Drags

InteractionContext* InteractionManager::getDragContext() const
{
    return contextOf(dragOwner);
}

void InteractionManager::cancelDrag()
{
    const bool editsMayExist = dragOwner != 0 && dragTool != names::kCamera;
    breakDrag(DragEnd::Cancelled);
    if (editsMayExist && cancelHandler) {
        // A copy, as the handler may replace itself.
        const std::function<void()> handler = cancelHandler;
        nbGuarded("InteractionManager: the cancel handler", handler);
    }
}

void InteractionManager::setFineMotion(bool on)
{
    if (dragKeys.fine && getDragContext() != nullptr) {
        dragKeys.fine(on);
    }
}

bool InteractionManager::startDrag(const InteractionEvent& event)
{
    // The input lost the end of the former drag.
    breakDrag(DragEnd::Interrupted);
    const std::uint64_t number = ++dragNumber;
    dragState = DragState::Running;
    dragTool = event.getTool();
    dragHint = event.getHint();
    // Before the start is delivered, as that may already edit.
    openUndoGroup();
    const std::uint64_t taker = offer(event);
    if (taker == 0 && dragNumber == number) {
        closeUndoGroup(DragEnd::Released);
    }
    if (taker != 0 && isDragging() && dragNumber == number) {
        // Who takes a drag and leaves at once leaves nobody to go on with it.
        dragOwner = contextOf(taker) ? taker : 0;
        dragState = dragOwner != 0 ? DragState::Running : DragState::Over;
    }
    return taker != 0;
}

bool InteractionManager::continueDrag(const InteractionEvent& event)
{
    if (dragState == DragState::Over) {
        return false;
    }
    return dragOwner != 0 ? offerTo(dragOwner, event) : offer(event) != 0;
}

bool InteractionManager::finishDrag(const InteractionEvent& event, DragEnd end)
{
    const DragState formerState = std::exchange(dragState, DragState::None);
    const std::uint64_t owner = std::exchange(dragOwner, 0);
    const std::uint64_t number = dragNumber;
    if (formerState == DragState::Over) {
        return false;
    }
    const QScopedValueRollback<DragEnd> reason(dragEnd, end);
    const bool answer = owner != 0 ? offerTo(owner, event) : offer(event) != 0;
    if (dragNumber == number) {
        closeUndoGroup(end);
    }
    return answer;
}

void InteractionManager::openUndoGroup()
{
    closeUndoGroup(DragEnd::Released);
    nbUndoService* const undo = nbUndoService::the();
    if (dragTool != names::kCamera && !undo->isGroupOpen()) {
        undo->beginGroup();
        undoGroup = undo->getGroupChangeCount();
    }
}

void InteractionManager::closeUndoGroup(DragEnd end)
{
    nbUndoService* const undo = nbUndoService::the();
    const std::uint64_t group = std::exchange(undoGroup, 0);
    // Whoever closed it or opened another one instead has taken care of it.
    if (group == 0 || group != undo->getGroupChangeCount()) {
        return;
    }
    if (end == DragEnd::Cancelled) {
        undo->cancelGroup();
    } else {
        undo->endGroup();
    }
}

void InteractionManager::breakDrag(DragEnd end)
{
    if (!isDragging()) {
        return;
    }
    finishDrag(InteractionEvent(names::kStop, dragTool, dragHint), end);
    if (dragState == DragState::None) {
        dragState = DragState::Over;
    }
}

// == Delivery

bool InteractionManager::hover(const InteractionEvent& event)
{
    const std::uint64_t taker = offer(event);
    const std::uint64_t former = std::exchange(hoverOwner, taker);
    const auto position = [this](std::uint64_t serial) {
        return std::find_if(entries.begin(), entries.end(),
                            [serial](const Entry& entry) { return entry.serial == serial; });
    };
    // One that stands before the taker was asked and knows by itself that it is no longer hovered.
    if (former != 0 && former != taker && taker != 0 && position(taker) < position(former)) {
        offerTo(former, InteractionEvent(names::kStopHover, event.getTool(), event.getHint()));
        // What the former one gives back by that, such as preselection, is now the taker's to take.
        offerTo(taker, event);
    }
    return taker != 0;
}

bool InteractionManager::broadcast(const InteractionEvent& event)
{
    return forEachEnabled(
        [this, &event](InteractionContext& context) { return context.triggerEvent(this, event); });
}

std::uint64_t InteractionManager::offer(const InteractionEvent& event)
{
    for (const std::uint64_t serial : serials()) {
        if (offerTo(serial, event)) {
            return serial;
        }
    }
    return 0;
}

bool InteractionManager::offerTo(std::uint64_t serial, const InteractionEvent& event)
{
    InteractionContext* const context = contextOf(serial);
    return context && nbGuarded("InteractionManager: a context", [this, context, &event] {
               return context->isEnabled() && context->triggerEvent(this, event);
           });
}

template <class Call>
bool InteractionManager::forEachEnabled(Call call)
{
    bool answer = false;
    for (const std::uint64_t serial : serials()) {
        if (InteractionContext* const context = contextOf(serial)) {
            const bool handled = nbGuarded("InteractionManager: a context", [context, &call] {
                return context->isEnabled() && call(*context);
            });
            answer = answer || handled;
        }
    }
    return answer;
}

template <class Call>
void InteractionManager::notify(std::uint64_t serial, Call call)
{
    if (InteractionContext* const context = contextOf(serial)) {
        nbGuarded("InteractionManager: a context", [context, &call] { call(*context); });
    }
}

void InteractionManager::tellMode(std::uint64_t serial)
{
    notify(serial, [told = mode](InteractionContext& context) {
        if (context.isEnabled()) {
            context.selectMode(told);
        }
    });
}

// == List

std::vector<InteractionManager::Entry>::iterator
InteractionManager::findEntry(const InteractionContext* context)
{
    return std::find_if(entries.begin(), entries.end(),
                        [context](const Entry& entry) { return entry.context == context; });
}

InteractionContext* InteractionManager::contextOf(std::uint64_t serial) const
{
    const auto found = std::find_if(entries.begin(), entries.end(), [serial](const Entry& entry) {
        return entry.serial == serial;
    });
    return found != entries.end() ? found->context : nullptr;
}

std::vector<std::uint64_t> InteractionManager::serials() const
{
    std::vector<std::uint64_t> numbers;
    numbers.reserve(entries.size());
    for (const Entry& entry : entries) {
        numbers.push_back(entry.serial);
    }
    return numbers;
}

void InteractionManager::sortEntries()
{
    std::sort(entries.begin(), entries.end(), [](const Entry& first, const Entry& second) {
        if (first.raiseNumber != second.raiseNumber) {
            return first.raiseNumber > second.raiseNumber;
        }
        if (first.position != second.position) {
            return first.position > second.position;
        }
        return first.serial > second.serial;
    });
}

}  // namespace nbec::interaction
