// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/Gizmo.h"
#include "manipulator/transform/HandleFamilies.h"
#include "manipulator/transform/PivotMarks.h"
#include "manipulator/transform/TransformDrag.h"
#include "manipulator/transform/TransformStance.h"

#include <OpenSG/OSGNode.h>

#include <vector>

namespace nbec::manipulator::transform {

/// Course of the transform gizmo: the marks of further nodes, and drags that go through the
/// transform model. See UniversalTransformManipulator2, its face.
class TransformGizmo : public Gizmo
{
public:
    /// @param shared, size  outlive the gizmo
    TransformGizmo(const TransformSettings& shared, const float& size);

    /// Binds the gizmo to nodes, see TransformTargets.
    void setNodes(const osg::NodePtr& node, const std::vector<osg::NodePtr>& further);

    /// See UniversalTransformManipulator2::centerPivot().
    bool centerPivot();

    /// Shows further handles, which are built when this is called first.
    void setFurther(const FurtherHandles& wanted);

    bool isSnapping() const
    {
        return snappingEnabled || stance.settings->_temporary_snapping_active;
    }

    bool snappingEnabled = false;
    SnapRule snapRule = SnapRule::Gathered;
    SnapSettings snapSettings;
    TransformStance stance;
    bool descriptionEnabled = true;

protected:
    bool hasTarget() const override { return targets.first() != osg::NullFC; }

    bool canStep(const View& view) override;
    bool prepare(const View& view) override;
    DragStep parametersAt(const View& view, const DragTrack& before) const override;
    void apply(const DragParameters& parameters) override;
    void restore() override;
    void finish() override;

    std::vector<osg::NodePtr> editedNodes() const override { return targets.edited(); }

    void announce() override;

    osg::NodePtr overlayParent() const override { return root->getChild(2); }

    double turnStepDeg() const override;
    void place(const View& view) override;
    bool isDisplaced(const View& view) const override;
    DragParameters becomes(const DragParameters& parameters) const override;
    std::optional<QString> describe() const override;

    const char* notifier() const override { return "transformInfo"; }

private:
    ManipulatorMode shownMode() const { return static_cast<ManipulatorMode>(getMode()); }

    /// Whether offsets are counted in the node's own space.
    bool isLocal() const { return stance.isOwn() && !drag.action.isOfView; }

    bool movesPivot() const { return transform::movesPivot(shownMode()); }

    osg::Pnt3f centerWorld(const osg::NodePtr& node) const;
    void placeMarks(float size);
    void markTarget(float size);
    bool findTarget(const View& view, DragTrack& next) const;
    osg::Vec3f snappedOffset(const osg::Vec3f& offset) const;
    DragStep turnAt(const osg::Pnt3f& point, const DragTrack& before) const;
    osg::Vec3f scaleOf(const TransformStart& start, const DragParameters& parameters) const;
    osg::Vec3f orbitOf(std::size_t target, const DragParameters& parameters);
    osg::Vec3f valueOf(std::size_t target, const DragParameters& parameters, const HalfTurn& turn);

    TransformTargets targets;
    HandleFamilies families;
    bool isOutsideTold = false;  ///< that the node hangs in no scene
    osg::RefPtr<osg::NodePtr> multiselection;
    PivotMarks marks;  ///< of the further nodes
    osg::RefPtr<osg::NodePtr> additionalGeometry;
    PivotMarks targetMark;  ///< where a drag has snapped to
    interaction::SnapSearch snapSearch;
    TransformDrag drag;
    std::vector<nbEulerAngles> turned;  ///< of the targets after the last turn, radians
};

}  // namespace nbec::manipulator::transform
