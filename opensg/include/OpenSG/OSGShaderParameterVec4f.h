// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGShaderParameter.h>
#include <OpenSG/OSGVector.h>

namespace osg {

/// A uniform variable of type Vec4f.
OSG_SHADER_PARAMETER_(ShaderParameterVec4f, Vec4f);

}  // namespace osg
