// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/GizmoFace.h"
#include "manipulator/NodeManipulator.h"
#include "manipulator/course/Instances.h"
#include "manipulator/transform/TransformModes.h"

#include <OpenSG/OSGQuaternion.h>

#include <string>
#include <vector>

namespace nbec::manipulator {

namespace transform {
class TransformGizmo;
struct TransformSettings;
}  // namespace transform

/// The translate, rotate and scale gizmo for scene nodes.
///
/// Tree. The root "Manipulatorgroup" has four children: the marks of further selected nodes, the
/// depth pass (an unnamed copy of the handles), the holder of additional geometry, and the handle
/// pass with the handles themselves. The copy shares the cores of the handles, so that colours and
/// visibility hold in both. Handles are built once, in a unit frame: along +y, then turned onto
/// their axis; one Transform3D places, turns and sizes all of them. Axis colours: x red, y green, z
/// blue; yellow acts on all axes, purple marks the scale pivot, orange highlights.
///
/// Decisions.
/// - Place: the gizmo stands at the node's rotate pivot (in scale and scale-pivot mode at its scale
///   pivot); a node that is no Transform3D yet has its pivot at the centre of its volume, where it
///   will be once it is converted. Conversion and pivot belong to the first undo step of an edit;
///   a drag that ends where it began leaves no step, and the node stays converted.
/// - Orientation: world axes, or the node's own in setLocalSpaceManipulator(true); scale handles
///   always lie along the node's own.
/// - A ring's axis line shows only while that ring is grabbed. Sphere and purple cube are unnamed
///   markers, never hit.
/// - Plane handles: a square patch of 0.4 with a bar (radius 0.02) along both outer edges.
/// - A drag is held by the handle that was under the pointer at its start; hovering changes
///   nothing until it stops.
/// - update(false) looks at the node's matrix, not at the camera, for which the host calls
///   updateAllManipulators(). An edit of the node shows once it is closed with endEditCP.
///
/// All instances share the size and the space setting. Belongs to the user-interface thread.
class NB_MANIPULATOR_API UniversalTransformManipulator2
    : public Instanced<UniversalTransformManipulator2, GizmoFace<NodeManipulator>>
{
public:
    using ManipulatorMode = transform::ManipulatorMode;
    using ActiveMode = transform::ActiveMode;
    using SnapRule = transform::SnapRule;
    using SnapSettings = transform::SnapSettings;
    using GizmoAxes = transform::GizmoAxes;
    using GizmoPivot = transform::GizmoPivot;
    using FurtherHandles = transform::FurtherHandles;

    /// Builds the handles, hidden, in mode translate; joins the list of live instances.
    UniversalTransformManipulator2();
    UniversalTransformManipulator2(const UniversalTransformManipulator2&) = delete;
    UniversalTransformManipulator2& operator=(const UniversalTransformManipulator2&) = delete;

    /// Also shows the handles if there is a node, by showActiveManipulator().
    void activate(ManipulatorInteractionContext* ctx) override;

    /// Also shows the handles again, by showActiveManipulator().
    bool stopManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) override;

    /// "precisionTool" switches temporary snapping on, every other mode off, for all instances.
    /// Deliberate: "tool" answers false, although it takes effect; "precisionTool" and "" answer
    /// true, others false.
    bool setManipulatorMode(const std::string& mode) override;

    /// Unregisters the instance and releases the handles.
    ~UniversalTransformManipulator2() override;

    void setNode(const osg::NodePtr& node) override { setNode(node, {}); }

    /// Binds the gizmo to a node and to further ones that every drag transforms along with it, each
    /// about its own pivots. Further nodes that are null, given twice, or above or below another of
    /// the nodes are left out: they would be moved twice.
    void setNode(const osg::NodePtr& node, const std::vector<osg::NodePtr>& nodes);
    /// Sets both pivots to the centre of the node's volume; the object stays. @return false without
    /// a node that can be made a transform
    bool centerPivot();

    // Each shows the elements of its mode in their idle colours and re-places the gizmo.
    virtual void activateRotatePivotManipulator() { activateMode(ManipulatorMode::RotatePivot); }

    virtual void activateScalePivotManipulator() { activateMode(ManipulatorMode::ScalePivot); }

    virtual void activateTranslateManipulator() { activateMode(ManipulatorMode::Translate); }

    virtual void activateRotateManipulator() { activateMode(ManipulatorMode::Rotate); }

    virtual void activateScaleManipulator() { activateMode(ManipulatorMode::Scale); }

    virtual void activateUniversalManipulator() { activateMode(ManipulatorMode::Universal); }

    virtual void activateClippingManipulator() { activateMode(ManipulatorMode::Clipping); }

    /// For subclasses with handles of their own; does nothing here.
    virtual void activateAdditionalManipulator() { }

    virtual void activateTranslateRotateManipulator()
    {
        activateMode(ManipulatorMode::TranslateRotate);
    }

    virtual void activateTranslateRotateScaleManipulator()
    {
        activateMode(ManipulatorMode::TranslateRotateScale);
    }

    virtual void activateTranslateRotateYZManipulator()
    {
        activateMode(ManipulatorMode::TranslateRotateYZ);
    }

    /// Shows the handles of the current mode and re-places the gizmo; hides them without a node.
    virtual void showActiveManipulator() { gizmo->showActive(); }

    /// Hides all handles.
    virtual void hideManipulator() { gizmo->hide(); }

    /// Aligns gizmos with the node's own axes or the world's; re-placed as by setManipulatorSize().
    static void setLocalSpaceManipulator(bool local);
    static bool isLocalSpaceManipulator();

    /// The family of handles shown; Translate after construction.
    ManipulatorMode getMode() const { return static_cast<ManipulatorMode>(gizmo->getMode()); }

    /// Switches snapping of this gizmo.
    void enableSnapping(bool on);

    /// What snapping makes of turns and scales; SnapRule::Gathered after construction.
    void setSnapRule(SnapRule rule);

    /// To what snapping brings what is dragged, beside steps; nothing after construction. With
    /// setSnapping({ true, SnapSearch::Vertex | SnapSearch::Edge }) of interaction::SnapSearch
    /// translation goes from grid to grid, and to corners and edges where the pointer is near one;
    /// a cross marks the place. A reach that is no number or negative finds nothing.
    void setSnapping(const SnapSettings& what);

    /// Adds handles to the usual ones, or takes them away; none after construction. All of them:
    /// setFurtherHandles({ true, true, true, true, true }).
    void setFurtherHandles(const FurtherHandles& wanted);

    /// Stands the gizmo along other axes; GizmoAxes::Shared after construction. Those of a picked
    /// face: setAxes(GizmoAxes::Given, axesOfFace(picker.getHitNormal())).
    /// @param given  turn of the given frame in the world; one without a length changes nothing
    void setAxes(GizmoAxes which, const osg::Quaternion& given = osg::Quaternion());

    /// Axes of a surface: z along its normal, x level where y is up.
    /// @param normal  world, any length but 0, for which it answers the world's axes
    static osg::Quaternion axesOfFace(const osg::Vec3f& normal);

    /// Turns and scales about another point; GizmoPivot::Own after construction. Modes that move
    /// pivots stay at the node's own. @param given  world; one that is not finite changes nothing
    void setPivot(GizmoPivot which, const osg::Pnt3f& given = osg::Pnt3f());

    /// Switches the on-screen text of this gizmo.
    void setDescriptionEnabled(bool on);

private:
    void activateMode(ManipulatorMode newMode) { gizmo->activateMode(static_cast<int>(newMode)); }

    transform::TransformGizmo& course() const;

    static transform::TransformSettings settings;
};

}  // namespace nbec::manipulator
