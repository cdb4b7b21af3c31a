// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterMVec4f, ShaderParameterPtr);

class ShaderParameterMVec4f : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterMVec4f, ShaderParameter)
    OSG_DECLARED_MASK(Value)
    MField<Vec4f>& getValue();
    const MField<Vec4f>& getValue() const;
};
}  // namespace osg
