// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGShaderParameter.h>
#include <OpenSG/OSGSFSysTypes.h>
namespace osg {
OSG_DECLARED_POINTER(ShaderParameterInt, ShaderParameterPtr);
class ShaderParameterInt : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterInt, ShaderParameter)
    OSG_DECLARED_VALUE(Value, Int32)
};
}  // namespace osg
