// SPDX-License-Identifier: MIT
#include <OpenSG/OSGSimpleMaterial.h>

namespace osg {

OSG_CONTAINER_TYPE(SimpleMaterial, ChunkMaterial);

namespace {

Color4f withAlpha(const Color3f& colour, Real32 alpha)
{
    return { colour.red(), colour.green(), colour.blue(), alpha };
}

}  // namespace

bool SimpleMaterial::isTransparent() const
{
    return getTransparency() > Eps || Inherited::isTransparent();
}

void SimpleMaterial::addChunks(const StatePtr& target)
{
    target->addChunk(makeMaterialChunk());
    if (isTransparent()) {
        const BlendChunkPtr blend = BlendChunk::create();
        blend->setSrcFactor(GL_SRC_ALPHA);
        blend->setDestFactor(GL_ONE_MINUS_SRC_ALPHA);
        target->addChunk(blend);
    }
    Inherited::addChunks(target);
}

MaterialChunkPtr SimpleMaterial::makeMaterialChunk() const
{
    const MaterialChunkPtr chunk = MaterialChunk::create();
    const Real32 alpha = 1.0F - getTransparency();
    chunk->setAmbient(withAlpha(getAmbient(), alpha));
    chunk->setDiffuse(withAlpha(getDiffuse(), alpha));
    chunk->setSpecular(withAlpha(getSpecular(), alpha));
    chunk->setEmission(withAlpha(getEmission(), alpha));
    chunk->setShininess(getShininess());
    chunk->setLit(getLit());
    chunk->setColorMaterial(getColorMaterial());
    return chunk;
}

}  // namespace osg
