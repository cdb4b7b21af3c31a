// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterMBool, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_MBOOL_FIELDS(VALUE, OWNED, LINK) VALUE(Value, value, MFBool, MFBool())

/// A uniform variable that is an array of values of type bool.
class ShaderParameterMBool : public ShaderParameter
{
    OSG_CONTAINER(ShaderParameterMBool, ShaderParameter, OSG_SHADER_PARAMETER_MBOOL_FIELDS);
};

}  // namespace osg
