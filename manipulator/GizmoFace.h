// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/AbstractManipulator.h"
#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/course/Gizmo.h"

#include <memory>
#include <string>
#include <utility>

namespace nbec::manipulator {

/// A manipulator whose operations are those of one gizmo: brings the events to it in the slots of
/// Manipulator.
/// @tparam Base  AbstractManipulator or a class derived from it, such as NodeManipulator
template <class Base>
class GizmoFace : public Base
{
public:
    /// Also shows the handles, or hides them if there is nothing to edit.
    void activate(ManipulatorInteractionContext* ctx) override
    {
        Base::activate(ctx);
        gizmo->showActive();
    }

    void deactivate(ManipulatorInteractionContext* ctx) override
    {
        Base::deactivate(ctx);
        gizmo->deactivate();
    }

    /// Top of the handle tree, whose named handles can be hit.
    osg::NodePtr getVisualisation() override { return gizmo->getRoot(); }

    osg::NodePtr getCollider() override { return gizmo->getRoot(); }

    /// Places the handles if what they depend on has changed; see Gizmo. Nothing while inactive.
    /// @param force  in any case
    void update(bool force) override
    {
        if (this->isActive()) {
            gizmo->update(force);
        }
    }

    /// Places the handles, as what is edited is now; nothing without what they stand at.
    void updateManipulator() { gizmo->placeIn(View()); }

    /// Grabs the handle under the pointer and hides the others. @return whether there is one
    bool startManipulator(ManipulatorInteractionContext* ctx, const std::string& /*hint*/) override
    {
        return gizmo->start(pickerOf(ctx));
    }

    /// One step of a drag. @return whether there is a handle to drag and what it edits
    bool processManipulator(ManipulatorInteractionContext*, const std::string&) override
    {
        return gizmo->process(View());
    }

    /// Lets go of the handle. @return whether one was held and there is still what it edits
    bool stopManipulator(ManipulatorInteractionContext*, const std::string&) override
    {
        return gizmo->stop();
    }

    /// Lights up the handle under the pointer. @return whether there is one
    bool hoverManipulator(ManipulatorInteractionContext* ctx, const std::string& /*hint*/) override
    {
        return gizmo->hover(pickerOf(ctx));
    }

    /// Takes the light away. @return true
    bool resetManipulator(ManipulatorInteractionContext*, const std::string&) override
    {
        return gizmo->reset();
    }

protected:
    explicit GizmoFace(std::unique_ptr<Gizmo> owned)
        : gizmo(std::move(owned))
    {
        this->setDragControl(*gizmo);
    }

    /// For copies: the base as it is and a gizmo of its own.
    GizmoFace(const Base& other, std::unique_ptr<Gizmo> owned)
        : Base(other)
        , gizmo(std::move(owned))
    {
        this->setDragControl(*gizmo);
    }

    GizmoFace(const GizmoFace&) = delete;
    GizmoFace& operator=(const GizmoFace&) = delete;

    std::unique_ptr<Gizmo> gizmo;
};

}  // namespace nbec::manipulator
