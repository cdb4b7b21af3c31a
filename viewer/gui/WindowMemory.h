// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/Theme.h"
#include "viewer/texts/Language.h"

#include <QByteArray>
#include <QStringList>

class QMainWindow;

/// What the program remembers from one start to the next: place and layout of the window, the
/// theme, the language, how large pictures may be and the files opened last.
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

Theme theme();
void keepTheme(Theme theme);

Language language();
void keepLanguage(Language language);

bool coarseWhileMoving();
void keepCoarseWhileMoving(bool on);

/// Most bytes of a decoded picture: the setting "pictureMebibytes", from 1 to 2047.
qint64 pictureBudget();

/// Absolute paths, the newest first.
QStringList recentFiles();
/// Puts files before those known, each once. @return the new list
QStringList addRecentFiles(const QStringList& files);

}  // namespace viewer::memory
