// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbLog.h>

#include <QTimer>
#include <QVector>
#include <QWidget>

class QComboBox;
class QHBoxLayout;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace viewer {

/// Messages of the program, the newest last: time, level and text. Takes the entries of the log
/// while it exists, which go where they went before as well.
class LogPanel : public QWidget
{
    Q_OBJECT

public:
    struct Entry
    {
        nbLog::Level level;
        QString time;
        QString text;
    };

    /// The oldest messages go when there are more than this.
    static constexpr int kMostEntries = 2000;

    explicit LogPanel(QWidget* parent = nullptr);
    LogPanel(const LogPanel&) = delete;
    LogPanel& operator=(const LogPanel&) = delete;
    ~LogPanel() override;

    /// Adds a message of one line, with the time that it is.
    void append(nbLog::Level level, const QString& text);
    void append(const Entry& entry);

    /// All messages, shown or not, the oldest first.
    QVector<Entry> entries() const;

    /// The messages shown, one line each: those selected, or all if none is.
    QString text() const;

private:
    void copy() const;
    void clear();
    void applyFilter();
    bool isWanted(const QTreeWidgetItem* item) const;
    void updateButtons();
    QToolButton* addButton(QHBoxLayout& row, const char* name, const QString& tip);

    QTreeWidget* list;
    QComboBox* least;
    QToolButton* copyButton = nullptr;
    QToolButton* clearButton = nullptr;
    nbLog::Sink former;
    QTimer scrollTimer;
    bool scrollsToEnd = false;
};

}  // namespace viewer
