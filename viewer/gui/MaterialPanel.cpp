// SPDX-License-Identifier: MIT
#include "viewer/gui/MaterialPanel.h"

#include "viewer/gui/MaterialPicture.h"
#include "viewer/gui/PanelScrollArea.h"
#include "viewer/gui/VectorEdit.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/stage/Stage.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QJsonArray>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

namespace viewer {
namespace {

constexpr int kDecimals = 3;
constexpr int kFineDecimals = 5;  ///< of hundreds of units
constexpr double kMostUnits = 1e6;
constexpr double kLeastScale = 1e-3;
constexpr double kPercent = 100.0;

using Measure = nbValueExpression::Measure;

/// What numbers are named by.
enum class Naming
{
    Axes,
    Picture,  ///< u and v
    None  ///< one number
};

/// Numbers of a projection that a person can type, in the order in which rows name them.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct ValueRow
{
    const char* projection;
    const char* command;
    const char* label;
    Naming naming;
    double step;
    Measure measure = Measure::Number;
    double least = -kMostUnits;
    int decimals = kDecimals;
};

constexpr ValueRow kValueRows[] = {
    { "planar", "texture.translation", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Place"),
      Naming::Axes, 0.05, Measure::Length },
    { "planar", "texture.rotation", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Turn, °"),
      Naming::Axes, 5.0, Measure::Angle },
    { "planar", "texture.scale", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Half size"),
      Naming::Axes, 0.05, Measure::Length, kLeastScale },
    { "uv", "texture.uvOffset", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Offset"),
      Naming::Picture, 0.05 },
    { "uv", "texture.uvRotate", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Turn, °"), Naming::None,
      5.0, Measure::Angle },
    { "uv", "texture.uvRepeat", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Repeat"),
      Naming::Picture, 0.5 },
    { "triplanar", "texture.triplanarRotation",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Turn, °"), Naming::Axes, 5.0, Measure::Angle },
    { "triplanar", "texture.triplanarOffsetU",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Offset across"), Naming::Axes, 0.001,
      Measure::Number, -kMostUnits, kFineDecimals },
    { "triplanar", "texture.triplanarOffsetV",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Offset upwards"), Naming::Axes, 0.001,
      Measure::Number, -kMostUnits, kFineDecimals },
    { "triplanar", "texture.triplanarRepeatU",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Repeat across"), Naming::Axes, 5.0 },
    { "triplanar", "texture.triplanarRepeatV",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Repeat upwards"), Naming::Axes, 5.0 },
    { "tire", "texture.tireCenter", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Centre"),
      Naming::Axes, 0.05, Measure::Length },
    { "tire", "texture.tireHeight", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Width of tread"),
      Naming::None, 0.05, Measure::Length },
    { "tire", "texture.tireRadius", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Radius"),
      Naming::None, 0.05, Measure::Length },
    { "tire", "texture.tireScaleU", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Part around"),
      Naming::None, 0.05 },
};

/// The numbers of a value: those of an array, or one.
QJsonArray numbersOf(const QJsonValue& value)
{
    return value.isDouble() ? QJsonArray { value } : value.toArray();
}

void displayText(QLabel* label, const QString& text)
{
    if (label->text() != text) {
        label->setText(text);
    }
}

}  // namespace

MaterialPanel::MaterialPanel(Stage& targetStage, TextureTool& targetTool, QWidget* parent)
    : Panel(targetStage, parent)
    , tool(targetTool)
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* all = new QWidget(this);
    auto* area = new PanelScrollArea(all, this);
    outer->addWidget(area);
    auto* column = new QVBoxLayout(all);
    hint = new QLabel(all);
    hint->setObjectName(QStringLiteral("materialHint"));
    hint->setWordWrap(true);
    column->addWidget(hint);
    threeSides = new QPushButton(tr("Put it on from three sides"), all);
    threeSides->setObjectName(QStringLiteral("materialThreeSides"));
    connect(threeSides, &QPushButton::clicked, this,
            [this] { run(QStringLiteral("texture.projection"), QStringLiteral("triplanar")); });
    column->addWidget(threeSides);

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
    addProjectionRow(*projectionRows);
    addHandleRows(*projectionRows);
    for (const char* word : { "planar", "uv", "triplanar", "tire" }) {
        addValueRows(*projectionRows, word);
    }
    addCoverageRow(*projectionRows);
    tool.preview().setRefreshCallback([this] { refreshPicture(); });
    // While the rows of all projections still count.
    area->measure();
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
    button->setFocusPolicy(Qt::TabFocus);
    handleButtons->addButton(button);
    row.addWidget(button);
    return button;
}

void MaterialPanel::addProjectionRow(QBoxLayout& column)
{
    projection = new QComboBox(this);
    projection->setObjectName(QStringLiteral("texture.projection"));
    projection->addItem(tr("From one side"), QStringLiteral("planar"));
    projection->addItem(tr("Texture coordinates"), QStringLiteral("uv"));
    projection->addItem(tr("From three sides"), QStringLiteral("triplanar"));
    projection->addItem(tr("Around a tire"), QStringLiteral("tire"));
    connect(projection, QOverload<int>::of(&QComboBox::activated), this, [this] {
        run(QStringLiteral("texture.projection"), projection->currentData().toString());
    });
    auto* form = new QFormLayout;
    form->addRow(tr("Projection"), projection);
    column.addLayout(form);
}

void MaterialPanel::addHandleRows(QBoxLayout& column)
{
    handleButtons = new QButtonGroup(this);
    auto* row = new QHBoxLayout;
    row->setSpacing(1);
    column.addLayout(row);
    const std::pair<const char*, QString> groups[] = { { "translate", tr("Move") },
                                                       { "rotate", tr("Turn") },
                                                       { "scale", tr("Scale") },
                                                       { "rotateScale", tr("Turn + scale") },
                                                       { "universal", tr("All") } };
    for (const auto& [group, label] : groups) {
        QAbstractButton* button = addHandleButton(*row, group, label);
        connect(button, &QAbstractButton::clicked, this, [this, word = QString::fromLatin1(group)] {
            run(QStringLiteral("texture.handles"), word);
        });
    }
    auto* form = new QFormLayout;
    column.addLayout(form);
    auto* placeRow = new QHBoxLayout;
    QAbstractButton* place = addHandleButton(*placeRow, "place", tr("By click"));
    place->setToolTip(tr("Clicks on the object place the picture, or its handles, until Esc"));
    connect(place, &QAbstractButton::clicked, this,
            [this] { run(QStringLiteral("texture.place"), !tool.isPlacing()); });
    form->addRow(tr("Placing"), placeRow);
    handleSize = new QSlider(Qt::Horizontal, this);
    handleSize->setObjectName(QStringLiteral("texture.handleSize"));
    handleSize->setRange(0, static_cast<int>(kPercent));
    connectSlider(*handleSize, QStringLiteral("texture.handleSize"), [this](int percent) {
        const TextureGizmos::Size size = tool.handleSize();
        return static_cast<double>(size.least) +
            static_cast<double>(size.most - size.least) * percent / kPercent;
    });
    form->addRow(tr("Handle size"), handleSize);
}

void MaterialPanel::addValueRows(QBoxLayout& column, const char* word)
{
    auto* rows = new QWidget(this);
    column.addWidget(rows);
    valueRows[QLatin1String(word)] = rows;
    auto* itsColumn = new QVBoxLayout(rows);
    itsColumn->setContentsMargins(0, 0, 0, 0);
    auto* form = new QFormLayout;
    itsColumn->addLayout(form);
    for (const ValueRow& row : kValueRows) {
        if (QLatin1String(row.projection) != QLatin1String(word)) {
            continue;
        }
        VectorEdit::Style style;
        style.step = row.step;
        style.least = row.least;
        style.decimals = row.decimals;
        style.measure = row.measure;
        const QString label = tr(row.label);
        const QStringList names = row.naming == Naming::Axes ? QStringList { "X", "Y", "Z" }
            : row.naming == Naming::Picture                  ? QStringList { "U", "V" }
                                                             : QStringList { label };
        auto* edit = new VectorEdit(names, style, rows);
        const QString command = QString::fromLatin1(row.command);
        edit->setObjectName(command);
        connect(edit, &VectorEdit::edited, this,
                [this, command, isOne = row.naming == Naming::None](const QJsonArray& values) {
                    run(command, isOne ? values.first() : QJsonValue(values));
                });
        form->addRow(label, edit);
        vectors[command] = edit;
    }
    if (QLatin1String(word) == QLatin1String("planar")) {
        addSwitches(*itsColumn);
        addSceneRows(*itsColumn);
    } else if (QLatin1String(word) == QLatin1String("uv")) {
        addSwitch(*itsColumn, "texture.uvKeepAspect", tr("Keep aspect"));
    } else if (QLatin1String(word) == QLatin1String("triplanar")) {
        addSwitch(*itsColumn, "texture.ringsTilted", tr("Turn rings seen edge-on"));
    } else if (QLatin1String(word) == QLatin1String("tire")) {
        addSwitch(*itsColumn, "texture.tireFit", tr("Fit to the object"));
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
    const std::array<std::array<std::pair<const char*, QString>, 2>, 2> rows { {
        { { { "texture.keepAspect", tr("Keep aspect") },
            { "texture.endInDepth", tr("End in depth") } } },
        { { { "texture.repeatU", tr("Repeat across") },
            { "texture.repeatV", tr("Repeat upwards") } } },
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

void MaterialPanel::addCoverageRow(QBoxLayout& column)
{
    auto* row = new QHBoxLayout;
    column.addLayout(row);
    addSwitch(*row, "texture.mask", tr("Picture is a mask"));
    addSwitch(*row, "texture.invert", tr("Invert"));
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
    connectSlider(*transparency, QStringLiteral("texture.planeTransparency"),
                  [](int percent) { return percent / kPercent; });
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

// == What there is

void MaterialPanel::refresh()
{
    const QString hindrance = tool.hindrance();
    const QString name = stage()
                             .commands()
                             .value(QStringLiteral("texture.surface"))
                             .value_or(QJsonValue())
                             .toString();
    const bool lacksCoordinates = tool.target().settings() != osg::NullFC &&
        !tool.target().hasCoordinates() &&
        tool.target().projectionType() == TextureTarget::Settings::UVProjection;
    displayText(hint,
                !hindrance.isEmpty() ? hindrance
                    : lacksCoordinates
                    ? tr("\"%1\" has no texture coordinates, so the picture is not seen").arg(name)
                    : tr("On \"%1\"").arg(name));
    threeSides->setVisible(lacksCoordinates);
    content->setEnabled(hindrance.isEmpty());
    projectionContent->setEnabled(tool.target().settings() != osg::NullFC);
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
    const QString name = pictureName(image);
    displayText(fileName, name.isEmpty() ? tr("No picture") : name);
    removeButton->setEnabled(image != osg::NullFC);
    for (auto row = vectors.begin(); row != vectors.end(); ++row) {
        row.value()->display(numbersOf(values.value(row.key()).value_or(QJsonValue())));
    }
    for (auto row = switches.begin(); row != switches.end(); ++row) {
        row.value()->setChecked(values.value(row.key()).value_or(QJsonValue()).toBool());
    }
    const QString shown = tool.isPlacing()
        ? QStringLiteral("place")
        : values.value(QStringLiteral("texture.handles")).value_or(QJsonValue()).toString();
    handleButtons->setExclusive(false);
    for (QAbstractButton* button : handleButtons->buttons()) {
        const std::string group =
            button->objectName().mid(QStringLiteral("texture-").size()).toStdString();
        button->setEnabled(group == "place" || tool.hasGroup(group));
        button->setChecked(button->objectName() == QStringLiteral("texture-") + shown);
    }
    handleButtons->setExclusive(true);
    refreshProjection();
    const QSignalBlocker blocker(transparency);
    transparency->setValue(qRound(static_cast<double>(tool.planeTransparency()) * kPercent));
}

void MaterialPanel::refreshProjection()
{
    const QString known = stage()
                              .commands()
                              .value(QStringLiteral("texture.projection"))
                              .value_or(QJsonValue())
                              .toString();
    const QString shown = known.isEmpty() ? QStringLiteral("planar") : known;
    projection->setCurrentIndex(projection->findData(shown));
    for (auto rows = valueRows.begin(); rows != valueRows.end(); ++rows) {
        rows.value()->setVisible(rows.key() == shown);
    }
    const TextureGizmos::Size size = tool.handleSize();
    const QSignalBlocker blocker(handleSize);
    handleSize->setValue(qRound(
        static_cast<double>((size.present - size.least) / (size.most - size.least)) * kPercent));
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
