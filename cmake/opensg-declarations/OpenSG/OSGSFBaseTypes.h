// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGSField.h>
#include <OpenSG/OSGColor.h>
namespace osg {
typedef SField<std::string> SFString;
typedef SField<Color3f> SFColor3f;
typedef SField<Color4f> SFColor4f;
}  // namespace osg
