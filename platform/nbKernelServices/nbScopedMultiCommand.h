// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbScopedUndo.h>

/// Joins all edits from construction to destruction into one step with a title.
/// Within an nbScopedUndo it names that scope's step, unless an outer one has named it already.
class nbScopedMultiCommand : public nbScopedUndo
{
public:
    /// @param title  of the step, as shown to a person
    [[nodiscard]] explicit nbScopedMultiCommand(const QString& title)
        : nbScopedUndo(title)
    { }
};
