// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUtils/nbTransformMath.h>

#include "Subject.h"

/// Edits of one target that start from the state at the beginning of the undo step, so that the
/// steps of a drag do not add up their rounding.
namespace nbtransform {

/// Moves a pivot to a place; the object and the other pivot stay.
/// @param frame  leads from the parent to the space of the place
/// @return false, with a fault counted, if it leaves the target as it is
bool moveRotatePivot(const Subject& subject, const nbTransformMath::Frame& frame,
                     const osg::Vec3f& place, Faults& faults);
bool moveScalePivot(const Subject& subject, const nbTransformMath::Frame& frame,
                    const osg::Vec3f& place, Faults& faults);

/// Sets the rotation, without its orientation, by angles; in the core's rotation mode.
void setTurn(const Subject& subject, const osg::Vec3f& anglesDeg);

/// The same, and the orientation changes so that the object stays.
void turnPivot(const Subject& subject, const osg::Vec3f& anglesDeg);

}  // namespace nbtransform
