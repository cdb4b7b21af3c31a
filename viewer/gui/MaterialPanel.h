// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/Panel.h"
#include "viewer/textures/TextureTool.h"

#include <QMap>
#include <QString>

class QAbstractButton;
class QBoxLayout;
class QButtonGroup;
class QFormLayout;
class QLabel;

namespace viewer {

class MaterialPicture;

/// The picture on the selected object: its file, how it is projected, the handles, and a preview.
class MaterialPanel final : public Panel
{
    Q_OBJECT

public:
    /// @param targetStage, targetTool  outlive this
    MaterialPanel(Stage& targetStage, TextureTool& targetTool);
    ~MaterialPanel() override;

    void refresh() final;

private:
    void addPictureRows(QFormLayout& form);
    void addHandleRows(QBoxLayout& column);
    /// Rows of one projection, by its word in commands.
    QWidget* makeArrangeButton();
    void addValueRows(QBoxLayout& column, const char* word);
    void addSwitches(QBoxLayout& column, const char* word);
    QAbstractButton* addHandleButton(QBoxLayout* row, const char* group, const QString& label,
                                     std::function<void()> press);

    void refreshHandles();
    void refreshPicture();

    TextureTool& tool;

    QLabel* hint = nullptr;
    MaterialPicture* picture = nullptr;
    QWidget* content = nullptr;  ///< everything that needs a surface
    QWidget* projectionContent = nullptr;  ///< everything that needs a picture
    QLabel* fileName = nullptr;
    QAbstractButton* removeButton = nullptr;
    QButtonGroup* handleButtons = nullptr;
    QMap<QString, QWidget*> valueRows;  ///< by the word of their projection
    bool isPictureOld = true;
    osg::UInt64 restoresShown = 0;  ///< steps that had been taken back or done again
};

}  // namespace viewer
