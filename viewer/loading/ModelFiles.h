// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace viewer {

/// Told how far reading is, 0 .. 1; answers whether to go on. Called in the reading thread.
using ReadProgress = std::function<bool(double)>;

/// Name filter for a file dialogue, such as "Models, scenes and pictures (*.obj *.ply ...)".
/// @param further  pattern of further files, such as "*.nbscene"; empty for none
QString modelFileFilter(const QString& further = {});

/// Whether the name's ending is that of a picture that is shown as a model.
bool isPictureFileName(const QString& path);

/// Whether the name's ending is that of a file that can be read as a model, pictures among them.
bool isModelFileName(const QString& path);

}  // namespace viewer
