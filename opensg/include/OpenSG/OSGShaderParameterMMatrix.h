// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMFMathTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

/// A uniform variable that is an array of values of type Matrix.
OSG_SHADER_PARAMETER_ARRAY_(ShaderParameterMMatrix, osg::Matrix);

}  // namespace osg
