// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterReal, ShaderParameterPtr);

class ShaderParameterReal : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterReal, ShaderParameter)
    OSG_DECLARED_VALUE(Value, Real32)
};
}  // namespace osg
