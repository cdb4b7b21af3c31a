// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGShaderParameter.h>
#include <OpenSG/OSGVector.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterVec2f, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_VEC2F_FIELDS(VALUE, OWNED, LINK) VALUE(Value, value, Vec2f, Vec2f())

/// A uniform variable of type Vec2f.
class ShaderParameterVec2f : public ShaderParameter
{
    OSG_CONTAINER(ShaderParameterVec2f, ShaderParameter, OSG_SHADER_PARAMETER_VEC2F_FIELDS);
};

}  // namespace osg
