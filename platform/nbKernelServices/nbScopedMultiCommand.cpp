// SPDX-License-Identifier: MIT
#include "nbScopedMultiCommand.h"

#include <nbKernelServices/nbUndoService.h>

nbScopedMultiCommand::nbScopedMultiCommand(const QString& title)
{
    nbUndoService* const service = nbUndoService::the();
    service->openScope(true);
    service->offerTitle(title);
}

nbScopedMultiCommand::~nbScopedMultiCommand()
{
    nbUndoService::the()->closeScope(true);
}
