// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/detail/TurningAngles.h"

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <vector>

#include <EditStamp.h>

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
};

/// One of the further nodes that are transformed together with the dragged one.
struct NodeTransformationInfo
{
    osg::UInt32 index = 0;  ///< place in the selection, from 1; the dragged node is 0
    osg::UInt32 nodeId = 0;  ///< container id of the node, resolved on each use
};

/// Tells whether the edits of a drag's steps are the only ones anywhere since it began, so that
/// they alone say where things are. See EditStamp.h; on a real OpenSG they never are.
class OwnEdits
{
public:
    /// @param isAlone  whether there is any use in asking
    void start(bool isAlone)
    {
        areAlone = isAlone;
        seen = osg::glue::editStamp();
    }

    /// A number of edits has been made. @return whether these, and others allowed before, are all
    bool allow(osg::UInt32 count)
    {
        const osg::UInt64 stamp = osg::glue::editStamp();
        areAlone = areAlone && stamp == seen + count;
        seen = stamp;
        return areAlone;
    }

    /// What has been edited since the last call does not matter. @param isAlone  as for start()
    void goOn(bool isAlone) { start(areAlone && isAlone); }

private:
    osg::UInt64 seen = 0;
    bool areAlone = false;
};

/// Whether each of some nodes stays in place when others of them are edited: none shares its core
/// or hangs below another. False if one is null.
bool areApart(const std::vector<osg::NodePtr>& targets);

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
    std::vector<TransformStart> starts;  ///< of the dragged node and the further ones
    std::vector<detail::TurningAngles> turns;  ///< of the same, about the grabbed ring's axis
    OwnEdits ownEdits;
};

}  // namespace nbec::manipulator
