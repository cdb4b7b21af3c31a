// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterMReal, ShaderParameterPtr);

class ShaderParameterMReal : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterMReal, ShaderParameter)
    OSG_DECLARED_MASK(Value)
    MField<Real32>& getValue();
    const MField<Real32>& getValue() const;
};
}  // namespace osg
