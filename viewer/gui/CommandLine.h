// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/replay/Session.h"
#include "viewer/texts/Language.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace viewer {

/// What the command line of the viewer asks for.
struct CommandLine
{
    QStringList files;  ///< models and images to open, in this order; empty: the start scene
    QString session;  ///< session file to replay; empty: none
    QString screenshot;  ///< picture to write; empty: none
    QString outputFolder;  ///< for the pictures of a session's checkpoints; empty: working folder
    std::optional<Language> language;  ///< none: that of the settings; English if nobody is there
    QSize sizePx;  ///< size of the 3D view, device pixels; invalid: the window decides
    bool tourWanted = false;  ///< replay all shipped sessions
    bool helpWanted = false;
    bool versionWanted = false;

    /// Whether the program runs by itself and ends by itself: nobody is there to answer a question.
    bool isUnattended() const
    {
        return !session.isEmpty() || !screenshot.isEmpty() ||
            (tourWanted && !outputFolder.isEmpty());
    }
};

/// Reads the arguments after the program's name.
/// @param error  one line without full stop when the answer is false, else untouched
/// @return false if an argument is unknown, lacks its value or has a bad one
bool parseCommandLine(const QStringList& arguments, CommandLine& options, QString& error);

/// Looks whether everything that the options name can be there: files to read exist, folders to
/// write to too.
/// @return false with one line in `error` naming the first that is amiss
bool checkCommandLine(const CommandLine& options, QString& error);

/// Reads a size such as "1200x800".
/// @return false unless both edges are whole numbers from kMinViewEdgePx to kMaxViewEdgePx
bool parseSize(const QString& text, QSize& sizePx);

/// Text for --help, several lines; the program's name is that of the QCoreApplication, which has to
/// be there.
QString commandLineHelp();

}  // namespace viewer
