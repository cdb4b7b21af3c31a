// SPDX-License-Identifier: MIT
#include "viewer/gui/MaterialPanel.h"

#include "viewer/core/PictureFile.h"
#include "viewer/core/Stage.h"
#include "viewer/gui/MaterialPicture.h"
#include "viewer/gui/VectorEdit.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QJsonArray>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

#include <cmath>

namespace viewer {
namespace {

constexpr int kDecimals = 3;
constexpr double kRounding = 0.5001e-3;  ///< by which a shown number may differ
constexpr double kMostUnits = 1e6;
constexpr double kLeastScale = 1e-3;
constexpr double kPercent = 100.0;

struct VectorRow
{
    const char* command;
    const char* label;
    double least;
    double step;
};

constexpr VectorRow kVectorRows[] = {
    { "texture.translation", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Place"), -kMostUnits,
      0.05 },
    { "texture.rotation", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Turn, °"), -kMostUnits, 5.0 },
    { "texture.scale", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Half size"), kLeastScale, 0.05 },
};

QString textOfFile(const QString& name)
{
    return name.isEmpty() ? MaterialPanel::tr("No picture") : name;
}

void displayText(QLabel* label, const QString& text)
{
    if (label->text() != text) {
        label->setText(text);
    }
}

}  // namespace

MaterialPanel::MaterialPanel(Stage& targetStage, QWidget* parent)
    : Panel(targetStage, parent)
    , tool(targetStage)
    , commands(targetStage, tool)
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    outer->addWidget(area);
    auto* all = new QWidget(area);
    area->setWidget(all);
    auto* column = new QVBoxLayout(all);
    hint = new QLabel(all);
    hint->setObjectName(QStringLiteral("materialHint"));
    hint->setWordWrap(true);
    column->addWidget(hint);

    content = new QWidget(all);
    content->setObjectName(QStringLiteral("materialContent"));
    column->addWidget(content);
    column->addStretch();
    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    picture = new MaterialPicture(content);
    rows->addWidget(picture);
    auto* form = new QFormLayout;
    rows->addLayout(form);
    addPictureRows(*form);

    projectionContent = new QWidget(content);
    rows->addWidget(projectionContent);
    auto* projectionRows = new QVBoxLayout(projectionContent);
    projectionRows->setContentsMargins(0, 0, 0, 0);
    addHandleRow(*projectionRows);
    auto* projectionForm = new QFormLayout;
    projectionRows->addLayout(projectionForm);
    addProjectionRows(*projectionForm);
    addSwitches(*projectionRows);
    addSceneRows(*projectionRows);
    tool.preview().setRefreshCallback([this] { refreshPicture(); });
    refresh();
}

MaterialPanel::~MaterialPanel()
{
    tool.preview().setRefreshCallback(nullptr);
}

// == Rows

void MaterialPanel::addPictureRows(QFormLayout& form)
{
    component = new QComboBox(this);
    component->setObjectName(QStringLiteral("textureComponent"));
    component->addItem(tr("Colour"), QLatin1String(osg::UberMaterial::kDiffuseComponent));
    component->addItem(tr("Opacity"), QLatin1String(osg::UberMaterial::kTransparencyComponent));
    connect(component, QOverload<int>::of(&QComboBox::activated), this, [this] {
        run(QStringLiteral("texture.component"), component->currentData().toString());
    });
    form.addRow(tr("Component"), component);

    auto* row = new QHBoxLayout;
    fileName = new QLabel(this);
    fileName->setObjectName(QStringLiteral("textureFile"));
    row->addWidget(fileName, 1);
    auto* choose = new QPushButton(tr("Choose…"), this);
    choose->setObjectName(QStringLiteral("textureChoose"));
    connect(choose, &QPushButton::clicked, this, &MaterialPanel::askForPicture);
    row->addWidget(choose);
    removeButton = new QPushButton(tr("Remove"), this);
    removeButton->setObjectName(QStringLiteral("textureRemove"));
    connect(removeButton, &QPushButton::clicked, this,
            [this] { run(QStringLiteral("texture.picture"), QJsonValue()); });
    row->addWidget(removeButton);
    form.addRow(tr("Picture"), row);
}

QAbstractButton* MaterialPanel::addHandleButton(QBoxLayout& row, const char* group,
                                                const QString& label)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String("texture-") + QLatin1String(group));
    button->setText(label);
    button->setCheckable(true);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // Keys are for the view, whatever was clicked last.
    button->setFocusPolicy(Qt::NoFocus);
    handleButtons->addButton(button);
    row.addWidget(button);
    return button;
}

void MaterialPanel::addHandleRow(QBoxLayout& column)
{
    handleButtons = new QButtonGroup(this);
    auto* row = new QHBoxLayout;
    row->setSpacing(1);
    column.addLayout(row);
    const std::pair<const char*, QString> groups[] = { { "translate", tr("Move") },
                                                       { "rotate", tr("Turn") },
                                                       { "scale", tr("Scale") },
                                                       { "universal", tr("All") } };
    for (const auto& [group, label] : groups) {
        QAbstractButton* button = addHandleButton(*row, group, label);
        connect(button, &QAbstractButton::clicked, this, [this, word = QString::fromLatin1(group)] {
            run(QStringLiteral("texture.handles"), word);
        });
    }
    QAbstractButton* place = addHandleButton(*row, "place", tr("Place by click"));
    connect(place, &QAbstractButton::clicked, this,
            [this] { run(QStringLiteral("texture.place"), true); });
}

void MaterialPanel::addProjectionRows(QFormLayout& form)
{
    for (const VectorRow& row : kVectorRows) {
        VectorEdit::Style style;
        style.step = row.step;
        style.least = row.least;
        style.decimals = kDecimals;
        auto* edit = new VectorEdit({ tr("X"), tr("Y"), tr("Z") }, style, this);
        const QString command = QString::fromLatin1(row.command);
        edit->setObjectName(command);
        connect(edit, &VectorEdit::edited, this,
                [this, command](const QJsonArray& values) { runVector(command, values); });
        form.addRow(tr(row.label), edit);
        vectors[command] = edit;
    }
}

void MaterialPanel::addSwitch(QBoxLayout& row, const char* command, const QString& label)
{
    auto* box = new QCheckBox(label, this);
    box->setObjectName(QLatin1String(command));
    connect(box, &QCheckBox::clicked, this,
            [this, word = QString::fromLatin1(command)](bool on) { run(word, on); });
    row.addWidget(box);
    switches[QLatin1String(command)] = box;
}

void MaterialPanel::addSwitches(QBoxLayout& column)
{
    const std::array<std::array<std::pair<const char*, QString>, 2>, 3> rows { {
        { { { "texture.keepAspect", tr("Keep aspect") },
            { "texture.endInDepth", tr("End in depth") } } },
        { { { "texture.repeatU", tr("Repeat across") },
            { "texture.repeatV", tr("Repeat upwards") } } },
        { { { "texture.mask", tr("Picture is a mask") }, { "texture.invert", tr("Invert") } } },
    } };
    auto* grid = new QHBoxLayout;
    column.addLayout(grid);
    for (std::size_t side = 0; side < 2; ++side) {
        auto* half = new QVBoxLayout;
        grid->addLayout(half);
        for (const auto& row : rows) {
            addSwitch(*half, row[side].first, row[side].second);
        }
    }
}

void MaterialPanel::addSceneRows(QBoxLayout& column)
{
    auto* row = new QHBoxLayout;
    column.addLayout(row);
    addSwitch(*row, "texture.showProjection", tr("Show projection"));
    addSwitch(*row, "texture.showDepth", tr("Show its depth"));
    transparency = new QSlider(Qt::Horizontal, this);
    transparency->setObjectName(QStringLiteral("texture.planeTransparency"));
    transparency->setRange(0, static_cast<int>(kPercent));
    transparency->setToolTip(tr("How far one sees through the shown projection"));
    connect(transparency, &QSlider::valueChanged, this, [this](int percent) {
        run(QStringLiteral("texture.planeTransparency"), percent / kPercent);
    });
    auto* form = new QFormLayout;
    form->addRow(tr("Transparency"), transparency);
    column.addLayout(form);
}

// == What a person does

void MaterialPanel::askForPicture()
{
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Choose picture"), {}, pictureFileFilter());
    if (!file.isEmpty()) {
        run(QStringLiteral("texture.picture"), file);
    }
}

void MaterialPanel::runVector(const QString& command, const QJsonArray& edited)
{
    // The rows show rounded numbers: those that a person did not change stay what they are.
    QJsonArray value = stage().commands().value(command).value_or(QJsonValue()).toArray();
    for (int i = 0; i < value.size(); ++i) {
        const double change = std::abs(edited.at(i).toDouble() - value.at(i).toDouble());
        if (change > kRounding) {
            value.replace(i, edited.at(i));
        }
    }
    run(command, value);
}

// == What there is

void MaterialPanel::refresh()
{
    const QString hindrance = tool.hindrance();
    const QString name = stage()
                             .commands()
                             .value(QStringLiteral("texture.surface"))
                             .value_or(QJsonValue())
                             .toString();
    displayText(hint, hindrance.isEmpty() ? tr("On \"%1\"").arg(name) : hindrance);
    content->setEnabled(hindrance.isEmpty());
    projectionContent->setEnabled(tool.target().projection() != osg::NullFC);
    refreshRows();
    picture->setPaused(tool.preview().isPaused());
    if (isPictureOld && isVisible()) {
        refreshPicture();
    }
}

void MaterialPanel::refreshRows()
{
    const Commands& values = stage().commands();
    component->setCurrentIndex(
        component->findData(QString::fromStdString(tool.target().component())));
    const osg::ImagePtr image = tool.target().image();
    displayText(fileName, textOfFile(pictureName(image)));
    removeButton->setEnabled(image != osg::NullFC);
    for (auto row = vectors.begin(); row != vectors.end(); ++row) {
        row.value()->display(values.value(row.key()).value_or(QJsonValue()).toArray());
    }
    for (auto row = switches.begin(); row != switches.end(); ++row) {
        row.value()->setChecked(values.value(row.key()).value_or(QJsonValue()).toBool());
    }
    const QString shown = tool.isPlacing()
        ? QStringLiteral("place")
        : values.value(QStringLiteral("texture.handles")).value_or(QJsonValue()).toString();
    handleButtons->setExclusive(false);
    for (QAbstractButton* button : handleButtons->buttons()) {
        button->setChecked(button->objectName() == QStringLiteral("texture-") + shown);
    }
    handleButtons->setExclusive(true);
    const QSignalBlocker blocker(transparency);
    transparency->setValue(qRound(static_cast<double>(tool.planeTransparency()) * kPercent));
}

void MaterialPanel::refreshPicture()
{
    // What nobody sees is drawn when it is shown.
    isPictureOld = !isVisible();
    if (!isPictureOld) {
        picture->display(tool.target());
    }
}

}  // namespace viewer
