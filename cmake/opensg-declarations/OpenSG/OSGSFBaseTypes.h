// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGSField.h>

namespace osg {
typedef SField<std::string> SFString;
typedef SField<Color3f> SFColor3f;
typedef SField<Color4f> SFColor4f;
}  // namespace osg
