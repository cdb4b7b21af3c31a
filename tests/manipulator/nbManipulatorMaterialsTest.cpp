// SPDX-License-Identifier: MIT
#include "manipulator/nbManipulatorMaterials.h"

#include <OpenSG/OSGSHLChunk.h>

#include <gtest/gtest.h>

#include <string>

TEST(nbManipulatorMaterials, ProjectionMaterialHoldsOneShaderWithTwoUniforms)
{
    osg::ChunkMaterialPtr material = nbManipulatorMaterials::createProjectionMaterial(
        osg::Color4f(1.0F, 0.5F, 0.25F, 0.75F), -3);
    ASSERT_EQ(material->getMFChunks()->size(), 1U);
    const osg::SHLChunkPtr shader = osg::SHLChunkPtr::dcast(material->getChunks(0));

    const auto& parameters = *shader->getMFParameters();
    ASSERT_EQ(parameters.size(), 2U);
    EXPECT_EQ(parameters[0]->getName(), "color");
    EXPECT_EQ(parameters[1]->getName(), "viewProjectionMatrix");
    osg::Vec4f color;
    osg::Matrix matrix;
    matrix.setTranslate(1, 2, 3);
    EXPECT_TRUE(shader->getUniformParameter("color", color));
    EXPECT_EQ(color, osg::Vec4f(1.0F, 0.5F, 0.25F, 0.75F));
    EXPECT_TRUE(shader->getUniformParameter("viewProjectionMatrix", matrix));
    EXPECT_EQ(matrix, osg::Matrix::identity());
    EXPECT_EQ(material->getSortKey(), -3);
    EXPECT_EQ(material.getRefCount(), 1);

    const std::string body =
        "uniform vec4 color; \nlayout (location = 0) out vec4 colorBufferRGBA;\nlayout (location = "
        "1) out vec4 effectBufferRGBA;\nvoid main()  \n{  \n   colorBufferRGBA = color; \n   "
        "effectBufferRGBA = vec4(0.0); \n} \n";
    const std::string fragment = shader->getFragmentProgram();
    ASSERT_GT(fragment.size(), body.size());
    EXPECT_EQ(fragment.substr(fragment.size() - body.size()), body);
    EXPECT_NE(shader->getVertexProgram().find("uniform mat4 viewProjectionMatrix;"),
              std::string::npos);
    EXPECT_EQ(shader->getVertexProgram().find("#version"), 0U);
    EXPECT_EQ(shader->getGeometryProgram(), "");
    osg::subRefCP(material);
}
