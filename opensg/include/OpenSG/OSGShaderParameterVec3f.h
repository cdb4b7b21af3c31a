// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGShaderParameter.h>
#include <OpenSG/OSGVector.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterVec3f, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_VEC3F_FIELDS(VALUE, OWNED, LINK) VALUE(Value, value, Vec3f, Vec3f())

/// A uniform variable of type Vec3f.
class ShaderParameterVec3f : public ShaderParameter
{
    OSG_CONTAINER(ShaderParameterVec3f, ShaderParameter, OSG_SHADER_PARAMETER_VEC3F_FIELDS);
};

}  // namespace osg
