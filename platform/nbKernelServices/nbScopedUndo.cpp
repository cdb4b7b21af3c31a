// SPDX-License-Identifier: MIT
#include "nbScopedUndo.h"

#include <nbKernelServices/nbUndoService.h>

nbScopedUndo::nbScopedUndo(bool undoable)
    : isRecorded(undoable)
{
    nbUndoService::the()->openScope(isRecorded);
}

nbScopedUndo::nbScopedUndo(const QString& title)
    : nbScopedUndo(true)
{
    nbUndoService::the()->offerTitle(title);
}

nbScopedUndo::nbScopedUndo(const char* title)
    : nbScopedUndo(true)
{
    nbUndoService::the()->offerTitle(title);
}

nbScopedUndo::~nbScopedUndo()
{
    nbUndoService::the()->closeScope(isRecorded);
}
