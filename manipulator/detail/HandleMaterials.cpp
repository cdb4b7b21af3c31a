// SPDX-License-Identifier: MIT
#include "manipulator/detail/HandleMaterials.h"

#include "manipulator/detail/EditBracket.h"
#include "manipulator/nbManipulatorMaterials.h"

#include <OpenSG/OSGGL.h>

namespace nbec::manipulator::detail {

namespace {

constexpr float kLineWidth = 2.0F;

}  // namespace

LineChunks makeLineChunks()
{
    LineChunks chunks;
    chunks.line = makeLineChunk(kLineWidth);
    chunks.blend = osg::BlendChunk::create();
    {
        const EditBracket edit(chunks.blend.get(), osg::FieldBits::AllFields);
        chunks.blend->setSrcFactor(GL_SRC_ALPHA);
        chunks.blend->setDestFactor(GL_ONE_MINUS_SRC_ALPHA);
    }
    chunks.depth = makeAlwaysDepthChunk();
    return chunks;
}

osg::LineChunkPtr makeLineChunk(float widthPx)
{
    const osg::LineChunkPtr chunk = osg::LineChunk::create();
    const EditBracket edit(chunk, osg::FieldBits::AllFields);
    chunk->setWidth(widthPx);
    chunk->setSmooth(true);
    return chunk;
}

osg::DepthTestChunkPtr makeAlwaysDepthChunk()
{
    const osg::DepthTestChunkPtr chunk = osg::DepthTestChunk::create();
    const EditBracket edit(chunk, osg::FieldBits::AllFields);
    chunk->setFunc(GL_ALWAYS);
    return chunk;
}

osg::SimpleMaterialRefPtr makeHandleMaterial(const osg::Color3f& diffuse, int sortKey,
                                             const LineChunks* chunks, float transparency)
{
    const osg::Color4f color(diffuse.red(), diffuse.green(), diffuse.blue(), 1.0F);
    osg::SimpleMaterialRefPtr material =
        adopt(nbManipulatorMaterials::createUnlitMaterial(color, sortKey));
    if (chunks != nullptr) {
        const EditBracket edit(material.get(), osg::ChunkMaterial::ChunksFieldMask);
        material->addChunk(chunks->line.get());
        material->addChunk(chunks->blend.get());
        material->addChunk(chunks->depth.get());
    }
    if (transparency != 0.0F) {
        const EditBracket edit(material.get(), osg::SimpleMaterial::TransparencyFieldMask);
        material->setTransparency(transparency);
    }
    return material;
}

osg::SimpleMaterialRefPtr makeHandleMaterial(const HandleMaterialRow& row)
{
    return makeHandleMaterial(osg::Color3f(row.red, row.green, row.blue), row.sortKey, nullptr,
                              row.transparency);
}

osg::SimpleMaterialRefPtr makePassMaterial(const osg::DepthTestChunkPtr& depth, int sortKey)
{
    osg::SimpleMaterialRefPtr material(osg::SimpleMaterial::create());
    const EditBracket edit(material.get(), osg::FieldBits::AllFields);
    material->setLit(false);
    material->addChunk(depth);
    material->setSortKey(sortKey);
    return material;
}

}  // namespace nbec::manipulator::detail
