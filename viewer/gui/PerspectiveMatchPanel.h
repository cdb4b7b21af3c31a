// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/Panel.h"
#include "viewer/match/PerspectiveMatchTool.h"

#include <array>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QSlider;

namespace viewer {

class NumberBox;
class VectorEdit;

/// The panel of the perspective match: photograph, match mode, settings and the coordinates of the
/// lines.
class PerspectiveMatchPanel : public Panel
{
    Q_OBJECT

public:
    /// @param targetStage, targetTool  outlive this
    PerspectiveMatchPanel(Stage& targetStage, PerspectiveMatchTool& targetTool,
                          QWidget* parent = nullptr);

    void refresh() final;

private:
    QCheckBox* addSwitch(QFormLayout& form, const char* name, const QString& label,
                         const QString& command);
    QComboBox* addChoice(QFormLayout& form, const char* name, const QString& label,
                         const QString& command, const QStringList& words,
                         const QStringList& texts);
    void addPhotograph(QFormLayout& form);
    void addMagnifier(QFormLayout& form);
    void addLines(QFormLayout& form);
    QPushButton* addButton(const char* name, const QString& text, const QString& command);
    void askForPhotograph();

    PerspectiveMatchTool& tool;
    QLabel* photograph = nullptr;
    QPushButton* remove = nullptr;
    QSlider* veil = nullptr;
    QCheckBox* active = nullptr;
    QCheckBox* linesShown = nullptr;
    QCheckBox* locked = nullptr;
    QComboBox* linesType = nullptr;
    QComboBox* fovMode = nullptr;
    NumberBox* magnifyFactor = nullptr;
    std::array<VectorEdit*, PerspectiveMatchTool::kLineCount> lines {};
    QPushButton* layLines = nullptr;
    QPushButton* solve = nullptr;
    QLabel* result = nullptr;
};

}  // namespace viewer
