// SPDX-License-Identifier: MIT
#include "manipulator/PerspectiveMatchManipulator.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/handles/ContainerReference.h"
#include "manipulator/match/PerspectiveMatchVisualisation.h"

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
constexpr std::array<LineAccess, match::kMatchLineCount> kLineAccess { {
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
    const std::size_t index = match::matchLineIndex(line);
    return index < kLineAccess.size() ? &kLineAccess[index] : nullptr;
}

/// Null without a widget.
osg::ViewportPtr viewportOf(const View& view)
{
    return view.exists() ? view.getWidget()->getViewport() : osg::ViewportPtr();
}

/// Pixel of the pointer, device pixels, counted from the lower edge of the viewport; as the widget
/// counts without a viewport.
osg::Pnt2f pointerFromBelow(const View& view)
{
    const osg::Pnt2f& pointer = view.getPointer();
    const osg::ViewportPtr viewport = viewportOf(view);
    if (viewport == osg::NullFC) {
        return pointer;
    }
    const auto lastRow = static_cast<float>(viewport->getPixelHeight() - 1);
    return osg::Pnt2f(pointer.x(), lastRow - pointer.y());
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
Instances<PerspectiveMatchManipulator> PerspectiveMatchManipulator::instances;

PerspectiveMatchManipulator::PerspectiveMatchManipulator()
    : visualisation(std::make_unique<match::PerspectiveMatchVisualisation>())
{
    connectToServices();
    instances.add(this);
}

PerspectiveMatchManipulator::~PerspectiveMatchManipulator()
{
    instances.remove(this);
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
    cameraId = containerId(camera);
    updateManipulator();
}

// == Events, in their slot order

void PerspectiveMatchManipulator::activate(ManipulatorInteractionContext* ctx)
{
    const bool wasActive = isActive();
    AbstractManipulator::activate(ctx);
    takePixelRatio(ctx);
    visualisation->show(true);
    updateManipulator();
    if (!wasActive) {
        nbOSGWidget::addMGLWResizeCB(&PerspectiveMatchManipulator::updateAllManipulators);
    }
}

void PerspectiveMatchManipulator::deactivate(ManipulatorInteractionContext* ctx)
{
    const bool wasActive = isActive();
    AbstractManipulator::deactivate(ctx);
    visualisation->show(false);
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
    const View view(getMousePosition());
    if (line == PerspectiveMatchLine::NoLine || handle == match::kNoPart ||
        viewportOf(view) == osg::NullFC) {
        return false;
    }
    if (!dragging) {
        prepareManipulator(view);
        dragging = true;
        return true;
    }
    apply(parametersAt(view));
    updateMagnifier();
    updateManipulator();
    return true;
}

bool PerspectiveMatchManipulator::stopManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                  const std::string& /*tool*/)
{
    grabbed = false;
    stopDrag();
    if (line == PerspectiveMatchLine::NoLine || handle == match::kNoPart) {
        return false;
    }
    line = PerspectiveMatchLine::NoLine;
    handle = match::kNoPart;
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
    const bool isFound = updateMode();
    visualisation->highlight({ line, handle });
    return isFound;
}

bool PerspectiveMatchManipulator::resetManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                   const std::string& /*tool*/)
{
    hovered = false;
    visualisation->highlight({});
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
    visualisation->setCamera(nbUberCameraPool::get(cameraId), viewportOf(View()));
    const nbCameraTypes::VanishingLinesType type = getVanishingLinesType();
    for (const PerspectiveMatchLine each : kLines) {
        visualisation->updateLine(each, getLine(each), type);
    }
    updateMagnifierPosition();
}

void PerspectiveMatchManipulator::updateAllManipulators()
{
    instances.updateAll();
}

void PerspectiveMatchManipulator::takePixelRatio(ManipulatorInteractionContext* ctx)
{
    const interaction::Picker* const picker = ctx != nullptr ? ctx->getPicker() : nullptr;
    if (picker != nullptr) {
        visualisation->setPixelRatio(picker->getPixelRatio());
    }
}

// == Dragging

/// Finds the part under the pointer. @return whether there is one
bool PerspectiveMatchManipulator::updateMode()
{
    match::MatchPart found;
    const osg::NodePtr node = visualisation->pick(pointerFromBelow(View(getMousePosition())));
    visualisation->partOf(node, found);
    line = found.line;
    handle = found.part;
    dragging = false;
    return found.isSet();
}

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

void PerspectiveMatchManipulator::prepareManipulator(const View& view)
{
    dragStart = pointerFromBelow(view);
    lineAtDragStart = getLine(line);
}

/// How far the pointer has come since the drag's start, line coordinates.
DragParameters PerspectiveMatchManipulator::parametersAt(const View& view) const
{
    return { DragParameters::Kind::Offset,
             visualisation->toLineUnits(pointerFromBelow(view) - dragStart) };
}

/// Moves what is held to an offset from the drag's start.
void PerspectiveMatchManipulator::apply(const DragParameters& parameters)
{
    const osg::Vec2f way = parameters.vec2();
    osg::Pnt2f first = lineAtDragStart.getFirst();
    osg::Pnt2f second = lineAtDragStart.getSecond();
    if (handle == match::kLineBody || handle == match::kFirstEnd) {
        first += way;
    }
    if (handle == match::kLineBody || handle == match::kSecondEnd) {
        second += way;
    }
    setLine(line, osg::Line2D(first, second));
}

// == Magnifier

bool PerspectiveMatchManipulator::isEndHeld() const
{
    return handle == match::kFirstEnd || handle == match::kSecondEnd;
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
        visualisation->placeMagnifier(handle == match::kFirstEnd ? held.getFirst()
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
