// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/NumberBox.h"

#include <QJsonArray>
#include <QWidget>

#include <vector>

class QToolButton;

namespace viewer {

/// A row of numbers that a person types or steps.
class VectorEdit : public QWidget
{
    Q_OBJECT

public:
    using Style = NumberBox::Style;

    /// @param names  for people who hear the window, one for each number, such as "X"
    VectorEdit(const QStringList& names, const Style& style, QWidget* parent = nullptr);

    /// Shows numbers without telling of it, as NumberBox does.
    /// @param values  as many as there are boxes; otherwise the boxes are empty and disabled
    void display(const QJsonArray& values);

    /// From now on edited() has null for what was not changed.
    void tellChangesAlone() { changesAlone = true; }

    /// Adds a switch: while it is on the numbers keep their ratios.
    /// @param tip  what it is called
    void addLink(const QString& tip);

signals:
    /// A person changed a number. @param values  all of them
    void edited(const QJsonArray& values);
    /// A drag that changes a number has begun, or ended.
    void scrubbed(bool isOn);

private:
    void tell(std::size_t changed);

    std::vector<NumberBox*> boxes;
    QToolButton* link = nullptr;
    bool changesAlone = false;
    std::vector<double> shown;  ///< before the change
};

}  // namespace viewer
