// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/detail/TurningAngles.h"

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

namespace nbec::manipulator {

/// What a drag keeps of one target from its first step; every later step computes from this.
struct TransformStart
{
    osg::Vec3f translationLocal;  ///< frame of the parent
    osg::Vec3f translationWorld;
    osg::Vec3f scale;
    osg::Vec3f pivotLocal;  ///< rotate or scale pivot, as the mode moves; frame of the parent
    osg::Vec3f pivotWorld;
    osg::Quaternion rotation;  ///< without the rotation orientation
    osg::Vec3f ringAxis;  ///< axis of the grabbed ring in the frame of the parent, unit length;
                          ///< reversed under a mirrored parent, which turns the sense of rotation
    detail::TurningAngles accumulated;  ///< angles of the rotation about the ring's axis
};

/// One of the further nodes that are transformed together with the dragged one.
struct NodeTransformationInfo
{
    osg::UInt32 index = 0;  ///< place in the selection, from 1; the dragged node is 0
    osg::UInt32 nodeId = 0;  ///< container id of the node, resolved on each use
    TransformStart start;
};

/// State of one drag.
struct TransformDrag
{
    osg::Plane plane;  ///< in which the pointer's ray is intersected; chosen once, world
    osg::Matrix inverseDragFrame;  ///< world to the frame of translate and rotate
    osg::Matrix inverseScaleFrame;  ///< world to the frame of scale
    osg::Pnt3f startWorld;
    osg::Pnt3f startLocal;  ///< in the drag frame
    osg::Pnt3f lastRotationPoint;  ///< in the drag frame
    double turnedRad = 0.0;  ///< about the grabbed ring since the start
    osg::Vec3f scaleAnchor;  ///< start in the scale frame
    osg::Vec3f frameScale;  ///< scale that is part of the drag frame; 1 where the node's is too
                            ///< small to divide by
    TransformStart start;  ///< of the dragged node
};

}  // namespace nbec::manipulator
