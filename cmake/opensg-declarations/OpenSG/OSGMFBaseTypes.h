// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGMField.h>

namespace osg {
typedef MField<std::string> MFString;
typedef MField<Color3f> MFColor3f;
typedef MField<Color4f> MFColor4f;
}  // namespace osg
