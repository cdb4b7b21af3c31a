// SPDX-License-Identifier: MIT
#include "viewer/gui/PlatesPanel.h"

#include "viewer/gui/ThemeIcon.h"
#include "viewer/gui/VectorEdit.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/plates/PlateField.h"
#include "viewer/plates/PlateText.h"
#include "viewer/stage/Stage.h"

#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
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
    NumberBox::Style style;
    style.step = kPercentStep;
    style.least = least;
    style.most = kPercent;
    style.decimals = 1;
    return style;
}

}  // namespace

PlatesPanel::PlatesPanel(Stage& targetStage, PlatesTool& targetTool, QWidget* parent)
    : Panel(targetStage, parent)
    , tool(targetTool)
{
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(createButtons());
    createList();
    layout->addWidget(list, 1);
    layout->addLayout(createProperties());
    layout->addWidget(createTextBox());
}

// == Making

QToolButton* PlatesPanel::addButton(QBoxLayout* row, const char* name, const QString& text,
                                    const QString& tip)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setToolTip(tip);
    row->addWidget(button);
    return button;
}

QBoxLayout* PlatesPanel::createButtons()
{
    auto* row = new QHBoxLayout;
    edit = addButton(row, "plates.edit", tr("Edit"), tr("Select and edit plates in the view"));
    edit->setCheckable(true);
    connect(edit, &QToolButton::clicked, this,
            [this](bool on) { run(QStringLiteral("plates.edit"), on); });
    QToolButton* picture =
        addButton(row, "plates.addPicture", tr("Picture…"), tr("Add a picture from a file"));
    connect(picture, &QToolButton::clicked, this, &PlatesPanel::askForPicture);
    QToolButton* plain =
        addButton(row, "plates.addColor", tr("Colour…"), tr("Add a plate of plain colour"));
    connect(plain, &QToolButton::clicked, this, &PlatesPanel::askForColor);
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
        QToolButton* button = addButton(row, entry.command, {}, entry.tip);
        button->setIcon(themeIcon(QLatin1String(entry.icon)));
        button->setAccessibleName(entry.tip);
        connect(button, &QToolButton::clicked, this,
                [this, command = entry.command] { run(QLatin1String(command)); });
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

    QToolButton* const button =
        addButton(row, "platesArrange", QStringLiteral("≡"), tr("Arrange plates"));
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    button->setMenu(menu);
    for (const auto& entry : rows) {
        menu->addAction(entry.text, this, [this, command = entry.command, value = entry.value] {
            run(QLatin1String(command), QLatin1String(value));
        });
    }
    selectionButtons.push_back(button);
}

void PlatesPanel::createList()
{
    list = new QListWidget(this);
    list->setObjectName(QStringLiteral("plateList"));
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
        addChoice(QStringLiteral("plates.front"),
                  { { true, tr("In front of the scene") }, { false, tr("Behind the scene") } }));
    auto* opacity = new NumberBox(percentStyle(0.0), this);
    opacity->setObjectName(QStringLiteral("plates.opacity"));
    opacity->setSuffix(QStringLiteral(" %"));
    connect(opacity, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double percent) { run(QStringLiteral("plates.opacity"), percent / kPercent); });
    bind(opacity, QStringLiteral("plates.opacity"),
         [opacity](const QJsonValue& part) { opacity->display(part.toDouble() * kPercent); });
    form->addRow(tr("Opacity"), opacity);
    Choices anchors;
    for (const AnchorText& entry : kAnchorTexts) {
        anchors.emplace_back(QLatin1String(entry.word), tr(entry.text));
    }
    QWidget* anchor = addChoice(QStringLiteral("plates.anchor"), anchors);
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
        NumberBox::Style style;
        style.step = row.step;
        form->addRow(row.label, addNumbers(QLatin1String(row.command), row.names, style));
    }
    form->addRow(addSwitch(QStringLiteral("plates.snapping"), tr("Snap to edges and centre")));
    return form;
}

QWidget* PlatesPanel::createTextBox()
{
    auto* box = new QGroupBox(tr("Text"), this);
    auto* layout = new QVBoxLayout(box);
    textEdit = new QLineEdit(box);
    textEdit->setObjectName(QStringLiteral("plateText"));
    textEdit->setPlaceholderText(tr("Title"));
    layout->addWidget(textEdit);
    fontBox = new QFontComboBox(box);
    fontBox->setObjectName(QStringLiteral("plateFont"));
    fontBox->setMinimumContentsLength(kLeastFontLetters);
    fontBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    layout->addWidget(fontBox);
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    textHeight = new NumberBox(percentStyle(1.0), box);
    textHeight->setObjectName(QStringLiteral("plateTextHeight"));
    textHeight->setSuffix(QStringLiteral(" %"));
    textHeight->setToolTip(tr("Height of a line, of the view's"));
    textHeight->setValue(PlateText::kUsualHeight * kPercent);
    row->addWidget(textHeight);
    bold = new QCheckBox(tr("Bold"), box);
    bold->setObjectName(QStringLiteral("plateTextBold"));
    row->addWidget(bold);
    colorButton = addButton(row, "plateTextColor", {}, tr("Colour of the text"));
    colorButton->setAccessibleName(tr("Colour of the text"));
    connect(colorButton, &QToolButton::clicked, this, [this] {
        const QColor chosen =
            QColorDialog::getColor(color, this, {}, QColorDialog::ShowAlphaChannel);
        if (chosen.isValid()) {
            color = chosen;
            showColor();
        }
    });
    row->addStretch();
    add = addButton(row, "plates.addText", tr("Add"), tr("Add the text as a plate"));
    connect(add, &QToolButton::clicked, this,
            [this] { run(QStringLiteral("plates.addText"), typedText()); });
    change =
        addButton(row, "plates.text", tr("Change"), tr("Change the text of the selected plate"));
    connect(change, &QToolButton::clicked, this,
            [this] { run(QStringLiteral("plates.text"), typedText()); });
    connect(textEdit, &QLineEdit::returnPressed, this, [this] {
        // As long as a text is selected Enter is for that.
        (change->isEnabled() ? change : add)->click();
    });
    bind(change, QStringLiteral("plates.text"),
         [this](const QJsonValue& text) { showText(text.toObject()); });
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

void PlatesPanel::askForPicture()
{
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Add picture"), {}, pictureFileFilter());
    if (!file.isEmpty()) {
        run(QStringLiteral("plates.addPicture"), QJsonObject { { QStringLiteral("file"), file } });
    }
}

void PlatesPanel::askForColor()
{
    const QColor chosen =
        QColorDialog::getColor(Qt::black, this, {}, QColorDialog::ShowAlphaChannel);
    if (chosen.isValid()) {
        run(QStringLiteral("plates.addColor"),
            QJsonObject { { QStringLiteral("color"), chosen.name(QColor::HexArgb) } });
    }
}

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
        textEdit->setText(text[QLatin1String("text")].toString());
        if (!text[QLatin1String("font")].toString().isEmpty()) {
            fontBox->setCurrentFont(QFont(text[QLatin1String("font")].toString()));
        }
        textHeight->display(text[QLatin1String("height")].toDouble() * kPercent);
        bold->setChecked(text[QLatin1String("bold")].toBool());
        color = QColor(text[QLatin1String("color")].toString());
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
    run(QStringLiteral("plates.select"), names);
}

void PlatesPanel::changeItem(QListWidgetItem* item)
{
    const QString name = item->data(kNameRole).toString();
    if (item->text() != name) {
        // A command shows the list anew.
        const QString wanted = item->text();
        if (run(QStringLiteral("plates.select"), QJsonArray { name })) {
            run(QStringLiteral("plates.name"), wanted);
        }
        return;
    }
    run(QStringLiteral("plates.visible"),
        QJsonObject { { QStringLiteral("name"), name },
                      { QStringLiteral("visible"), item->checkState() == Qt::Checked } });
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
    const QJsonArray selected = value(QStringLiteral("plates.selected")).toArray();
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
