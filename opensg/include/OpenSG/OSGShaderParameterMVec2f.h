// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGShaderParameter.h>

namespace osg {

/// A uniform variable that is an array of values of type Vec2f.
OSG_SHADER_PARAMETER_ARRAY_(ShaderParameterMVec2f, Vec2f);

}  // namespace osg
