// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/commands/Commands.h"

#include <QJsonValue>
#include <QWidget>

#include <functional>

class QSlider;

namespace viewer {

class Stage;

/// A panel at the side of the window. What a person does in it runs as a command of the stage, so
/// that a session can do the same.
class Panel : public QWidget
{
    Q_OBJECT

public:
    /// @param targetStage  outlives this
    Panel(Stage& targetStage, QWidget* parent = nullptr)
        : QWidget(parent)
        , shownStage(targetStage)
    { }

    /// Shows how things are; called after everything that may have changed them. Does nothing that
    /// a person would take for an edit.
    virtual void refresh() = 0;

    /// Whether the panel is of a fixed height, so that a window with little room has to scroll it.
    virtual bool needsScrolling() const { return true; }

signals:
    /// What could not be done, one line.
    void problem(const QString& text);

protected:
    Stage& stage() const { return shownStage; }

    /// Runs a command of the stage; a refusal becomes a problem(), and the panel shows again what
    /// is. @return whether it was done
    bool run(const QString& command, const QJsonValue& value = {},
             Commands::Moment moment = Commands::Moment::Final);

    /// Lets a slider run a command with every value, of which only the last one of a drag is final.
    /// @param valueOf  what the command is to get for a position of the slider
    void connectSlider(const QSlider& slider, const QString& command,
                       const std::function<QJsonValue(int)>& valueOf);

private:
    Stage& shownStage;
};

}  // namespace viewer
