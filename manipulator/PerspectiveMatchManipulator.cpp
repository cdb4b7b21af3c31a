// SPDX-License-Identifier: MIT
#include "manipulator/PerspectiveMatchManipulator.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/detail/ContainerReference.h"
#include "manipulator/detail/InstanceRegistry.h"
#include "manipulator/detail/PerspectiveMatchVisualisation.h"

#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernelServices/nbKernelServiceFactory.h>
#include <nbKernelServices/nbObjectService.h>
#include <nbKernelServices/nbQRPCConverter.h>
#include <nbKernelServices/nbScopedMultiCommand.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbdPerspectiveMatch.h>
#include <nbOpenSGUberCamera/nbUberCameraPool.h>

#include <QtCore/QCoreApplication>

namespace nbec::manipulator {

namespace {

/// How a match reads and writes one of its lines.
struct LineAccess
{
    QLineF (nbdPerspectiveMatch::*get)() const;
    void (nbdPerspectiveMatch::*set)(const QLineF&) const;
};

/// In the order of PerspectiveMatchLine, from 1.
constexpr std::array<LineAccess, detail::kMatchLineCount> kLineAccess { {
    { &nbdPerspectiveMatch::getXLine1, &nbdPerspectiveMatch::setXLine1 },
    { &nbdPerspectiveMatch::getXLine2, &nbdPerspectiveMatch::setXLine2 },
    { &nbdPerspectiveMatch::getYLine1, &nbdPerspectiveMatch::setYLine1 },
    { &nbdPerspectiveMatch::getYLine2, &nbdPerspectiveMatch::setYLine2 },
    { &nbdPerspectiveMatch::getZLine1, &nbdPerspectiveMatch::setZLine1 },
    { &nbdPerspectiveMatch::getZLine2, &nbdPerspectiveMatch::setZLine2 },
} };

/// Null for no line.
const LineAccess* accessOf(PerspectiveMatchLine line)
{
    const std::size_t index = detail::matchLineIndex(line);
    return index < kLineAccess.size() ? &kLineAccess[index] : nullptr;
}

/// Viewport of the main render widget; null without one.
osg::ViewportPtr mainViewport()
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    return widget != nullptr ? widget->getViewport() : osg::ViewportPtr();
}

QString commandTitle(const nbdCameraNode& camera)
{
    return QCoreApplication::translate("Manipulator", "Change Perspective Match lines of camera %1")
        .arg(camera.getName(), 0, QLatin1Char(' '));
}

}  // namespace

const std::array<PerspectiveMatchLine, 6> PerspectiveMatchManipulator::kLines {
    PerspectiveMatchLine::XLine1, PerspectiveMatchLine::XLine2, PerspectiveMatchLine::YLine1,
    PerspectiveMatchLine::YLine2, PerspectiveMatchLine::ZLine1, PerspectiveMatchLine::ZLine2
};
std::vector<PerspectiveMatchManipulator*> PerspectiveMatchManipulator::_allManipulators;

PerspectiveMatchManipulator::PerspectiveMatchManipulator()
    : visualisation(std::make_unique<detail::PerspectiveMatchVisualisation>())
{
    connectToServices();
    _allManipulators.push_back(this);
}

PerspectiveMatchManipulator::~PerspectiveMatchManipulator()
{
    detail::unregisterInstance(_allManipulators, this);
}

void PerspectiveMatchManipulator::connectToServices() const
{
    const auto* const service = nbKernelServiceFactory::the().get<nbObjectService>();
    if (service != nullptr) {
        connect(service, &nbObjectService::propertyChanged, this,
                &PerspectiveMatchManipulator::propertyChanged);
    }
}

void PerspectiveMatchManipulator::setCamera(osg::UberCameraPtr camera)
{
    cameraId = detail::containerId(camera);
    updateManipulator();
}

// == Events, in their slot order

void PerspectiveMatchManipulator::activate(ManipulatorInteractionContext* ctx)
{
    const bool wasActive = isActive();
    AbstractManipulator::activate(ctx);
    takePixelRatio(ctx);
    showManipulator();
    if (!wasActive) {
        nbOSGWidget::addMGLWResizeCB(&PerspectiveMatchManipulator::updateAllManipulators);
    }
}

void PerspectiveMatchManipulator::deactivate(ManipulatorInteractionContext* ctx)
{
    const bool wasActive = isActive();
    AbstractManipulator::deactivate(ctx);
    hideManipulator();
    cameraId = 0;
    updateManipulator();
    // The widgets count how often the callback was added: only what was added is taken back.
    if (wasActive) {
        nbOSGWidget::subMGLWResizeCB(&PerspectiveMatchManipulator::updateAllManipulators);
    }
}

osg::NodePtr PerspectiveMatchManipulator::getVisualisation()
{
    return visualisation->getRoot();
}

osg::NodePtr PerspectiveMatchManipulator::getCollider()
{
    return getVisualisation();
}

void PerspectiveMatchManipulator::update(bool force)
{
    if (isActive() && force) {
        updateManipulator();
    }
}

bool PerspectiveMatchManipulator::startManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                   const std::string& /*tool*/)
{
    if (!hovered) {
        return false;
    }
    if (!updateMode()) {
        grabbed = false;
        return false;
    }
    grabbed = true;
    startDrag();
    return true;
}

bool PerspectiveMatchManipulator::processManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                     const std::string& /*tool*/)
{
    if (line == PerspectiveMatchLine::NoLine || handle == detail::kNoPart ||
        mainViewport() == osg::NullFC) {
        return false;
    }
    const osg::Pnt2f pointerPx = pointerFromBelow();
    if (!dragging) {
        prepareManipulator(pointerPx);
        dragging = true;
        return true;
    }
    translate(pointerPx);
    updateMagnifier();
    updateManipulator();
    return true;
}

bool PerspectiveMatchManipulator::stopManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                  const std::string& /*tool*/)
{
    grabbed = false;
    stopDrag();
    if (line == PerspectiveMatchLine::NoLine || handle == detail::kNoPart) {
        return false;
    }
    line = PerspectiveMatchLine::NoLine;
    handle = detail::kNoPart;
    return true;
}

bool PerspectiveMatchManipulator::hoverManipulator(ManipulatorInteractionContext* ctx,
                                                   const std::string& /*tool*/)
{
    if (grabbed) {
        return false;
    }
    hovered = true;
    takePixelRatio(ctx);
    if (!updateMode()) {
        stopHighlight();
        return false;
    }
    startHighlight();
    return true;
}

bool PerspectiveMatchManipulator::resetManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                   const std::string& /*tool*/)
{
    hovered = false;
    stopHighlight();
    visualisation->showMagnifier(false);
    return true;
}

// == The camera and its match

nbdCameraNode PerspectiveMatchManipulator::getNbdCameraNode() const
{
    const osg::UberCameraPtr camera = nbUberCameraPool::get(cameraId);
    return camera != osg::NullFC
        ? nbdCameraNode(nbQRPCConverter::nodeToId(camera->getInternalParentNode()))
        : nbdCameraNode();
}

osg::Line2D PerspectiveMatchManipulator::getLine(PerspectiveMatchLine which) const
{
    const nbdCameraNode camera = getNbdCameraNode();
    const LineAccess* const access = accessOf(which);
    if (camera.isNull() || access == nullptr) {
        return osg::Line2D();
    }
    return nbQRPCConverter::toLine2D((camera.getPerspectiveMatch().*access->get)());
}

void PerspectiveMatchManipulator::setLine(PerspectiveMatchLine which, const osg::Line2D& value)
{
    const nbdCameraNode camera = getNbdCameraNode();
    if (camera.isNull() || camera.isLocked()) {
        return;
    }
    const nbdPerspectiveMatch match = camera.getPerspectiveMatch();
    const QLineF converted = nbQRPCConverter::fromLine2D(value);
    // Closed in reverse: the command first.
    const nbScopedUndo undo(true);
    const nbScopedMultiCommand command(commandTitle(camera));
    const LineAccess* const access = accessOf(which);
    if (access != nullptr) {
        (match.*access->set)(converted);
    }
    camera.updateFromPerspectiveMatch();
}

nbCameraTypes::VanishingLinesType PerspectiveMatchManipulator::getVanishingLinesType() const
{
    const nbdCameraNode camera = getNbdCameraNode();
    return camera.isNull() ? nbCameraTypes::VanishingLinesType(0)
                           : camera.getPerspectiveMatch().getVanishingLinesType();
}

void PerspectiveMatchManipulator::propertyChanged(const nbdObject& object,
                                                  const QByteArray& property)
{
    if (object.isNull()) {
        return;
    }
    const nbdCameraNode camera(object);
    if (!camera.isNull()) {
        if (property == "fovMode" && camera.isEqual(getNbdCameraNode())) {
            updateManipulator();
        }
        return;
    }
    if (!nbdPerspectiveMatch(object).isNull()) {
        updateManipulator();
    }
}

// == Drawing

void PerspectiveMatchManipulator::updateManipulator()
{
    if (!isActive()) {
        return;
    }
    visualisation->setCamera(nbUberCameraPool::get(cameraId));
    const nbCameraTypes::VanishingLinesType type = getVanishingLinesType();
    for (const PerspectiveMatchLine each : kLines) {
        visualisation->updateLine(each, getLine(each), type);
    }
    updateMagnifierPosition();
}

void PerspectiveMatchManipulator::updateAllManipulators()
{
    detail::forEachInstance(_allManipulators, [](PerspectiveMatchManipulator& manipulator) {
        manipulator.updateManipulator();
    });
}

void PerspectiveMatchManipulator::showManipulator()
{
    visualisation->show(true);
    updateManipulator();
}

void PerspectiveMatchManipulator::hideManipulator()
{
    visualisation->show(false);
}

void PerspectiveMatchManipulator::takePixelRatio(ManipulatorInteractionContext* ctx)
{
    const interaction::Picker* const picker = ctx != nullptr ? ctx->getPicker() : nullptr;
    if (picker != nullptr) {
        visualisation->setPixelRatio(picker->getPixelRatio());
    }
}

// == Finding what is under the pointer

/// Pixel of the pointer, device pixels, counted from the lower edge of the viewport; as the widget
/// counts without a viewport.
osg::Pnt2f PerspectiveMatchManipulator::pointerFromBelow() const
{
    const osg::Pnt2f pointer = getMousePosition();
    const osg::ViewportPtr viewport = mainViewport();
    if (viewport == osg::NullFC) {
        return pointer;
    }
    const auto lastRow = static_cast<float>(viewport->getPixelHeight() - 1);
    return osg::Pnt2f(pointer.x(), lastRow - pointer.y());
}

osg::NodePtr PerspectiveMatchManipulator::pickNode() const
{
    return visualisation->pick(pointerFromBelow());
}

bool PerspectiveMatchManipulator::detectMode(const osg::NodePtr& node)
{
    detail::MatchPart found;
    const bool isFound = visualisation->partOf(node, found);
    line = found.line;
    handle = found.part;
    return isFound;
}

bool PerspectiveMatchManipulator::updateMode()
{
    detectMode(pickNode());
    dragging = false;
    return line != PerspectiveMatchLine::NoLine && handle != detail::kNoPart;
}

void PerspectiveMatchManipulator::startHighlight()
{
    visualisation->highlight({ line, handle });
}

void PerspectiveMatchManipulator::stopHighlight()
{
    visualisation->clearHighlight();
}

// == Dragging

void PerspectiveMatchManipulator::startDrag()
{
    visualisation->beginDrag({ line, handle });
    updateMagnifier();
}

void PerspectiveMatchManipulator::stopDrag()
{
    visualisation->endDrag();
    visualisation->showMagnifier(false);
}

void PerspectiveMatchManipulator::prepareManipulator(const osg::Pnt2f& pointerPx)
{
    dragStart = pointerPx;
    lineAtDragStart = getLine(line);
}

void PerspectiveMatchManipulator::translate(const osg::Pnt2f& pointerPx)
{
    const osg::Vec2f way = visualisation->toLineUnits(pointerPx - dragStart);
    const bool movesFirst = handle == detail::kLineBody || handle == detail::kFirstEnd;
    const bool movesSecond = handle == detail::kLineBody || handle == detail::kSecondEnd;
    const osg::Pnt2f& first = lineAtDragStart.getFirst();
    const osg::Pnt2f& second = lineAtDragStart.getSecond();
    setLine(line,
            osg::Line2D(movesFirst ? first + way : first, movesSecond ? second + way : second));
}

// == Magnifier

bool PerspectiveMatchManipulator::isEndHeld() const
{
    return handle == detail::kFirstEnd || handle == detail::kSecondEnd;
}

void PerspectiveMatchManipulator::updateMagnifier()
{
    updateMagnifierVisibility();
    if (visualisation->isMagnifierShown()) {
        updateMagnifierPosition();
        updateMagnifierScaleFactor();
    }
}

void PerspectiveMatchManipulator::updateMagnifierVisibility()
{
    visualisation->showMagnifier(isEndHeld());
}

void PerspectiveMatchManipulator::updateMagnifierPosition()
{
    if (isEndHeld()) {
        const osg::Line2D held = getLine(line);
        visualisation->placeMagnifier(handle == detail::kFirstEnd ? held.getFirst()
                                                                  : held.getSecond());
    }
}

void PerspectiveMatchManipulator::updateMagnifierScaleFactor()
{
    if (isEndHeld()) {
        visualisation->setMagnifierScale(
            getNbdCameraNode().getPerspectiveMatch().getMagnifyFactor());
    }
}

}  // namespace nbec::manipulator
