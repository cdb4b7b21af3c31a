// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterBool, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_BOOL_FIELDS(VALUE, OWNED, LINK) VALUE(Value, value, bool, false)

/// A uniform variable of type bool.
class ShaderParameterBool : public ShaderParameter
{
    OSG_CONTAINER(ShaderParameterBool, ShaderParameter, OSG_SHADER_PARAMETER_BOOL_FIELDS);
};

}  // namespace osg
