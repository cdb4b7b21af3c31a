// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGSField.h>
#include <OpenSG/OSGVector.h>

namespace osg {

typedef SField<Vec2f> SFVec2f;
typedef SField<Vec3f> SFVec3f;
typedef SField<Vec4f> SFVec4f;
typedef SField<Pnt2f> SFPnt2f;
typedef SField<Pnt3f> SFPnt3f;
typedef SField<Pnt4f> SFPnt4f;
typedef SField<Vec2d> SFVec2d;
typedef SField<Vec3d> SFVec3d;
typedef SField<Vec4d> SFVec4d;
typedef SField<Pnt2d> SFPnt2d;
typedef SField<Pnt3d> SFPnt3d;
typedef SField<Pnt4d> SFPnt4d;
typedef SField<Vec2s> SFVec2s;
typedef SField<Vec3s> SFVec3s;
typedef SField<Vec4s> SFVec4s;
typedef SField<Vec2us> SFVec2us;
typedef SField<Vec3us> SFVec3us;
typedef SField<Vec4us> SFVec4us;
typedef SField<Vec2ub> SFVec2ub;
typedef SField<Vec3ub> SFVec3ub;
typedef SField<Vec4ub> SFVec4ub;

}  // namespace osg
