// SPDX-License-Identifier: MIT
#include "viewer/gui/MaterialPanel.h"

#include "viewer/gui/MaterialPicture.h"
#include "viewer/gui/VectorEdit.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/stage/Stage.h"
#include "viewer/textures/SurfaceMaterial.h"

#include <nbKernelServices/nbUndoService.h>
#include <nbMaterialEditor/nbBoxCoordinates.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>

#include <utility>

namespace viewer {
namespace {

constexpr int kDecimals = 3;
constexpr int kFineDecimals = 5;  ///< of hundreds of units
constexpr double kMostUnits = 1e6;
constexpr double kLeastScale = 1e-3;

using Measure = nbValueExpression::Measure;

constexpr const char* kAxes = "X|Y|Z";
constexpr const char* kPicture = "U|V";
constexpr const char* kOne = nullptr;

/// Numbers of a projection that a person can type, in the order in which rows name them.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct ValueRow
{
    const char* projection;
    const char* command;
    const char* label;
    const char* names;  ///< of each; kOne: as the label
    double step;
    Measure measure = Measure::Number;
    double least = -kMostUnits;
    int decimals = kDecimals;
};

constexpr ValueRow kValueRows[] = {
    { "planar", "texture.translation", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Place"), kAxes,
      0.05, Measure::Length },
    { "planar", "texture.rotation", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Turn, °"), kAxes,
      5.0, Measure::Angle },
    { "planar", "texture.scale", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Half size"), kAxes,
      0.05, Measure::Length, kLeastScale },
    { "planar", "texture.angles", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "On faces up to, °"),
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Shown up to, °|Fading over, °"), 5.0,
      Measure::Angle, 0.0 },
    { "uv", "texture.uvOffset", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Offset"), kPicture,
      0.05 },
    { "uv", "texture.uvRotate", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Turn, °"), kOne, 5.0,
      Measure::Angle },
    { "uv", "texture.uvRepeat", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Repeat"), kPicture,
      0.5 },
    { "triplanar", "texture.triplanarRotation",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Turn, °"), kAxes, 5.0, Measure::Angle },
    { "triplanar", "texture.triplanarOffsetU",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Offset across"), kAxes, 0.001, Measure::Number,
      -kMostUnits, kFineDecimals },
    { "triplanar", "texture.triplanarOffsetV",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Offset upwards"), kAxes, 0.001, Measure::Number,
      -kMostUnits, kFineDecimals },
    { "triplanar", "texture.triplanarRepeatU",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Repeat across"), kAxes, 5.0 },
    { "triplanar", "texture.triplanarRepeatV",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Repeat upwards"), kAxes, 5.0 },
    { "planar", "texture.texelsPerUnit",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Pixels per unit"), kOne, 1.0, Measure::Number,
      kLeastScale },
    { "triplanar", "texture.texelsPerUnit",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Pixels per unit"), kOne, 1.0, Measure::Number,
      kLeastScale },
    { "tire", "texture.tireCenter", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Centre"), kAxes,
      0.05, Measure::Length },
    { "tire", "texture.tireHeight", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Width of tread"),
      kOne, 0.05, Measure::Length },
    { "tire", "texture.tireRadius", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Radius"), kOne,
      0.05, Measure::Length },
    { "tire", "texture.tireScaleU", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Part around"), kOne,
      0.05 },
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
    { "uv", "texture.pivotAtHandles",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Turn about the handles") },
    { "triplanar", "texture.pivotAtHandles",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Turn about the handles") },
    { "tire", "texture.tireFit", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Fit to the object") },
    { "", "texture.grabPicture", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Grab the picture") },
    { "", "texture.mask", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Picture is a mask") },
    { "", "texture.invert", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Invert") },
};

/// What is done with the picture as a whole.
struct ArrangeRow
{
    const char* command;
    const char* word;
    const char* label;
    int turns = 0;  ///< instead of the word
};

constexpr ArrangeRow kArrangeRows[] = {
    { "texture.fit", "object", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Fit to the object") },
    { "texture.fit", "face", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Fit to the face") },
    { "texture.fit", "view", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Fit as seen") },
    { "texture.centre", "", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Centre") },
    { "texture.align", "normal",
      QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Align to the surface") },
    { "texture.align", "up", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Align upright") },
    { "texture.align", "view", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Align to the view") },
    { "texture.turnBy", "", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Quarter turn left"), 1 },
    { "texture.turnBy", "", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Quarter turn right"), -1 },
    { "texture.flip", "u", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Flip across") },
    { "texture.flip", "v", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Flip upwards") },
    { "texture.ownAspect", "", QT_TRANSLATE_NOOP("viewer::MaterialPanel", "Own aspect") },
};

}  // namespace

MaterialPanel::MaterialPanel(Stage& targetStage, TextureTool& targetTool)
    : Panel(targetStage)
    , tool(targetTool)
{
    auto* column = new QVBoxLayout(this);
    hint = new QLabel(this);
    hint->setObjectName("materialHint");
    hint->setWordWrap(true);
    column->addWidget(hint);

    content = new QWidget(this);
    content->setObjectName("materialContent");
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
    auto* projections = new QFormLayout;
    projections->addRow(tr("Projection"),
                        addChoice("texture.projection",
                                  { { "planar", tr("From one side") },
                                    { "uv", tr("Texture coordinates") },
                                    { "triplanar", tr("From three sides") },
                                    { "tire", tr("Around a tire") } }));
    projectionRows->addLayout(projections);
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
        addChoice("texture.component",
                  { { QLatin1String(osg::UberMaterial::kDiffuseComponent), tr("Colour") },
                    { QLatin1String(osg::UberMaterial::kTransparencyComponent), tr("Opacity") } }));

    auto* row = new QHBoxLayout;
    fileName = new QLabel(this);
    fileName->setObjectName("textureFile");
    row->addWidget(fileName, 1);
    addButton(row, new QPushButton(this), "textureChoose", tr("Choose…"), [this] {
        const QString file = askForPicture(tr("Choose picture"));
        if (!file.isEmpty()) {
            run("texture.picture", file);
        }
    });
    removeButton = addButton(row, new QPushButton(this), "textureRemove", tr("Remove"),
                             [this] { run("texture.picture"); });
    form.addRow(tr("Picture"), row);
}

QAbstractButton* MaterialPanel::addHandleButton(QBoxLayout* row, const char* group,
                                                const QString& label, std::function<void()> press)
{
    QAbstractButton* button =
        addButton(row, new QToolButton(this), QString("texture-") + group, label, std::move(press));
    button->setCheckable(true);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    handleButtons->addButton(button);
    return button;
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
        addHandleButton(row, group, label, [this, word = group] { run("texture.handles", word); });
    }
    auto* form = new QFormLayout;
    column.addLayout(form);
    auto* placeRow = new QHBoxLayout;
    addHandleButton(placeRow, "place", tr("By click"), [this] {
        run("texture.place", !tool.isPlacing());
    })->setToolTip(tr("Clicks on the object place the picture, or its handles, until Esc"));
    placeRow->addWidget(makeArrangeButton());
    form->addRow(tr("Placing"), placeRow);
    form->addRow(tr("Handle size"), addSlider("texture.handleSize", [this] {
                     const TextureGizmos::Size size = tool.handleSize();
                     return std::pair<double, double>(size.least, size.most);
                 }));
}

QWidget* MaterialPanel::makeArrangeButton()
{
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("texture-arrange"));
    button->setText(tr("Arrange"));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::TabFocus);
    button->setMenu(new QMenu(button));
    for (const ArrangeRow& row : kArrangeRows) {
        button->menu()->addAction(tr(row.label), this, [this, &row] {
            const QString word = QLatin1String(row.word);
            run(QLatin1String(row.command),
                row.turns != 0 ? QJsonValue(row.turns) : QJsonValue(word));
        });
    }
    return button;
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
        const NumberBox::Style style { row.step, row.least, kMostUnits, row.decimals, row.measure };
        const QString label = tr(row.label);
        const QStringList names =
            row.names == kOne ? QStringList { label } : tr(row.names).split(QLatin1Char('|'));
        form->addRow(label, addNumbers(row.command, names, style));
    }
    addSwitches(*itsColumn, word);
    if (QLatin1String(word) == "planar") {
        auto* transparency =
            addSlider("texture.planeTransparency", [] { return std::pair(0.0, 1.0); });
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
            grid->addWidget(addSwitch(row.command, tr(row.label)), place / 2, place % 2);
            ++place;
        }
    }
}

// == What there is

void MaterialPanel::refresh()
{
    Panel::refresh();
    const QString hindrance = tool.hindrance();
    const QString name = value("texture.surface").toString();
    const bool isOfBox = nbBoxCoordinates::lieOn(geometryOf(tool.target().surface())) &&
        tool.target().projectionType() == TextureTarget::Settings::UVProjection;
    setTextOf(
        hint,
        !hindrance.isEmpty() ? hindrance
            : isOfBox
            ? tr("\"%1\" has no texture coordinates of its own: it has those of a box").arg(name)
            : tr("On \"%1\"").arg(name));
    content->setEnabled(hindrance.isEmpty());
    projectionContent->setEnabled(tool.target().settings() != osg::NullFC);
    refreshHandles();
    picture->setPaused(tool.preview().isPaused());
    const osg::UInt64 restores = nbUndoService::the()->getRestoreCount();
    isPictureOld = std::exchange(restoresShown, restores) != restores || isPictureOld;
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
    const QString projection = value("texture.projection").toString();
    for (auto rows = valueRows.begin(); rows != valueRows.end(); ++rows) {
        rows.value()->setVisible(rows.key() == (projection.isEmpty() ? "planar" : projection));
    }
    const QString shown = tool.isPlacing() ? "place" : value("texture.handles").toString();
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
