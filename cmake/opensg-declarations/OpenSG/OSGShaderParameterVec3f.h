// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGSFVecTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterVec3f, ShaderParameterPtr);

class ShaderParameterVec3f : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterVec3f, ShaderParameter)
    OSG_DECLARED_VALUE(Value, Vec3f)
};
}  // namespace osg
