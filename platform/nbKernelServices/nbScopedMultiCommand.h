// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <QtCore/QString>

/// Joins all edits from construction to destruction into one step with a title.
/// Within an nbScopedUndo it names that scope's step, unless an outer one has named it already.
class NB_PLATFORM_API nbScopedMultiCommand
{
public:
    /// @param title  of the step, as shown to a person
    [[nodiscard]] explicit nbScopedMultiCommand(const QString& title);
    ~nbScopedMultiCommand();

    nbScopedMultiCommand(const nbScopedMultiCommand&) = delete;
    nbScopedMultiCommand& operator=(const nbScopedMultiCommand&) = delete;
};
