// SPDX-License-Identifier: MIT
#include "viewer/gui/WindowMemory.h"

#include <QFileInfo>
#include <QMainWindow>
#include <QSettings>
#include <QTimer>

namespace viewer::memory {
namespace {

constexpr int kRecentCount = 8;

/// Of the arrangement of toolbars and docks; a layout of another one does not fit.
constexpr int kLayoutVersion = 2;

const char* const kRecentKey = "recentFiles";
const char* const kLayoutKey = "windowLayout";
const char* const kGeometryKey = "windowGeometry";
const char* const kLanguageKey = "language";

}  // namespace

bool restoreLayout(QMainWindow& window)
{
    const QSettings settings;
    const QByteArray state = settings.value(kLayoutKey).toByteArray();
    restoreState(window, state);
    // When it is first shown the window shares itself out over the docks anew.
    QTimer::singleShot(0, &window, [&window, state] { restoreState(window, state); });
    return window.restoreGeometry(settings.value(kGeometryKey).toByteArray());
}

void keepLayout(const QMainWindow& window, const QByteArray& state)
{
    QSettings settings;
    settings.setValue(kLayoutKey, state);
    settings.setValue(kGeometryKey, window.saveGeometry());
}

QByteArray stateOf(const QMainWindow& window)
{
    return window.saveState(kLayoutVersion);
}

bool restoreState(QMainWindow& window, const QByteArray& state)
{
    return window.restoreState(state, kLayoutVersion);
}

Language language()
{
    return languageFromName(QSettings().value(kLanguageKey).toString()).value_or(Language::System);
}

QStringList recentFiles()
{
    return QSettings().value(kRecentKey).toStringList();
}

QStringList addRecentFiles(const QStringList& files)
{
    QStringList recent = recentFiles();
    for (const QString& file : files) {
        const QString path = QFileInfo(file).absoluteFilePath();
        recent.removeAll(path);
        recent.prepend(path);
    }
    recent = recent.mid(0, kRecentCount);
    QSettings().setValue(kRecentKey, recent);
    return recent;
}

}  // namespace viewer::memory
