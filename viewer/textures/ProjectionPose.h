// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberCamera/nbCameraNavigation.h>

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

namespace viewer {

/// Where a planar projection lies, in the space of its object: the picture covers -1 .. 1 in x and
/// y of its frame, and -1 .. 0 in z if it ends there.
struct ProjectionPose
{
    osg::Vec3f translation;
    osg::Quaternion rotation;
    osg::Vec3f scale { 1.0F, 1.0F, 1.0F };
};

/// A projection on that side of a box that faces the eye most, upright, as large as that share of
/// the side allows; it ends in the middle of the box.
/// @param bounds   of the object, in its space; a flat one counts as a little thick
/// @param toEye    direction to the eye, in the same space, any length
/// @param up       direction that is up in the view
/// @param aspect   width by height of the picture, > 0
/// @param share    half width by half width of the side, at most, 0 .. 1
ProjectionPose poseOnFront(const osg::BoxVolume& bounds, const osg::Vec3f& toEye,
                           const osg::Vec3f& up, float aspect, float share);

/// The same for the geometry of a node, seen by a camera.
ProjectionPose poseFacingTheEye(const osg::NodePtr& surface, const CameraPose& eye, float aspect,
                                float share);

/// Scale after an edit of which the ratio of x to y is kept: a side that alone has changed takes
/// the other along.
osg::Vec3f scaleKeepingAspect(const osg::Vec3f& before, const osg::Vec3f& wanted);

}  // namespace viewer
