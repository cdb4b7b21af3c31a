// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterMVec3f, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_MVEC3F_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)              \
    VALUES(Value, value, Vec3f)

/// A uniform variable that is an array of values of type Vec3f.
class ShaderParameterMVec3f : public ShaderParameter
{
    OSG_MULTI_CONTAINER(ShaderParameterMVec3f, ShaderParameter, OSG_SHADER_PARAMETER_MVEC3F_FIELDS);
};

}  // namespace osg
