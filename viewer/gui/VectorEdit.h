// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QWidget>

#include <vector>

class QDoubleSpinBox;

namespace viewer {

/// A row of numbers that a person types or steps.
class VectorEdit : public QWidget
{
    Q_OBJECT

public:
    /// How the numbers are shown and stepped.
    struct Style
    {
        static constexpr double kUsualStep = 0.1;
        static constexpr double kUsualBound = 1e6;

        double step = kUsualStep;
        double least = -kUsualBound;
        double most = kUsualBound;
        int decimals = 3;
    };

    /// @param count  of numbers
    /// @param names  for people who hear the window, one for each number, such as "X"
    VectorEdit(const QStringList& names, const Style& style, QWidget* parent = nullptr);

    /// Shows numbers without telling of it; a box that is being typed in keeps its text.
    /// @param values  as many as there are boxes; otherwise the boxes are empty and disabled
    void display(const QJsonArray& values);

signals:
    /// A person changed a number. @param values  all of them
    void edited(const QJsonArray& values);

private:
    std::vector<QDoubleSpinBox*> boxes;
};

}  // namespace viewer
