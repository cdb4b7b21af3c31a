// SPDX-License-Identifier: MIT
#include <OpenSG/OSGContentStamp.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

namespace osg {

OSG_CONTAINER_TYPE(SimpleTexturedMaterial, SimpleMaterial);

UInt64 SimpleTexturedMaterial::getContentStamp() const
{
    ContentStamp stamp(*this);
    stamp.add(Inherited::getContentStamp());
    stamp.add(getImage());
    return stamp.get();
}

void SimpleTexturedMaterial::addChunks(const StatePtr& target)
{
    const TextureChunkPtr chunk = TextureChunk::create();
    ImagePtr current = getImage();
    chunk->setImage(current);
    chunk->setMinFilter(getMinFilter());
    chunk->setMagFilter(getMagFilter());
    chunk->setEnvMode(getEnvMode());
    target->addChunk(chunk, 0);
    Inherited::addChunks(target);
}

}  // namespace osg
