// SPDX-License-Identifier: MIT
#include "viewer/gui/WindowMemory.h"

#include "viewer/loading/PictureDecoding.h"

#include <QFileInfo>
#include <QMainWindow>
#include <QSettings>

namespace viewer::memory {
namespace {

constexpr int kRecentCount = 8;

/// Of the arrangement of toolbars and docks; a layout of another one does not fit.
constexpr int kLayoutVersion = 2;

const char* const kRecentKey = "recentFiles";
const char* const kLayoutKey = "windowLayout";
const char* const kGeometryKey = "windowGeometry";
const char* const kPictureKey = "pictureMebibytes";
constexpr int kMostMebibytes = 2047;
const char* const kThemeKey = "theme";
const char* const kCoarseKey = "coarseWhileMoving";
const char* const kLanguageKey = "language";

}  // namespace

bool restoreLayout(QMainWindow& window)
{
    const QSettings settings;
    restoreState(window, settings.value(kLayoutKey).toByteArray());
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

Theme theme()
{
    return themeFromName(QSettings().value(kThemeKey).toString());
}

void keepTheme(Theme theme)
{
    QSettings().setValue(kThemeKey, themeName(theme));
}

Language language()
{
    return languageFromName(QSettings().value(kLanguageKey).toString()).value_or(Language::System);
}

void keepLanguage(Language language)
{
    QSettings().setValue(kLanguageKey, languageName(language));
}

bool coarseWhileMoving()
{
    return QSettings().value(kCoarseKey, true).toBool();
}

void keepCoarseWhileMoving(bool on)
{
    QSettings().setValue(kCoarseKey, on);
}

qint64 pictureBudget()
{
    constexpr qint64 kMebibyte = 1024LL * 1024;
    const int usual = static_cast<int>(viewer::pictureBudget() / kMebibyte);
    return kMebibyte * qBound(1, QSettings().value(kPictureKey, usual).toInt(), kMostMebibytes);
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
