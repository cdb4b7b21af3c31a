// SPDX-License-Identifier: MIT
#include "viewer/match/PerspectiveMatchTool.h"

#include "viewer/match/MatchWords.h"
#include "viewer/match/PerspectiveMatchCommands.h"
#include "viewer/stage/Stage.h"
#include "viewer/stage/ValueRecord.h"
#include "viewer/texts/Text.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbKernelServiceFactory.h>
#include <nbKernelServices/nbObjectService.h>
#include <nbKernelServices/nbQRPCConverter.h>
#include <nbKernelServices/nbScopedMultiCommand.h>
#include <nbKernelServices/nbScopedUndo.h>

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <utility>

namespace viewer {
namespace {

constexpr std::array<const char*, PerspectiveMatchTool::kLineCount> kLineNames { "x1", "x2", "y1",
                                                                                 "y2", "z1", "z2" };

/// Parts of a line, as the manipulator numbers them.
constexpr osg::UInt32 kBody = 1;
constexpr osg::UInt32 kFirstEnd = 2;
constexpr osg::UInt32 kSecondEnd = 3;

constexpr double kDegPerRad = 180.0 / 3.14159265358979323846;

std::string handleName(int line, osg::UInt32 part)
{
    const char* const suffix = part == kFirstEnd ? "a" : part == kSecondEnd ? "b" : "";
    return std::string(PerspectiveMatchTool::lineName(line)) + suffix;
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

nbdPerspectiveMatch::Line lineOf(int index)
{
    return static_cast<nbdPerspectiveMatch::Line>(index);
}

}  // namespace

PerspectiveMatchTool::PerspectiveMatchTool(Stage& targetStage)
    : stage(targetStage)
    , behind(targetStage.view())
{
    context.setPicker(&picker);
    context.setTitles(
        [this](const std::string& /*handle*/) { return handleText(hoveredHandle()); });
    manipulator.setVisualisationRoot(nbScenegraph::getInternalRoot());
    manipulator.setLineRule([this](const osg::Line2D& line, osg::UInt32 part) {
        const bool isFree = QGuiApplication::keyboardModifiers().testFlag(Qt::AltModifier);
        return edgeSnapping && !isFree ? behind.onEdge(line, part != kSecondEnd, part != kFirstEnd)
                                       : line;
    });
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

bool PerspectiveMatchTool::fitPhotograph(bool byWidth, QString& error)
{
    if (behind.image() == osg::NullFC) {
        error = Text::tr("there is no photograph");
        return false;
    }
    return byWidth == behind.fitsWidth() || asStep(Text::tr("Fit photograph"), error, [&] {
               const nbdPerspectiveMatch match = camera().getPerspectiveMatch();
               const QPointF middlePx(0.5 * stage.view().getWidth(),
                                      0.5 * stage.view().getHeight());
               const double formerPx = behind.unitPx();
               const float formerWidth = behind.place().width;
               std::array<QLineF, kLineCount> lines;
               for (int i = 0; i < kLineCount; ++i) {
                   lines[static_cast<std::size_t>(i)] = match.getLine(lineOf(i));
               }
               recordValue(
                   stage.view().getUberCamera()->getInternalParentNode(),
                   [this](const osg::NodePtr&) { return behind.fitsWidth(); },
                   [this](const osg::NodePtr&, bool on) { behind.setFitsWidth(on); });
               behind.setFitsWidth(byWidth);
               // What is seen over a place of the photograph stays there.
               const double larger = static_cast<double>(behind.place().width / formerWidth);
               const auto moved = [&](const QPointF& end) {
                   return (middlePx + (end * formerPx - middlePx) * larger) / behind.unitPx();
               };
               for (int i = 0; i < kLineCount; ++i) {
                   const QLineF& line = lines[static_cast<std::size_t>(i)];
                   match.setLine(lineOf(i), QLineF(moved(line.p1()), moved(line.p2())));
               }
               const double half = std::tan(0.5 * stage.pose().fovDeg / kDegPerRad) / larger;
               camera().setFov(2.0 * std::atan(half) * kDegPerRad);
               return true;
           });
}

void PerspectiveMatchTool::setVeil(double opacity)
{
    photographVeil = opacity;
    behind.cover(active ? opacity : 0.0);
}

// == The lines

void PerspectiveMatchTool::showLines(bool on)
{
    if (std::exchange(linesShown, on) == on || !active) {
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
    const nbOSGWidget& view = stage.view();
    const auto photographPx = static_cast<double>(behind.place().width);
    const double widthPx = photographPx > 0.0 ? photographPx : view.getWidth();
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
    const QPointF step = QPointF(way) * ((coarse ? 10.0 : 1.0) * kFinePx / behind.unitPx());
    const QLineF former = camera().getPerspectiveMatch().getLine(lineOf(name.line));
    const QLineF line(name.part != kSecondEnd ? former.p1() + step : former.p1(),
                      name.part != kFirstEnd ? former.p2() + step : former.p2());
    // As a command, so that it is refused and undone like others.
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
    behind.cover(photographVeil);
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
    behind.cover(0.0);
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
    behind.set(osg::ImagePtr());
    behind.setFitsWidth(false);
    setVeil(kUsualVeil);
    showLines(true);
    edgeSnapping = false;
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
    cameraTurned = cameraTurned || property == "orientation";
    cameraMoved = cameraMoved || cameraTurned || property == "fov";
    stage.view().update();
}

void PerspectiveMatchTool::update()
{
    if (cameraMoved) {
        cameraMoved = false;
        stage.cameraMoved();
    }
    if (stage.isDragging()) {
        return;
    }
    const CameraPose pose = stage.pose();
    const auto isTurnedFrom = [&pose](const CameraPose& other) {
        return pose.at - pose.from != other.at - other.from || pose.up != other.up;
    };
    const CameraPose former = std::exchange(resting, pose);
    // A drag that was cancelled has turned the camera back.
    if (std::exchange(cameraTurned, false) && isTurnedFrom(former) && active &&
        nbCameraTypes::isSolved(camera().checkPerspectiveMatch())) {
        if (!stage.isViewHeld() && isTurnedFrom(unheld)) {
            unheld = former;
        }
        stage.holdView(isTurnedFrom(unheld));  // undone, the view is as free as it was
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
    return { static_cast<float>(place.x() * behind.unitPx()),
             static_cast<float>(stage.view().getHeight() - place.y() * behind.unitPx()) };
}

std::vector<StageTool::Label> PerspectiveMatchTool::labels() const
{
    std::vector<Label> all;
    if (!active || !linesShown) {
        return all;
    }
    const auto residuals = residualsPx(*this);
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
    return name.part == kBody ? Text::tr("Move line %1").arg(line)
                              : Text::tr("Move end of line %1").arg(line);
}

HandleAction PerspectiveMatchTool::actionOf(const std::string& handle) const
{
    return read(handle).line >= 0 ? HandleAction::MoveInPlane : HandleAction::None;
}

bool PerspectiveMatchTool::takePicture(const QString& file, const osg::Pnt2f& /*px*/,
                                       QString& error)
{
    // As a command, so that it is refused and undone like others.
    return active && stage.commands().run("match.setPhotograph", file, error);
}

}  // namespace viewer
