// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/Manipulator.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGVector.h>

#include <cmath>
#include <string>

namespace nbec::manipulator {

/// State and behaviour that all manipulators share: activation, visualisation root, pointer,
/// preselection.
///
/// The visualisation hangs under the root exactly while the manipulator is active. While a handle
/// is hovered the scene's own hover highlighting (preselection) is off; a manipulator switches on
/// only what it has switched off. All operations run on the user-interface thread.
class NB_MANIPULATOR_API AbstractManipulator : public Manipulator
{
public:
    AbstractManipulator() = default;

    /// Copies all fields; both manipulators then hold the same root.
    AbstractManipulator(const AbstractManipulator&) = default;
    AbstractManipulator& operator=(const AbstractManipulator&) = default;

    /// Appends the visualisation to the root, if both exist; nothing if already active.
    void activate(ManipulatorInteractionContext* ctx) override;

    /// Takes the visualisation from the root and gives preselection back; nothing if not active.
    void deactivate(ManipulatorInteractionContext* ctx) override;

    bool isActive() const override { return active; }

    /// Deliberate: the three drag operations answer true (handled) by default, hoverManipulator,
    /// resetManipulator and setManipulatorMode answer false.
    bool startManipulator(ManipulatorInteractionContext* /*ctx*/,
                          const std::string& /*hint*/) override
    {
        return true;
    }

    bool processManipulator(ManipulatorInteractionContext* /*ctx*/,
                            const std::string& /*hint*/) override
    {
        return true;
    }

    bool stopManipulator(ManipulatorInteractionContext* /*ctx*/,
                         const std::string& /*hint*/) override
    {
        return true;
    }

    /// Calls hoverManipulator() and keeps preselection off exactly while it answers true. @return
    /// its answer
    bool hover(ManipulatorInteractionContext* ctx, const std::string& hint) override;

    /// Calls resetManipulator() and gives preselection back. @return its answer
    bool reset(ManipulatorInteractionContext* ctx, const std::string& hint) override;

    bool hoverManipulator(ManipulatorInteractionContext* /*ctx*/,
                          const std::string& /*hint*/) override
    {
        return false;
    }

    bool resetManipulator(ManipulatorInteractionContext* /*ctx*/,
                          const std::string& /*hint*/) override
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

    /// Releases the visualisation root. Does not detach the visualisation: a manipulator is
    /// deactivated before it dies.
    ~AbstractManipulator() override = default;

    /// Sets the node under which the visualisation hangs while active; an active one moves along.
    /// @param root  a count is held on it; null detaches
    void setVisualisationRoot(const osg::NodePtr& root);

    /// The held root, null if none.
    osg::NodePtr getVisualisationRoot() const { return visualisationRoot.get(); }

protected:
    /// Switches the scene's preselection off, if it is on, and remembers to have done so.
    void disablePreselection();

    /// Switches preselection on again, if this manipulator had switched it off and it still is.
    void reenablePreselection();

private:
    bool active = false;
    osg::RefPtr<osg::NodePtr> visualisationRoot;
    osg::Pnt2f mousePosition;
    bool preselectionSuppressed = false;
};

}  // namespace nbec::manipulator
