// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGSimpleMaterial.h>

namespace osg {

OSG_CONTAINER_POINTER(SimpleTexturedMaterial, SimpleMaterialPtr);

#define OSG_SIMPLE_TEXTURED_MATERIAL_FIELDS(VALUE, OWNED, LINK)                                    \
    OWNED(Image, image, ImagePtr)                                                                  \
    VALUE(MinFilter, minFilter, GLenum, GL_LINEAR_MIPMAP_LINEAR)                                   \
    VALUE(MagFilter, magFilter, GLenum, GL_LINEAR)                                                 \
    VALUE(EnvMode, envMode, GLenum, GL_REPLACE)

/// A simple material with one image on it.
/// Left out of OpenSG's class: the spherical environment map.
class SimpleTexturedMaterial : public SimpleMaterial
{
    OSG_CONTAINER(SimpleTexturedMaterial, SimpleMaterial, OSG_SIMPLE_TEXTURED_MATERIAL_FIELDS);

public:
    /// Deliberate: only a named variable is taken, see TextureChunk::setImage.
    void setImage(ImagePtr&& image) = delete;
    void setImage(const ImagePtr&& image) = delete;
};

}  // namespace osg
