// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/Panel.h"
#include "viewer/plates/PlatesTool.h"

#include <QColor>

#include <vector>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QFontComboBox;
class QFormLayout;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QToolButton;

namespace viewer {

class NumberBox;
class VectorEdit;

/// Scene plates: adding them from pictures, texts and colours, their list from the foremost to the
/// rearmost, and the properties of the selected ones.
class PlatesPanel : public Panel
{
    Q_OBJECT

public:
    /// @param targetStage, targetTool  outlive this
    PlatesPanel(Stage& targetStage, PlatesTool& targetTool, QWidget* parent = nullptr);

    void refresh() final;

private:
    /// Boxes for the numbers of one command.
    struct NumberRow
    {
        const char* command;
        VectorEdit* edit;
        bool isVector;  ///< the value is an array
    };

    QToolButton* addButton(QBoxLayout* row, const char* name, const QString& text,
                           const QString& tip);
    QBoxLayout* createButtons();
    void createList();
    QFormLayout* createProperties();
    void addNumbers(QFormLayout* form, const char* command, const QString& label,
                    const QStringList& names, double step);
    QWidget* createTextBox();
    void showColor();

    QJsonValue valueOf(const char* command) const;
    void askForPicture();
    void askForColor();
    void addText();
    void selectRows();
    void changeItem(QListWidgetItem* item);
    void refreshList();
    void refreshProperties();

    PlatesTool& tool;
    QToolButton* edit = nullptr;
    std::vector<QToolButton*> selectionButtons;
    QListWidget* list = nullptr;
    QComboBox* side = nullptr;
    QComboBox* anchor = nullptr;
    NumberBox* opacity = nullptr;
    std::vector<NumberRow> numbers;
    QCheckBox* snapping = nullptr;
    QLineEdit* textEdit = nullptr;
    QFontComboBox* fontBox = nullptr;
    NumberBox* textHeight = nullptr;
    QCheckBox* bold = nullptr;
    QToolButton* colorButton = nullptr;
    QColor color { Qt::white };
};

}  // namespace viewer
