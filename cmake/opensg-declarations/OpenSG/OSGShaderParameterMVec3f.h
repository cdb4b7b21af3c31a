// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterMVec3f, ShaderParameterPtr);

class ShaderParameterMVec3f : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterMVec3f, ShaderParameter)
    OSG_DECLARED_MASK(Value)
    MField<Vec3f>& getValue();
    const MField<Vec3f>& getValue() const;
};
}  // namespace osg
