// SPDX-License-Identifier: MIT
#include "manipulator/PerspectiveMatchManipulator.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/course/DragControl.h"
#include "manipulator/match/PerspectiveMatchVisualisation.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbKernelServices/nbKernelServiceFactory.h>
#include <nbKernelServices/nbObjectService.h>
#include <nbKernelServices/nbQRPCConverter.h>
#include <nbKernelServices/nbScopedMultiCommand.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbdPerspectiveMatch.h>
#include <nbMagnifier/nbMagnifierRenderer.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUberCamera/nbUberCameraPool.h>
#include <nbUtils/nbGuard.h>

#include <QtCore/QCoreApplication>

#include <EditStamp.h>

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

/// The lines of a camera's match; without a camera empty ones.
match::MatchLines linesOf(const nbdCameraNode& camera)
{
    match::MatchLines result;
    nbCameraTypes::VanishingLinesType type {};
    if (!camera.isNull()) {
        const nbdPerspectiveMatch match = camera.getPerspectiveMatch();
        type = match.getVanishingLinesType();
        for (std::size_t i = 0; i < match::kMatchLineCount; ++i) {
            result.lines[i] = nbQRPCConverter::toLine2D((match.*kLineAccess[i].get)());
        }
    }
    for (std::size_t axis = 0; axis < match::kMatchAxisCount; ++axis) {
        result.isAxisUsed[axis] = nbCameraTypes::usesAxis(type, static_cast<int>(axis));
    }
    return result;
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
    osg::Pnt2f pointer = view.getPointer();
    if (const osg::ViewportPtr viewport = viewportOf(view); viewport != osg::NullFC) {
        pointer[1] = static_cast<float>(viewport->getPixelHeight() - 1) - pointer.y();
    }
    return pointer;
}

/// As "line 3, end 1"; the body has no end.
std::string nameOf(PerspectiveMatchLine line, osg::UInt32 part)
{
    const std::string name = "line " + std::to_string(match::matchLineIndex(line) + 1);
    return part == match::kLineBody ? name
                                    : name + (part == match::kFirstEnd ? ", end 1" : ", end 2");
}

}  // namespace

/// What the match offers of a drag beside its events.
class PerspectiveMatchManipulator::Drag : public DragControl
{
public:
    explicit Drag(PerspectiveMatchManipulator& ofMatch)
        : owner(ofMatch)
    { }

    void begin(const View& view)
    {
        constexpr unsigned kBoth = 3;
        DragEvent what;
        what.handle = static_cast<int>(owner.handle);
        what.handleName = nameOf(owner.line, owner.handle);
        what.action = { DragParameters::Kind::Offset, kBoth };
        const double unitsPerPixel =
            static_cast<double>(owner.visualisation->toLineUnits(osg::Vec2f(1.0F, 0.0F)).x());
        began(what, { DragParameters::Kind::Offset, osg::Vec3f() }, view, unitsPerPixel);
    }

    using DragControl::changed;
    using DragControl::ended;
    using DragControl::isTakenBack;
    using DragControl::limited;
    using DragControl::seen;

protected:
    bool ensureBegun() override
    {
        if (owner.grabbed && !owner.dragging) {
            owner.beginDrag(View(owner.getMousePosition()));
        }
        return owner.dragging;
    }

    void applyNow(const DragParameters& parameters) override { owner.applyNow(parameters); }

    void restoreNow() override
    {
        owner.setLine(owner.line, owner.lineAtDragStart);
        owner.updateManipulator();
    }

private:
    PerspectiveMatchManipulator& owner;
};

Instances<PerspectiveMatchManipulator> PerspectiveMatchManipulator::instances;

PerspectiveMatchManipulator::PerspectiveMatchManipulator()
    : visualisation(std::make_unique<match::PerspectiveMatchVisualisation>())
    , drag(std::make_unique<Drag>(*this))
{
    setDragControl(*drag);
    const auto* const service = nbKernelServiceFactory::the().get<nbObjectService>();
    if (service != nullptr) {
        connect(service, &nbObjectService::propertyChanged, this,
                &PerspectiveMatchManipulator::propertyChanged);
    }
    instances.add(this);
}

PerspectiveMatchManipulator::~PerspectiveMatchManipulator()
{
    endDrag();
    instances.remove(this);
}

void PerspectiveMatchManipulator::setCamera(osg::UberCameraPtr camera)
{
    if (containerId(camera) != cameraId) {
        endDrag();
    }
    cameraId = containerId(camera);
    updateManipulator();
    drag->listeners.deliver();
}

// == Events, in their slot order

void PerspectiveMatchManipulator::activate(ManipulatorInteractionContext* ctx)
{
    const bool wasActive = isActive();
    AbstractManipulator::activate(ctx);
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
    hovered = false;
    visualisation->highlight({});
    setCamera(osg::UberCameraPtr());
    // The widgets count how often the callback was added: only what was added is taken back.
    if (wasActive) {
        nbOSGWidget::subMGLWResizeCB(&PerspectiveMatchManipulator::updateAllManipulators);
    }
}

osg::NodePtr PerspectiveMatchManipulator::getVisualisation()
{
    return visualisation->getRoot();
}

void PerspectiveMatchManipulator::update(bool force)
{
    followView();
    if (force) {
        updateManipulator();
    }
}

bool PerspectiveMatchManipulator::startManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                   const std::string& /*tool*/)
{
    if (!hovered) {
        return false;
    }
    followView();
    grabbed = updateMode();
    if (grabbed) {
        visualisation->setDragged({ line, handle });
        updateMagnifier();
    }
    return grabbed;
}

bool PerspectiveMatchManipulator::processManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                     const std::string& /*tool*/)
{
    followView();
    const View view(getMousePosition());
    if (handle == match::kNoPart || viewportOf(view) == osg::NullFC) {
        return false;
    }
    if (!dragging) {
        beginDrag(view);
    } else if (!drag->isTyping()) {
        applyNow(drag->limited(parametersAt(drag->seen(view))));
    }
    drag->listeners.deliver();
    return true;
}

bool PerspectiveMatchManipulator::stopManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                  const std::string& /*tool*/)
{
    nbMagnifierRenderer::setVisible(false);
    const bool wasHeld = handle != match::kNoPart;
    endDrag();
    drag->listeners.deliver();
    return wasHeld;
}

bool PerspectiveMatchManipulator::hoverManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                   const std::string& /*tool*/)
{
    if (grabbed) {
        return false;
    }
    hovered = true;
    followView();
    const bool isFound = updateMode();
    visualisation->highlight({ line, handle });
    return isFound;
}

bool PerspectiveMatchManipulator::resetManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                   const std::string& /*tool*/)
{
    hovered = false;
    visualisation->highlight({});
    nbMagnifierRenderer::setVisible(false);
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

void PerspectiveMatchManipulator::setLine(PerspectiveMatchLine which, const osg::Line2D& value)
{
    const nbdCameraNode camera = getNbdCameraNode();
    if (which == PerspectiveMatchLine::NoLine || !match::isMatchLineShown(value) ||
        camera.isNull() || camera.isLocked()) {
        return;
    }
    const QString title =
        QCoreApplication::translate("Manipulator", "Change Perspective Match lines of camera %1")
            .arg(camera.getName(), 0, QLatin1Char(' '));
    const nbdPerspectiveMatch match = camera.getPerspectiveMatch();
    // Closed in reverse: the command first.
    const nbScopedUndo undo(true);
    const nbScopedMultiCommand command(title);
    (match.*kLineAccess[match::matchLineIndex(which)].set)(nbQRPCConverter::fromLine2D(value));
    camera.updateFromPerspectiveMatch();
}

void PerspectiveMatchManipulator::propertyChanged(const nbdObject& object,
                                                  const QByteArray& property)
{
    const nbdCameraNode camera(object);
    const bool isRedrawn = camera.isNull()
        ? !nbdPerspectiveMatch(object).isNull()
        : property == "fovMode" && camera.isEqual(getNbdCameraNode());
    if (isRedrawn) {
        updateManipulator();
    }
}

// == Drawing

void PerspectiveMatchManipulator::updateManipulator()
{
    if (!isActive()) {
        return;
    }
    followView();
    getNbdCameraNode().layFreshLines();
    visualisation->setLines(linesOf(getNbdCameraNode()));
    visualisation->placeMagnifier({ line, handle });
}

/// Lays the lines out for the main view.
void PerspectiveMatchManipulator::followView()
{
    if (isActive()) {
        const View view;
        const osg::glue::EditsForOneView placing(placedFor != view.getWidget());
        placedFor = view.getWidget();
        visualisation->setCamera(nbUberCameraPool::get(cameraId), viewportOf(view),
                                 nbOSGWidget::getPixelRatio(-1));
    }
}

// == Dragging

void PerspectiveMatchManipulator::beginDrag(const View& view)
{
    dragStart = pointerFromBelow(view);
    const nbdCameraNode camera = getNbdCameraNode();
    lineAtDragStart = linesOf(camera).lines[match::matchLineIndex(line)];
    camera.beginMatchDrag();
    dragging = true;
    drag->begin(view);
}

/// Lets go of what is held or hovered; a magnifier over it vanishes.
void PerspectiveMatchManipulator::endDrag()
{
    if (grabbed || dragging) {
        nbMagnifierRenderer::setVisible(false);
    }
    if (dragging) {
        getNbdCameraNode().endMatchDrag();
    }
    if (drag->isTakenBack()) {
        // The line has gone back from under the pointer.
        visualisation->highlight(visualisation->pick(pointerFromBelow(View(getMousePosition()))));
    }
    drag->ended();
    grabbed = false;
    dragging = false;
    line = PerspectiveMatchLine::NoLine;
    handle = match::kNoPart;
    visualisation->setDragged({});
}

/// Finds the part under the pointer. @return whether there is one
bool PerspectiveMatchManipulator::updateMode()
{
    if (dragging) {
        endDrag();
    }
    const match::MatchPart found = visualisation->pick(pointerFromBelow(View(getMousePosition())));
    line = found.line;
    handle = found.part;
    return found.isSet();
}

/// How far the pointer, or the line by its rule, has come since the drag's start, line coordinates.
DragParameters PerspectiveMatchManipulator::parametersAt(const View& view) const
{
    osg::Vec2f way = visualisation->toLineUnits(pointerFromBelow(view) - dragStart);
    osg::Line2D laid;
    const LineRule rule = lineRule;  // which may replace itself
    const auto lay = [&] { laid = rule(movedLine(way), handle); };
    if (rule && nbGuarded("PerspectiveMatchManipulator: the rule of lines", lay) &&
        match::isMatchLineShown(laid)) {
        way = handle == match::kSecondEnd ? laid.getSecond() - lineAtDragStart.getSecond()
                                          : laid.getFirst() - lineAtDragStart.getFirst();
    }
    return { DragParameters::Kind::Offset, osg::Vec3f(way.x(), way.y(), 0.0F) };
}

/// Moves what is held to an offset from the drag's start, with all that follows.
void PerspectiveMatchManipulator::applyNow(const DragParameters& parameters)
{
    setLine(line, movedLine(parameters.vec2()));
    drag->changed(parameters);
    updateMagnifier();
    updateManipulator();
}

/// The line as it was at the drag's start with what is held moved.
osg::Line2D PerspectiveMatchManipulator::movedLine(const osg::Vec2f& way) const
{
    osg::Pnt2f first = lineAtDragStart.getFirst();
    osg::Pnt2f second = lineAtDragStart.getSecond();
    if (handle == match::kLineBody || handle == match::kFirstEnd) {
        first += way;
    }
    if (handle == match::kLineBody || handle == match::kSecondEnd) {
        second += way;
    }
    return { first, second };
}

// == Magnifier

/// Shows the magnifier over a held end, and hides it otherwise.
void PerspectiveMatchManipulator::updateMagnifier()
{
    const bool isEndHeld = handle == match::kFirstEnd || handle == match::kSecondEnd;
    nbMagnifierRenderer::setVisible(isEndHeld);
    if (isEndHeld) {
        visualisation->placeMagnifier({ line, handle });
        nbMagnifierRenderer::setMagnificationScale(
            getNbdCameraNode().getPerspectiveMatch().getMagnifyFactor());
    }
}

}  // namespace nbec::manipulator
