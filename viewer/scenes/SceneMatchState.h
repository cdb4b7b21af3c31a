// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/scenes/SceneDocument.h"

#include <OpenSG/OSGImage.h>

namespace viewer {

class Stage;

/// The match of the stage's camera with a photograph; nothing where all is as in a new scene.
std::optional<SceneMatch> matchOf(Stage& stage);

/// Puts a match onto a stage whose scene is new; not undoable.
/// @param photograph  of the match; may be null
void showMatch(const SceneMatch& match, const osg::ImagePtr& photograph, Stage& stage);

}  // namespace viewer
