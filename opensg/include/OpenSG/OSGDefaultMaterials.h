// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMaterialFields.h>

namespace osg {

/// The material of fresh simple geometry: lit, a pale yellow. One object for all, made by the
/// first call and never freed.
MaterialPtr getDefaultMaterial();

/// The same without light.
MaterialPtr getDefaultUnlitMaterial();

}  // namespace osg
