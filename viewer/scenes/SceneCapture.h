// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/scenes/SceneDocument.h"

namespace viewer {

class Stage;

/// What a stage shows, as a document. Of a model that is what was edited; the rest stays in its
/// file. A picture without a file, such as a painted text, is taken along as it is.
/// @return nothing with one line in `error` if something cannot be found again, such as an object
///         that came from no file
std::optional<SceneDocument> captureScene(Stage& stage, QString& error);

/// Saves what a stage shows. @return false with one line in `error`; the file is as it was
bool saveScene(Stage& stage, const QString& path, QString& error);

}  // namespace viewer
