// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/NodeManipulator.h"
#include "manipulator/TextureFace.h"
#include "manipulator/course/Instances.h"
#include "manipulator/texture/TextureModes.h"

namespace nbec::manipulator {

namespace texture {
class PlanarGizmo;
}  // namespace texture

/// The gizmo that moves, turns and scales the planar projection of a picture on an object.
///
/// The projection belongs to a component of an osg::UberMaterial and lies in the space of the node:
/// world = node.toWorld * projection.
///
/// Decisions.
/// - Place. The handles stand at the projection's centre, turned as it is, in a constant size on
///   screen; on an object with unequal scales or shear each arrow and scale axis lies along the way
///   in which it moves; tabs go to x, y = +-scale and z = -scale of the projection. With
///   setUseTextureScale() the half of "projectionSize" takes the place of the scale in x and y and
///   follows it from there. An orthographic view is measured by the near-plane diagonal.
/// - Z handles: "zsShape" and "scaleZPlaneShape" are visible unless setZScaleVisible(false); the
///   latter shows the Z extent and can be hidden alone with showZScaleValue(false), for a
///   projection that is not clamped. Scaling Z shows it again.
/// - setUseObjectTranslation() puts the handles at the object's pivot, setUseObjectScale() starts
///   from the scale of its transform instead of the projection's.
/// - "transVec" is the motion of the projection's centre in the object's space. "offset" is its
///   part in the handle frame's x and y; with setApplyProjectionRotationToTranslation() it is x and
///   y of the turned "transVec".
/// - Edges and corners. The opposite edge or corner stays where it is, and the centre moves by
///   half. With keep-aspect-ratio a corner goes along the diagonal and an edge scales the other
///   side equally about its middle. "clamping" is true for the Z plane, which scales the Z extent
///   from the projection plane without moving the centre, and false, which says nothing, for the
///   others.
/// - A step for which the drag plane is missed sends nothing; if that is so at the start, the first
///   step that meets it starts the drag.
/// - A drag is held by the handle that was under the pointer at its start; hovering changes
///   nothing until it stops. Deactivating ends it, and a pause of the preview that is still owed.
/// - The first step makes the node a transform, with pivots at its centre if it has none.
/// - update(false) places the handles anew if anything was edited, or the size was set.
class NB_MANIPULATOR_API PlanarTextureManipulator
    : public Instanced<PlanarTextureManipulator, TextureFace<NodeManipulator>>
{
public:
    using ActiveMode = texture::PlanarActiveMode;
    using ManipulatorMode = texture::PlanarManipulatorMode;

    /// Builds the handles, hidden, and appends the instance to the list of live ones.
    /// @param withDepthPass  also draws a copy of the handles with the depth test always passing
    ///                       before them, for renderers that do not draw handles over the scene
    explicit PlanarTextureManipulator(bool withDepthPass = false);
    PlanarTextureManipulator(const PlanarTextureManipulator& other) = default;
    PlanarTextureManipulator& operator=(const PlanarTextureManipulator& other) = default;

    /// Unregisters the instance, resumes the preview if that is owed and releases the handles.
    ~PlanarTextureManipulator() override;

    /// Binds the gizmo to the object and prepares; null ends a drag and a pause that is owed.
    void setNode(const osg::NodePtr& node) override;

    /// Reads object and projection, asks for "::getScaleValues" if the texture scale is used, and
    /// pauses the material preview. Without a projection the frame keeps its values.
    void prepareManipulator(const osg::NodePtr& node);

    // == Settings; all off at the start but the two about Z

    /// Overridden by the material's flag whenever the gizmo prepares.
    void setKeepAspectRatio(bool on) { textureGizmo().keepAspectRatio = on; }

    bool getKeepAspectRatio() const { return textureGizmo().keepAspectRatio; }

    /// Width by height of the picture, 1 at the start; overridden by the component's image.
    void setAspectRatio(float ratio) { textureGizmo().aspectRatio = ratio; }

    float getAspectRatio() const { return textureGizmo().aspectRatio; }

    void setUseTextureScale(bool on) { settings().useTextureScale = on; }

    /// What "::getScaleValues" was answered with last; (1, 1, 1) and (0, 0) before.
    osg::Vec3f getInitialTextureScale() const { return settings().initialTextureScale; }

    osg::Vec2f getProjectionSize() const { return settings().projectionSize; }

    /// As TriplanarTextureManipulator::setRingsTilted().
    void setRingsTilted(bool on) { textureGizmo().areRingsTilted = on; }

    void setUseObjectScale(bool on) { settings().useObjectScale = on; }

    void setUseObjectTranslation(bool on) { settings().useObjectTranslation = on; }

    void setApplyProjectionRotationToTranslation(bool on)
    {
        settings().applyRotationToTranslation = on;
    }

    void setZScaleVisible(bool on);
    void showZScaleValue(bool on);

    // == Handles shown

    // Each shows the groups of its mode in their idle colours; universal at the start.
    void activateTranslateManipulator() { activateMode(ManipulatorMode::Translate); }

    void activateRotateManipulator() { activateMode(ManipulatorMode::Rotate); }

    void activateScaleManipulator() { activateMode(ManipulatorMode::Scale); }

    void activateUniversalManipulator() { activateMode(ManipulatorMode::Universal); }

    ManipulatorMode getMode() const { return static_cast<ManipulatorMode>(gizmo->getMode()); }

    ActiveMode getActiveMode() const { return static_cast<ActiveMode>(gizmo->getArmed()); }

    /// Shows the handles of all groups.
    void showAllElements();
    void hideAllElements();
    /// Gives each handle its idle colour.
    void setDefaultMaterials();
    /// Highlights the active handle.
    void highlightMode();
    /// Idle colours, then the highlight; while a handle is dragged also hides the groups that it
    /// does not belong to. Deliberate: not for the x arrow and the plane handle.
    void highlightControlElement();

    // == Geometry

    /// Centre of an object's volume, in the world's or in its own frame.
    static osg::Pnt3f calculateObjectCenter(const osg::NodePtr& node, bool worldSpace);
    /// Angle about the z axis from one point to another, radians within -pi to pi; 0 for a mode
    /// other than Rotate and for a point on the axis.
    /// @param from, to  in a frame with the centre of the turn at its origin
    static float computeRotationAngles(osg::Pnt3f from, osg::Pnt3f to, ActiveMode mode);
    /// Sets both pivots of the object to the projection's centre; the object stays where it is.
    /// @return false without a node that can be made a transform
    bool centerPivot();

    /// Chooses the drag plane of the active handle, through the origin of the handle frame.
    void updateManipulatorPlane();

    /// Creates a gizmo and makes it the shared instance, in place of an earlier one.
    /// @param destroy  only destroys the shared instance
    static void createInstance(bool destroy)
    {
        instances.share(destroy ? nullptr : new PlanarTextureManipulator);
    }

private:
    texture::PlanarGizmo& course() const;
    texture::PlanarSettings& settings() const;
};

}  // namespace nbec::manipulator
