// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragParameters.h"
#include "manipulator/handles/HandleTable.h"

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <optional>

/// Arithmetic of the planar gizmo: where a projection is, and what a drag makes of the pointer and
/// of the projection. Numbers only.
namespace nbec::manipulator::texture {

/// Where a projection is. Its axes are the object's, turned; its extents go both ways from the
/// centre in x and y, to -z only.
struct ProjectionFrame
{
    osg::Matrix worldFromObject;
    osg::Vec3f translation;  ///< place of the centre, object space
    osg::Quaternion rotation;  ///< rotation * rotation orientation, unit length
    osg::Vec3f scale { 1.0F, 1.0F, 1.0F };
    osg::Vec3f projectionScale { 1.0F, 1.0F, 1.0F };  ///< of the projection even if another is used
    osg::Vec3f extentPerScale { 1.0F, 1.0F, 1.0F };  ///< half of what the projection covers

    /// World from the axes at the centre; object units.
    osg::Matrix worldFromAxes() const;
    /// Half sides, object units.
    osg::Vec3f halfExtents() const;
};

/// What a drag has captured at its start.
struct ProjectionDrag
{
    HandleAction action;
    osg::Vec3f side;  ///< of a tab, see planarSideOf()
    osg::Plane plane;  ///< world
    ProjectionFrame frame;
    osg::Matrix axesFromWorld;  ///< the axes at the centre, object units

    /// From one point of the world to another, along the axes; object units.
    osg::Vec3f motion(const osg::Pnt3f& from, const osg::Pnt3f& to) const;
};

/// Plane of a handle's drag, through the centre. @param sight  direction of the camera, unit length
osg::Plane dragPlaneOf(const ProjectionFrame& frame, const HandleAction& action,
                       const osg::Vec3f& sight);

/// Captures the start of a drag.
ProjectionDrag beginDrag(const ProjectionFrame& frame, const HandleRow& handle,
                         const osg::Vec3f& sight);

// == From two points of the drag's plane to drag parameters

/// How far along the axes of a handle that translates, object units.
osg::Vec3f offsetBetween(const ProjectionDrag& drag, const osg::Pnt3f& from, const osg::Pnt3f& to);

/// Angle about the z axis from one place to another, radians within -pi to pi.
float turnAboutZ(const osg::Vec3f& from, const osg::Vec3f& to);

/// The same between two points of the world; nothing for a point at the centre.
std::optional<float> angleBetween(const ProjectionDrag& drag, const osg::Pnt3f& from,
                                  const osg::Pnt3f& to);

/// Factor of a handle that scales about the centre.
/// Deliberate: x and y accept a factor of exactly 0, z does not.
float factorBetween(const ProjectionDrag& drag, const osg::Pnt3f& from, const osg::Pnt3f& to);

/// Directions in which the camera sees the projection's centre and the two points, unit length.
struct Sights
{
    osg::Vec3f center;
    osg::Vec3f from;
    osg::Vec3f to;
};

/// Half sides after a tab has been dragged; the opposite edge or corner stays. A side is never less
/// than a hundredth of what it was.
/// @param keepsRatio  of x and y
osg::Vec3f halfSizesBetween(const ProjectionDrag& drag, const osg::Pnt3f& from,
                            const osg::Pnt3f& to, const Sights& sights, bool keepsRatio);

// == From drag parameters to values of the projection

/// Scale after a handle's factor. @param keepsRatio  x and y go along with each other
osg::Vec3f scaledProjection(const ProjectionDrag& drag, float factor, bool keepsRatio);

/// Scale with other half sides.
osg::Vec3f scaleOfHalfSizes(const ProjectionDrag& drag, const osg::Vec3f& halfSizes);

/// How far the centre goes along the axes when a tab's half sides change, object units.
osg::Vec3f shiftOfHalfSizes(const ProjectionDrag& drag, const osg::Vec3f& halfSizes);

}  // namespace nbec::manipulator::texture
