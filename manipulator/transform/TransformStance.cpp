// SPDX-License-Identifier: MIT
#include "manipulator/transform/TransformStance.h"

#include "manipulator/drag/DragGeometry.h"
#include "manipulator/scene/TargetFrame.h"

#include <nbOpenSGExt/Transform3D.h>

namespace nbec::manipulator::transform {

osg::Pnt3f TransformStance::anchor(const osg::NodePtr& node, ManipulatorMode mode)
{
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    const bool isAtScalePivot =
        mode == ManipulatorMode::Scale || mode == ManipulatorMode::ScalePivot;
    return transform != osg::NullFC ? pivotWorld(node, transform, isAtScalePivot)
                                    : objectCenter(node, true);
}

osg::Pnt3f TransformStance::centre(const osg::NodePtr& node, ManipulatorMode mode,
                                   const TransformTargets& targets) const
{
    if (!hasOnePoint(mode)) {
        return anchor(node, mode);
    }
    if (pivot == GizmoPivot::Given) {
        return givenPivot;
    }
    osg::Vec3f sum;
    float count = 0.0F;
    for (const osg::NodePtr& each : targets.edited()) {
        if (each != osg::NullFC) {
            sum += anchor(each, mode).subZero();
            count += 1.0F;
        }
    }
    return osg::Pnt3f(sum * (1.0F / count));
}

osg::Quaternion TransformStance::axesOf(const HandleAction& action, ManipulatorMode mode,
                                        const osg::NodePtr& node) const
{
    using Kind = DragParameters::Kind;
    if (action.isOfView) {
        return facing();
    }
    if (action.kind == Kind::Factor ||
        (action.kind == Kind::None && mode == ManipulatorMode::Scale)) {
        return worldRotation(node);  // nothing can be scaled along other axes
    }
    if (!isOwn()) {
        switch (axes) {
        case GizmoAxes::Parent:
            return osg::Quaternion(orthonormalised(parentToWorld(node)));
        case GizmoAxes::View:
            return facing();
        case GizmoAxes::Given:
            return givenAxes;
        default:
            return osg::Quaternion();
        }
    }
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    if (transform == osg::NullFC) {
        return worldRotation(node);
    }
    return action.kind == Kind::Angle &&
            transform->getRotationMode() == osg::Transform3D::AxisAlignedMode
        ? osg::Quaternion(orthonormalised(parentToWorld(node)))
        : pivotAxesInWorld(node, transform);
}

}  // namespace nbec::manipulator::transform
