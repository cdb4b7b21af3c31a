// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterMVec2f, ShaderParameterPtr);

class ShaderParameterMVec2f : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterMVec2f, ShaderParameter)
    OSG_DECLARED_MASK(Value)
    MField<Vec2f>& getValue();
    const MField<Vec2f>& getValue() const;
};
}  // namespace osg
