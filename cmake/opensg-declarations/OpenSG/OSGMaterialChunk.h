// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {
OSG_DECLARED_POINTER(MaterialChunk, StateChunkPtr);

class MaterialChunk : public StateChunk
{
    OSG_DECLARED_CLASS(MaterialChunk, StateChunk)
    static const StateChunkClass* getStaticClass();
    static UInt32 getStaticClassId();
    OSG_DECLARED_VALUE(Ambient, Color4f)
    OSG_DECLARED_VALUE(Diffuse, Color4f)
    OSG_DECLARED_VALUE(Specular, Color4f)
    OSG_DECLARED_VALUE(Shininess, Real32)
    OSG_DECLARED_VALUE(Emission, Color4f)
    OSG_DECLARED_VALUE(Lit, bool)
    OSG_DECLARED_VALUE(ColorMaterial, GLenum)
};
}  // namespace osg
