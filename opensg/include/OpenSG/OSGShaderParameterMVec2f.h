// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterMVec2f, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_MVEC2F_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)              \
    VALUES(Value, value, Vec2f)

/// A uniform variable that is an array of values of type Vec2f.
class ShaderParameterMVec2f : public ShaderParameter
{
    OSG_MULTI_CONTAINER(ShaderParameterMVec2f, ShaderParameter, OSG_SHADER_PARAMETER_MVEC2F_FIELDS);
};

}  // namespace osg
