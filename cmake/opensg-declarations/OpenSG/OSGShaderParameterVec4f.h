// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGSFVecTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterVec4f, ShaderParameterPtr);

class ShaderParameterVec4f : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterVec4f, ShaderParameter)
    OSG_DECLARED_VALUE(Value, Vec4f)
};
}  // namespace osg
