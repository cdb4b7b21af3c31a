// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

/// A uniform variable of type Int32.
OSG_SHADER_PARAMETER_(ShaderParameterInt, Int32);

}  // namespace osg
