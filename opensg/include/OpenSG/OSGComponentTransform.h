// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGComponentTransformFields.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGSFVecTypes.h>
#include <OpenSG/OSGTransform.h>

namespace osg {

#define OSG_COMPONENT_TRANSFORM_FIELDS(VALUE, OWNED, LINK)                                         \
    VALUE(Center, center, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))                                          \
    VALUE(Rotation, rotation, Quaternion, Quaternion())                                            \
    VALUE(Scale, scale, Vec3f, Vec3f(1.0F, 1.0F, 1.0F))                                            \
    VALUE(ScaleOrientation, scaleOrientation, Quaternion, Quaternion())                            \
    VALUE(Translation, translation, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))

/// A transform whose matrix is made of its parts: T C R SO S SO^-1 C^-1. The matrix is current
/// after endEditCP with a mask that holds one of the parts. Angles in radians, lengths in the
/// parent's units.
class ComponentTransform : public Transform
{
    OSG_CONTAINER(ComponentTransform, Transform, OSG_COMPONENT_TRANSFORM_FIELDS);

public:
    void changed(BitVector whichField, UInt32 origin) override;

private:
    // The parts would overwrite it. Through the base class it can be set, as in OpenSG.
    using Transform::setMatrix;
};

typedef CoredNodePtr<ComponentTransform> ComponentTransformNodePtr;

}  // namespace osg
