// SPDX-License-Identifier: MIT
#include "manipulator/scene/TargetFrame.h"

#include "manipulator/drag/DragGeometry.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGExt/ClipPlane3D.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGDynamicVolume.h>

namespace nbec::manipulator {

osg::NodePtr editedNode(const osg::NodePtr& node)
{
    if (osg::Transform3DPtr::dcast(node->getCore()) != osg::NullFC) {
        return node;  // the usual case, and the quicker one to see
    }
    const osg::ClipPlane3DPtr clipPlane = osg::ClipPlane3DPtr::dcast(node->getCore());
    return clipPlane != osg::NullFC && clipPlane->getTransformNode() != osg::NullFC
        ? clipPlane->getTransformNode()
        : node;
}

osg::Matrix parentToWorld(const osg::NodePtr& node)
{
    const osg::NodePtr parent = node->getParent();
    return parent != osg::NullFC ? parent->getToWorld() : osg::Matrix::identity();
}

osg::Pnt3f pivotWorld(const osg::NodePtr& node, const osg::Transform3DPtr& transform,
                      bool scalePivot)
{
    osg::Pnt3f place(transform->getTranslation() + transform->getRotatePivot());
    if (scalePivot) {
        const nbRotationMath::Rows& turn = transform->getWholeRotation();
        const osg::Vec3f arm = transform->getScalePivot() - transform->getRotatePivot();
        for (osg::UInt32 i = 0; i < 3; ++i) {
            place[i] += static_cast<float>(turn[i][0] * arm.x() + turn[i][1] * arm.y() +
                                           turn[i][2] * arm.z());
        }
    }
    return mapped(parentToWorld(node), place);
}

osg::Quaternion worldRotation(const osg::NodePtr& node)
{
    return osg::Quaternion(orthonormalised(node->getToWorld()));
}

osg::Quaternion pivotAxesInWorld(const osg::NodePtr& node, const osg::Transform3DPtr& transform)
{
    osg::Matrix axes = parentToWorld(node);
    osg::Matrix rotation;
    transform->getRotationAsQuaternion().getValue(rotation);
    axes.mult(rotation);
    return osg::Quaternion(orthonormalised(axes));
}

osg::Pnt3f objectCenter(const osg::NodePtr& node, bool worldSpace)
{
    const osg::Matrix worldFromNode = node->getToWorld();
    const osg::DynamicVolume& volume = node->getVolume(true);
    osg::Pnt3f center = mapped(worldFromNode, osg::Pnt3f());
    if (volume.isValid() && !volume.isEmpty()) {
        volume.getCenter(center);
        center = mapped(parentToWorld(node), center);
    }
    return worldSpace ? center : mapped(inverted(worldFromNode), center);
}

osg::NodePtr makeTransform(const osg::NodePtr& node)
{
    if (osg::Transform3DPtr::dcast(node->getCore()) != osg::NullFC) {
        return node;
    }
    const osg::NodePtr transform = nbNodeUtils::convertToTransform3DNode(node);
    if (transform != osg::NullFC && node != nbScenegraph::getRootNode()) {
        // Where the pivots of a new transform are is part of the conversion.
        const nbScopedUndo unrecorded(false);
        setBothPivots(transform, objectCenter(transform, false));
    }
    return transform;
}

bool hasPivots(const osg::NodePtr& node)
{
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    const osg::Vec3f none;
    return transform != osg::NullFC &&
        (transform->getRotatePivot() != none || transform->getScalePivot() != none);
}

void setBothPivots(const osg::NodePtr& node, const osg::Pnt3f& point)
{
    nbNodeUtils::setTransformNodeRotatePivot(node, point.x(), point.y(), point.z(), true, -1);
    nbNodeUtils::setTransformNodeScalePivot(node, point.x(), point.y(), point.z(), true, -1);
}

}  // namespace nbec::manipulator
