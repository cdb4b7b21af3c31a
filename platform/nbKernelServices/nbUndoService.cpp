// SPDX-License-Identifier: MIT
#include "nbUndoService.h"

#include <nbKernelServices/detail/ConversionRecord.h>
#include <nbKernelServices/detail/OpenStep.h>
#include <nbOpenSGUtils/nbEditRecorder.h>

#include <QUndoStack>
#include <QtCore/QPointer>
#include <QtCore/QScopedValueRollback>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/// Whether the service itself is editing, and how often it has restored a state. Those who are told
/// of its edits may edit in turn: that is not recorded and ends no step.
struct RestoreState
{
    bool isActive = false;
    osg::UInt64 count = 0;
};

/// One step on the stack. Its edits have been made already when it gets there.
class StepCommand : public QUndoCommand
{
public:
    StepCommand(const QString& title, StepRecords&& done, RestoreState& state)
        : QUndoCommand(title)
        , records(std::move(done))
        , restoreState(state)
    { }

    void undo() override
    {
        const QScopedValueRollback<bool> restoring(restoreState.isActive, true);
        ++restoreState.count;
        undoAll(records);
        isDone = false;
    }

    void redo() override
    {
        if (isDone) {
            return;
        }
        const QScopedValueRollback<bool> restoring(restoreState.isActive, true);
        ++restoreState.count;
        redoAll(records);
        isDone = true;
    }

private:
    StepRecords records;
    RestoreState& restoreState;
    bool isDone = true;
};

/// How a group ends.
enum class GroupEnd
{
    None,
    Keep,
    Cancel
};

}  // namespace

struct nbUndoService::Internals final : public nbEditRecorder
{
    // Outlives the stack, whose steps refer to it.
    RestoreState restoreState;
    QUndoStack ownStack;
    QPointer<QUndoStack> hostStack;
    OpenStep step;
    /// Records that are no step alone, for the next step.
    StepRecords waiting;
    int openScopes = 0;
    int mutedScopes = 0;
    bool isGroupOpen = false;
    osg::UInt64 groupChanges = 0;
    /// Asked for while a scope is open.
    GroupEnd pendingEnd = GroupEnd::None;
    /// Asked for while the service itself was editing.
    bool isClearPending = false;

    QUndoStack& stack() { return hostStack.isNull() ? ownStack : *hostStack; }

    bool isIdle() const { return openScopes == 0 && !isGroupOpen && !restoreState.isActive; }

    bool isRecording() const
    {
        return (openScopes > 0 || isGroupOpen) && mutedScopes == 0 && !restoreState.isActive;
    }

    void transformChanges(const osg::Transform3DPtr& core) override
    {
        if (isRecording()) {
            step.getTransforms().note(core);
        }
    }

    void nodeConverted(const nbNodeConversion& conversion) override
    {
        if (mutedScopes > 0 || restoreState.isActive) {
            return;
        }
        auto record = std::make_unique<ConversionRecord>(conversion);
        if (isRecording()) {
            step.add(std::move(record));
        } else {
            waiting.push_back(std::move(record));
        }
    }

    void finishStep();
    void finishGroup(GroupEnd end);
    void clear();
    void clearIfPending();
};

void nbUndoService::Internals::finishStep()
{
    StepRecords records;
    {
        // What was led back but for rounding is put right now.
        const QScopedValueRollback<bool> restoring(restoreState.isActive, true);
        records = step.close();
    }
    const bool isStep = std::any_of(records.begin(), records.end(),
                                    [](const auto& record) { return record->isStepAlone(); });
    std::move(records.begin(), records.end(), std::back_inserter(waiting));
    const QString title = step.getTitle();
    // First, as who hears of the stack may begin another step.
    step.clear();
    if (isStep) {
        stack().push(new StepCommand(title, std::exchange(waiting, {}), restoreState));
    }
    clearIfPending();
}

void nbUndoService::Internals::finishGroup(GroupEnd end)
{
    if (!isGroupOpen || restoreState.isActive) {
        return;
    }
    if (openScopes > 0) {
        pendingEnd = end;
        return;
    }
    isGroupOpen = false;
    ++groupChanges;
    pendingEnd = GroupEnd::None;
    if (end == GroupEnd::Keep) {
        finishStep();
        return;
    }
    if (!step.isEmpty()) {
        const QScopedValueRollback<bool> restoring(restoreState.isActive, true);
        ++restoreState.count;
        step.cancel();
    }
    step.clear();
    clearIfPending();
}

void nbUndoService::Internals::clear()
{
    isClearPending = false;
    isGroupOpen = false;
    ++groupChanges;
    pendingEnd = GroupEnd::None;
    step.clear();
    waiting.clear();
    ownStack.clear();
}

void nbUndoService::Internals::clearIfPending()
{
    if (isClearPending) {
        clear();
    }
}

nbUndoService* nbUndoService::the()
{
    static nbUndoService service;
    return &service;
}

nbUndoService::nbUndoService()
    : internals(std::make_unique<Internals>())
{
    nbEditRecorder::set(internals.get());
}

nbUndoService::~nbUndoService()
{
    nbEditRecorder::set(nullptr);
}

// == The stack

QUndoStack* nbUndoService::getStack()
{
    return &internals->stack();
}

bool nbUndoService::setStack(QUndoStack* stack)
{
    if (!internals->isIdle()) {
        return false;
    }
    internals->hostStack = stack;
    return true;
}

bool nbUndoService::undo()
{
    if (!internals->isIdle() || !internals->stack().canUndo()) {
        return false;
    }
    internals->stack().undo();
    internals->clearIfPending();
    return true;
}

bool nbUndoService::redo()
{
    if (!internals->isIdle() || !internals->stack().canRedo()) {
        return false;
    }
    internals->stack().redo();
    internals->clearIfPending();
    return true;
}

void nbUndoService::clear()
{
    if (internals->restoreState.isActive) {
        internals->isClearPending = true;
    } else {
        internals->clear();
    }
}

osg::UInt64 nbUndoService::getRestoreCount() const
{
    return internals->restoreState.count;
}

// == Groups

void nbUndoService::beginGroup(const QString& title)
{
    if (internals->restoreState.isActive) {
        return;
    }
    internals->finishGroup(GroupEnd::Keep);
    internals->isGroupOpen = true;
    ++internals->groupChanges;
    internals->pendingEnd = GroupEnd::None;
    internals->step.offerTitle(title);
}

void nbUndoService::endGroup()
{
    internals->finishGroup(GroupEnd::Keep);
}

void nbUndoService::cancelGroup()
{
    internals->finishGroup(GroupEnd::Cancel);
}

bool nbUndoService::isGroupOpen() const
{
    return internals->isGroupOpen;
}

osg::UInt64 nbUndoService::getGroupChangeCount() const
{
    return internals->groupChanges;
}

// == Recording

bool nbUndoService::isRecording() const
{
    return internals->isRecording();
}

osg::UInt64 nbUndoService::getOpenStep() const
{
    const bool isOpen = internals->openScopes > 0 || internals->isGroupOpen;
    return isOpen && !internals->restoreState.isActive ? internals->step.getNumber() : 0;
}

void nbUndoService::record(std::unique_ptr<nbUndoRecord> entry)
{
    if (entry != nullptr && internals->isRecording()) {
        internals->step.add(std::move(entry));
    }
}

bool nbUndoService::isNewInStep(osg::UInt32 containerId)
{
    return internals->isRecording() && internals->step.meet(containerId);
}

void nbUndoService::noteTransform(const osg::Transform3DPtr& core)
{
    internals->transformChanges(core);
}

nbTransformTable* nbUndoService::getOpenTransforms()
{
    return internals->isRecording() ? &internals->step.getTransforms() : nullptr;
}

void nbUndoService::openScope(bool isRecorded)
{
    ++internals->openScopes;
    if (!isRecorded) {
        ++internals->mutedScopes;
    }
    internals->step.getTransforms().startPass();
}

void nbUndoService::offerTitle(const QString& title)
{
    internals->step.offerTitle(title);
}

void nbUndoService::offerTitle(const char* title)
{
    internals->step.offerTitle(title);
}

void nbUndoService::closeScope(bool wasRecorded)
{
    if (!wasRecorded) {
        --internals->mutedScopes;
    }
    --internals->openScopes;
    if (internals->openScopes > 0 || internals->restoreState.isActive) {
        return;
    }
    if (!internals->isGroupOpen) {
        internals->finishStep();
    } else if (internals->pendingEnd != GroupEnd::None) {
        internals->finishGroup(internals->pendingEnd);
    }
}
