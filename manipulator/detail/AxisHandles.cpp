// SPDX-License-Identifier: MIT
#include "manipulator/detail/AxisHandles.h"

#include "manipulator/detail/EditBracket.h"
#include "manipulator/detail/HandleMaterials.h"

#include <OpenSG/OSGDepthChunk.h>
#include <OpenSG/OSGLineChunk.h>

namespace nbec::manipulator::detail {

namespace {

constexpr int kAxisSortKey = 64016;
constexpr int kLightSortKey = 64015;
constexpr float kLineWidth = 4.0F;
/// Deliberate: traces of transparency keep the handles among the blended items, which are drawn
/// after the scene in the order of their sort keys, while they look opaque.
constexpr float kTrace = 0.001F;
constexpr float kMoreTrace = 0.01F;

/// In the order of AxisMaterial.
constexpr std::array<HandleMaterialRow, BlueLineMaterial + 1> kMaterials = {
    { { 1.0F, 0.0F, 0.0F, kTrace, kAxisSortKey },
      { 0.0F, 1.0F, 0.0F, kTrace, kAxisSortKey },
      { 0.0F, 0.0F, 1.0F, kTrace, kAxisSortKey },
      { 1.0F, 1.0F, 0.0F, kTrace, kAxisSortKey + 1 },
      { 1.0F, 0.5F, 0.0F, kMoreTrace, kAxisSortKey + 2 },
      { 1.0F, 0.5F, 0.5F, kTrace, kLightSortKey },
      { 0.5F, 1.0F, 0.5F, kTrace, kLightSortKey },
      { 0.5F, 0.5F, 1.0F, kTrace, kLightSortKey },
      { 1.0F, 0.0F, 0.0F, kMoreTrace, kAxisSortKey },
      { 0.0F, 1.0F, 0.0F, kMoreTrace, kAxisSortKey },
      { 0.0F, 0.0F, 1.0F, kMoreTrace, kAxisSortKey } }
};

osg::RefPtr<osg::StateChunkPtr> makeDepthChunk()
{
    const osg::DepthChunkPtr chunk = osg::DepthChunk::create();
    const EditBracket edit(chunk, osg::FieldBits::AllFields);
    chunk->setEnable(true);
    return osg::RefPtr<osg::StateChunkPtr>(chunk);
}

osg::RefPtr<osg::StateChunkPtr> makeWideLineChunk()
{
    const osg::LineChunkPtr chunk = osg::LineChunk::create();
    const EditBracket edit(chunk, osg::FieldBits::AllFields);
    chunk->setWidth(kLineWidth);
    chunk->setSmooth(false);
    return osg::RefPtr<osg::StateChunkPtr>(chunk);
}

}  // namespace

HandleSet::Materials makeAxisMaterials(bool hasWideHighlight)
{
    const osg::RefPtr<osg::StateChunkPtr> depth = makeDepthChunk();
    const osg::RefPtr<osg::StateChunkPtr> line = makeWideLineChunk();
    HandleSet::Materials materials;
    for (const HandleMaterialRow& row : kMaterials) {
        const bool isLine = materials.size() >= RedLineMaterial;
        materials.push_back(makeHandleMaterial(row));
        const EditBracket edit(materials.back().get(), osg::ChunkMaterial::ChunksFieldMask);
        materials.back()->addChunk(isLine ? line.get() : depth.get());
    }
    if (hasWideHighlight) {
        const osg::SimpleMaterialPtr highlight = materials[HighlightMaterial].get();
        const EditBracket edit(highlight, osg::ChunkMaterial::ChunksFieldMask);
        highlight->addChunk(line.get());
    }
    return materials;
}

HandleRow axisArrow(const char* name, int activeMode, int group, std::size_t axis)
{
    constexpr std::array<Turn, 3> kTurns = { Turn::OntoX, Turn::None, Turn::OntoZ };
    // Of a shaft that ends where the head stands, 1 from the centre.
    constexpr float kShaftMiddle = 0.04375F;
    std::array<float, 3> place = { 0.0F, 0.0F, 0.0F };
    place[axis] = 1.0F;
    return { name,
             activeMode,
             group,
             0,
             Holder::Component,
             place,
             kTurns[axis],
             2,
             { { { HandleShape::SlimArrowShaft,
                   axis,
                   axis,
                   Holder::Euler,
                   { 0.0F, kShaftMiddle, 0.0F },
                   Turn::None },
                 { HandleShape::ArrowHead,
                   axis,
                   axis,
                   Holder::Component,
                   { 0.0F, 1.0F, 0.0F },
                   Turn::None } } } };
}

}  // namespace nbec::manipulator::detail
