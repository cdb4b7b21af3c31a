// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGVector.h>

#include <QPointF>
#include <Qt>

#include <string>

class nbOSGWidget;
class QEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace nbec::interaction {

class InteractionManager;

/// Turns the Qt events of one view into named events of an interaction manager. A person's input
/// and a replay that sends real Qt events take the same way; synthetic events must carry button
/// state and modifiers as Qt's own do.
///
/// - Move without a button: "hover", tool "tool", hint "select".
/// - Leaving or hiding the view: "stopHover", tool "tool", hint "select".
/// - Left press, moves, release: "start", "process", "stop", tool "tool", with a hint by the
///   modifiers at the press: none "select", Ctrl "toggle", Shift "add", both "selectThrough".
/// - Camera drags, the same three events with tool "camera": Alt + left and right "orbit"; middle
///   and Shift + right "pan"; Alt + right "zoom".
///   With setMiddleOrbits(true) middle "orbit", Shift + middle "pan", Ctrl + middle "zoom"; the
///   right button, but for Alt and Shift, means nothing.
/// - Wheel and touchpad scroll: "trigger", tool "camera", hint "zoom", amount in wheel steps, fine
///   with Shift.
/// - Ctrl held, released: mode "precisionTool", "tool".
/// - Pickers are told what moves the pointer, mouse, pen or finger (Picker::setDevice).
/// - During a drag with the left button keys go to the manager's DragKeys first, Shift makes the
///   motion fine.
///
/// The view under the pointer becomes the main one, its pointer is set, and pointerMoved goes out
/// before the event of the same input; each move is passed on by itself. A double click counts as a
/// press. A second button, a lost focus or grab, and hiding or closing the view end a drag with
/// "stop"; Esc and the right button also take it back. Nothing new begins until all buttons are up;
/// then a hover is sent at the release position (a "stopHover" if it lies outside of the view).
class NB_PLATFORM_API InputTranslator
{
public:
    /// @param interactionManager  what gets the events; not owned, outlives the translator
    /// @param renderWidget  the view's widget; not owned; null for whichever is the main one
    explicit InputTranslator(InteractionManager& interactionManager,
                             nbOSGWidget* renderWidget = nullptr);
    InputTranslator(const InputTranslator&) = delete;
    InputTranslator& operator=(const InputTranslator&) = delete;

    /// Lets the middle button orbit instead of the right one; off at the start.
    void setMiddleOrbits(bool on) { middleOrbits = on; }

    bool doesMiddleOrbit() const { return middleOrbits; }

    /// Sets the device pixels per logical pixel. @param ratio  > 0, other values are ignored
    void setDevicePixelRatio(double ratio);
    /// The one conversion of positions. @return device pixels, not rounded, y from the top
    osg::Pnt2f toDevicePixels(const QPointF& logical) const;

    /// Translates one event of the view. Events of other types are left alone. If the world below
    /// nbScenegraph::getWorldRoot() changed meanwhile, the widget is asked for a redraw.
    /// @return whether it was input that something took, so that the view need not pass it on
    bool handleEvent(QEvent& event);

    /// Sends the hover again at the last position, when the scene or the camera moved under a
    /// resting pointer. Nothing while a button is down or the pointer is outside of the view.
    void refreshHover();
    /// Ends a running drag with "stop", as when the view goes away.
    void interruptDrag();

private:
    bool translate(QEvent& event);
    void followView(int eventType);
    void takeDevice(const QEvent& event);

    bool press(const QMouseEvent& event);
    bool pressSecond(Qt::MouseButton button);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    bool cancelDrag();
    void releaseButtons();
    bool wheel(const QWheelEvent& event);

    bool keyPress(const QKeyEvent& event);
    void keyRelease(const QKeyEvent& event);
    /// Whether a drag may take the key, which then is no shortcut.
    bool isForDrag(const QKeyEvent& event) const;
    /// Keeps keys from the window's shortcuts while they are needed here.
    bool overrideShortcut(QKeyEvent& event) const;
    void setPrecision(bool on);

    void leave();
    void goAway();
    nbOSGWidget* currentWidget() const;
    void pointTo(const QPointF& logical, Qt::KeyboardModifiers modifiers);
    /// @return whether the pointer lies in the view; true where that has no area to lie in
    bool isInsideView() const;

    bool sendDrag(const char* event);
    bool sendHover(const char* event);

    InteractionManager& manager;
    nbOSGWidget* widget;
    double devicePixelRatio = 1.0;

    osg::Pnt2f pointerPx { 0.0F, 0.0F };
    bool pointerIsInside = false;
    bool penIsNear = false;  ///< the last event that no mouse event was made of came from a pen
    bool precisionIsHeld = false;
    bool middleOrbits = false;
    bool buttonIsDown = false;  ///< from the first press to the last release
    bool dragIsSent = false;  ///< a "start" was sent, its "stop" was not
    Qt::MouseButton dragButton = Qt::NoButton;
    std::string dragTool;
    std::string dragHint;
};

}  // namespace nbec::interaction
