// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {
OSG_DECLARED_POINTER(Image, AttachmentContainerPtr);
OSG_DECLARED_POINTER(TextureChunk, StateChunkPtr);

class TextureChunk : public StateChunk
{
    OSG_DECLARED_CLASS(TextureChunk, StateChunk)
    static const StateChunkClass* getStaticClass();
    static UInt32 getStaticClassId();
    OSG_DECLARED_MASK(Image)
    ImagePtr& getImage();
    const ImagePtr& getImage() const;
    void setImage(ImagePtr& image);
    OSG_DECLARED_VALUE(MinFilter, GLenum)
    OSG_DECLARED_VALUE(MagFilter, GLenum)
    OSG_DECLARED_VALUE(WrapS, GLenum)
    OSG_DECLARED_VALUE(WrapT, GLenum)
    OSG_DECLARED_VALUE(Frame, UInt32)
    OSG_DECLARED_VALUE(EnvMode, GLenum)
    OSG_DECLARED_VALUE(EnvColor, Color4f)
    OSG_DECLARED_VALUE(Scale, bool)
    OSG_DECLARED_VALUE(InternalFormat, GLenum)
};
}  // namespace osg
