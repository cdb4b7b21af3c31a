// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/replay/Session.h"

#include <QStringList>

namespace viewer {

class Stage;

/// Compares what a checkpoint demands with what is there.
/// @return one line for each demand that is not met
QStringList findFailures(const SessionStep& checkpoint, Stage& stage);

}  // namespace viewer
