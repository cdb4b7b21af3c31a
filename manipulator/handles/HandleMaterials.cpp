// SPDX-License-Identifier: MIT
#include "manipulator/handles/HandleMaterials.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGGL.h>

namespace nbec::manipulator {

namespace {

constexpr float kLineWidth = 2.0F;
constexpr float kShininess = 10.0F;

}  // namespace

LineChunks makeLineChunks()
{
    LineChunks chunks;
    chunks.line = makeLineChunk(kLineWidth);
    chunks.blend = makeBlendChunk();
    chunks.depth = makeAlwaysDepthChunk();
    return chunks;
}

osg::LineChunkPtr lineChunkOf(const osg::SimpleMaterialPtr& material)
{
    for (const osg::StateChunkPtr& chunk : *material->getMFChunks()) {
        if (const auto line = osg::LineChunkPtr::dcast(chunk); line != osg::NullFC) {
            return line;
        }
    }
    return osg::LineChunkPtr();
}

osg::LineChunkPtr makeLineChunk(float widthPx)
{
    const osg::LineChunkPtr chunk = osg::LineChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setWidth(widthPx);
    chunk->setSmooth(true);
    return chunk;
}

osg::BlendChunkPtr makeBlendChunk()
{
    const osg::BlendChunkPtr chunk = osg::BlendChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setSrcFactor(GL_SRC_ALPHA);
    chunk->setDestFactor(GL_ONE_MINUS_SRC_ALPHA);
    return chunk;
}

osg::DepthTestChunkPtr makeAlwaysDepthChunk()
{
    const osg::DepthTestChunkPtr chunk = osg::DepthTestChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setFunc(GL_ALWAYS);
    return chunk;
}

osg::SimpleMaterialRefPtr makeHandleMaterial(const osg::Color3f& diffuse, int sortKey,
                                             const LineChunks* chunks, float transparency)
{
    const osg::SimpleMaterialRefPtr material(osg::SimpleMaterial::create());
    if (material == osg::NullFC) {
        return material;
    }
    const osg::Color3f black(0.0F, 0.0F, 0.0F);
    const nbEdit edit(material.get(), osg::FieldBits::AllFields);
    material->setEmission(black);
    material->setAmbient(black);
    material->setSpecular(black);
    material->setDiffuse(diffuse);
    material->setShininess(kShininess);
    material->setTransparency(transparency);
    material->setLit(false);
    material->setSortKey(sortKey);
    if (chunks != nullptr) {
        material->addChunk(chunks->line.get());
        material->addChunk(chunks->blend.get());
        material->addChunk(chunks->depth.get());
    }
    return material;
}

}  // namespace nbec::manipulator
