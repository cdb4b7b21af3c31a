// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterMVec4f, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_MVEC4F_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)              \
    VALUES(Value, value, Vec4f)

/// A uniform variable that is an array of values of type Vec4f.
class ShaderParameterMVec4f : public ShaderParameter
{
    OSG_MULTI_CONTAINER(ShaderParameterMVec4f, ShaderParameter, OSG_SHADER_PARAMETER_MVEC4F_FIELDS);
};

}  // namespace osg
