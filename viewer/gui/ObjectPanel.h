// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/Panel.h"

#include <vector>

class QCheckBox;
class QLabel;

namespace viewer {

class VectorEdit;

/// Properties of the selected objects: place, turn, scale, pivots, visibility and lock. Shows those
/// of the object selected last and edits all.
class ObjectPanel : public Panel
{
    Q_OBJECT

public:
    explicit ObjectPanel(Stage& stage, QWidget* parent = nullptr);

    void refresh() final;

private:
    /// One row of numbers and the command behind it.
    struct Row
    {
        const char* command;
        VectorEdit* edit;
    };

    QLabel* nameLabel;
    std::vector<Row> rows;
    QCheckBox* visible;
    QCheckBox* locked;
};

}  // namespace viewer
