// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/replay/Session.h"

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGVector.h>

#include <QStringList>

/// What a session needs of a stage: its start, places in the view, checkpoints.
namespace viewer {

class Stage;

/// Brings a stage whose models are shown to what a session begins with: settings of the gizmo as at
/// the start of the program, camera, selection and manipulator, as far as the session names them.
/// @return false with one line in `error` if it names what is not there
bool beginSession(Stage& stage, const Session& session, QString& error);

/// Looks up where a target lies in the view now.
/// A handle is aimed at where it can be hit, as near to its middle as that is.
/// @param px  device pixels, y from the top
/// @return false with one line in `error` if there is no such handle or node, or it cannot be seen
bool resolveTarget(const SessionTarget& target, Stage& stage, osg::Pnt2f& px, QString& error);

/// Compares what a checkpoint demands with what is there.
/// @return one line for each demand that is not met
QStringList findFailures(const SessionStep& checkpoint, Stage& stage);

}  // namespace viewer
