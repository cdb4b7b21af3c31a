// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace viewer {

/// What holds for every field of the program: the wheel changes none that does not have the keys,
/// Enter gives the keys back to the view, the pointer does so when it enters the view, and undo and
/// redo in a field without anything of its own to undo are the scene's.
class FieldRules : public QObject
{
    Q_OBJECT

public:
    /// @param mainView  gets the keys; outlives this
    explicit FieldRules(QWidget& mainView);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// A field refused what was typed. @param reason  one line
    void refused(const QString& reason);

private:
    QWidget& view;
};

}  // namespace viewer
