// SPDX-License-Identifier: MIT
#include <nbInteraction/EventNames.h>
#include <nbInteraction/InputTranslator.h>
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbUtils/nbQt.h>

#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

#include <EditStamp.h>

namespace nbec::interaction {

namespace {

/// Qt's measure of one step of a common wheel, eighths of a degree.
constexpr double kAnglePerStep = 120.0;
/// Touchpad scroll that counts as one wheel step where only pixels are given, logical pixels.
constexpr double kPixelsPerStep = 60.0;
/// Steps of one event beyond this come from broken devices.
constexpr double kMostSteps = 20.0;

/// Whom a press concerns and how it is meant; null for a button without a meaning.
struct PressMeaning
{
    const char* tool = nullptr;
    const char* hint = nullptr;
};

PressMeaning meaningOfLeft(Qt::KeyboardModifiers modifiers)
{
    if (modifiers & Qt::AltModifier) {
        return { names::kCamera, names::kOrbit };
    }
    const bool isCtrl = modifiers & Qt::ControlModifier;
    const bool isShift = modifiers & Qt::ShiftModifier;
    if (isCtrl && isShift) {
        return { names::kTool, names::kSelectThrough };
    }
    if (isCtrl) {
        return { names::kTool, names::kToggle };
    }
    return { names::kTool, isShift ? names::kAdd : names::kSelect };
}

/// Of the button that orbits.
PressMeaning meaningOfOrbit(Qt::KeyboardModifiers modifiers, Qt::KeyboardModifier zooming)
{
    if (modifiers & zooming) {
        return { names::kCamera, names::kZoom };
    }
    return { names::kCamera, modifiers & Qt::ShiftModifier ? names::kPan : names::kOrbit };
}

PressMeaning meaningOf(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, bool middleOrbits)
{
    if (middleOrbits && button == Qt::MiddleButton) {
        return meaningOfOrbit(modifiers, Qt::ControlModifier);
    }
    if (middleOrbits && (modifiers & (Qt::AltModifier | Qt::ShiftModifier)) == 0 &&
        button == Qt::RightButton) {
        return {};
    }
    switch (button) {
    case Qt::LeftButton:
        return meaningOfLeft(modifiers);
    case Qt::RightButton:
        return meaningOfOrbit(modifiers, Qt::AltModifier);
    case Qt::MiddleButton:
        return { names::kCamera, names::kPan };
    default:
        return {};
    }
}

/// The component that turns: vertical, or horizontal where there is no vertical one, since window
/// systems exchange them while Alt is held.
double mainComponent(const QPoint& delta)
{
    return delta.y() != 0 ? delta.y() : delta.x();
}

/// Angles win over pixels, which some window systems report with any scale.
double stepsOf(const QWheelEvent& event)
{
    const double steps = event.angleDelta().isNull()
        ? mainComponent(event.pixelDelta()) / kPixelsPerStep
        : mainComponent(event.angleDelta()) / kAnglePerStep;
    return std::clamp(steps, -kMostSteps, kMostSteps);
}

}  // namespace

InputTranslator::InputTranslator(InteractionManager& interactionManager, nbOSGWidget* renderWidget)
    : manager(interactionManager)
    , widget(renderWidget)
{ }

void InputTranslator::setDevicePixelRatio(double ratio)
{
    if (ratio > 0.0 && std::isfinite(ratio)) {
        devicePixelRatio = ratio;
    }
}

osg::Pnt2f InputTranslator::toDevicePixels(const QPointF& logical) const
{
    return osg::Pnt2f(static_cast<float>(logical.x() * devicePixelRatio),
                      static_cast<float>(logical.y() * devicePixelRatio));
}

bool InputTranslator::handleEvent(QEvent& event)
{
    const osg::UInt64 formerStamp = osg::glue::viewStamp();
    takeDevice(event);
    const bool taken = translate(event);
    // Only what the event really changed is worth a redraw; handles light up without taking it.
    if (osg::glue::viewStamp() != formerStamp) {
        nbOSGWidget::updateAll();
    }
    return taken;
}

bool InputTranslator::translate(QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(static_cast<QMouseEvent&>(event));
    case QEvent::MouseMove:
        return move(static_cast<QMouseEvent&>(event));
    case QEvent::MouseButtonRelease:
        return release(static_cast<QMouseEvent&>(event));
    case QEvent::Wheel:
        return wheel(static_cast<QWheelEvent&>(event));
    case QEvent::KeyPress:
        return keyPress(static_cast<QKeyEvent&>(event));
    case QEvent::KeyRelease:
        keyRelease(static_cast<QKeyEvent&>(event));
        return false;
    case QEvent::ShortcutOverride:
        return overrideShortcut(static_cast<QKeyEvent&>(event));
    default:
        followView(event.type());
        return false;
    }
}

/// Pens and fingers make mouse events, too, which say so; of a pen its own event comes before.
void InputTranslator::takeDevice(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        penIsNear = true;
        break;
    case QEvent::TouchBegin:
        penIsNear = false;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: {
        const bool isMouse =
            static_cast<const QMouseEvent&>(event).source() == Qt::MouseEventNotSynthesized;
        penIsNear = penIsNear && !isMouse;
        Picker::setDevice(isMouse         ? PointerDevice::Mouse
                              : penIsNear ? PointerDevice::Pen
                                          : PointerDevice::Touch);
        break;
    }
    default:
        break;
    }
}

void InputTranslator::followView(int eventType)
{
    switch (eventType) {
    case QEvent::Leave:
        leave();
        break;
    case QEvent::FocusOut:
    case QEvent::WindowDeactivate:
    case QEvent::WindowBlocked:
        setPrecision(false);
        interruptDrag();
        break;
    case QEvent::UngrabMouse:
        interruptDrag();
        break;
    case QEvent::Hide:
    case QEvent::Close:
        goAway();
        break;
    default:
        break;
    }
}

void InputTranslator::refreshHover()
{
    if (pointerIsInside && !buttonIsDown) {
        sendHover(names::kHover);
    }
}

void InputTranslator::interruptDrag()
{
    if (dragIsSent) {
        dragIsSent = false;
        manager.endDrag();
    }
}

// == Buttons

bool InputTranslator::press(const QMouseEvent& event)
{
    pointTo(nbQt::position(event), event.modifiers());
    const bool isOnlyButton = (event.buttons() & ~Qt::MouseButtons(event.button())) == 0;
    if (buttonIsDown && !isOnlyButton) {
        return pressSecond(event.button());
    }
    // A drag that still runs has lost its release.
    interruptDrag();
    buttonIsDown = true;
    const PressMeaning meaning = meaningOf(event.button(), event.modifiers(), middleOrbits);
    if (!meaning.tool) {
        return false;
    }
    if (nbOSGWidget* const view = currentWidget()) {
        view->setPressPosition(pointerPx);
    }
    if (meaning.tool == names::kCamera) {
        // Handles must not stay lit while the view turns under the pointer.
        sendHover(names::kStopHover);
    }
    dragTool = meaning.tool;
    dragHint = meaning.hint;
    dragButton = event.button();
    dragIsSent = true;
    return sendDrag(names::kStart);
}

bool InputTranslator::pressSecond(Qt::MouseButton button)
{
    if (button == Qt::RightButton) {
        return cancelDrag();
    }
    const bool ended = dragIsSent;
    interruptDrag();
    return ended;
}

bool InputTranslator::move(const QMouseEvent& event)
{
    pointTo(nbQt::position(event), event.modifiers());
    if (event.buttons() == Qt::NoButton) {
        if (buttonIsDown) {
            // The release went elsewhere.
            interruptDrag();
            releaseButtons();
        }
        pointerIsInside = true;
        return sendHover(names::kHover);
    }
    return dragIsSent && sendDrag(names::kProcess);
}

bool InputTranslator::release(const QMouseEvent& event)
{
    const osg::Pnt2f formerPx = pointerPx;
    pointTo(nbQt::position(event), event.modifiers());
    if (!buttonIsDown) {
        return false;
    }
    bool taken = false;
    if (dragIsSent && event.button() == dragButton) {
        // Of motions that pile up behind a slow picture the last before the release may be dropped.
        if (pointerPx != formerPx) {
            sendDrag(names::kProcess);
        }
        dragIsSent = false;
        taken = sendDrag(names::kStop);
    }
    if (event.buttons() == Qt::NoButton) {
        interruptDrag();
        releaseButtons();
        pointerIsInside = isInsideView();
        sendHover(pointerIsInside ? names::kHover : names::kStopHover);
    }
    return taken;
}

bool InputTranslator::cancelDrag()
{
    if (!dragIsSent) {
        return false;
    }
    dragIsSent = false;
    const bool isRunning = manager.isDragging();
    manager.cancelDrag();
    return isRunning;
}

void InputTranslator::releaseButtons()
{
    buttonIsDown = false;
    if (nbOSGWidget* const view = currentWidget()) {
        view->clearPressPosition();
    }
}

bool InputTranslator::wheel(const QWheelEvent& event)
{
    pointTo(event.position(), event.modifiers());
    pointerIsInside = pointerIsInside || !buttonIsDown;
    const double steps = stepsOf(event);
    if (steps == 0.0) {
        return false;
    }
    const bool taken =
        manager.triggerEvent(InteractionEvent(names::kTrigger, names::kCamera, names::kZoom, steps,
                                              event.modifiers().testFlag(Qt::ShiftModifier)));
    if (taken) {
        refreshHover();
    }
    return taken;
}

// == Keys

bool InputTranslator::keyPress(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Control) {
        setPrecision(true);
    }
    if (event.key() == Qt::Key_Shift) {
        manager.setFineMotion(true);
    }
    if (isForDrag(event) && manager.typeKey(event.text().at(0))) {
        return true;
    }
    return event.key() == Qt::Key_Escape && cancelDrag();
}

bool InputTranslator::isForDrag(const QKeyEvent& event) const
{
    constexpr Qt::KeyboardModifiers kOfShortcuts =
        Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return dragIsSent && dragTool == names::kTool && !event.text().isEmpty() &&
        (event.modifiers() & kOfShortcuts) == Qt::NoModifier;
}

void InputTranslator::keyRelease(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Control && !event.isAutoRepeat()) {
        setPrecision(false);
    }
    if (event.key() == Qt::Key_Shift && !event.isAutoRepeat()) {
        manager.setFineMotion(false);
    }
}

bool InputTranslator::overrideShortcut(QKeyEvent& event) const
{
    const bool isEscape = event.key() == Qt::Key_Escape && dragIsSent;
    if (!isEscape && !isForDrag(event)) {
        return false;
    }
    event.accept();
    return true;
}

void InputTranslator::setPrecision(bool on)
{
    if (precisionIsHeld != on) {
        precisionIsHeld = on;
        manager.selectMode(on ? names::kPrecisionToolMode : names::kToolMode);
    }
}

// == View

void InputTranslator::leave()
{
    pointerIsInside = false;
    // A drag goes on outside of the view; its end looks where the pointer is.
    if (!buttonIsDown) {
        sendHover(names::kStopHover);
    }
}

void InputTranslator::goAway()
{
    setPrecision(false);
    interruptDrag();
    releaseButtons();
    pointerIsInside = false;
    sendHover(names::kStopHover);
}

nbOSGWidget* InputTranslator::currentWidget() const
{
    return widget ? widget : nbOSGWidget::getMGLW(-1);
}

void InputTranslator::pointTo(const QPointF& logical, Qt::KeyboardModifiers modifiers)
{
    pointerPx = toDevicePixels(logical);
    if (nbOSGWidget* const view = currentWidget()) {
        // Pickers and manipulators work in the main view.
        view->setMain();
        view->setMousePosition(pointerPx);
    }
    manager.pointerMoved(pointerPx);
    // The key itself may have been pressed or released while another window had the focus.
    setPrecision(modifiers & Qt::ControlModifier);
}

bool InputTranslator::isInsideView() const
{
    const nbOSGWidget* const view = currentWidget();
    if (!view || view->getWidth() <= 0 || view->getHeight() <= 0) {
        return true;
    }
    return pointerPx[0] >= 0.0F && pointerPx[1] >= 0.0F &&
        pointerPx[0] < static_cast<float>(view->getWidth()) &&
        pointerPx[1] < static_cast<float>(view->getHeight());
}

// == Sending

bool InputTranslator::sendDrag(const char* event)
{
    return manager.triggerEvent(InteractionEvent(event, dragTool, dragHint));
}

bool InputTranslator::sendHover(const char* event)
{
    return manager.triggerEvent(InteractionEvent(event, names::kTool, names::kSelect));
}

}  // namespace nbec::interaction
