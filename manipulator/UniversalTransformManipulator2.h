// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/NodeManipulator.h"

#include <nbOpenSGExt/Transform3D.h>
#include <nbTransform/nbTransformModel.h>

#include <OpenSG/OSGMatrix.h>

#include <memory>
#include <string>
#include <vector>

namespace nbec::manipulator {

class TransformHandles;
struct NodeTransformationInfo;
struct TransformDrag;

namespace detail {
class PivotMarks;
class ScreenScale;
}  // namespace detail

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
/// - Orientation: world axes; the node's own in scale mode and in setLocalSpaceManipulator(true).
/// - A ring's axis line shows only while that ring is grabbed. Sphere and purple cube are unnamed
///   markers, never hit.
/// - Plane handles: a square patch of 0.4 with a bar (radius 0.02) along both outer edges.
/// - A drag is held by the handle that was under the pointer at its start; hovering changes
///   nothing until it stops.
///
/// All instances share the size and the space setting. Belongs to the user-interface thread.
class NB_MANIPULATOR_API UniversalTransformManipulator2 : public NodeManipulator
{
public:
    /// Which handles are shown.
    enum class ManipulatorMode : osg::UInt32
    {
        Universal = 0,  ///< all but the markers
        Translate = 1,  ///< arrows and planes
        Scale = 2,  ///< scale handles and the cube "grid"
        Rotate = 3,  ///< rings
        RotatePivot = 4,  ///< arrows, planes, rings and the sphere
        ScalePivot = 5,  ///< arrows, planes and the purple cube
        Clipping = 6,  ///< arrows, planes and rings
        TranslateRotate = 7,  ///< arrows, planes and rings
        TranslateRotateYZ = 8,  ///< arrows, planes, y and z ring
        TranslateRotateScale = 9  ///< arrows, planes, rings and the scale handles of the axes
    };

    /// The handle that is hovered or grabbed.
    enum class ActiveMode : osg::UInt32
    {
        None = 0,
        RotateX = 1,
        RotateY = 2,
        RotateZ = 3,
        TranslateX = 4,
        TranslateY = 5,
        TranslateZ = 6,
        TranslateXY = 7,
        TranslateXZ = 8,
        TranslateYZ = 9,
        ScaleX = 10,
        ScaleY = 11,
        ScaleZ = 12,
        ScaleUniform = 13
    };

    /// Builds the handles, hidden, in mode translate; joins the list of live instances.
    UniversalTransformManipulator2();
    UniversalTransformManipulator2(const UniversalTransformManipulator2&) = delete;
    UniversalTransformManipulator2& operator=(const UniversalTransformManipulator2&) = delete;

    /// Also shows the handles if there is a node.
    void activate(ManipulatorInteractionContext* ctx) override;
    /// Also forgets the active handle and its highlight.
    void deactivate(ManipulatorInteractionContext* ctx) override;
    /// The root "Manipulatorgroup".
    osg::NodePtr getVisualisation() override;
    /// The root "Manipulatorgroup"; the named handles below it can be hit.
    osg::NodePtr getCollider() override;

    /// Re-places the gizmo if the node has moved since the last time; does not look at the camera,
    /// for which the host calls updateAllManipulators(). Nothing while inactive or without a node.
    /// An edit of the node shows once it is closed with endEditCP.
    /// @param force  re-places it in any case
    void update(bool force) override;

    /// Grabs the handle under the pointer, after update(false), and hides the others.
    /// @return whether there is one
    bool startManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) override;
    /// @return whether a handle is grabbed and the node can still be edited
    bool processManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) override;
    /// Lets go of the handle. @return whether one was grabbed and there is still a node
    bool stopManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) override;

    /// Highlights the handle under the pointer, after update(false). @return whether there is one
    bool hoverManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) override;
    /// Takes the highlight away. @return true
    bool resetManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) override;

    /// "precisionTool" switches temporary snapping on, every other mode off, for all instances.
    /// Deliberate: "tool" answers false, although it takes effect; "precisionTool" and "" answer
    /// true, others false.
    bool setManipulatorMode(const std::string& mode) override;

    /// Unregisters the instance and releases the handles.
    ~UniversalTransformManipulator2() override;

    void setNode(const osg::NodePtr& node) override;
    /// Binds the gizmo to a node and to further ones that every drag transforms along with it, each
    /// about its own pivots. Further nodes that are null, given twice, or above or below another of
    /// the nodes are left out: they would be moved twice.
    void setNode(const osg::NodePtr& node, const std::vector<osg::NodePtr>& nodes);
    /// Sets both pivots to the centre of the node's volume; the object stays. @return false without
    /// a node that can be made a transform
    bool centerPivot();

    // Each shows the elements of its mode in their idle colours and re-places the gizmo.
    virtual void activateRotatePivotManipulator();
    virtual void activateScalePivotManipulator();
    virtual void activateTranslateManipulator();
    virtual void activateRotateManipulator();
    virtual void activateScaleManipulator();
    virtual void activateUniversalManipulator();
    virtual void activateClippingManipulator();
    /// For subclasses with handles of their own; does nothing here.
    virtual void activateAdditionalManipulator();
    virtual void activateTranslateRotateManipulator();
    virtual void activateTranslateRotateScaleManipulator();
    virtual void activateTranslateRotateYZManipulator();

    /// Shows the handles of the current mode and re-places the gizmo; hides them without a node.
    virtual void showActiveManipulator();
    /// Hides all handles.
    virtual void hideManipulator();

    /// Creates a gizmo and makes it the shared instance; an earlier shared instance is destroyed.
    static void createInstance();
    /// Size of all gizmos in perspective views, 0 <= size < 200, default 32. The shared instance is
    /// re-placed at once, others by updateAllManipulators() or update(true).
    static void setManipulatorSize(float size);
    static float getManipulatorSize();
    /// Aligns gizmos with the node's own axes or the world's; re-placed as by setManipulatorSize().
    static void setLocalSpaceManipulator(bool local);
    static bool isLocalSpaceManipulator();

    /// Re-places every live gizmo in the order of construction; for hosts whose camera has moved.
    static void updateAllManipulators();

    /// The family of handles shown; Translate after construction.
    ManipulatorMode getMode() const { return mode; }

    /// Switches snapping of this gizmo.
    void enableSnapping(bool on) { snappingEnabled = on; }

    /// Switches the on-screen text of this gizmo.
    void setDescriptionEnabled(bool on) { descriptionEnabled = on; }

private:
    void activateMode(ManipulatorMode newMode);
    void endHover();
    ActiveMode detectMode(ManipulatorInteractionContext* ctx) const;

    void updateManipulator(bool areMarksPlaced = false);
    void updateManipulator(const detail::ScreenScale& scale, bool areMarksPlaced);
    void updateSize(const detail::ScreenScale& scale);
    osg::Pnt3f anchorWorld(const osg::NodePtr& node) const;
    osg::Quaternion orientationWorld(const osg::NodePtr& node) const;
    /// Centre of an object's volume, in its own frame or in the world's.
    static osg::Pnt3f calculateObjectCenter(const osg::NodePtr& node, bool worldSpace);

    /// Shows the values that the grabbed handle edits as on-screen text; null takes the text away.
    /// @return whether there is a text
    bool setDescription(const osg::NodePtr& node);
    void placeMarks();
    void updateMarks(float size, bool arePlaced);

    osg::NodePtr makeTransform(const osg::NodePtr& node);
    osg::NodePtr getTransform(osg::UInt32 index);
    void prepareAll(const osg::NodePtr& node);
    void prepareManipulator(const osg::NodePtr& node);
    void captureStart(const osg::NodePtr& node);
    osg::Vec3f ringAxisAbove(const osg::NodePtr& node) const;
    void updateManipulatorPlane(const osg::NodePtr& node);
    /// World direction in which an axis of the active handle goes, unit length.
    osg::Vec3f movementAxis(const osg::NodePtr& node, osg::UInt32 axis) const;
    osg::Matrix gizmoFrame() const;
    osg::Matrix translationFrame(const osg::NodePtr& node, const osg::Transform3DPtr& transform);
    osg::Matrix scaleFrame(const osg::Pnt3f& start) const;

    void dragTo(const osg::NodePtr& node, const osg::Pnt3f& point);
    void translate(const osg::NodePtr& node, const osg::Pnt3f& point);
    void rotate(const osg::NodePtr& node, const osg::Pnt3f& point);
    void scale(const osg::NodePtr& node, const osg::Pnt3f& point);
    void translatePivot(const osg::NodePtr& node, const osg::Pnt3f& point);
    void rotatePivot(const osg::NodePtr& node, const osg::Pnt3f& point);
    static double computeRotation(const osg::Pnt3f& from, const osg::Pnt3f& to, osg::UInt32 axis);
    osg::Vec3f handleDelta(const osg::Pnt3f& point) const;
    osg::Vec3f scaleFactors(const osg::Pnt3f& point) const;
    void resolveTargets(const osg::NodePtr& node);
    nbTransformModel::Value valueFor(osg::UInt32 index, const osg::Vec3f& value) const;
    bool areAllEdited(osg::UInt32 edited);
    void finishStep(const osg::NodePtr& node, bool describe, bool areMarksPlaced);
    bool snappingActive() const;

    static float m_ManipulatorSize;
    static bool m_LocalSpaceManipulator;
    static std::vector<UniversalTransformManipulator2*> _allManipulators;
    static UniversalTransformManipulator2* _the;
    static bool _temporary_snapping_active;

    bool isPlaced = false;  ///< at the node, until the scene is edited; see sceneStamp()
    osg::Transform3DPtr placement;  ///< core of the handle tree, which never gets another
    std::vector<NodeTransformationInfo> transformationInfos;
    ManipulatorMode mode = ManipulatorMode::Translate;
    ActiveMode activeHandle = ActiveMode::None;
    bool grabbing = false;
    bool snappingEnabled = false;
    bool descriptionEnabled = true;
    osg::RefPtr<osg::NodePtr> root;
    osg::RefPtr<osg::NodePtr> multiselection;
    std::unique_ptr<detail::PivotMarks> marks;  ///< of the further nodes
    osg::RefPtr<osg::NodePtr> additionalGeometry;
    std::unique_ptr<TransformHandles> handles;
    std::vector<osg::NodePtr> resolvedTargets;  ///< looked up for one step, otherwise empty
    std::unique_ptr<TransformDrag> drag;
    osg::Pnt3f grabbedPoint;  ///< where the grabbed handle was hit, world
    bool prepared = false;
    osg::Matrix cachedTargetToWorld;
    osg::UInt64 comparedStamp = 0;  ///< edits seen by the last comparison, see EditStamp.h
};

}  // namespace nbec::manipulator
