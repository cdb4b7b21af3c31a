// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGShaderParameter.h>
#include <OpenSG/OSGVector.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterVec4f, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_VEC4F_FIELDS(VALUE, OWNED, LINK) VALUE(Value, value, Vec4f, Vec4f())

/// A uniform variable of type Vec4f.
class ShaderParameterVec4f : public ShaderParameter
{
    OSG_CONTAINER(ShaderParameterVec4f, ShaderParameter, OSG_SHADER_PARAMETER_VEC4F_FIELDS);
};

}  // namespace osg
