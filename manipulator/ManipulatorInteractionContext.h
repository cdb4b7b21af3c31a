// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <nbInteraction/MultimodeInteractionContext.h>

#include <OpenSG/OSGVector.h>

#include <string>

namespace nbec::interaction {
class InteractionEvent;
class InteractionManager;
class Picker;
}  // namespace nbec::interaction

namespace nbec::manipulator {

class Manipulator;

/// The interaction context through which the host's interaction manager reaches the current
/// manipulator.
///
/// It turns the manager's life-cycle calls, pointer moves and named events into calls of one
/// Manipulator and hands the manipulator's collider to one Picker. It owns neither. To change the
/// manipulator of a context that is in use, remove the context from its manager, set the
/// manipulator, and add the context again: setManipulator() by itself activates and deactivates
/// nothing.
///
/// Events of tool "tool" with hint "select" or "toggle" are consumed: "start", "process", "stop"
/// and "hover" go to the manipulator and their answer is returned; "stopHover" resets it and goes
/// on to the base. "start" of hint "selectThrough" resets the manipulator and goes on. Tool "mode"
/// with hint "tool": "start" hovers, "stop" resets, and both go on. Everything else goes to the
/// base untouched. All comparisons are exact.
class NB_MANIPULATOR_API ManipulatorInteractionContext
    : public interaction::MultimodeInteractionContext
{
public:
    /// Position of manipulators among the contexts of a manager.
    static constexpr auto kManipulatorPosition = static_cast<interaction::PreferredPosition>(100);

    /// @param position  where the manager places the context among the others
    explicit ManipulatorInteractionContext(
        interaction::PreferredPosition position = kManipulatorPosition);
    ManipulatorInteractionContext(const ManipulatorInteractionContext& other);
    ManipulatorInteractionContext& operator=(const ManipulatorInteractionContext&) = default;

    /// Leaves its manager, which deactivates the manipulator.
    ~ManipulatorInteractionContext() override;

    void enabled(interaction::InteractionManager* manager) override;
    void disabled(interaction::InteractionManager* manager) override;
    void contextAdded(interaction::InteractionManager* manager) override;
    void contextRemoved(interaction::InteractionManager* manager) override;
    void pointerMoved(const osg::Pnt2f& position) override;
    bool triggerEvent(interaction::InteractionManager* manager,
                      const interaction::InteractionEvent& event) override;

    /// Keeps the mode and passes it to the manipulator. @return its answer, false without one
    bool selectMode(const std::string& mode) override;

    /// Sets the current manipulator, not owned; one that dies is taken out by itself. The picker
    /// gets its collider.
    /// Deliberate: null does not clear the picker's node, the picker keeps the last collider.
    void setManipulator(Manipulator* current);

    Manipulator* getManipulator() const { return manipulator; }

    /// Sets the picker, not owned. The old one loses its node, the new one gets the manipulator's
    /// collider.
    void setPicker(interaction::Picker* current);

    interaction::Picker* getPicker() const { return picker; }

    /// Has a manager bring keys that are typed during a drag, and Shift for fine motion, to the
    /// manipulator that is dragged; see AbstractManipulator::typeKey(). A drag that the manager
    /// cancels is cancelled by its manipulator in any case. @param manager  outlives its contexts
    static void connectDragKeys(interaction::InteractionManager& manager);

    /// The last pointer position, device pixels, y from the top; (0, 0) before the first.
    osg::Pnt2f getPointerPosition() const { return pointerPosition; }

    /// Takes a manipulator that is being destroyed out of all contexts.
    static void forget(const Manipulator* gone);

private:
    void handOverCollider();

    Manipulator* manipulator = nullptr;
    interaction::Picker* picker = nullptr;
    std::string toolName = "tool";
    osg::Pnt2f pointerPosition;
};

}  // namespace nbec::manipulator
