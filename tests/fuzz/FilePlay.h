// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>

#include <string>

namespace viewer::test {

/// Stands between a scene, the records of its models and the file of its pictures.
constexpr const char* kBetweenFiles = "\n%%\n";

/// Plays bytes as the text of a session and of a scene file, after which a model and a picture may
/// follow. What the readers accept must come out
/// of their writers as a text that they accept and write again, byte for byte; a scene is opened
/// beside the one that is shown, without reading any file, and what it then shows must be the same
/// again after saving and opening. What they refuse must give one line. Nothing may be left behind.
/// @return the first of these that did not hold; empty if all did
std::string playFile(const QByteArray& text);

/// Plays bytes as lines of commands on the start scene; a first line "nbviewer ..." is the command
/// line of the program, whose scenes and sessions are read. Each is done or refused in one line,
/// and what they leave can be opened when it can be saved.
std::string playCommands(const QByteArray& text);

/// Plays bytes as records of a model, and as a picture: nothing but a sound one is taken.
std::string playModel(const QByteArray& bytes);

}  // namespace viewer::test
