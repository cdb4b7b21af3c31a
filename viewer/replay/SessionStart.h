// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/replay/Session.h"

namespace viewer {

class Stage;

/// Brings a stage whose models are shown to what a session begins with: settings of the gizmo as at
/// the start of the program, camera, selection and manipulator, as far as the session names them.
/// @return false with one line in `error` if it names what is not there
bool beginSession(Stage& stage, const Session& session, QString& error);

}  // namespace viewer
