// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbLog.h>

#include <QPlainTextEdit>

namespace viewer {

/// Messages of the program, the newest last: time, level and text, a line each. Takes the entries
/// of the log while it exists, which go where they went before as well.
class LogPanel : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// The oldest messages go when there are more than this.
    static constexpr int kMostEntries = 2000;

    explicit LogPanel(QWidget* parent = nullptr);
    LogPanel(const LogPanel&) = delete;
    LogPanel& operator=(const LogPanel&) = delete;
    ~LogPanel() override;

    /// Adds a message of one line, with the time that it is.
    void append(nbLog::Level level, const QString& text);

private:
    nbLog::Sink former;
};

}  // namespace viewer
