// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace viewer {

/// Endings of the files that models can be exported to, such as "glb".
QStringList exportEndings();

/// Writes the models of the scene as they are shown now: what is hidden, clip planes and pictures
/// that were put on objects stay out. The kind of file goes by its ending. Pictures of
/// materials lie in a .glb or .gltf, and beside other files.
/// @return false with an error of one line; files that were there are kept then
bool exportModels(const QString& path, QString& error);

}  // namespace viewer
