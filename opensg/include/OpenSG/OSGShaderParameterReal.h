// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterReal, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_REAL_FIELDS(VALUE, OWNED, LINK) VALUE(Value, value, Real32, 0.0F)

/// A uniform variable of type Real32.
class ShaderParameterReal : public ShaderParameter
{
    OSG_CONTAINER(ShaderParameterReal, ShaderParameter, OSG_SHADER_PARAMETER_REAL_FIELDS);
};

}  // namespace osg
