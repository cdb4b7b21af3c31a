// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/HandleCursor.h"

#include <QCursor>

namespace viewer {

/// Cursor that shows what a handle does: double arrows along its direction, with squares at the
/// ends where it scales, a turning arrow for rings; the usual arrow for no handle.
QCursor cursorShape(const HandleCursor& cursor);

}  // namespace viewer
