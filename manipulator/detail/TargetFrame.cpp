// SPDX-License-Identifier: MIT
#include "manipulator/detail/TargetFrame.h"

#include <OpenSG/OSGDynamicVolume.h>

namespace nbec::manipulator::detail {

namespace {

constexpr float kShortestAxis = 1e-6F;

osg::Vec3f column(const osg::Matrix& matrix, osg::UInt32 index)
{
    return osg::Vec3f(matrix[index][0], matrix[index][1], matrix[index][2]);
}

}  // namespace

osg::Matrix targetToWorld(const osg::NodePtr& node)
{
    return node->getToWorld();
}

osg::Matrix parentToWorld(const osg::NodePtr& node)
{
    const osg::NodePtr parent = node->getParent();
    return parent != osg::NullFC ? parent->getToWorld() : osg::Matrix::identity();
}

osg::Pnt3f pivotWorld(const osg::NodePtr& node, const osg::Transform3DPtr& transform,
                      bool scalePivot)
{
    osg::Vec3f local = transform->getTranslation() + transform->getRotatePivot();
    if (scalePivot) {
        osg::Quaternion turn = transform->getRotationAsQuaternion();
        turn.mult(transform->getRotationOrientation());
        osg::Vec3f arm = transform->getScalePivot() - transform->getRotatePivot();
        turn.multVec(arm, arm);
        local += arm;
    }
    osg::Pnt3f world(local);
    parentToWorld(node).multMatrixPnt(world);
    return world;
}

osg::Quaternion worldRotation(const osg::NodePtr& node)
{
    const osg::Matrix matrix = node->getToWorld();
    osg::Vec3f x = column(matrix, 0);
    osg::Vec3f z = x.cross(column(matrix, 1));
    if (x.length() < kShortestAxis || z.length() < kShortestAxis * x.length()) {
        return osg::Quaternion();
    }
    x.normalize();
    z.normalize();
    osg::Matrix rotation;
    rotation.setValue(x, z.cross(x), z);
    rotation[3][3] = 1.0F;
    return osg::Quaternion(rotation);
}

osg::Pnt3f objectCenter(const osg::NodePtr& node, bool worldSpace)
{
    const osg::Matrix worldFromNode = node->getToWorld();
    const osg::DynamicVolume& volume = node->getVolume(true);
    osg::Pnt3f center;
    if (volume.isValid() && !volume.isEmpty()) {
        volume.getCenter(center);
        parentToWorld(node).multMatrixPnt(center);
    } else {
        worldFromNode.multMatrixPnt(center);
    }
    if (!worldSpace) {
        osg::Matrix nodeFromWorld;
        worldFromNode.inverse(nodeFromWorld);
        nodeFromWorld.multMatrixPnt(center);
    }
    return center;
}

}  // namespace nbec::manipulator::detail
