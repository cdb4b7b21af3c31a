// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterInt, ShaderParameterPtr);

class ShaderParameterInt : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterInt, ShaderParameter)
    OSG_DECLARED_VALUE(Value, Int32)
};
}  // namespace osg
