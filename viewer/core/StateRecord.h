// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbUndoRecord.h>
#include <nbKernelServices/nbUndoService.h>

#include <OpenSG/OSGRefPtr.h>

#include <memory>
#include <utility>

namespace viewer {

/// An edit of one container whose state before and after is a value.
/// @tparam Traits  Pointer (of the container), State (comparable with ==), read(pointer) and
/// write(pointer, state)
template <class Traits>
class StateRecord : public nbUndoRecord
{
public:
    using Pointer = typename Traits::Pointer;
    using State = typename Traits::State;

    /// To be made before the edit. @param edited  kept alive by this
    explicit StateRecord(const Pointer& edited)
        : target(edited)
        , before(Traits::read(edited))
    { }

    bool close() override
    {
        after = Traits::read(target.get());
        return !(after == before);
    }

    void undo() override { Traits::write(target.get(), before); }

    void redo() override { Traits::write(target.get(), after); }

private:
    osg::RefPtr<Pointer> target;
    State before;
    State after {};
};

/// Records the state of a container in the open undo step, before an edit of it.
template <class Traits>
void recordState(const typename Traits::Pointer& target)
{
    nbUndoService::the()->record(std::make_unique<StateRecord<Traits>>(target));
}

}  // namespace viewer
