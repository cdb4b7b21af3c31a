// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGVector.h>

namespace osg {

typedef MField<Vec2f> MFVec2f;
typedef MField<Vec3f> MFVec3f;
typedef MField<Vec4f> MFVec4f;
typedef MField<Pnt2f> MFPnt2f;
typedef MField<Pnt3f> MFPnt3f;
typedef MField<Pnt4f> MFPnt4f;
typedef MField<Vec2d> MFVec2d;
typedef MField<Vec3d> MFVec3d;
typedef MField<Vec4d> MFVec4d;
typedef MField<Pnt2d> MFPnt2d;
typedef MField<Pnt3d> MFPnt3d;
typedef MField<Pnt4d> MFPnt4d;
typedef MField<Vec2s> MFVec2s;
typedef MField<Vec3s> MFVec3s;
typedef MField<Vec4s> MFVec4s;
typedef MField<Vec2us> MFVec2us;
typedef MField<Vec3us> MFVec3us;
typedef MField<Vec4us> MFVec4us;
typedef MField<Vec2ub> MFVec2ub;
typedef MField<Vec3ub> MFVec3ub;
typedef MField<Vec4ub> MFVec4ub;

}  // namespace osg
