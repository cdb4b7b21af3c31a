// SPDX-License-Identifier: MIT
#include "viewer/match/PerspectiveMatchTool.h"

#include "viewer/loading/PictureFile.h"
#include "viewer/match/PerspectiveMatchCommands.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbKernelServiceFactory.h>
#include <nbKernelServices/nbObjectService.h>
#include <nbKernelServices/nbQRPCConverter.h>
#include <nbKernelServices/nbScopedMultiCommand.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGUberCamera/nbCameraUtils.h>
#include <nbOpenSGUberViewport/nbPhotographFit.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace viewer {
namespace {

constexpr std::array<const char*, PerspectiveMatchTool::kLineCount> kLineNames { "x1", "x2", "y1",
                                                                                 "y2", "z1", "z2" };

/// Parts of a line, as the manipulator numbers them.
constexpr osg::UInt32 kBody = 1;
constexpr osg::UInt32 kFirstEnd = 2;
constexpr osg::UInt32 kSecondEnd = 3;

const char* suffixOf(osg::UInt32 part)
{
    return part == kFirstEnd ? "a" : part == kSecondEnd ? "b" : "";
}

std::string handleName(int line, osg::UInt32 part)
{
    return std::string(PerspectiveMatchTool::lineName(line)) + suffixOf(part);
}

struct HandleName
{
    int line = -1;  ///< none of that name
    osg::UInt32 part = kBody;
};

HandleName read(const std::string& handle)
{
    for (int line = 0; line < PerspectiveMatchTool::kLineCount; ++line) {
        for (const osg::UInt32 part : { kBody, kFirstEnd, kSecondEnd }) {
            if (handle == handleName(line, part)) {
                return { line, part };
            }
        }
    }
    return {};
}

nbPhotographFit fitOf(const nbOSGWidget& view, const osg::ImagePtr& image)
{
    const int width = view.getWidth();
    const int height = view.getHeight();
    return nbPhotographFit::of(image->getWidth(), image->getHeight(), width, height,
                               nbCameraUtils::getVerticalSizing(view.getCamera(), width, height));
}

nbdPerspectiveMatch::Line lineOf(int index)
{
    return static_cast<nbdPerspectiveMatch::Line>(index);
}

/// Such as "X1".
QString lineTitle(int line)
{
    return QString(PerspectiveMatchTool::lineName(line)).toUpper();
}

}  // namespace

PerspectiveMatchTool::PerspectiveMatchTool(Stage& targetStage)
    : stage(targetStage)
{
    context.setPicker(&picker);
    manipulator.setVisualisationRoot(nbScenegraph::getInternalRoot());
    stage.addTool(*this);
    addPerspectiveMatchCommands(*this, stage);
    const auto* service = nbKernelServiceFactory::the().find<nbObjectService>();
    if (service != nullptr) {
        QObject::connect(service, &nbObjectService::propertyChanged, &listener,
                         [this](const nbdObject& object, const QByteArray& property) {
                             follow(object, property);
                         });
    }
    camera().getPerspectiveMatch().setAnchoredToCentre(true);
}

PerspectiveMatchTool::~PerspectiveMatchTool()
{
    stage.removeTool(*this);
    stage.commands().remove("match.");
    context.setManipulator(nullptr);
    context.setPicker(nullptr);
}

nbdCameraNode PerspectiveMatchTool::camera() const
{
    return nbdCameraNode(
        nbQRPCConverter::nodeToId(stage.view().getUberCamera()->getInternalParentNode()));
}

// == The photograph

bool PerspectiveMatchTool::setPhotograph(const QString& file, QString& error)
{
    const osg::RefPtr<osg::ImagePtr> image =
        file.isEmpty() ? osg::RefPtr<osg::ImagePtr>() : readPicture(file, error);
    const bool isShown = file.isEmpty() || image != osg::NullFC;
    if (isShown) {
        setPhotograph(image.get());
    }
    return isShown;
}

void PerspectiveMatchTool::setPhotograph(const osg::ImagePtr& image)
{
    const osg::UberViewportPtr viewport = stage.view().getUberViewport();
    {
        const nbEdit edit(viewport, osg::UberViewport::PhotographFieldMask);
        viewport->setPhotograph(image);
    }
    stage.view().update();
}

QString PerspectiveMatchTool::photograph() const
{
    return pictureName(stage.view().getUberViewport()->getPhotograph());
}

void PerspectiveMatchTool::setVeil(double opacity)
{
    photographVeil = opacity;
    applyVeil();
}

void PerspectiveMatchTool::applyVeil()
{
    const osg::UberViewportPtr viewport = stage.view().getUberViewport();
    const auto wanted = static_cast<float>(active ? photographVeil : 0.0);
    if (viewport->getPhotographVeil() != wanted) {
        const nbEdit edit(viewport, osg::UberViewport::PhotographVeilFieldMask);
        viewport->setPhotographVeil(wanted);
        stage.view().update();
    }
}

// == The lines

void PerspectiveMatchTool::showLines(bool on)
{
    if (linesShown == on) {
        return;
    }
    linesShown = on;
    if (!active) {
        return;
    }
    if (on) {
        takePointer();
    } else {
        leavePointer();
    }
    stage.view().update();
}

bool PerspectiveMatchTool::asStep(const QString& title, QString& error,
                                  const std::function<bool()>& change)
{
    if (camera().isLocked()) {
        error = Text::tr("the camera is locked");
        return false;
    }
    const nbScopedMultiCommand step(title);
    return change();
}

bool PerspectiveMatchTool::layLines(QString& error)
{
    return asStep(Text::tr("Lay lines as seen"), error, [this] {
        camera().layLinesAsSeen();
        linesLaid = true;
        return true;
    });
}

bool PerspectiveMatchTool::edit(const std::function<void(const nbdPerspectiveMatch&)>& change,
                                QString& error)
{
    return asStep(Text::tr("Change perspective match"), error, [&] {
        change(camera().getPerspectiveMatch());
        camera().updateFromPerspectiveMatch();
        linesLaid = true;
        return true;
    });
}

bool PerspectiveMatchTool::setMagnifyFactor(float factor, QString& error)
{
    return asStep(Text::tr("Change magnifier"), error, [&] {
        camera().getPerspectiveMatch().setMagnifyFactor(factor);
        return true;
    });
}

const char* PerspectiveMatchTool::lineName(int line)
{
    return kLineNames[static_cast<std::size_t>(line)];
}

int PerspectiveMatchTool::lineByName(const QString& word)
{
    const auto found = std::find(kLineNames.begin(), kLineNames.end(), word);
    return found == kLineNames.end() ? -1 : static_cast<int>(found - kLineNames.begin());
}

QString PerspectiveMatchTool::resultText() const
{
    switch (camera().checkPerspectiveMatch()) {
    case nbCameraTypes::Solved:
        return Text::tr("Orientation and field of view follow the lines.");
    case nbCameraTypes::SolvedWithKeptFov:
        return Text::tr("The orientation follows the lines; the field of view is kept.");
    case nbCameraTypes::OrthographicCamera:
        return Text::tr("An orthographic view cannot be matched: switch to perspective.");
    case nbCameraTypes::UnusableLine:
        return Text::tr("A line is too short: the camera stays.");
    case nbCameraTypes::IdenticalLines:
        return Text::tr("Two lines of an axis lie on each other: the camera stays.");
    case nbCameraTypes::ContradictingLines:
        return Text::tr("The lines contradict each other: the camera stays.");
    case nbCameraTypes::NoCamera:
        break;
    }
    return Text::tr("There is no camera to be matched.");
}

double PerspectiveMatchTool::referencePx() const
{
    const nbOSGWidget& view = stage.view();
    const bool byHeight =
        nbCameraUtils::getVerticalSizing(view.getCamera(), view.getWidth(), view.getHeight());
    return std::max(byHeight ? view.getHeight() : view.getWidth(), 1);
}

PerspectiveQuality PerspectiveMatchTool::quality() const
{
    constexpr double kHandPx = 0.5;  // how well a person lays an end
    return camera().judgePerspectiveMatch(kHandPx / referencePx());
}

std::array<double, PerspectiveMatchTool::kLineCount> PerspectiveMatchTool::residualsPx() const
{
    std::array<double, kLineCount> result = quality().residuals;
    for (double& residual : result) {
        residual *= referencePx();
    }
    return result;
}

QString PerspectiveMatchTool::qualityText() const
{
    if (!nbCameraTypes::isSolved(camera().checkPerspectiveMatch())) {
        return {};
    }
    const PerspectiveQuality told = quality();
    const auto number = [](double value) { return QString::number(value, 'f', 1); };
    const auto residuals = residualsPx();
    const auto worst = std::max_element(residuals.begin(), residuals.end());
    QStringList parts;
    if (std::isfinite(told.fovDeg) && told.fovDeg > 0.0) {
        parts.append(Text::tr("Field of view ±%1°.").arg(number(told.fovDeg)));
    }
    if (std::isfinite(told.rotationDeg)) {
        parts.append(Text::tr("Orientation ±%1°.").arg(number(told.rotationDeg)));
    }
    if (*worst >= 1.0) {
        parts.append(
            Text::tr("Line %1 is off by %2 pixels.")
                .arg(lineTitle(static_cast<int>(worst - residuals.begin())), number(*worst)));
    }
    const QString axis =
        told.doubtfulAxis < 0 ? QString() : QString(QChar('X' + told.doubtfulAxis));
    if (told.doubt == PerspectiveDoubt::NoFieldOfViewFits) {
        parts.append(
            Text::tr("No camera sees right angles so: check which lines belong together."));
    } else if (told.doubt != PerspectiveDoubt::NoDoubt) {
        parts.append(
            Text::tr("The lines of %1 are almost parallel in the picture, so it hardly "
                     "tells the field of view: use lines of a third axis, or set the lens.")
                .arg(axis));
    }
    return parts.join(' ');
}

bool PerspectiveMatchTool::turn(int axis, QString& error)
{
    return asStep(Text::tr("Turn axes about %1").arg(QChar('X' + axis)), error, [&] {
        camera().turnMatch(axis);
        camera().updateFromPerspectiveMatch();
        return true;
    });
}

bool PerspectiveMatchTool::placeByLine(int line, double length, QString& error)
{
    return asStep(Text::tr("Place camera"), error, [&] {
        const bool isPlaced = camera().placeByLine(lineOf(line), length);
        if (!isPlaced) {
            error =
                Text::tr("line %1 tells no place: it must run along its axis and not be a point")
                    .arg(lineTitle(line));
        }
        return isPlaced;
    });
}

bool PerspectiveMatchTool::setLens(double focalLength, double sensorWidth, QString& error)
{
    constexpr double kDegPerRad = 180.0 / 3.14159265358979323846;
    const osg::ImagePtr image = stage.view().getUberViewport()->getPhotograph();
    const nbOSGWidget& view = stage.view();
    const double widthPx = image != osg::NullFC ? fitOf(view, image).width : view.getWidth();
    const double focalPx = focalLength / sensorWidth * widthPx;
    return asStep(Text::tr("Set lens"), error, [&] {
        camera().setFovMode(nbCameraTypes::FixedFov);
        camera().setFov(2.0 * std::atan(0.5 * view.getHeight() / focalPx) * kDegPerRad);
        camera().updateFromPerspectiveMatch();
        return true;
    });
}

bool PerspectiveMatchTool::nudge(const QPoint& way, bool coarse)
{
    constexpr double kFinePx = 0.1;
    const HandleName name = read(lastHandle);
    if (!active || !linesShown || name.line < 0) {
        return false;
    }
    const QPointF step = QPointF(way) * ((coarse ? 10.0 : 1.0) * kFinePx / referencePx());
    const QLineF former = camera().getPerspectiveMatch().getLine(lineOf(name.line));
    const QLineF line(name.part != kSecondEnd ? former.p1() + step : former.p1(),
                      name.part != kFirstEnd ? former.p2() + step : former.p2());
    // As a command, so that it becomes part of a recording.
    QString error;
    return stage.commands().run(
        "match.setLine",
        QJsonObject { { "line", lineName(name.line) },
                      { "ends", QJsonArray { line.x1(), line.y1(), line.x2(), line.y2() } } },
        error);
}

// == As a tool of the stage

void PerspectiveMatchTool::activate()
{
    active = true;
    applyVeil();
    if (!linesLaid) {
        const nbScopedUndo muted(false);
        camera().layLinesAsSeen();
        linesLaid = true;
    }
    if (linesShown) {
        takePointer();
    }
}

void PerspectiveMatchTool::deactivate()
{
    leavePointer();
    active = false;
    applyVeil();
}

void PerspectiveMatchTool::takePointer()
{
    context.setManipulator(&manipulator);
    stage.interaction().addContext(&context);
    manipulator.setCamera(stage.view().getUberCamera());
}

void PerspectiveMatchTool::leavePointer()
{
    stage.interaction().endDrag();
    stage.interaction().removeContext(&context);
    context.setManipulator(nullptr);
}

void PerspectiveMatchTool::sceneCleared()
{
    setPhotograph(osg::ImagePtr());
    setVeil(kUsualVeil);
    showLines(true);
    const nbScopedUndo muted(false);
    const nbdPerspectiveMatch match = camera().getPerspectiveMatch();
    camera().setLocked(false);
    camera().setFovMode(nbCameraTypes::SolvedFov);
    match.setVanishingLinesType(nbCameraTypes::XYZLines);
    match.setMagnifyFactor(nbdPerspectiveMatch::kDefaultMagnifyFactor);
    linesLaid = false;
    lastHandle.clear();
}

void PerspectiveMatchTool::follow(const nbdObject& object, const QByteArray& property)
{
    if (object.getId() != camera().getId()) {
        return;
    }
    cameraMoved = cameraMoved || property == "orientation" || property == "fov";
    stage.view().update();
}

void PerspectiveMatchTool::update()
{
    if (cameraMoved) {
        cameraMoved = false;
        stage.cameraMoved();
        const auto result = camera().checkPerspectiveMatch();
        if (active &&
            (result == nbCameraTypes::Solved || result == nbCameraTypes::SolvedWithKeptFov)) {
            stage.holdView(true);
        }
    }
}

osg::NodePtr PerspectiveMatchTool::handles()
{
    return active && linesShown ? manipulator.getVisualisation() : osg::NodePtr();
}

std::string PerspectiveMatchTool::hoveredHandle()
{
    const auto line = static_cast<int>(manipulator.getHoveredLine()) - 1;
    const osg::UInt32 part = manipulator.getHoveredPart();
    if (!active || line < 0 || part == 0) {
        return {};
    }
    lastHandle = handleName(line, part);
    return lastHandle;
}

bool PerspectiveMatchTool::findHandle(const std::string& handle, osg::Pnt2f& px)
{
    const HandleName name = read(handle);
    if (!active || !linesShown || name.line < 0) {
        return false;
    }
    px = placeOf(name.line, name.part);
    return true;
}

osg::Pnt2f PerspectiveMatchTool::placeOf(int index, osg::UInt32 part) const
{
    const QLineF line = camera().getPerspectiveMatch().getLine(lineOf(index));
    const QPointF place = part == kFirstEnd ? line.p1()
        : part == kSecondEnd                ? line.p2()
                                            : line.center();
    return { static_cast<float>(place.x() * referencePx()),
             static_cast<float>(stage.view().getHeight() - place.y() * referencePx()) };
}

std::vector<StageTool::Label> PerspectiveMatchTool::labels() const
{
    std::vector<Label> all;
    if (!active || !linesShown) {
        return all;
    }
    const auto residuals = residualsPx();
    for (int line = 0; line < kLineCount; ++line) {
        const double residual = residuals[static_cast<std::size_t>(line)];
        const QString name = lineTitle(line);
        all.push_back({ placeOf(line, kBody),
                        residual < 1.0 ? name
                                       : Text::tr("%1: %2 px", "line, how far it is off")
                                             .arg(name, QString::number(residual, 'f', 1)) });
    }
    return all;
}

QString PerspectiveMatchTool::handleText(const std::string& handle) const
{
    const HandleName name = read(handle);
    const QString line = name.line < 0 ? QString() : lineTitle(name.line);
    return name.part == kBody ? Text::tr("Line %1").arg(line)
                              : Text::tr("End of line %1").arg(line);
}

HandleAction PerspectiveMatchTool::actionOf(const std::string& handle) const
{
    return read(handle).line >= 0 ? HandleAction::MoveInPlane : HandleAction::None;
}

bool PerspectiveMatchTool::takePicture(const QString& file, const osg::Pnt2f& /*px*/,
                                       QString& error)
{
    // As a command, so that it becomes part of a recording.
    return active && stage.commands().run("match.setPhotograph", file, error);
}

}  // namespace viewer
