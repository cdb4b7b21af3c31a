// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/TextureFace.h"
#include "manipulator/texture/AnchoredGizmo.h"

namespace nbec::manipulator {

/// A gizmo at an anchor point on a node that edits how the picture of one component of a material
/// lies on the surface. Base of the triplanar, UV and tire gizmos; appends no virtual operations.
///
/// From the first step of a drag on the host's material preview is paused, and it is resumed when
/// the drag stops.
///
/// Decisions.
/// - A drag ends when the handle's material or component is replaced, and a start makes good a stop
///   that was lost; the preview is resumed then. Hovering changes nothing during a drag.
///   Deliberate: deactivating ends no drag; hosts stop it before.
/// - A drag whose pointer misses the drag plane at the first step starts where it meets it first.
/// - What a drag has hidden is shown again when it stops, in every mode.
/// - A new anchor or component is shown with the next update; a view that becomes a perspective
///   one, too.
class NB_MANIPULATOR_API AnchoredTextureManipulator : public TextureFace<AbstractManipulator>
{
public:
    /// Also shows the handles if there is a material, and hides them if not.
    void activate(ManipulatorInteractionContext* ctx) override
    {
        AbstractManipulator::activate(ctx);
        if (getMaterial() != osg::NullFC) {
            showActiveManipulator();
            updateManipulator();
        } else {
            hideManipulator();
        }
    }

    /// @param node      held by its id; null: the position is one of the world
    /// @param position  in the node's coordinates
    void setAnchor(const osg::NodePtr& node, const osg::Pnt3f& position)
    {
        anchored().setAnchor(node, position);
    }

    /// World position of the anchor as it was looked at last.
    osg::Pnt3f getAnchorPosition() const { return anchored().getAnchorPosition(); }

    /// The anchor's node; null if there is none or it no longer exists.
    osg::NodePtr getAnchorNode() const { return anchored().getAnchorNode(); }

protected:
    explicit AnchoredTextureManipulator(std::unique_ptr<texture::AnchoredGizmo> owned)
        : TextureFace(std::move(owned))
    { }

private:
    texture::AnchoredGizmo& anchored() const
    {
        return static_cast<texture::AnchoredGizmo&>(*gizmo);
    }
};

}  // namespace nbec::manipulator
