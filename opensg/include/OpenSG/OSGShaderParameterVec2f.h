// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGShaderParameter.h>
#include <OpenSG/OSGVector.h>

namespace osg {

/// A uniform variable of type Vec2f.
OSG_SHADER_PARAMETER_(ShaderParameterVec2f, Vec2f);

}  // namespace osg
