// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/InteractionManager.h>
#include <nbKernelServices/nbUndoService.h>

namespace viewer {

/// Makes one undo step of everything between the start of a drag and its stop.
///
/// A drag that is interrupted keeps what it did as its step; one that is cancelled keeps its group
/// open until the interaction manager's cancel handler takes it back.
class DragGroup
{
public:
    bool isOpen() const { return open; }

    /// Opened before the start is delivered, as that may already edit.
    /// @param deliver  hands the start on, answers whether it was taken
    /// @return its answer; there is no group after a refusal
    template <class Deliver>
    bool start(Deliver deliver)
    {
        nbUndoService::the()->beginGroup();
        open = deliver();
        if (!open) {
            nbUndoService::the()->endGroup();
        }
        return open;
    }

    /// @param manager  says how the drag ends; null: it was let go
    /// @param deliver  hands the stop on
    /// @return its answer
    template <class Deliver>
    bool stop(const nbec::interaction::InteractionManager* manager, Deliver deliver)
    {
        const bool isCancelled =
            manager != nullptr && manager->getDragEnd() == nbec::interaction::DragEnd::Cancelled;
        const bool answer = deliver();
        open = false;
        if (!isCancelled) {
            nbUndoService::the()->endGroup();
        }
        return answer;
    }

private:
    bool open = false;
};

}  // namespace viewer
