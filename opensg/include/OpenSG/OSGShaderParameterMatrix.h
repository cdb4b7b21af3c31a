// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterMatrix, ShaderParameterPtr);

#define OSG_SHADER_PARAMETER_MATRIX_FIELDS(VALUE, OWNED, LINK)                                     \
    VALUE(Value, value, osg::Matrix, osg::Matrix())

/// A uniform variable of type Matrix.
class ShaderParameterMatrix : public ShaderParameter
{
    OSG_CONTAINER(ShaderParameterMatrix, ShaderParameter, OSG_SHADER_PARAMETER_MATRIX_FIELDS);
};

}  // namespace osg
