// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/Panel.h"
#include "viewer/textures/TextureTool.h"

#include <QJsonArray>
#include <QMap>
#include <QString>

class QAbstractButton;
class QBoxLayout;
class QButtonGroup;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QSlider;

namespace viewer {

class MaterialPicture;
class VectorEdit;

/// The picture on the selected object: its file, how it is projected, the handles, and a preview.
class MaterialPanel final : public Panel
{
    Q_OBJECT

public:
    /// @param targetStage, targetTool  outlive this
    MaterialPanel(Stage& targetStage, TextureTool& targetTool, QWidget* parent = nullptr);
    ~MaterialPanel() override;

    void refresh() final;

    bool needsScrolling() const override { return false; }

private:
    void addPictureRows(QFormLayout& form);
    void addProjectionRow(QBoxLayout& column);
    void addHandleRows(QBoxLayout& column);
    /// Rows of one projection, by its word in commands.
    void addValueRows(QBoxLayout& column, const char* word);
    void addCoverageRow(QBoxLayout& column);
    void addSwitches(QBoxLayout& column);
    void addSceneRows(QBoxLayout& column);
    void addSwitch(QBoxLayout& row, const char* command, const QString& label);
    QAbstractButton* addHandleButton(QBoxLayout& row, const char* group, const QString& label);

    void askForPicture();
    void refreshRows();
    void refreshProjection();
    void refreshPicture();

    TextureTool& tool;

    QPushButton* threeSides = nullptr;
    QLabel* hint = nullptr;
    MaterialPicture* picture = nullptr;
    QWidget* content = nullptr;  ///< everything that needs a surface
    QWidget* projectionContent = nullptr;  ///< everything that needs a picture
    QComboBox* component = nullptr;
    QLabel* fileName = nullptr;
    QAbstractButton* removeButton = nullptr;
    QButtonGroup* handleButtons = nullptr;
    QComboBox* projection = nullptr;
    QSlider* handleSize = nullptr;
    QMap<QString, QWidget*> valueRows;  ///< by the word of their projection
    QMap<QString, VectorEdit*> vectors;  ///< by their commands
    QMap<QString, QAbstractButton*> switches;  ///< by their commands
    QSlider* transparency = nullptr;
    bool isPictureOld = true;
};

}  // namespace viewer
