// SPDX-License-Identifier: MIT
#include "manipulator/texture/TextureHandles.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGDepthChunk.h>
#include <OpenSG/OSGLineChunk.h>

#include <utility>

namespace nbec::manipulator::texture {

namespace {

constexpr float kLineWidth = 4.0F;
constexpr float kTrace = kTraceOfTransparency;
constexpr float kMoreTrace = 0.01F;
constexpr int kSolid = handleSortKey::kSolid;
constexpr int kLight = handleSortKey::kLine;

/// In the order of TextureMaterial.
constexpr std::array<HandleMaterialRow, YellowMaterial> kMaterials = {
    { { 1.0F, 0.0F, 0.0F, kTrace, kSolid },
      { 0.0F, 1.0F, 0.0F, kTrace, kSolid },
      { 0.0F, 0.0F, 1.0F, kTrace, kSolid },
      { 1.0F, 0.5F, 0.5F, kTrace, kLight },
      { 0.5F, 1.0F, 0.5F, kTrace, kLight },
      { 0.5F, 0.5F, 1.0F, kTrace, kLight } }
};

osg::RefPtr<osg::StateChunkPtr> makeDepthChunk()
{
    const osg::DepthChunkPtr chunk = osg::DepthChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setEnable(true);
    return osg::RefPtr<osg::StateChunkPtr>(chunk);
}

osg::RefPtr<osg::StateChunkPtr> makeWideLineChunk()
{
    const osg::LineChunkPtr chunk = makeLineChunk(kLineWidth);
    const nbEdit edit(chunk, osg::LineChunk::SmoothFieldMask);
    chunk->setSmooth(false);
    return osg::RefPtr<osg::StateChunkPtr>(chunk);
}

}  // namespace

HandleSet::Materials makeTextureMaterials(std::initializer_list<HandleMaterialRow> others)
{
    HandleSet::Materials materials = makeHandleMaterials(kMaterials);
    const HandleSet::Materials own = makeHandleMaterials(others);
    materials.insert(materials.end(), own.begin(), own.end());
    return materials;
}

HandleSet::Materials makeAxisMaterials(bool hasWideHighlight)
{
    const osg::RefPtr<osg::StateChunkPtr> depth = makeDepthChunk();
    const osg::RefPtr<osg::StateChunkPtr> line = makeWideLineChunk();
    HandleSet::Materials materials =
        makeTextureMaterials({ { 1.0F, 1.0F, 0.0F, kTrace, kSolid + 1 },
                               { 1.0F, 0.5F, 0.0F, kMoreTrace, kSolid + 2 },
                               { 1.0F, 0.0F, 0.0F, kMoreTrace, kSolid },
                               { 0.0F, 1.0F, 0.0F, kMoreTrace, kSolid },
                               { 0.0F, 0.0F, 1.0F, kMoreTrace, kSolid } });
    for (std::size_t i = 0; i < materials.size(); ++i) {
        const nbEdit edit(materials[i].get(), osg::ChunkMaterial::ChunksFieldMask);
        materials[i]->addChunk(i >= RedLineMaterial ? line.get() : depth.get());
    }
    if (hasWideHighlight) {
        const osg::SimpleMaterialPtr highlight = materials[HighlightMaterial].get();
        const nbEdit edit(highlight, osg::ChunkMaterial::ChunksFieldMask);
        highlight->addChunk(line.get());
    }
    return materials;
}

HandlePart handlePart(HandleShape shape, std::size_t color, HandleHolder holder,
                      const std::array<float, 3>& place, Turn turn)
{
    return { shape, { color, HighlightMaterial, color }, holder, place, turn };
}

HandleRow handleRow(const char* name, int handle, int family, const HandleAction& action,
                    std::vector<HandlePart> parts)
{
    HandleRow row { name, handle, family, std::move(parts) };
    row.action = action;
    return row;
}

HandleRow solidArrow(const char* name, int handle, int family, std::size_t color,
                     const std::array<float, 3>& place, Turn turn)
{
    HandleRow row =
        handleRow(name, handle, family, { DragParameters::Kind::Offset, axisBit(color) },
                  { handlePart(HandleShape::SolidArrowShaft, color),
                    handlePart(HandleShape::SolidArrowHead, color) });
    row.place = place;
    row.turn = turn;
    row.letter = "XYZ"[color];
    row.tip = kArrowTip;
    return row;
}

HandleRow solidSquare(const char* name, int handle, int family, std::size_t color)
{
    return handleRow(name, handle, family,
                     { DragParameters::Kind::Offset, axisBit(0) | axisBit(1) },
                     { handlePart(HandleShape::SolidPatch, color),
                       handlePart(HandleShape::SolidBarX, RedMaterial),
                       handlePart(HandleShape::SolidBarY, GreenMaterial) });
}

HandleRow axisArrow(const char* name, int handle, int family, std::size_t axis)
{
    constexpr std::array<Turn, 3> kTurns = { Turn::OntoX, Turn::None, Turn::OntoZ };
    // Of a shaft that ends where the head stands, 1 from the centre.
    constexpr float kShaftMiddle = 0.04375F;
    HandleRow row = handleRow(name, handle, family, { DragParameters::Kind::Offset, axisBit(axis) },
                              { handlePart(HandleShape::SlimArrowShaft, axis, HandleHolder::Euler,
                                           { 0.0F, kShaftMiddle, 0.0F }),
                                handlePart(HandleShape::ArrowHead, axis, HandleHolder::Component,
                                           { 0.0F, 1.0F, 0.0F }) });
    row.place[axis] = 1.0F;
    row.letter = "XYZ"[axis];
    row.tip = kArrowTip;
    row.turn = kTurns[axis];
    return row;
}

}  // namespace nbec::manipulator::texture
