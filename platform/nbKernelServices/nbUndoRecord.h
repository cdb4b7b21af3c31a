// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

/// One edit within an undo step: knows the state before and after it.
/// Made before or after the edit, given to nbUndoService::record. What it refers to by id may be
/// destroyed at any time; it then does nothing. Operations do not throw.
class NB_PLATFORM_API nbUndoRecord
{
public:
    nbUndoRecord() = default;
    virtual ~nbUndoRecord() = default;

    /// False for an edit that a person does not see: it waits for the next step instead of making
    /// one by itself.
    virtual bool isStepAlone() const { return true; }

    /// Called once, when the step closes: reads the state at the end.
    /// @return whether it differs from the state before; a record without difference is dropped
    virtual bool close() = 0;

    /// Brings back the state before. Also called, without close, when a group is cancelled.
    virtual void undo() = 0;

    /// Brings back the state after; only after close and undo.
    virtual void redo() = 0;

    nbUndoRecord(const nbUndoRecord&) = delete;
    nbUndoRecord& operator=(const nbUndoRecord&) = delete;
};
