// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/UberMaterialState.h>

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGSHLChunk.h>
#include <OpenSG/OSGTextureChunk.h>

#include <memory>

namespace nbrender {

/// Everything about a material that drawing depends on, read from its fields and chunks.
/// Of several chunks of one kind the last one of the list holds. DepthChunk and DepthTestChunk are
/// one kind. The texture and shader chunks are not counted: a state lives for one rebuild of the
/// item list, and both are looked up by id before use.
struct DrawState
{
    static constexpr float kDefaultGrey = 0.7F;
    static constexpr osg::UInt16 kSolidLine = 0xffff;

    osg::Color3f ambient { 0.0F, 0.0F, 0.0F };
    osg::Color3f diffuse { kDefaultGrey, kDefaultGrey, kDefaultGrey };
    osg::Color3f specular { 0.0F, 0.0F, 0.0F };
    osg::Color3f emission { 0.0F, 0.0F, 0.0F };
    float shininess = 1.0F;
    float alpha = 1.0F;  ///< 1 - transparency
    bool lit = true;
    bool usesVertexColors = true;  ///< colours of the geometry replace diffuse

    osg::Int32 sortKey = 0;
    bool transparent = false;

    GLenum blendSource = GL_ONE;
    GLenum blendDestination = GL_ZERO;
    GLenum blendSourceAlpha = GL_ONE;
    GLenum blendDestinationAlpha = GL_ZERO;
    GLenum blendEquation = GL_FUNC_ADD;
    osg::Color4f blendColor { 0.0F, 0.0F, 0.0F, 0.0F };
    GLenum alphaFunc = GL_ALWAYS;
    float alphaValue = 0.0F;

    bool depthTest = true;
    bool depthWrite = true;
    GLenum depthFunc = GL_LEQUAL;
    float depthNear = 0.0F;  ///< of the range that the item's layer has, 0 .. 1
    float depthFar = 1.0F;

    float lineWidth = 1.0F;  ///< logical pixels
    osg::UInt16 stipplePattern = kSolidLine;
    osg::Int32 stippleRepeat = 1;

    GLenum cullFace = GL_NONE;
    GLenum frontFace = GL_CCW;
    GLenum polygonMode = GL_FILL;
    float offsetFactor = 0.0F;
    float offsetBias = 0.0F;

    osg::UInt32 textureId = 0;  ///< container id of the TextureChunk, 0 for none
    osg::UInt32 shaderId = 0;  ///< container id of the SHLChunk, 0 for none
    std::shared_ptr<const UberMaterialState> uber;  ///< null without projected pictures
};

/// A number that differs when anything that is drawn with a state may, the contents of its texture,
/// pictures and shader chunk included.
osg::UInt64 stampOf(const DrawState& state);

/// State of a material; of null that of a grey lit surface.
DrawState resolveMaterial(const osg::MaterialPtr& material);

/// Replaces those parts of a state that a chunk of the material sets; colours, transparency,
/// lighting and the sort key stay. This is what a material group does below a manipulator node.
void applyChunks(DrawState& state, const osg::MaterialPtr& group);

}  // namespace nbrender
