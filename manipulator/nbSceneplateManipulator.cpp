// SPDX-License-Identifier: MIT
#include "manipulator/nbSceneplateManipulator.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/detail/ContainerReference.h"
#include "manipulator/detail/HandleGroup.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/HandlePick.h"
#include "manipulator/detail/InstanceRegistry.h"
#include "manipulator/detail/NodeVisibility.h"
#include "manipulator/detail/ScreenScale.h"
#include "manipulator/detail/ValueText.h"
#include "manipulator/nbSceneplateManipulatorParts.h"

#include <nbInteraction/Picker.h>
#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbUtils/nbMessage.h>

#include <QtCore/QString>
#include <QtGui/QVector2D>

#include <algorithm>

#include <EditStamp.h>

using nbec::manipulator::AbstractManipulator;
using nbec::manipulator::ManipulatorInteractionContext;
using nbec::manipulator::detail::PlateChange;
using nbec::manipulator::detail::PlateCorner;
using nbec::manipulator::detail::PlateGuides;
using nbec::manipulator::detail::PlateView;

namespace detail = nbec::manipulator::detail;

namespace {

using Mode = nbSceneplateManipulator::ActiveMode;

PlateCorner cornerOf(Mode mode)
{
    switch (mode) {
    case Mode::ScaleLowerLeft:
        return PlateCorner::LowerLeft;
    case Mode::ScaleUpperLeft:
        return PlateCorner::UpperLeft;
    case Mode::ScaleLowerRight:
        return PlateCorner::LowerRight;
    default:
        return PlateCorner::UpperRight;
    }
}

/// The plate of a node; null if the node no longer exists or has another core.
osg::SceneplatePtr resolvePlate(osg::UInt32 nodeId)
{
    return nbSceneplateList::plateOf(detail::resolveContainer<osg::NodePtr>(nodeId));
}

}  // namespace

float nbSceneplateManipulator::m_ManipulatorSize = detail::kDefaultManipulatorSize;
std::vector<nbSceneplateManipulator*> nbSceneplateManipulator::_allManipulators;
nbSceneplateManipulator* nbSceneplateManipulator::_the = nullptr;

nbSceneplateManipulator::nbSceneplateManipulator()
{
    handleTree = createManipulatorGeo();
    const detail::HandlePasses passes = detail::makeHandlePasses(handleTree.get());
    root = detail::makeHandleRoot();
    detail::addChild(root.get(), passes.depthPass.get());
    detail::addChild(root.get(), passes.handlePass.get());
    detail::showNode(handleTree.get(), false);
    _allManipulators.push_back(this);
    nbOSGWidget::addMGLWResizeCB(&nbSceneplateManipulator::updateAllManipulators);
}

nbSceneplateManipulator::~nbSceneplateManipulator()
{
    nbOSGWidget::subMGLWResizeCB(&nbSceneplateManipulator::updateAllManipulators);
    detail::unregisterInstance(_allManipulators, this);
    if (_the == this) {
        _the = nullptr;
    }
}

// == Events, in their slot order

void nbSceneplateManipulator::activate(ManipulatorInteractionContext* ctx)
{
    AbstractManipulator::activate(ctx);
    followPixelRatio(ctx);
    updateManipulator();
}

void nbSceneplateManipulator::deactivate(ManipulatorInteractionContext* ctx)
{
    AbstractManipulator::deactivate(ctx);
    if (drag != nullptr) {
        endDrag();
    }
    activeMode = ActiveMode::None;
    highlightMode(ActiveMode::None);
    updateManipulator();
}

osg::NodePtr nbSceneplateManipulator::getVisualisation()
{
    return root.get();
}

osg::NodePtr nbSceneplateManipulator::getCollider()
{
    return root.get();
}

void nbSceneplateManipulator::update(bool force)
{
    if (isActive() &&
        (force || osg::glue::editStamp() != comparedStamp ||
         nbOSGWidget::getMGLW(-1) != comparedWidget || unitPx() != comparedUnitPx)) {
        updateManipulator();
    }
}

bool nbSceneplateManipulator::startManipulator(ManipulatorInteractionContext* ctx,
                                               const std::string& /*hint*/)
{
    if (drag != nullptr) {
        endDrag();  // whose stop was lost
    }
    activeMode = detectMode(ctx);
    highlightMode(activeMode);
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (activeMode == ActiveMode::None || widget == nullptr) {
        return false;
    }
    auto started = std::make_unique<Drag>();
    started->widthPx = widget->getWidth();
    started->heightPx = widget->getHeight();
    started->start = nbSceneplateLayout::frame(getPlates(), started->widthPx, started->heightPx);
    started->arm =
        detail::chooseArm(started->start, { started->widthPx, started->heightPx, unitPx() });
    started->pressedPx = widget->getMousePosition();
    drag = std::move(started);
    showElements(activeMode);
    drag->preview.begin();
    return true;
}

bool nbSceneplateManipulator::processManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                 const std::string& /*hint*/)
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (!canGoOn(widget)) {
        return false;
    }
    dragTo(widget->getMousePosition());
    // Who receives the change may have taken the manipulator out of use.
    if (drag == nullptr) {
        return false;
    }
    updateManipulator();
    setDescription();
    return true;
}

bool nbSceneplateManipulator::stopManipulator(ManipulatorInteractionContext* /*ctx*/,
                                              const std::string& /*hint*/)
{
    if (drag == nullptr) {
        return false;
    }
    endDrag();
    updateManipulator();
    return hasPlates();
}

bool nbSceneplateManipulator::hoverManipulator(ManipulatorInteractionContext* ctx,
                                               const std::string& /*hint*/)
{
    if (drag != nullptr) {
        return true;
    }
    activeMode = detectMode(ctx);
    highlightMode(activeMode);
    return activeMode != ActiveMode::None;
}

bool nbSceneplateManipulator::resetManipulator(ManipulatorInteractionContext* /*ctx*/,
                                               const std::string& /*hint*/)
{
    if (drag == nullptr) {
        activeMode = ActiveMode::None;
        highlightMode(ActiveMode::None);
    }
    return true;
}

bool nbSceneplateManipulator::setManipulatorMode(const std::string& mode)
{
    precisionActive = mode == "precisionTool";
    // Deliberate: "tool" answers false although it has ended the precise mode.
    return precisionActive || mode.empty();
}

// == Plates

void nbSceneplateManipulator::setNodes(const std::vector<osg::NodePtr>& nodes)
{
    std::vector<osg::UInt32> ids;
    for (const osg::NodePtr& node : nodes) {
        const osg::UInt32 id = detail::containerId(node);
        if (nbSceneplateList::plateOf(node) != osg::NullFC &&
            std::find(ids.begin(), ids.end(), id) == ids.end()) {
            ids.push_back(id);
        }
    }
    if (drag != nullptr && ids != nodeIds) {
        drag->isBroken = true;
    }
    nodeIds = std::move(ids);
    updateManipulator();
}

std::vector<osg::NodePtr> nbSceneplateManipulator::getNodes() const
{
    std::vector<osg::NodePtr> nodes;
    for (const osg::UInt32 id : nodeIds) {
        const auto node = detail::resolveContainer<osg::NodePtr>(id);
        if (nbSceneplateList::plateOf(node) != osg::NullFC) {
            nodes.push_back(node);
        }
    }
    return nodes;
}

std::vector<osg::SceneplatePtr> nbSceneplateManipulator::getPlates() const
{
    std::vector<osg::SceneplatePtr> plates;
    for (const osg::UInt32 id : nodeIds) {
        const osg::SceneplatePtr plate = resolvePlate(id);
        if (plate != osg::NullFC) {
            plates.push_back(plate);
        }
    }
    return plates;
}

bool nbSceneplateManipulator::hasPlates() const
{
    return std::any_of(nodeIds.begin(), nodeIds.end(),
                       [](osg::UInt32 id) { return resolvePlate(id) != osg::NullFC; });
}

void nbSceneplateManipulator::updateManipulator()
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    const bool isShown = isActive() && widget != nullptr && hasPlates() && placeHandles(*widget);
    detail::showNode(handleTree.get(), isShown);
    if (isShown) {
        placeGuides(*widget);
    }
    comparedStamp = osg::glue::editStamp();
    comparedWidget = widget;
    comparedUnitPx = unitPx();
}

void nbSceneplateManipulator::followPixelRatio(const ManipulatorInteractionContext* ctx)
{
    if (ctx != nullptr && ctx->getPicker() != nullptr) {
        pixelRatio = ctx->getPicker()->getPixelRatio();
    }
}

nbSceneplateManipulator::ActiveMode
nbSceneplateManipulator::detectMode(ManipulatorInteractionContext* ctx)
{
    followPixelRatio(ctx);
    update(false);
    const HandleRow* const row = detail::findHandleRow(kHandles, detail::pickHandle(ctx));
    return row != nullptr ? row->mode : ActiveMode::None;
}

// == Dragging

bool nbSceneplateManipulator::canGoOn(const nbOSGWidget* widget) const
{
    return drag != nullptr && !drag->isBroken && widget != nullptr &&
        widget->getWidth() == drag->widthPx && widget->getHeight() == drag->heightPx && hasPlates();
}

void nbSceneplateManipulator::dragTo(const osg::Pnt2f& pointerPx)
{
    const PlateView view { drag->widthPx, drag->heightPx, unitPx() };
    const osg::Vec2f distancePx = pointerPx - drag->pressedPx;
    PlateGuides snapped;
    PlateChange change = drag->change;
    if (activeMode == ActiveMode::Move) {
        change =
            detail::moveFrame(drag->start, distancePx, view, snappingActive() ? &snapped : nullptr);
    } else if (activeMode == ActiveMode::Rotate) {
        if (detail::turnBetween(drag->start.centre, drag->pressedPx, pointerPx, drag->turned)) {
            change = detail::turnFrame(drag->start, drag->turned, snappingActive());
        }
    } else {
        change = detail::scaleFrame(drag->start, cornerOf(activeMode), precisionActive, distancePx,
                                    view, snappingEnabled ? &snapped : nullptr);
    }
    drag->guides = snapped;
    if (!(change == drag->change)) {
        drag->change = change;
        sendChange();
    }
}

void nbSceneplateManipulator::sendChange() const
{
    const osg::Vec2f offset = nbSceneplateLayout::toOffset(drag->change.offsetPx, drag->heightPx);
    nbMessage message;
    message.set("scaleFactor", drag->change.scaleFactor, true);
    message.set("offset", QVector2D(offset.x(), offset.y()), true);
    message.set("rotation", drag->change.rotation, true);
    nbController::call("sceneplateChanged", message, 0);
}

void nbSceneplateManipulator::endDrag()
{
    drag.reset();
    activeMode = ActiveMode::None;
    highlightMode(ActiveMode::None);
    showElements(ActiveMode::None);
    setDescription();
}

void nbSceneplateManipulator::setDescription() const
{
    static detail::ValueText text("sceneplateInfo");
    if (drag == nullptr || !descriptionEnabled) {
        text.show(QString());
    } else if (activeMode == ActiveMode::Move) {
        const osg::Vec2f& offsetPx = drag->change.offsetPx;
        text.show(
            detail::describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Translation ("),
                                   { offsetPx.x(), -offsetPx.y() }));
    } else if (activeMode == ActiveMode::Rotate) {
        text.show(detail::describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Rotation ("),
                                         { drag->start.rotation + drag->change.rotation }));
    } else {
        text.show(detail::describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale ("),
                                         { drag->change.scaleFactor }));
    }
}

// == All instances

void nbSceneplateManipulator::createInstance()
{
    delete _the;
    _the = new nbSceneplateManipulator;
}

void nbSceneplateManipulator::setManipulatorSize(float size)
{
    if (!(size > 0.0F)) {
        return;
    }
    m_ManipulatorSize = size;
    if (_the != nullptr) {
        _the->updateManipulator();
    }
}

void nbSceneplateManipulator::updateAllManipulators()
{
    detail::forEachInstance(_allManipulators, [](nbSceneplateManipulator& manipulator) {
        manipulator.updateManipulator();
    });
}
