// SPDX-License-Identifier: MIT
#include "manipulator/nbManipulatorMaterials.h"

#include "manipulator/handles/HandleMaterials.h"

#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbShaderHeader.h>
#include <nbUtils/nbUtils.h>

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGSHLChunk.h>
#include <OpenSG/OSGState.h>

namespace nbManipulatorMaterials {

namespace {

/// Body of the vertex program, enciphered (nbUtils::encryptShaderLF): it brings nbPosition to the
/// world and applies the uniform viewProjectionMatrix.
constexpr const char* kEncipheredVertexBody =
    R"~(?u]$N hCDd\FOo"HAWf-Ir^8@rV_1m+LBB)~"
    "\n"
    R"~(@v]"^z\-E+p)~"
    "\n"
    R"~(E)~"
    "\n"
    R"~(I's=FyZsFvQ'9h'bf'j'D%K6FmMuDb(Qvhh0H&zMVqJi?k%Goyc+.oe):wg<Oo}F]/b /|n-KlW![xIpY0/)~"
    "\n"
    R"~(G)~"
    "\n";

// The trailing blanks belong to the text.
constexpr const char* kFragmentBody = "uniform vec4 color; \n"
                                      "layout (location = 0) out vec4 colorBufferRGBA;\n"
                                      "layout (location = 1) out vec4 effectBufferRGBA;\n"
                                      "void main()  \n"
                                      "{  \n"
                                      "   colorBufferRGBA = color; \n"
                                      "   effectBufferRGBA = vec4(0.0); \n"
                                      "} \n";

osg::SHLChunkPtr createProjectionChunk(const osg::Color4f& color)
{
    const osg::SHLChunkPtr chunk = osg::SHLChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setVertexProgram(shaderHeaderString(nbShaderStage::Vertex, true, false, false) +
                            nbUtils::decryptShaderLF(kEncipheredVertexBody));
    chunk->setGeometryProgram("");
    chunk->setFragmentProgram(shaderHeaderString(nbShaderStage::Fragment, true, false, false) +
                              kFragmentBody);
    chunk->getMFParameters()->clear();
    chunk->setUniformParameter("color",
                               osg::Vec4f(color.red(), color.green(), color.blue(), color.alpha()));
    chunk->setUniformParameter("viewProjectionMatrix", osg::Matrix::identity());
    return chunk;
}

}  // namespace

osg::SimpleMaterialPtr createUnlitMaterial(const osg::Color4f& color, int sortKey)
{
    const osg::SimpleMaterialRefPtr material = nbec::manipulator::makeHandleMaterial(
        osg::Color3f(color.red(), color.green(), color.blue()), sortKey, nullptr,
        1.0F - color.alpha());
    if (material != osg::NullFC) {
        osg::addRefCP(material.get());
    }
    return material.get();
}

osg::ChunkMaterialPtr createProjectionMaterial(const osg::Color4f& color, int sortKey)
{
    const osg::ChunkMaterialPtr material = osg::ChunkMaterial::create();
    const nbEdit edit(material,
                      osg::ChunkMaterial::ChunksFieldMask | osg::ChunkMaterial::SortKeyFieldMask);
    material->addChunk(createProjectionChunk(color), osg::State::AutoSlotReplace);
    material->setSortKey(sortKey);
    osg::addRefCP(material);
    return material;
}

}  // namespace nbManipulatorMaterials
