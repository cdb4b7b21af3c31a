// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterMInt, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_MINT_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)                \
    VALUES(Value, value, Int32)

/// A uniform variable that is an array of values of type Int32.
class ShaderParameterMInt : public ShaderParameter
{
    OSG_MULTI_CONTAINER(ShaderParameterMInt, ShaderParameter, OSG_SHADER_PARAMETER_MINT_FIELDS);
};

}  // namespace osg
