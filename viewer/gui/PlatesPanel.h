// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/Panel.h"
#include "viewer/plates/PlatesTool.h"

#include <QColor>
#include <QJsonObject>

#include <vector>

class QFontComboBox;
class QFormLayout;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QToolButton;

namespace viewer {

/// Scene plates: adding them from pictures, texts and colours, their list from the foremost to the
/// rearmost, and the properties of the selected ones.
class PlatesPanel : public Panel
{
    Q_OBJECT

public:
    /// @param targetStage, targetTool  outlive this
    PlatesPanel(Stage& targetStage, PlatesTool& targetTool);

    void refresh() final;

private:
    QToolButton* addTool(QBoxLayout* row, const char* name, const QString& text, const QString& tip,
                         std::function<void()> press);
    QBoxLayout* createButtons();
    void addArranging(QBoxLayout* row);
    void createList();
    QFormLayout* createProperties();
    QWidget* createTextBox();
    void showColor();

    /// What the fields of the text say.
    QJsonObject typedText() const;
    void showText(const QJsonObject& text);
    void selectRows();
    void changeItem(QListWidgetItem* item);
    void refreshList();

    PlatesTool& tool;
    QToolButton* edit = nullptr;
    std::vector<QToolButton*> selectionButtons;
    QListWidget* list = nullptr;
    QLineEdit* textEdit = nullptr;
    QFontComboBox* fontBox = nullptr;
    NumberBox* textHeight = nullptr;
    QCheckBox* bold = nullptr;
    QToolButton* colorButton = nullptr;
    QToolButton* add = nullptr;
    QToolButton* change = nullptr;
    QJsonObject shownText;  ///< of the selected plate
    QColor color { Qt::white };
};

}  // namespace viewer
