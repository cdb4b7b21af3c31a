// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/CommandLine.h"
#include "viewer/replay/Session.h"

#include <QObject>

#include <optional>

namespace viewer {

class MainWindow;

/// Does what the command line asks of the window and ends the program when that is all there was to
/// do. Exit status: 0 done, 1 a checkpoint of the session was not met, 2 something could not be
/// read, shown or written.
class StartUp : public QObject
{
    Q_OBJECT

public:
    static constexpr int kCheckpointStatus = 1;
    static constexpr int kBadInputStatus = 2;

    /// @param newSession  the session that the options name, if they do
    StartUp(MainWindow& targetWindow, const CommandLine& commandLine,
            const std::optional<Session>& newSession);

    /// Shows the window and begins.
    void run();

    /// Writes "nbviewer: " and the text as one line to standard error.
    static void complain(const QString& text);

private:
    void showFiles();
    void playSession();
    void goOnTour();
    void concludeSession();
    void conclude();
    void giveUp(const QString& text);

    MainWindow& window;
    CommandLine options;
    std::optional<Session> session;
};

}  // namespace viewer
