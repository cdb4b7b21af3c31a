// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGSFVecTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterVec2f, ShaderParameterPtr);

class ShaderParameterVec2f : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterVec2f, ShaderParameter)
    OSG_DECLARED_VALUE(Value, Vec2f)
};
}  // namespace osg
