// SPDX-License-Identifier: MIT
#include "viewer/gui/Settings.h"

#include "manipulator/course/DragOverlay.h"
#include "manipulator/course/HandleFading.h"
#include "manipulator/handles/HandlePalette.h"
#include "viewer/commands/Commands.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/gui/Theme.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/loading/PictureDecoding.h"

#include <nbInteraction/Picker.h>
#include <nbTransform/nbTransformModel.h>

#include <QSettings>

#include <algorithm>

namespace viewer {
namespace {

using nbec::manipulator::BuiltInPalette;

constexpr double kMebibyte = 1048576.0;
const QString kPrefix = "settings.";

constexpr std::pair<const char*, BuiltInPalette> kPalettes[] = {
    { "classic", BuiltInPalette::Classic },
    { "soft", BuiltInPalette::Soft },
    { "contrast", BuiltInPalette::HighContrast },
    { "colourBlind", BuiltInPalette::ForColourBlind },
};

using Axes = GizmoController::Axes;
using Pivot = GizmoController::Pivot;

constexpr std::pair<const char*, Axes> kAxes[] = {
    { "world", Axes::World },
    { "object", Axes::Own },
    { "parent", Axes::Parent },
    { "view", Axes::View },
};

constexpr std::pair<const char*, Pivot> kPivots[] = {
    { "own", Pivot::Own },
    { "first", Pivot::First },
    { "common", Pivot::Common },
};

template <class Rows, class Value>
QJsonValue wordOf(const Rows& rows, Value value)
{
    const auto* const row =
        std::find_if(std::begin(rows), std::end(rows),
                     [value](const auto& each) { return each.second == value; });
    return row == std::end(rows) ? QJsonValue() : QJsonValue(QLatin1String(row->first));
}

/// @param word  of one of the rows
template <class Rows>
auto valueOf(const Rows& rows, const QJsonValue& word)
{
    return std::find_if(
               std::begin(rows), std::end(rows),
               [&word](const auto& each) { return word.toString() == QLatin1String(each.first); })
        ->second;
}

QJsonValue presentPalette()
{
    nbec::manipulator::HandlePalette present = nbec::manipulator::getHandlePalette();
    present.hasLetters = false;
    for (const auto& [word, palette] : kPalettes) {
        if (nbec::manipulator::builtInPalette(palette).isSame(present)) {
            return QLatin1String(word);
        }
    }
    return {};
}

void setPalette(const QJsonValue& wanted)
{
    nbec::manipulator::HandlePalette chosen =
        nbec::manipulator::builtInPalette(valueOf(kPalettes, wanted));
    chosen.hasLetters = nbec::manipulator::getHandlePalette().hasLetters;
    nbec::manipulator::setHandlePalette(chosen);
}

Setting choice(const char* name, const char* label, std::function<QJsonValue()> read,
               std::function<void(const QJsonValue&)> set,
               std::vector<std::pair<QString, QString>> words)
{
    return { name, label, std::move(read), std::move(set), 0.0, 0.0, 0.0, std::move(words) };
}

}  // namespace

Settings::Settings(MainWindow& targetWindow, bool areKept)
    : window(targetWindow)
    , kept(areKept)
{
    addWindow();
    addHandles();
    addSteps();
    for (const Setting& setting : settings) {
        addCommand(setting);
    }
}

void Settings::addWindow()
{
    Stage& stage = window.view().stage();
    std::vector<std::pair<QString, QString>> languages;
    for (const Language language : kLanguages) {
        languages.emplace_back(languageName(language), languageTitle(language));
    }
    settings = {
        choice(
            "language", QT_TR_NOOP("Language"), [] { return languageName(appliedLanguage()); },
            [](const QJsonValue& name) { applyLanguage(*languageFromName(name.toString())); },
            languages),
        choice(
            "theme", QT_TR_NOOP("Theme"), [] { return themeName(appliedTheme()); },
            [](const QJsonValue& name) { applyTheme(themeFromName(name.toString())); },
            { { "system", QT_TR_NOOP("As the desktop") },
              { "light", QT_TR_NOOP("Light") },
              { "dark", QT_TR_NOOP("Dark") } }),
        choice(
            "navigation", QT_TR_NOOP("Orbiting"),
            [this] { return window.view().doesMiddleOrbit() ? "middle" : "right"; },
            [this](const QJsonValue& name) {
                window.view().setMiddleOrbits(name.toString() == "middle");
            },
            { { "right", QT_TR_NOOP("Right button; middle pans") },
              { "middle", QT_TR_NOOP("Middle button; with Shift pans") } }),
        { "grid", QT_TR_NOOP("Grid on the ground"), [&stage] { return stage.isGridShown(); },
          [&stage](const QJsonValue& on) { stage.showGrid(on.toBool()); } },
        { "coarseWhileMoving", QT_TR_NOOP("Coarse while the view moves"),
          [this] { return window.view().isCoarseWhileMoving(); },
          [this](const QJsonValue& on) { window.view().setCoarseWhileMoving(on.toBool()); } },
        { "keepSeconds", QT_TR_NOOP("Edits are kept every, s"),
          [this] { return window.scenes().keepSeconds(); },
          [this](const QJsonValue& number) {
              window.scenes().setKeepSeconds(qRound(number.toDouble()));
          },
          10.0, 3600.0, 10.0 },
        { "pictureMebibytes", QT_TR_NOOP("Most that a picture may take, MiB"),
          [] { return static_cast<double>(pictureBudget()) / kMebibyte; },
          [](const QJsonValue& number) {
              setPictureBudget(static_cast<qint64>(number.toDouble() * kMebibyte));
          },
          1.0, 2047.0, 64.0 },
    };
}

void Settings::addHandles()
{
    using namespace nbec::manipulator;
    using nbec::interaction::Picker;
    using nbec::interaction::PickSlop;
    GizmoController& gizmo = window.view().stage().gizmo();
    const Setting rows[] = {
        choice(
            "axes", QT_TR_NOOP("Axes of the handles"),
            [&gizmo] { return wordOf(kAxes, gizmo.axes()); },
            [this, &gizmo](const QJsonValue& word) {
                gizmo.setAxes(valueOf(kAxes, word));
                window.view().stage().edited();
            },
            { { "world", QT_TR_NOOP("World") },
              { "object", QT_TR_NOOP("Object") },
              { "parent", QT_TR_NOOP("Object above") },
              { "view", QT_TR_NOOP("Screen") } }),
        choice(
            "pivot", QT_TR_NOOP("Several objects turn and scale"),
            [&gizmo] { return wordOf(kPivots, gizmo.pivot()); },
            [&gizmo](const QJsonValue& word) { gizmo.setPivot(valueOf(kPivots, word)); },
            { { "own", QT_TR_NOOP("Each about its own pivot") },
              { "first", QT_TR_NOOP("About the first one's pivot") },
              { "common", QT_TR_NOOP("About the middle of their pivots") } }),
        choice("palette", QT_TR_NOOP("Colours of handles"), &presentPalette, &setPalette,
               { { "classic", QT_TR_NOOP("Classic") },
                 { "soft", QT_TR_NOOP("Soft") },
                 { "contrast", QT_TR_NOOP("High contrast") },
                 { "colourBlind", QT_TR_NOOP("For any colour vision") } }),
        { "handleFading", QT_TR_NOOP("Handles fade that are seen end-on"),
          [] { return getHandleFading().isOn; },
          [&gizmo](const QJsonValue& on) {
              HandleFading wanted = getHandleFading();
              wanted.isOn = on.toBool();
              setHandleFading(wanted);
              gizmo.followCamera();
          } },
        { "ringBacks", QT_TR_NOOP("Backs of rings are dim"),
          [] { return getHandleFading().ringBack < 1.0F; },
          [&gizmo](const QJsonValue& on) {
              constexpr float kDim = 0.3F;
              HandleFading wanted = getHandleFading();
              wanted.ringBack = on.toBool() ? kDim : 1.0F;
              setHandleFading(wanted);
              gizmo.followCamera();
          } },
        { "handleLetters", QT_TR_NOOP("Letters at the tips of handles"),
          [] { return getHandlePalette().hasLetters; },
          [](const QJsonValue& on) {
              HandlePalette wanted = getHandlePalette();
              wanted.hasLetters = on.toBool();
              setHandlePalette(wanted);
          } },
        { "pickSlop", QT_TR_NOOP("Hit handles from farther with pen or finger"),
          [] { return Picker::getSlop().has_value(); },
          [](const QJsonValue& on) {
              Picker::setSlop(on.toBool() ? std::optional(PickSlop()) : std::nullopt);
          } },
        { "dragOverlay", QT_TR_NOOP("Draw what a drag has come to"),
          [] { return isDragOverlayShown(); },
          [](const QJsonValue& on) { setDragOverlayShown(on.toBool()); } },
        { "snapToScene", QT_TR_NOOP("Snap to corners and edges of objects"),
          [&gizmo] { return gizmo.snapsToScene(); },
          [&gizmo](const QJsonValue& on) { gizmo.setSnapToScene(on.toBool()); } },
        { "gizmoSize", QT_TR_NOOP("Size of the gizmo"),
          [&gizmo] { return static_cast<double>(gizmo.size()); },
          [&gizmo](const QJsonValue& size) { gizmo.setSize(static_cast<float>(size.toDouble())); },
          8.0, 199.0, 4.0 },
        { "handlePixels", QT_TR_NOOP("Length of arrows in pixels, 0 by that size"),
          [] { return static_cast<double>(getSizePolicy().arrowPx); },
          [&gizmo](const QJsonValue& pixels) {
              setSizePolicy({ static_cast<float>(pixels.toDouble()), 1.0F });
              gizmo.followCamera();
          },
          0.0, 400.0, 8.0 },
    };
    settings.insert(settings.end(), std::begin(rows), std::end(rows));
    addFurtherHandles();
}

void Settings::addFurtherHandles()
{
    using Further = GizmoController::FurtherHandles;
    GizmoController& gizmo = window.view().stage().gizmo();

    const struct
    {
        const char* name;
        const char* label;
        bool Further::*handle;
    } rows[] = {
        { "handleCentre", QT_TR_NOOP("A handle moves in the plane of the screen"),
          &Further::centre },
        { "viewRing", QT_TR_NOOP("A ring turns about the view axis"), &Further::viewRing },
        { "trackball", QT_TR_NOOP("A disc turns freely"), &Further::trackball },
        { "planeScales", QT_TR_NOOP("Planes scale in two axes"), &Further::planeScales },
        { "facingHandles", QT_TR_NOOP("Handles stand on the viewer's side"),
          &Further::facesViewer },
    };

    for (const auto& row : rows) {
        settings.push_back({ row.name, row.label,
                             [&gizmo, row] { return gizmo.furtherHandles().*row.handle; },
                             [&gizmo, row](const QJsonValue& on) {
                                 Further further = gizmo.furtherHandles();
                                 further.*row.handle = on.toBool();
                                 gizmo.setFurtherHandles(further);
                             } });
    }
}

void Settings::addSteps()
{
    using Model = nbTransformModel;

    const struct
    {
        const char* name;
        const char* label;
        double most;
        double step;
        double (Model::*get)() const;
        void (Model::*set)(double);
    } rows[] = {
        { "translationStep", QT_TR_NOOP("Step of translation"), 1e6, 0.1,
          &Model::getTranslationPrecision, &Model::setTranslationPrecision },
        { "rotationStep", QT_TR_NOOP("Step of rotation, °"), 360.0, 5.0,
          &Model::getRotationPrecision, &Model::setRotationPrecision },
        { "scaleStep", QT_TR_NOOP("Step of scale"), 100.0, 0.05, &Model::getScalePrecision,
          &Model::setScalePrecision },
    };

    for (const auto& row : rows) {
        settings.push_back(
            { row.name, row.label, [row] { return (Model::the()->*row.get)(); },
              [row](const QJsonValue& step) { (Model::the()->*row.set)(step.toDouble()); }, 0.0,
              row.most, row.step });
    }
}

void Settings::addCommand(const Setting& setting)
{
    Commands& commands = window.view().stage().commands();
    const QString name = kPrefix + QLatin1String(setting.name);
    const auto set = [this, setting](const QJsonValue& value) {
        setting.set(value);
        if (kept) {
            QSettings().setValue(QLatin1String(setting.name), value.toVariant());
        }
        return true;
    };
    if (!setting.words.empty()) {
        QStringList words;
        for (const auto& word : setting.words) {
            words.append(word.first);
        }
        commands.addChoice(name, words,
                           [set, words](int place, QString&) { return set(words.at(place)); });
    } else if (setting.most > 0.0) {
        commands.addNumber(name, setting.least, setting.most,
                           [set](double number, QString&) { return set(number); });
    } else {
        commands.addSwitch(name, [set](bool on) { set(on); });
    }
    commands.addValue(name, setting.read);
}

void Settings::restore()
{
    // What the library leaves off and a person wants.
    static const QStringList kOnAtFirst { "handleFading", "ringBacks", "dragOverlay", "pickSlop" };
    const QSettings file;
    // What is read is not written again, each time to the disk.
    const bool areKept = std::exchange(kept, false);
    for (const Setting& setting : settings) {
        const QString name = QLatin1String(setting.name);
        const QVariant value =
            file.value(name, kOnAtFirst.contains(name) ? QVariant(true) : QVariant());
        const QJsonValue present = setting.read();
        // Files of settings know texts alone.
        const QJsonValue wanted = present.isBool() ? QJsonValue(value.toBool())
            : present.isDouble()                   ? QJsonValue(value.toDouble())
                                                   : QJsonValue(value.toString());
        QString error;
        if (areKept && value.isValid() && wanted != present) {
            window.view().stage().commands().run(kPrefix + name, wanted, error);
        }
    }
    kept = areKept;
}

}  // namespace viewer
