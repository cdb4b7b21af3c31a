// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbUndoRecord.h>
#include <nbOpenSGExt/nbContainerId.h>

#include <utility>

/// Undo record of the state of a container, which it knows by id; made before the edit.
/// @tparam State    has now(pointer), the same state as the container has it by now,
///                  applyTo(pointer), which writes it back, and isSame(State)
/// @tparam Pointer  of the container
template <class State, class Pointer>
class nbStateRecord : public nbUndoRecord
{
public:
    /// @param edited  not null
    /// @param start   its state before the edit
    nbStateRecord(const Pointer& edited, State start)
        : id(edited.getFieldContainerId())
        , before(std::move(start))
        , after(before)
    { }

    bool close() override
    {
        const auto container = resolveContainer<Pointer>(id);
        if (container != osg::NullFC) {
            after = before.now(container);
        }
        return !after.isSame(before);
    }

    void undo() override { restore(before); }

    void redo() override { restore(after); }

private:
    void restore(const State& state) const
    {
        if (const auto container = resolveContainer<Pointer>(id); container != osg::NullFC) {
            state.applyTo(container);
        }
    }

    osg::UInt32 id;
    State before;
    State after;
};
