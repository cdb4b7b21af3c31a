// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <QtCore/QString>

/// From construction to destruction, what is recorded belongs to one undo step (see nbUndoService).
/// Nested scopes join the outermost one. Nothing recorded leaves no step.
class NB_PLATFORM_API nbScopedUndo
{
public:
    /// A scope without a title of its own.
    /// @param undoable  false: edits inside are not recorded at all, in scopes within it neither
    [[nodiscard]] explicit nbScopedUndo(bool undoable = true);

    /// A scope with a title for the step, as shown to a person.
    [[nodiscard]] explicit nbScopedUndo(const QString& title);

    /// The same for a text that is translated, in the context "Manipulator", only when a step is
    /// made; costs nothing.
    /// @param title  literal that outlives the step
    [[nodiscard]] explicit nbScopedUndo(const char* title);

    ~nbScopedUndo();

    nbScopedUndo(const nbScopedUndo&) = delete;
    nbScopedUndo& operator=(const nbScopedUndo&) = delete;

private:
    bool isRecorded;
};
