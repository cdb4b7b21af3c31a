// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGTransform.h>

namespace osg {
OSG_DECLARED_POINTER(ComponentTransform, TransformPtr);

class ComponentTransform : public Transform
{
    OSG_DECLARED_CLASS(ComponentTransform, Transform)
    OSG_DECLARED_VALUE(Center, Vec3f)
    OSG_DECLARED_VALUE(Rotation, Quaternion)
    OSG_DECLARED_VALUE(Scale, Vec3f)
    OSG_DECLARED_VALUE(ScaleOrientation, Quaternion)
    OSG_DECLARED_VALUE(Translation, Vec3f)

private:
    void setMatrix(const Matrix& matrix);
};
}  // namespace osg
