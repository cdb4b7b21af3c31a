// SPDX-License-Identifier: MIT
#include "viewer/gui/PlatesPanel.h"

#include "viewer/gui/ThemeIcon.h"
#include "viewer/gui/VectorEdit.h"
#include "viewer/plates/PlateField.h"
#include "viewer/plates/PlateText.h"
#include "viewer/stage/Stage.h"

#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QJsonObject>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace viewer {
namespace {

constexpr double kPercent = 100.0;
constexpr double kPercentStep = 10.0;
/// Steps of the boxes with numbers; places and sizes are in heights of the view.
constexpr double kPlaceStep = 0.01;
constexpr double kScaleStep = 0.1;
constexpr double kTurnStepDeg = 5.0;
constexpr int kLeastFontLetters = 8;
constexpr int kNameRole = Qt::UserRole;

struct AnchorText
{
    const char* word;
    const char* text;
};

/// As they lie in the view, row by row.
constexpr AnchorText kAnchorTexts[] = {
    { "topLeft", QT_TRANSLATE_NOOP("viewer::PlatesPanel", "Top left") },
    { "top", QT_TRANSLATE_NOOP("viewer::PlatesPanel", "Top") },
    { "topRight", QT_TRANSLATE_NOOP("viewer::PlatesPanel", "Top right") },
    { "left", QT_TRANSLATE_NOOP("viewer::PlatesPanel", "Left") },
    { "centre", QT_TRANSLATE_NOOP("viewer::PlatesPanel", "Centre") },
    { "right", QT_TRANSLATE_NOOP("viewer::PlatesPanel", "Right") },
    { "bottomLeft", QT_TRANSLATE_NOOP("viewer::PlatesPanel", "Bottom left") },
    { "bottom", QT_TRANSLATE_NOOP("viewer::PlatesPanel", "Bottom") },
    { "bottomRight", QT_TRANSLATE_NOOP("viewer::PlatesPanel", "Bottom right") },
};

NumberBox::Style percentStyle(double least)
{
    return { kPercentStep, least, kPercent, 1 };
}

}  // namespace

PlatesPanel::PlatesPanel(Stage& targetStage, PlatesTool& targetTool)
    : Panel(targetStage)
    , tool(targetTool)
{
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(createButtons());
    createList();
    layout->addWidget(list, 1);
    layout->addWidget(createTextBox());
    layout->addLayout(createProperties());
}

// == Making

QToolButton* PlatesPanel::addTool(QBoxLayout* row, const char* name, const QString& text,
                                  const QString& tip, std::function<void()> press)
{
    auto* button = new QToolButton(this);
    addButton(row, button, name, text, std::move(press));
    button->setToolTip(tip);
    return button;
}

QBoxLayout* PlatesPanel::createButtons()
{
    auto* row = new QHBoxLayout;
    edit = addTool(row, "plates.edit", tr("Edit"), tr("Select and edit plates in the view"),
                   [this] { run("plates.edit", edit->isChecked()); });
    edit->setCheckable(true);
    addTool(row, "plates.addPicture", tr("Picture…"), tr("Add a picture from a file"), [this] {
        const QString file = askForPicture(tr("Add picture"));
        if (!file.isEmpty()) {
            run("plates.addPicture", QJsonObject { { "file", file } });
        }
    });
    addTool(row, "plates.addColor", tr("Colour…"), tr("Add a plate of plain colour"), [this] {
        const QColor chosen =
            QColorDialog::getColor(Qt::black, this, {}, QColorDialog::ShowAlphaChannel);
        if (chosen.isValid()) {
            run("plates.addColor", QJsonObject { { "color", chosen.name(QColor::HexArgb) } });
        }
    });
    row->addStretch();

    const struct
    {
        const char* command;
        const char* icon;
        QString tip;
    } rows[] = {
        { "plates.forward", "forward", tr("Bring forward") },
        { "plates.backward", "backward", tr("Send backward") },
        { "plates.remove", "delete", tr("Delete") },
    };

    for (const auto& entry : rows) {
        QToolButton* button = addTool(row, entry.command, {}, entry.tip,
                                      [this, command = entry.command] { run(command); });
        button->setIcon(themeIcon(entry.icon));
        button->setAccessibleName(entry.tip);
        selectionButtons.push_back(button);
    }
    addArranging(row);
    return row;
}

void PlatesPanel::addArranging(QBoxLayout* row)
{
    const struct
    {
        const char* command;
        const char* value;
        QString text;
    } rows[] = {
        { "plates.align", "left", tr("Align left") },
        { "plates.align", "centre", tr("Align centres across") },
        { "plates.align", "right", tr("Align right") },
        { "plates.align", "top", tr("Align top") },
        { "plates.align", "middle", tr("Align centres down") },
        { "plates.align", "bottom", tr("Align bottom") },
        { "plates.distribute", "across", tr("Equal gaps across") },
        { "plates.distribute", "down", tr("Equal gaps down") },
        { "plates.duplicate", "", tr("Duplicate") },
    };

    QToolButton* const button = addTool(row, "platesArrange", "≡", tr("Arrange plates"), [] {});
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    button->setMenu(menu);
    for (const auto& entry : rows) {
        menu->addAction(entry.text, this, [this, command = entry.command, value = entry.value] {
            run(command, value);
        });
    }
    selectionButtons.push_back(button);
}

void PlatesPanel::createList()
{
    list = new QListWidget(this);
    list->setObjectName("plateList");
    list->setAccessibleName(tr("Scene plates, the foremost first"));
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    constexpr int kLeastHeight = 80;
    list->setMinimumHeight(kLeastHeight);
    connect(list, &QListWidget::itemSelectionChanged, this, &PlatesPanel::selectRows);
    connect(list, &QListWidget::itemChanged, this, &PlatesPanel::changeItem);
}

QFormLayout* PlatesPanel::createProperties()
{
    auto* form = new QFormLayout;
    form->addRow(
        tr("Lies"),
        addChoice("plates.front",
                  { { true, tr("In front of the scene") }, { false, tr("Behind the scene") } }));
    auto* opacity = new NumberBox(percentStyle(0.0), this);
    opacity->setObjectName("plates.opacity");
    opacity->setSuffix(" %");
    connect(opacity, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double percent) { run("plates.opacity", percent / kPercent); });
    bind(opacity, {},
         [opacity](const QJsonValue& part) { opacity->display(part.toDouble() * kPercent); });
    form->addRow(tr("Opacity"), opacity);
    Choices anchors;
    for (const AnchorText& entry : kAnchorTexts) {
        anchors.emplace_back(QLatin1String(entry.word), tr(entry.text));
    }
    QWidget* anchor = addChoice("plates.anchor", anchors);
    anchor->setToolTip(tr("The place of the window that the plate follows"));
    form->addRow(tr("Anchor"), anchor);

    const struct
    {
        const char* command;
        QString label;
        QStringList names;
        double step;
    } rows[] = {
        { "plates.position", tr("Position"), { tr("X"), tr("Y") }, kPlaceStep },
        { "plates.size", tr("Size"), { tr("Width"), tr("Height") }, kPlaceStep },
        { "plates.scale", tr("Scale"), { tr("Scale") }, kScaleStep },
        { "plates.rotation", tr("Rotation, °"), { tr("Rotation") }, kTurnStepDeg },
    };

    for (const auto& row : rows) {
        VectorEdit* numbers = addNumbers(row.command, row.names, { row.step });
        numbers->tellChangesAlone();
        form->addRow(row.label, numbers);
    }
    form->addRow(addSwitch("plates.snapping", tr("Snap to edges and centre")));
    return form;
}

QWidget* PlatesPanel::createTextBox()
{
    auto* box = new QGroupBox(tr("Text"), this);
    auto* layout = new QVBoxLayout(box);
    textEdit = new QLineEdit(box);
    textEdit->setObjectName("plateText");
    textEdit->setPlaceholderText(tr("Title"));
    layout->addWidget(textEdit);
    fontBox = new QFontComboBox(box);
    fontBox->setObjectName("plateFont");
    fontBox->setMinimumContentsLength(kLeastFontLetters);
    fontBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    layout->addWidget(fontBox);
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    textHeight = new NumberBox(percentStyle(1.0), box);
    textHeight->setObjectName("plateTextHeight");
    textHeight->setSuffix(" %");
    textHeight->setToolTip(tr("Height of a line, of the view's"));
    textHeight->setValue(PlateText::kUsualHeight * kPercent);
    row->addWidget(textHeight);
    bold = new QCheckBox(tr("Bold"), box);
    bold->setObjectName("plateTextBold");
    row->addWidget(bold);
    colorButton = addTool(row, "plateTextColor", {}, tr("Colour of the text"), [this] {
        const QColor chosen =
            QColorDialog::getColor(color, this, {}, QColorDialog::ShowAlphaChannel);
        if (chosen.isValid()) {
            color = chosen;
            showColor();
        }
    });
    colorButton->setAccessibleName(tr("Colour of the text"));
    row->addStretch();
    add = addTool(row, "plates.addText", tr("Add"), tr("Add the text as a plate"),
                  [this] { run("plates.addText", typedText()); });
    change = addTool(row, "plates.text", tr("Change"), tr("Change the text of the selected plate"),
                     [this] { run("plates.text", typedText()); });
    connect(textEdit, &QLineEdit::returnPressed, this, [this] {
        // As long as a text is selected Enter is for that.
        (change->isEnabled() ? change : add)->click();
    });
    bind(change, {}, [this](const QJsonValue& text) { showText(text.toObject()); });
    showColor();
    return box;
}

void PlatesPanel::showColor()
{
    QPixmap swatch(colorButton->iconSize());
    swatch.fill(color);
    QPainter painter(&swatch);
    painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
    painter.end();
    colorButton->setIcon(swatch);
}

// == What a person does

QJsonObject PlatesPanel::typedText() const
{
    PlateText text;
    text.text = textEdit->text();
    text.font = fontBox->currentFont().family();
    text.height = textHeight->value() / kPercent;
    text.bold = bold->isChecked();
    text.color = color;
    return toJson(text);
}

/// Fills the fields with the text that has been selected, once.
void PlatesPanel::showText(const QJsonObject& text)
{
    if (text == shownText) {
        return;
    }
    shownText = text;
    if (!text.isEmpty()) {
        textEdit->setText(text["text"].toString());
        if (!text["font"].toString().isEmpty()) {
            fontBox->setCurrentFont(QFont(text["font"].toString()));
        }
        textHeight->display(text["height"].toDouble() * kPercent);
        bold->setChecked(text["bold"].toBool());
        color = QColor(text["color"].toString());
        showColor();
    }
}

void PlatesPanel::selectRows()
{
    QJsonArray names;
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->isSelected()) {
            names.append(list->item(row)->data(kNameRole).toString());
        }
    }
    run("plates.select", names);
}

void PlatesPanel::changeItem(QListWidgetItem* item)
{
    const QString name = item->data(kNameRole).toString();
    if (item->text() != name) {
        // A command shows the list anew.
        const QString wanted = item->text();
        if (run("plates.select", QJsonArray { name })) {
            run("plates.name", wanted);
        }
        return;
    }
    run("plates.visible",
        QJsonObject { { "name", name }, { "visible", item->checkState() == Qt::Checked } });
}

// == Showing how things are

void PlatesPanel::refresh()
{
    Panel::refresh();
    refreshList();
    edit->setChecked(tool.isActive());
    for (QToolButton* button : selectionButtons) {
        button->setEnabled(!tool.selected().empty());
    }
}

void PlatesPanel::refreshList()
{
    const QSignalBlocker blocker(list);
    const std::vector<osg::NodePtr> plates = PlatesTool::all();
    const QJsonArray selected = value("plates.selected").toArray();
    while (list->count() > static_cast<int>(plates.size())) {
        delete list->takeItem(list->count() - 1);
    }
    for (int row = 0; row < static_cast<int>(plates.size()); ++row) {
        const osg::NodePtr& node = plates[static_cast<std::size_t>(row)];
        const osg::SceneplatePtr plate = nbSceneplateList::plateOf(node);
        const QString name = QString::fromStdString(nbNodeUtils::getName(node));
        if (row == list->count()) {
            auto* added = new QListWidgetItem(list);
            added->setFlags(added->flags() | Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
        }
        QListWidgetItem* item = list->item(row);
        item->setData(kNameRole, name);
        item->setText(name);
        item->setCheckState(plate->getVisible() ? Qt::Checked : Qt::Unchecked);
        item->setToolTip(plate->getFront() ? tr("In front of the scene") : tr("Behind the scene"));
        QFont itemFont = item->font();
        itemFont.setItalic(!plate->getFront());
        item->setFont(itemFont);
        item->setSelected(selected.contains(name));
    }
}

}  // namespace viewer
