// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMFMathTypes.h>
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGShaderParameter.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameterChunk, StateChunkPtr);

class ShaderParameterChunk : public StateChunk
{
    OSG_DECLARED_TYPE(ShaderParameterChunk, StateChunk)
    OSG_DECLARED_VALUES(Parameters, ShaderParameterPtr)
    bool setUniformParameter(const char* name, bool value);
    bool getUniformParameter(const char* name, bool& value);
    bool setUniformParameter(const char* name, Int32 value);
    bool getUniformParameter(const char* name, Int32& value);
    bool setUniformParameter(const char* name, Real32 value);
    bool getUniformParameter(const char* name, Real32& value);
    bool setUniformParameter(const char* name, const Vec2f& value);
    bool getUniformParameter(const char* name, Vec2f& value);
    bool setUniformParameter(const char* name, const Vec3f& value);
    bool getUniformParameter(const char* name, Vec3f& value);
    bool setUniformParameter(const char* name, const Vec4f& value);
    bool getUniformParameter(const char* name, Vec4f& value);
    bool setUniformParameter(const char* name, const osg::Matrix& value);
    bool getUniformParameter(const char* name, osg::Matrix& value);
    bool setUniformParameter(const char* name, const MField<Int32>& value);
    bool getUniformParameter(const char* name, MField<Int32>& value);
    bool setUniformParameter(const char* name, const MField<Real32>& value);
    bool getUniformParameter(const char* name, MField<Real32>& value);
    bool setUniformParameter(const char* name, const MField<Vec2f>& value);
    bool getUniformParameter(const char* name, MField<Vec2f>& value);
    bool setUniformParameter(const char* name, const MField<Vec3f>& value);
    bool getUniformParameter(const char* name, MField<Vec3f>& value);
    bool setUniformParameter(const char* name, const MField<Vec4f>& value);
    bool getUniformParameter(const char* name, MField<Vec4f>& value);
    bool setUniformParameter(const char* name, const MField<osg::Matrix>& value);
    bool getUniformParameter(const char* name, MField<osg::Matrix>& value);
    bool subUniformParameter(const char* name);
};
}  // namespace osg
