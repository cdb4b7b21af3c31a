// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGShaderParameter.h>
#include <OpenSG/OSGVector.h>

namespace osg {

/// A uniform variable of type Vec3f.
OSG_SHADER_PARAMETER_(ShaderParameterVec3f, Vec3f);

}  // namespace osg
