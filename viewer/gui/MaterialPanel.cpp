// SPDX-License-Identifier: MIT
#include "viewer/gui/MaterialPanel.h"

#include "viewer/gui/MaterialPicture.h"
#include "viewer/gui/VectorEdit.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/stage/Stage.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>

namespace viewer {
namespace {

constexpr int kDecimals = 3;
constexpr int kFineDecimals = 5;  ///< of hundreds of units
constexpr double kMostUnits = 1e6;
constexpr double kLeastScale = 1e-3;

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

/// A switch, of one projection or of every one.
struct SwitchRow
{
    const char* projection;  ///< "" for every one
    const char* command;
    const char* label;
};

/// In two columns, row by row.
constexpr SwitchRow kSwitchRows[] = {
    { "planar", "texture.keepAspect", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Keep aspect") },
    { "planar", "texture.endInDepth", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "End in depth") },
    { "planar", "texture.repeatU", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Repeat across") },
    { "planar", "texture.repeatV", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Repeat upwards") },
    { "planar", "texture.showProjection",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Show projection") },
    { "planar", "texture.showDepth", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Show its depth") },
    { "uv", "texture.uvKeepAspect", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Keep aspect") },
    { "triplanar", "texture.ringsTilted",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Turn rings seen edge-on") },
    { "tire", "texture.tireFit", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Fit to the object") },
    { "", "texture.mask", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Picture is a mask") },
    { "", "texture.invert", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Invert") },
};

}  // namespace

MaterialPanel::MaterialPanel(Stage& targetStage, TextureTool& targetTool, QWidget* parent)
    : Panel(targetStage, parent)
    , tool(targetTool)
{
    auto* column = new QVBoxLayout(this);
    hint = new QLabel(this);
    hint->setObjectName(QStringLiteral("materialHint"));
    hint->setWordWrap(true);
    column->addWidget(hint);
    threeSides = new QPushButton(tr("Put it on from three sides"), this);
    threeSides->setObjectName(QStringLiteral("materialThreeSides"));
    connect(threeSides, &QPushButton::clicked, this,
            [this] { run(QStringLiteral("texture.projection"), QStringLiteral("triplanar")); });
    column->addWidget(threeSides);

    content = new QWidget(this);
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
    addSwitches(*projectionRows, "");
    tool.preview().setRefreshCallback([this] { refreshPicture(); });
}

MaterialPanel::~MaterialPanel()
{
    tool.preview().setRefreshCallback(nullptr);
}

// == Rows

void MaterialPanel::addPictureRows(QFormLayout& form)
{
    form.addRow(
        tr("Component"),
        addChoice(QStringLiteral("texture.component"),
                  { { QLatin1String(osg::UberMaterial::kDiffuseComponent), tr("Colour") },
                    { QLatin1String(osg::UberMaterial::kTransparencyComponent), tr("Opacity") } }));

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
    auto* form = new QFormLayout;
    form->addRow(tr("Projection"),
                 addChoice(QStringLiteral("texture.projection"),
                           { { QStringLiteral("planar"), tr("From one side") },
                             { QStringLiteral("uv"), tr("Texture coordinates") },
                             { QStringLiteral("triplanar"), tr("From three sides") },
                             { QStringLiteral("tire"), tr("Around a tire") } }));
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
    form->addRow(tr("Handle size"), addSlider(QStringLiteral("texture.handleSize"), [this] {
                     const TextureGizmos::Size size = tool.handleSize();
                     return std::pair<double, double>(size.least, size.most);
                 }));
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
        NumberBox::Style style;
        style.step = row.step;
        style.least = row.least;
        style.decimals = row.decimals;
        style.measure = row.measure;
        const QString label = tr(row.label);
        const QStringList names = row.naming == Naming::Axes ? QStringList { "X", "Y", "Z" }
            : row.naming == Naming::Picture                  ? QStringList { "U", "V" }
                                                             : QStringList { label };
        form->addRow(label, addNumbers(QLatin1String(row.command), names, style));
    }
    addSwitches(*itsColumn, word);
    if (QLatin1String(word) == QLatin1String("planar")) {
        auto* transparency = addSlider(QStringLiteral("texture.planeTransparency"),
                                       [] { return std::pair(0.0, 1.0); });
        transparency->setToolTip(tr("How far one sees through the shown projection"));
        auto* last = new QFormLayout;
        last->addRow(tr("Transparency"), transparency);
        itsColumn->addLayout(last);
    }
}

void MaterialPanel::addSwitches(QBoxLayout& column, const char* word)
{
    auto* grid = new QGridLayout;
    column.addLayout(grid);
    int place = 0;
    for (const SwitchRow& row : kSwitchRows) {
        if (QLatin1String(row.projection) == QLatin1String(word)) {
            grid->addWidget(addSwitch(QLatin1String(row.command), tr(row.label)), place / 2,
                            place % 2);
            ++place;
        }
    }
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
    Panel::refresh();
    const QString hindrance = tool.hindrance();
    const QString name = value(QStringLiteral("texture.surface")).toString();
    const bool lacksCoordinates = tool.target().settings() != osg::NullFC &&
        !tool.target().hasCoordinates() &&
        tool.target().projectionType() == TextureTarget::Settings::UVProjection;
    setTextOf(hint,
              !hindrance.isEmpty() ? hindrance
                  : lacksCoordinates
                  ? tr("\"%1\" has no texture coordinates, so the picture is not seen").arg(name)
                  : tr("On \"%1\"").arg(name));
    threeSides->setVisible(lacksCoordinates);
    content->setEnabled(hindrance.isEmpty());
    projectionContent->setEnabled(tool.target().settings() != osg::NullFC);
    refreshHandles();
    picture->setPaused(tool.preview().isPaused());
    if (isPictureOld && isVisible()) {
        refreshPicture();
    }
}

void MaterialPanel::refreshHandles()
{
    const osg::ImagePtr image = tool.target().image();
    const QString name = pictureName(image);
    setTextOf(fileName, name.isEmpty() ? tr("No picture") : name);
    removeButton->setEnabled(image != osg::NullFC);
    const QString projection = value(QStringLiteral("texture.projection")).toString();
    for (auto rows = valueRows.begin(); rows != valueRows.end(); ++rows) {
        rows.value()->setVisible(rows.key() ==
                                 (projection.isEmpty() ? QStringLiteral("planar") : projection));
    }
    const QString shown = tool.isPlacing() ? QStringLiteral("place")
                                           : value(QStringLiteral("texture.handles")).toString();
    handleButtons->setExclusive(false);
    for (QAbstractButton* button : handleButtons->buttons()) {
        const std::string group =
            button->objectName().mid(QStringLiteral("texture-").size()).toStdString();
        button->setEnabled(group == "place" || tool.hasGroup(group));
        button->setChecked(button->objectName() == QStringLiteral("texture-") + shown);
    }
    handleButtons->setExclusive(true);
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
