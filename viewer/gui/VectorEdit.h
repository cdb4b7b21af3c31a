// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/NumberBox.h"

#include <QJsonArray>
#include <QWidget>

#include <vector>

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

signals:
    /// A person changed a number. @param values  all of them
    void edited(const QJsonArray& values);

private:
    std::vector<NumberBox*> boxes;
};

}  // namespace viewer
