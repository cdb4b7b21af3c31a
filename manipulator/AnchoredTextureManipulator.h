// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/GizmoFace.h"

#include <OpenSG/OSGMaterial.h>

#include <memory>
#include <string>

class nbStateChunkBase;

namespace nbec::manipulator {

namespace texture {
class AnchoredGizmo;
}  // namespace texture

/// A gizmo at an anchor point on a node that edits how the picture of one component of a material
/// lies on the surface. Base of the triplanar, UV and tire gizmos; appends no virtual operations.
///
/// The gizmo only reads the material; each step of a drag goes as a message to the receiver that
/// the host named. From the first step of a drag on the host's material preview is paused, and it
/// is resumed when the drag stops.
///
/// Node and material are kept by their container ids: what was deleted reads as null, and the
/// operations that need it answer false or do nothing. Everything runs on the user-interface
/// thread.
///
/// Decisions.
/// - A drag ends when the handle's material or component is replaced, and a start makes good a stop
///   that was lost; the preview is resumed then. Hovering changes nothing during a drag.
///   Deliberate: deactivating ends no drag; hosts stop it before.
/// - A drag whose pointer misses the drag plane at the first step starts where it meets it first.
/// - What a drag has hidden is shown again when it stops, in every mode.
/// - A new anchor or component is shown with the next update; a view that becomes a perspective
///   one, too.
/// - Copies share the handles with their original and are not in the list of live instances.
class NB_MANIPULATOR_API AnchoredTextureManipulator : public GizmoFace<AbstractManipulator>
{
public:
    AnchoredTextureManipulator(const AnchoredTextureManipulator& other);
    AnchoredTextureManipulator& operator=(const AnchoredTextureManipulator& other);

    /// Also shows the handles if there is a material, and hides them if not.
    void activate(ManipulatorInteractionContext* ctx) override;

    ~AnchoredTextureManipulator() override;

    // == What is edited

    /// Prefix of the names of all messages to the editor; empty at the start.
    void setMessageReceiver(const std::string& receiver);
    /// Shows the handles if neither is empty, else hides them.
    /// @param material   held by its id; null for none
    /// @param component  name within the material
    /// @param gui        editor object of the host, not owned, may be null
    void setMaterialComponent(osg::MaterialPtr material, const std::string& component,
                              nbStateChunkBase* gui);
    /// Whether the material is the edited one; false for null.
    bool isConnectedToMaterial(osg::MaterialPtr material) const;
    /// Whether material and component are the edited ones.
    bool isConnectedTo(osg::MaterialPtr material, const std::string& component) const;
    /// Name of the edited component.
    std::string getComponentType() const;
    nbStateChunkBase* getGUI() const;
    void setGUI(nbStateChunkBase* gui);
    /// The material; null if there is none or it no longer exists.
    osg::MaterialPtr getMaterial() const;

    // == Where the handles are

    /// @param node      held by its id; null: the position is one of the world
    /// @param position  in the node's coordinates
    void setAnchor(const osg::NodePtr& node, const osg::Pnt3f& position);
    /// World position of the anchor as it was looked at last.
    osg::Pnt3f getAnchorPosition() const;
    /// The anchor's node; null if there is none or it no longer exists.
    osg::NodePtr getAnchorNode() const;

    // == Handles shown

    /// Shows the handles of the current mode.
    void showActiveManipulator();
    /// Hides all handles.
    void hideManipulator();

    /// Places the handles; nothing without a material and an anchor node.
    void updateManipulator();

protected:
    explicit AnchoredTextureManipulator(std::unique_ptr<texture::AnchoredGizmo> newGizmo);

    texture::AnchoredGizmo& course() const;
};

}  // namespace nbec::manipulator
