// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterMInt, ShaderParameterPtr);

class ShaderParameterMInt : public ShaderParameter
{
    OSG_DECLARED_CLASS(ShaderParameterMInt, ShaderParameter)
    OSG_DECLARED_MASK(Value)
    MField<Int32>& getValue();
    const MField<Int32>& getValue() const;
};
}  // namespace osg
