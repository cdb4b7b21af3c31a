// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMFMathTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterMMatrix, ShaderParameterPtr);

class ShaderParameterMMatrix : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterMMatrix, ShaderParameter)
    OSG_DECLARED_MASK(Value)
    MField<osg::Matrix>& getValue();
    const MField<osg::Matrix>& getValue() const;
};
}  // namespace osg
