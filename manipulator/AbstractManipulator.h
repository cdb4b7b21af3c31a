// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/Manipulator.h"
#include "manipulator/course/DragListeners.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGVector.h>

#include <QtCore/QChar>
#include <QtCore/QString>

#include <cmath>
#include <string>

namespace nbec::manipulator {

class DragControl;
struct DragLimits;

/// State and behaviour that all manipulators share: activation, visualisation root, pointer,
/// preselection.
///
/// The visualisation hangs under the root exactly while the manipulator is active. While a handle
/// is hovered the scene's own hover highlighting (preselection) is off; a manipulator switches on
/// only what it has switched off. A copy holds the same root. A manipulator is deactivated before
/// it dies: the destructor detaches nothing. All operations run on the user-interface thread.
class NB_MANIPULATOR_API AbstractManipulator : public Manipulator
{
public:
    /// Appends the visualisation to the root, if both exist; nothing if already active.
    void activate(ManipulatorInteractionContext* ctx) override;

    /// Takes the visualisation from the root and gives preselection back; nothing if not active.
    void deactivate(ManipulatorInteractionContext* ctx) override;

    bool isActive() const override { return active; }

    /// Deliberate: the three drag operations answer true (handled) by default, hoverManipulator,
    /// resetManipulator and setManipulatorMode answer false.
    bool startManipulator(ManipulatorInteractionContext*, const std::string&) override
    {
        return true;
    }

    bool processManipulator(ManipulatorInteractionContext*, const std::string&) override
    {
        return true;
    }

    bool stopManipulator(ManipulatorInteractionContext*, const std::string&) override
    {
        return true;
    }

    /// Calls hoverManipulator() and keeps preselection off exactly while it answers true. @return
    /// its answer
    bool hover(ManipulatorInteractionContext* ctx, const std::string& hint) override;

    /// Calls resetManipulator() and gives preselection back. @return its answer
    bool reset(ManipulatorInteractionContext* ctx, const std::string& hint) override;

    bool hoverManipulator(ManipulatorInteractionContext*, const std::string&) override
    {
        return false;
    }

    bool resetManipulator(ManipulatorInteractionContext*, const std::string&) override
    {
        return false;
    }

    /// One that is no number is ignored, as the render widget ignores it.
    void setMousePosition(const osg::Pnt2f& position) override
    {
        if (std::isfinite(position.x()) && std::isfinite(position.y())) {
            mousePosition = position;
        }
    }

    osg::Pnt2f getMousePosition() const override { return mousePosition; }

    bool setManipulatorMode(const std::string& /*mode*/) override { return false; }

    /// Sets the node under which the visualisation hangs while active; an active one moves along.
    /// @param root  a count is held on it; null detaches
    void setVisualisationRoot(const osg::NodePtr& root);

    /// The held root, null if none.
    osg::NodePtr getVisualisationRoot() const { return visualisationRoot.get(); }

    // == Beyond dragging. Of a manipulator without drags they do nothing and answer false.

    /// Ends a drag and restores what it started from: to the bit for nodes, plates and lines, to
    /// the last place for repeats, whose reciprocals messages bear. The start goes out as an edit
    /// or message of its own, listeners hear of a cancelled end, and the rest is as at a stop. In a
    /// group of undo nothing is left of it. Also after a lost stop. @return whether there was a
    /// drag
    bool cancelDrag();

    /// Types into the drag: what is typed takes the pointer's place, from the next key on. Digits,
    /// sign, "." or ",", + - * / and parentheses, units (mm, cm, m, deg, rad, %) make an
    /// expression, for lengths in scene units (metres), angles in degrees, factors or pixels; x, y
    /// and z change the axis while nothing is typed; and the control characters as
    /// QKeyEvent::text() has them: backspace, tab to the next number, return to commit, escape to
    /// clear and, with nothing typed, to cancel. @return whether the key was taken
    bool typeKey(QChar key);

    /// Whether a number is being typed.
    bool isTyping() const;

    /// What a drag has come to, such as "+12.50 along x", and what is being typed; translated.
    QString getReadout() const;

    /// Shows the readout beside the pointer during drags, as a text of a notifier "dragReadout";
    /// off at the start. @param pixelRatio  device pixels per logical pixel of a view that does not
    /// tell it, > 0
    void setReadoutShown(bool on, float pixelRatio = 1.0F);

    /// While on, at most until the drag's end, the pointer counts for a tenth, without a jump when
    /// that is switched.
    void setFineMotion(bool on);

    /// Has a function told of drags, see DragListeners. @return number to take it away by; 0 for a
    /// manipulator without drags
    int addDragListener(DragListener listener);
    void removeDragListener(int number);

    /// Shows or hides a handle in all modes, for example setHandleVisible("xaShape", false); hidden
    /// ones cannot be grabbed. @return false for an unknown name
    bool setHandleVisible(const std::string& name, bool on);

    /// Keeps what a handle can be dragged or typed to within a range. @param handle  number as in
    /// the class's enumeration of handles
    bool setDragLimits(int handle, const DragLimits& limits);
    bool clearDragLimits(int handle);

protected:
    /// @param part  of the derived class, outlives all calls
    void setDragControl(DragControl& part);

    /// Switches the scene's preselection off, if it is on, and remembers to have done so.
    void disablePreselection();

    /// Switches preselection on again, if this manipulator had switched it off and it still is.
    void reenablePreselection();

private:
    /// What a class with drags has set. It is never copied, as each has its own.
    struct Control
    {
        Control() = default;

        Control(const Control&) { }

        Control& operator=(const Control&) { return *this; }

        DragControl* part = nullptr;
    };

    bool active = false;
    osg::RefPtr<osg::NodePtr> visualisationRoot;
    osg::Pnt2f mousePosition;
    bool preselectionSuppressed = false;
    Control control;
};

}  // namespace nbec::manipulator
