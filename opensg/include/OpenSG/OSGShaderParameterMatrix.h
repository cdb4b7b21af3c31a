// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

/// A uniform variable of type Matrix.
OSG_SHADER_PARAMETER_(ShaderParameterMatrix, osg::Matrix);

}  // namespace osg
