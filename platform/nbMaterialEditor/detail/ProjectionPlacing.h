// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberMaterial/nbTextureValues.h>
#include <nbOpenSGUtils/nbTransformState.h>

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

/// Arithmetic on the parts of a projection. Angles are radians.

/// A vector of the projection's own, unscaled axes in the object's space.
osg::Vec3f turned(const nbTransformState& projection, const osg::Vec3f& vector);

/// Gives a projection the rotation of another one, turned about that one's own Z axis. The rotation
/// orientation stays.
void turnAboutOwnZ(const nbTransformState& start, float angle, nbTransformState& result);

/// Gives a projection the rotation of another one, turned so that its Z axis goes along a normal
/// and it leans to a side as much as before: what stands upright in the world stays so. On what
/// lies flat, up is away from who looks from the front. It keeps its size in the world, too.
/// @param normal  of any length > 0, in the object's space
/// @param isZUp   whether z is up in the world, or y
/// @param angle   further turn about its own Z axis
void standOn(const osg::Matrix& worldFromObject, const osg::Vec3f& normal, bool isZUp, float angle,
             const nbTransformState& start, nbTransformState& result);

/// Gives a projection the rotation in which it faces along a normal and up is a direction of the
/// world, or another one where that goes along the normal. It keeps its size in the world.
/// @param normal  of any length > 0, in the object's space
void lieAlong(const osg::Matrix& worldFromObject, const osg::Vec3f& normal, const osg::Vec3f& up,
              const osg::Vec3f& otherUp, nbTransformState& state);

/// Brings a surface point and normal of the world to an object's space.
/// @return false if the object is flattened or something is not finite; a normal without length is
/// answered as zero
bool toObject(const osg::Matrix& worldFromObject, const osg::Pnt3f& worldPoint,
              const osg::Vec3f& worldNormal, osg::Pnt3f& point, osg::Vec3f& normal);

/// Scale of a picture with undistorted pixels and a height of two units.
/// @param aspect  width / height, > 0
osg::Vec3f naturalScale(float aspect);

/// A projection onto the front of an object, with undistorted pixels, half as large as the object.
/// @param bounds           of the object in its own space; empty: a picture with its longer side at
/// 2
/// @param worldFromObject  where the pixels are undistorted
nbTransformState fittedProjection(const osg::BoxVolume& bounds, const osg::Matrix& worldFromObject,
                                  float aspect);

/// Triplanar pictures with undistorted pixels, half as high as the object is large.
/// @param bounds           of the object in its own space; empty or without size: nothing happens
/// @param worldFromObject  along whose axes the projection has the world's unit length
/// @param aspect           width / height, > 0
void fitTriplanar(const osg::BoxVolume& bounds, const osg::Matrix& worldFromObject, float aspect,
                  nbTextureValues& values);

/// A tire projection as large as the object, around its middle.
/// @param bounds  of the object in its own space; empty: nothing happens, and what would have no
///                size stays
void fitTire(const osg::BoxVolume& bounds, nbTextureValues& values);
