// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/Gizmo.h"
#include "manipulator/transform/PivotMarks.h"
#include "manipulator/transform/TransformDrag.h"
#include "manipulator/transform/TransformModes.h"

#include <nbOpenSGUtils/nbTransformState.h>

#include <OpenSG/OSGNode.h>

#include <vector>

namespace nbec::manipulator::transform {

/// What all transform gizmos share beside their size.
struct TransformSettings
{
    bool m_LocalSpaceManipulator = false;
    bool _temporary_snapping_active = false;
};

/// Course of the transform gizmo: the marks of further nodes, and drags that go through the
/// transform model. See UniversalTransformManipulator2, its face.
class TransformGizmo : public Gizmo
{
public:
    /// @param shared, size  outlive the gizmo
    TransformGizmo(const TransformSettings& shared, const float& size);

    /// Binds the gizmo to nodes. @param further  transformed along; of these left out are null,
    /// what is given twice, and what is above or below another of the nodes
    void setNodes(const osg::NodePtr& node, const std::vector<osg::NodePtr>& further);

    /// See UniversalTransformManipulator2::centerPivot().
    bool centerPivot();

    bool isSnapping() const { return snappingEnabled || settings->_temporary_snapping_active; }

    bool snappingEnabled = false;
    SnapRule snapRule = SnapRule::Gathered;
    SnapSettings snapSettings;
    GizmoAxes axes = GizmoAxes::Shared;
    osg::Quaternion givenAxes;
    GizmoPivot pivot = GizmoPivot::Own;
    osg::Pnt3f givenPivot;
    bool descriptionEnabled = true;

protected:
    bool hasTarget() const override;
    bool canStep(const View& view) override;
    bool prepare(const View& view) override;
    DragStep parametersAt(const View& view, const DragTrack& before) const override;
    void apply(const DragParameters& parameters) override;
    void restore() override;
    void finish() override;

    std::vector<osg::NodePtr> editedNodes() const override { return resolveTargets(); }

    void announce() override;

    osg::NodePtr overlayParent() const override { return root->getChild(2); }

    double turnStepDeg() const override;
    void place(const View& view) override;
    bool isDisplaced(const View& view) const override;
    std::optional<QString> describe() const override;
    ValueText* getText() const override;

private:
    ActiveMode handle() const { return static_cast<ActiveMode>(getArmed()); }

    ManipulatorMode shownMode() const { return static_cast<ManipulatorMode>(getMode()); }

    bool isLocal() const
    {
        return axes == GizmoAxes::Shared ? settings->m_LocalSpaceManipulator
                                         : axes == GizmoAxes::Own;
    }

    bool movesPivot() const;
    bool isAtScalePivot() const;
    osg::NodePtr getNode() const;
    bool isLocked(std::size_t index) const;
    osg::NodePtr getTransform(std::size_t index) const;
    std::vector<osg::NodePtr> resolveTargets() const;
    osg::Pnt3f anchorWorld(const osg::NodePtr& node) const;
    osg::Pnt3f centerWorld(const osg::NodePtr& node) const;
    osg::Quaternion axesOf(ActiveMode handle, const osg::NodePtr& node) const;
    void placeFamilies(const osg::Quaternion& gizmoFromWorld, const osg::NodePtr& node);
    void placeMarks(float size);
    void markTarget(float size);
    bool findTarget(const View& view, DragTrack& next) const;
    osg::Vec3f snappedOffset(const osg::Vec3f& offset) const;
    DragStep turnAt(const osg::Pnt3f& point, const DragTrack& before) const;
    osg::Vec3f orbitOf(std::size_t target, const DragParameters& parameters);
    osg::Vec3f valueOf(std::size_t target, const DragParameters& parameters, const HalfTurn& turn);

    const TransformSettings* settings;
    std::vector<osg::UInt32> targetIds;  ///< the dragged node, then the further ones
    bool isOutsideTold = false;  ///< that the node hangs in no scene
    osg::RefPtr<osg::NodePtr> multiselection;
    PivotMarks marks;  ///< of the further nodes
    osg::RefPtr<osg::NodePtr> additionalGeometry;
    PivotMarks targetMark;  ///< where a drag has snapped to
    interaction::SnapSearch targets;
    TransformDrag drag;
    osg::Quaternion facingAtStart;  ///< of the view that the drag began in
    std::vector<nbTransformState> startStates;  ///< of the targets at the drag's start
    std::vector<nbEulerAngles> turned;  ///< of the targets after the last turn, radians
};

}  // namespace nbec::manipulator::transform
