// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

/// A uniform variable that is an array of values of type Real32.
OSG_SHADER_PARAMETER_ARRAY_(ShaderParameterMReal, Real32);

}  // namespace osg
