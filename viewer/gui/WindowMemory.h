// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/texts/Language.h"

#include <QByteArray>
#include <QStringList>

class QMainWindow;

/// What the program remembers from one start to the next beside its settings: place and layout of
/// the window and the files opened last; and the language, which is needed before there is a
/// window.
namespace viewer::memory {

/// Gives a window the place and layout that it had, as far as the screen is still there.
/// @return whether the place is known
bool restoreLayout(QMainWindow& window);
/// @param state  of its toolbars and docks
void keepLayout(const QMainWindow& window, const QByteArray& state);
/// Toolbars and docks of a window, to be kept or restored.
QByteArray stateOf(const QMainWindow& window);
/// @return false, with the window untouched, for a state of another arrangement
bool restoreState(QMainWindow& window, const QByteArray& state);

Language language();

/// Absolute paths, the newest first.
QStringList recentFiles();
/// Puts files before those known, each once. @return the new list
QStringList addRecentFiles(const QStringList& files);

}  // namespace viewer::memory
