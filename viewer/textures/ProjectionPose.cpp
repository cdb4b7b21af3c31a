// SPDX-License-Identifier: MIT
#include "viewer/textures/ProjectionPose.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGMatrix.h>

#include <algorithm>
#include <cmath>

namespace viewer {
namespace {

/// A box counts as at least this thick, by its diagonal.
constexpr float kLeastThickness = 1e-3F;

/// The axis, 0 to 2, along which a vector is longest.
/// @param except  an axis that does not count; 3 for none
osg::UInt32 longestAxis(const osg::Vec3f& vector, osg::UInt32 except)
{
    osg::UInt32 longest = except == 0 ? 1 : 0;
    for (osg::UInt32 axis = longest + 1; axis < 3; ++axis) {
        if (axis != except && std::abs(vector[axis]) > std::abs(vector[longest])) {
            longest = axis;
        }
    }
    return longest;
}

/// Along an axis, to the side where another vector goes.
osg::Vec3f unitTowards(osg::UInt32 axis, const osg::Vec3f& way)
{
    osg::Vec3f vector;
    vector[axis] = way[axis] < 0.0F ? -1.0F : 1.0F;
    return vector;
}

/// Rotation with the axes y and z, both of unit length and at right angles.
osg::Quaternion rotationOf(const osg::Vec3f& y, const osg::Vec3f& z)
{
    osg::Matrix turned;
    turned.setValue(y.cross(z), y, z);
    turned[3][3] = 1.0F;
    return osg::Quaternion(turned);
}

/// A direction of the world in the space of a node.
osg::Vec3f vectorIn(const osg::NodePtr& node, const osg::Vec3f& world)
{
    osg::Matrix nodeFromWorld;
    node->getToWorld().inverse(nodeFromWorld);
    osg::Vec3f vector;
    nodeFromWorld.multMatrixVec(world, vector);
    return vector;
}

/// Scale of a projection on a surface, made smaller in x or y so that the picture has its own
/// aspect in the world.
osg::Vec3f scaleOfAspect(const osg::NodePtr& surface, const ProjectionPose& pose, float aspect)
{
    osg::Vec3f x(1.0F, 0.0F, 0.0F);
    osg::Vec3f y(0.0F, 1.0F, 0.0F);
    pose.rotation.multVec(x, x);
    pose.rotation.multVec(y, y);
    const osg::Matrix worldFromSurface = surface->getToWorld();
    worldFromSurface.multMatrixVec(x);
    worldFromSurface.multMatrixVec(y);
    osg::Vec3f scale = pose.scale;
    const float wide = scale.x() * x.length() / (scale.y() * y.length() * aspect);
    if (std::isnormal(wide)) {
        scale[wide > 1.0F ? 0 : 1] *= wide > 1.0F ? 1.0F / wide : wide;
    }
    return scale;
}

}  // namespace

ProjectionPose poseOnFront(const osg::BoxVolume& bounds, const osg::Vec3f& toEye,
                           const osg::Vec3f& up, float aspect, float share)
{
    constexpr osg::UInt32 kNoAxis = 3;
    const osg::Vec3f size = bounds.getMax() - bounds.getMin();
    const float least = std::max(size.length(), 1e-6F) * kLeastThickness;
    const osg::Vec3f half(std::max(size[0], least) * 0.5F, std::max(size[1], least) * 0.5F,
                          std::max(size[2], least) * 0.5F);
    const osg::UInt32 depth = longestAxis(toEye, kNoAxis);
    const osg::UInt32 height = longestAxis(up, depth);
    const osg::UInt32 width = kNoAxis - depth - height;
    const osg::Vec3f z = unitTowards(depth, toEye);
    const osg::Vec3f y = unitTowards(height, up);

    ProjectionPose pose;
    const osg::Pnt3f centre = bounds.getMin() + size * 0.5F;
    pose.translation = centre.subZero() + z * half[depth];
    pose.rotation = rotationOf(y, z);
    const float halfWidth = share * std::min(half[width], half[height] * aspect);
    pose.scale = osg::Vec3f(halfWidth, halfWidth / aspect, half[depth]);
    return pose;
}

osg::Vec3f scaleKeepingAspect(const osg::Vec3f& before, const osg::Vec3f& wanted)
{
    const bool xChanges = wanted[0] != before[0];
    const bool yChanges = wanted[1] != before[1];
    osg::Vec3f kept = wanted;
    if (xChanges && !yChanges && before[0] != 0.0F) {
        kept[1] = before[1] * wanted[0] / before[0];
    } else if (yChanges && !xChanges && before[1] != 0.0F) {
        kept[0] = before[0] * wanted[1] / before[1];
    }
    return kept;
}

ProjectionPose poseFacingTheEye(const osg::NodePtr& surface, const CameraPose& eye, float aspect,
                                float share)
{
    const nbCameraNavigation::Axes axes = nbCameraNavigation::axes(eye);
    ProjectionPose pose =
        poseOnFront(nbNodeUtils::getOwnBounds(surface), vectorIn(surface, axes.back),
                    vectorIn(surface, axes.up), aspect, share);
    pose.scale = scaleOfAspect(surface, pose, aspect);
    return pose;
}

}  // namespace viewer
