// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGShaderParameter.h>
#include <OpenSG/OSGSFSysTypes.h>
namespace osg {
OSG_DECLARED_POINTER(ShaderParameterReal, ShaderParameterPtr);
class ShaderParameterReal : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterReal, ShaderParameter)
    OSG_DECLARED_VALUE(Value, Real32)
};
}  // namespace osg
