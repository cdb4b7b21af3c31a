// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

/// A uniform variable of type Real32.
OSG_SHADER_PARAMETER_(ShaderParameterReal, Real32);

}  // namespace osg
