// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterInt, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_INT_FIELDS(VALUE, OWNED, LINK) VALUE(Value, value, Int32, 0)

/// A uniform variable of type Int32.
class ShaderParameterInt : public ShaderParameter
{
    OSG_CONTAINER(ShaderParameterInt, ShaderParameter, OSG_SHADER_PARAMETER_INT_FIELDS);
};

}  // namespace osg
