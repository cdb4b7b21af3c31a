// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterMReal, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_MREAL_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)               \
    VALUES(Value, value, Real32)

/// A uniform variable that is an array of values of type Real32.
class ShaderParameterMReal : public ShaderParameter
{
    OSG_MULTI_CONTAINER(ShaderParameterMReal, ShaderParameter, OSG_SHADER_PARAMETER_MREAL_FIELDS);
};

}  // namespace osg
