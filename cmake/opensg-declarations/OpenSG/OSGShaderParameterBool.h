// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterBool, ShaderParameterPtr);

class ShaderParameterBool : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterBool, ShaderParameter)
    OSG_DECLARED_VALUE(Value, bool)
};
}  // namespace osg
