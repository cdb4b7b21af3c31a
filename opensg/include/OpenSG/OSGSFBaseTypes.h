// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGSField.h>

#include <string>

namespace osg {

typedef SField<std::string> SFString;
typedef SField<Color3f> SFColor3f;
typedef SField<Color4f> SFColor4f;
typedef SField<Color3ub> SFColor3ub;
typedef SField<Color4ub> SFColor4ub;
typedef SField<BitVector> SFBitVector;
typedef SField<Time> SFTime;
typedef SField<BoxVolume> SFBoxVolume;
typedef SField<DynamicVolume> SFDynamicVolume;
typedef SField<Line> SFLine;
typedef SField<Plane> SFPlane;

}  // namespace osg
