// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMFMathTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterMMatrix, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_MMATRIX_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)             \
    VALUES(Value, value, osg::Matrix)

/// A uniform variable that is an array of values of type Matrix.
class ShaderParameterMMatrix : public ShaderParameter
{
    OSG_MULTI_CONTAINER(ShaderParameterMMatrix, ShaderParameter,
                        OSG_SHADER_PARAMETER_MMATRIX_FIELDS);
};

}  // namespace osg
