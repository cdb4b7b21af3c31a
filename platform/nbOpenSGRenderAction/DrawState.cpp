// SPDX-License-Identifier: MIT
#include "DrawState.h"

#include <nbOpenSGExt/DepthTestChunk.h>

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGDepthChunk.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGPolygonChunk.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <algorithm>

#include <ContentStamp.h>

namespace nbrender {

namespace {

constexpr float kLeastLineWidth = 0.01F;

osg::Color3f rgb(const osg::Color4f& color)
{
    return osg::Color3f(color.red(), color.green(), color.blue());
}

void setColors(DrawState& state, const osg::SimpleMaterialPtr& material)
{
    state.ambient = material->getAmbient();
    state.diffuse = material->getDiffuse();
    state.specular = material->getSpecular();
    state.emission = material->getEmission();
    state.shininess = material->getShininess();
    state.alpha = std::clamp(1.0F - material->getTransparency(), 0.0F, 1.0F);
    state.lit = material->getLit();
    state.usesVertexColors = material->getColorMaterial() != GL_NONE;
}

void apply(DrawState& state, const osg::MaterialChunkPtr& chunk)
{
    state.ambient = rgb(chunk->getAmbient());
    state.diffuse = rgb(chunk->getDiffuse());
    state.specular = rgb(chunk->getSpecular());
    state.emission = rgb(chunk->getEmission());
    state.shininess = chunk->getShininess();
    state.alpha = std::clamp(chunk->getDiffuse().alpha(), 0.0F, 1.0F);
    state.lit = chunk->getLit();
    state.usesVertexColors = chunk->getColorMaterial() != GL_NONE;
}

void apply(DrawState& state, const osg::BlendChunkPtr& chunk)
{
    const auto alphaFactor = [](GLenum factor, GLenum otherwise) {
        return factor == OSG_GL_UNUSED || factor == GL_NONE ? otherwise : factor;
    };
    state.blendSource = chunk->getSrcFactor();
    state.blendDestination = chunk->getDestFactor();
    state.blendSourceAlpha = alphaFactor(chunk->getAlphaSrcFactor(), chunk->getSrcFactor());
    state.blendDestinationAlpha = alphaFactor(chunk->getAlphaDestFactor(), chunk->getDestFactor());
    state.blendEquation =
        chunk->getEquation() == GL_NONE ? GLenum(GL_FUNC_ADD) : chunk->getEquation();
    state.blendColor = chunk->getColor();
    state.alphaFunc = chunk->getAlphaFunc() == GL_NONE ? GLenum(GL_ALWAYS) : chunk->getAlphaFunc();
    state.alphaValue = chunk->getAlphaValue();
}

void apply(DrawState& state, const osg::DepthChunkPtr& chunk)
{
    state.depthTest = chunk->getEnable();
    state.depthFunc = chunk->getFunc();
    state.depthWrite = !chunk->getReadOnly();
    state.depthNear = chunk->getNear() < 0.0F ? 0.0F : std::min(chunk->getNear(), 1.0F);
    state.depthFar = chunk->getFar() < 0.0F ? 1.0F : std::min(chunk->getFar(), 1.0F);
}

void apply(DrawState& state, const osg::DepthTestChunkPtr& chunk)
{
    state.depthTest = chunk->getEnable();
    state.depthFunc = chunk->getFunc();
    state.depthWrite = !chunk->getReadOnly();
    state.depthNear = 0.0F;
    state.depthFar = 1.0F;
}

void apply(DrawState& state, const osg::LineChunkPtr& chunk)
{
    state.lineWidth = std::max(chunk->getWidth(), kLeastLineWidth);
    state.stipplePattern = chunk->getStipplePattern();
    state.stippleRepeat = std::max(chunk->getStippleRepeat(), 1);
}

void apply(DrawState& state, const osg::PolygonChunkPtr& chunk)
{
    state.cullFace = chunk->getCullFace();
    state.frontFace = chunk->getFrontFace();
    // Core profiles have one mode for both sides; a side that is left out has no say.
    state.polygonMode =
        chunk->getCullFace() == GL_FRONT ? chunk->getBackMode() : chunk->getFrontMode();
    const bool hasOffset = (state.polygonMode == GL_FILL && chunk->getOffsetFill()) ||
        (state.polygonMode == GL_LINE && chunk->getOffsetLine()) ||
        (state.polygonMode == GL_POINT && chunk->getOffsetPoint());
    state.offsetFactor = hasOffset ? chunk->getOffsetFactor() : 0.0F;
    state.offsetBias = hasOffset ? chunk->getOffsetBias() : 0.0F;
}

template <class ChunkPtr>
bool applyIf(DrawState& state, const osg::StateChunkPtr& chunk)
{
    const ChunkPtr typed = ChunkPtr::dcast(chunk);
    if (typed == osg::NullFC) {
        return false;
    }
    apply(state, typed);
    return true;
}

void applyChunk(DrawState& state, const osg::StateChunkPtr& chunk)
{
    if (chunk == osg::NullFC || applyIf<osg::BlendChunkPtr>(state, chunk) ||
        applyIf<osg::DepthChunkPtr>(state, chunk) ||
        applyIf<osg::DepthTestChunkPtr>(state, chunk) || applyIf<osg::LineChunkPtr>(state, chunk) ||
        applyIf<osg::PolygonChunkPtr>(state, chunk)) {
        return;
    }
    if (osg::TextureChunkPtr::dcast(chunk) != osg::NullFC) {
        state.textureId = chunk.getFieldContainerId();
    } else if (osg::SHLChunkPtr::dcast(chunk) != osg::NullFC) {
        state.shaderId = chunk.getFieldContainerId();
    }
}

/// The chunks of a list, colours included on demand.
void applyList(DrawState& state, const osg::ChunkMaterialPtr& material, bool withColors)
{
    for (const osg::StateChunkPtr& chunk : *material->getMFChunks()) {
        if (!withColors || !applyIf<osg::MaterialChunkPtr>(state, chunk)) {
            applyChunk(state, chunk);
        }
    }
}

/// Adds a texture with its image, or a shader with its parameters, by the chunk's container id.
void addChunk(osg::ContentStamp& stamp, osg::UInt32 id)
{
    const osg::FieldContainerPtr chunk = osg::FieldContainerFactory::the()->getContainer(id);
    stamp.add(chunk);
    if (const auto texture = osg::TextureChunkPtr::dcast(chunk); texture != osg::NullFC) {
        stamp.add(texture->getImage());
    }
    if (const auto shader = osg::SHLChunkPtr::dcast(chunk); shader != osg::NullFC) {
        for (const osg::ShaderParameterPtr& parameter : *shader->getMFParameters()) {
            stamp.add(parameter);
        }
    }
}

void addColors(osg::ContentStamp& stamp, const DrawState& state)
{
    for (const osg::Color3f& color :
         { state.ambient, state.diffuse, state.specular, state.emission }) {
        stamp.add(color.getValuesRGB(), 3);
    }
    stamp.add(state.blendColor.getValuesRGBA(), 4);
    for (const float number :
         { state.shininess, state.alpha, state.alphaValue, state.depthNear, state.depthFar,
           state.lineWidth, state.offsetFactor, state.offsetBias }) {
        stamp.add(number);
    }
}

}  // namespace

osg::UInt64 stampOf(const DrawState& state)
{
    osg::ContentStamp stamp;
    addColors(stamp, state);
    for (const bool flag : { state.lit, state.usesVertexColors, state.transparent, state.depthTest,
                             state.depthWrite }) {
        stamp.add(osg::UInt64(flag ? 1 : 0));
    }
    for (const GLenum value :
         { state.blendSource, state.blendDestination, state.blendSourceAlpha,
           state.blendDestinationAlpha, state.blendEquation, state.alphaFunc, state.depthFunc,
           state.cullFace, state.frontFace, state.polygonMode, GLenum(state.stipplePattern),
           static_cast<GLenum>(state.stippleRepeat) }) {
        stamp.add(osg::UInt64(value));
    }
    addChunk(stamp, state.textureId);
    addChunk(stamp, state.shaderId);
    if (state.uber != nullptr) {
        addTo(stamp, *state.uber);
    }
    return stamp.get();
}

DrawState resolveMaterial(const osg::MaterialPtr& material)
{
    DrawState state;
    if (material == osg::NullFC) {
        return state;
    }
    state.sortKey = material->getSortKey();
    state.transparent = material->isTransparent();
    if (state.transparent) {
        state.blendSource = state.blendSourceAlpha = GL_SRC_ALPHA;
        state.blendDestination = state.blendDestinationAlpha = GL_ONE_MINUS_SRC_ALPHA;
    }
    if (const auto simple = osg::SimpleMaterialPtr::dcast(material); simple != osg::NullFC) {
        setColors(state, simple);
    }
    if (const auto chunks = osg::ChunkMaterialPtr::dcast(material); chunks != osg::NullFC) {
        applyList(state, chunks, true);
    }
    state.uber = resolveUberMaterial(material);
    return state;
}

void applyChunks(DrawState& state, const osg::MaterialPtr& group)
{
    if (const auto chunks = osg::ChunkMaterialPtr::dcast(group); chunks != osg::NullFC) {
        applyList(state, chunks, false);
    }
}

}  // namespace nbrender
