// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/replay/Session.h"

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGVector.h>

namespace viewer {

class Stage;

/// Looks up where a target lies in the view now.
/// A handle is aimed at where it can be hit, as near to its middle as that is.
/// @param px  device pixels, y from the top
/// @return false with one line in `error` if there is no such handle or node, or it cannot be seen
bool resolveTarget(const SessionTarget& target, Stage& stage, osg::Pnt2f& px, QString& error);

}  // namespace viewer
