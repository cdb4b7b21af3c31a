// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

/// A uniform variable of type bool.
OSG_SHADER_PARAMETER_(ShaderParameterBool, bool);

}  // namespace osg
