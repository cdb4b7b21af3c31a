// SPDX-License-Identifier: MIT
// What a renderer asks of materials: the chunks in force, and whether anything changed.
#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGContainerCensus.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSHLChunk.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGState.h>
#include <OpenSG/OSGTextureChunk.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

OSG_USING_NAMESPACE

namespace {

template <class Chunk>
typename Chunk::Ptr inForce(const StatePtr& state, UInt32 slot = 0)
{
    return Chunk::Ptr::dcast(state->getChunk(Chunk::getStaticClassId() + slot));
}

/// Counts the containers alive before and after a test.
class Materials : public testing::Test
{
protected:
    ~Materials() override { EXPECT_EQ(ContainerCensus::take().differenceTo(before), ""); }

    ContainerCensus before = ContainerCensus::take();
};

}  // namespace

TEST_F(Materials, AddedChunksReplaceTheBuiltInOnes)
{
    const RefPtr<SimpleMaterialPtr> material(SimpleMaterial::create());
    const MaterialChunkPtr surface = MaterialChunk::create();
    const BlendChunkPtr additive = BlendChunk::create();
    additive->setDestFactor(GL_ONE);

    material->addChunk(surface);
    material->addChunk(additive);

    const RefPtr<StatePtr> state(material->makeState());
    EXPECT_TRUE(inForce<MaterialChunk>(state) == surface);
    EXPECT_TRUE(inForce<BlendChunk>(state) == additive);
}

TEST_F(Materials, StampMovesWithEveryPartAndWithNothingElse)
{
    const RefPtr<ChunkMaterialPtr> material(ChunkMaterial::create());
    const LineChunkPtr line = LineChunk::create();
    const TextureChunkPtr texture = TextureChunk::create();
    const SHLChunkPtr shader = SHLChunk::create();
    ImagePtr image = Image::create();
    ImagePtr other = Image::create();
    texture->setImage(image);
    material->addChunk(line);
    material->addChunk(texture, 1);
    material->addChunk(shader);
    shader->setUniformParameter("zoom", Real32(1.f));

    const std::vector<std::pair<std::string, std::function<void()>>> changes = {
        { "edit of the material", [&] { changedCP(material, Material::SortKeyFieldMask); } },
        { "edit of a chunk", [&] { changedCP(line, LineChunk::WidthFieldMask); } },
        { "edit of an image", [&] { changedCP(image, Image::PixelFieldMask); } },
        { "other image", [&] { texture->setImage(other); } },
        { "value of a uniform", [&] { shader->setUniformParameter("zoom", Real32(2.f)); } },
        { "new uniform", [&] { shader->setUniformParameter("count", Int32(2)); } },
        { "uniform gone", [&] { shader->subUniformParameter("zoom"); } },
        { "chunk again", [&] { material->addChunk(line); } },
        { "chunk gone", [&] { material->subChunk(line); } },
        { "other slot",
          [&] {
              const RefPtr<TextureChunkPtr> held(texture);
              material->subChunk(texture);
              material->addChunk(texture, 0);
          } },
        { "no chunks", [&] { material->clearChunks(); } },
    };

    for (const auto& [name, change] : changes) {
        const UInt64 stamp = material->getContentStamp();
        const StatePtr state = material->getState();
        EXPECT_EQ(material->getContentStamp(), stamp) << "before: " << name;
        change();
        EXPECT_NE(material->getContentStamp(), stamp) << name;
        EXPECT_TRUE(material->getState() == state) << "the state object stays: " << name;
    }
}

TEST_F(Materials, UniformsClearedDirectlyAreFreed)
{
    const RefPtr<SHLChunkPtr> shader(SHLChunk::create());
    shader->setUniformParameter("a", Real32(1.f));
    shader->setUniformParameter("b", Real32(2.f));

    shader->getMFParameters()->clear();
    shader->setUniformParameter("c", Int32(3));

    EXPECT_EQ(ContainerCensus::take().count("ShaderParameterReal"),
              before.count("ShaderParameterReal"));
    Int32 value = 0;
    EXPECT_TRUE(shader->getUniformParameter("c", value));
    EXPECT_EQ(value, 3);
}
