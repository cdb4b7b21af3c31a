// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/Panel.h"
#include "viewer/match/PerspectiveMatchTool.h"

class QBoxLayout;
class QFormLayout;
class QLabel;

namespace viewer {

/// The panel of the perspective match: what to do next, photograph, settings and the coordinates of
/// the lines.
class PerspectiveMatchPanel : public Panel
{
    Q_OBJECT

public:
    /// @param targetStage, targetTool  outlive this
    PerspectiveMatchPanel(Stage& targetStage, PerspectiveMatchTool& targetTool);

    void refresh() final;

private:
    /// A button of what a locked camera cannot take.
    void addEdit(QBoxLayout* row, const char* name, const QString& text,
                 std::function<void()> press);
    void addPhotograph(QFormLayout& form);
    void addSettings(QFormLayout& form);
    void addKnowledge(QBoxLayout& column);
    void addLines(QFormLayout& form);

    PerspectiveMatchTool& tool;
    QLabel* result = nullptr;
    QLabel* photograph = nullptr;
    QAbstractButton* remove = nullptr;
    QWidget* fit = nullptr;
    std::vector<QWidget*> ofUnlocked;  ///< what a locked camera cannot take
};

}  // namespace viewer
