// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGSFMathTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterMatrix, ShaderParameterPtr);

class ShaderParameterMatrix : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterMatrix, ShaderParameter)
    OSG_DECLARED_VALUE(Value, osg::Matrix)
};
}  // namespace osg
