// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGPlane.h>

#include <string>

namespace osg {

typedef MField<std::string> MFString;
typedef MField<Color3f> MFColor3f;
typedef MField<Color4f> MFColor4f;
typedef MField<Color3ub> MFColor3ub;
typedef MField<Color4ub> MFColor4ub;
typedef MField<BitVector> MFBitVector;
typedef MField<Time> MFTime;
typedef MField<BoxVolume> MFBoxVolume;
typedef MField<DynamicVolume> MFDynamicVolume;
typedef MField<Line> MFLine;
typedef MField<Plane> MFPlane;

}  // namespace osg
