// SPDX-License-Identifier: MIT

#include "support/TextureTest.h"

namespace viewer {
namespace {

using Settings = TextureTarget::Settings;

/// A picture on the column of the start scene.
class TextureProjectionTest : public TextureTest
{
protected:
    TextureProjectionTest()
    {
        stage.selectByName("Column");
        EXPECT_TRUE(run("texture.picture", kLabel));
    }
};

TEST_F(TextureProjectionTest, ValuesAreWhatWasTypedAndEachEditIsAStep)
{
    expectSteps(
        {
            { "texture.uvOffset", QJsonArray { 0.5, -1 } },
            { "texture.uvRepeat", QJsonArray { 2, -3 } },
            { "texture.uvRotate", 30 },
            { "texture.triplanarRotation", QJsonArray { 10, 20, 30 } },
            { "texture.triplanarOffsetU", QJsonArray { 1, 2, 3 } },
            { "texture.triplanarOffsetV", QJsonArray { 4, 5, 6 } },
            { "texture.triplanarRepeatU", QJsonArray { 7, 8, 9 } },
            { "texture.triplanarRepeatV", QJsonArray { 10, 11, 12 } },
            { "texture.tireCenter", QJsonArray { 1, 2, 3 } },
            { "texture.tireHeight", 3 },
            { "texture.tireRadius", 4 },
            { "texture.tireScaleU", 0.25 },
            { "texture.tireFit", false },
        },
        1e-5);
    ASSERT_TRUE(run("texture.projection", "tire"));
    ASSERT_TRUE(run("texture.tireScaleU", 0.5));
    EXPECT_EQ(value("texture.tireFit"), QJsonValue(true)) << "it is never fitted";
    ASSERT_TRUE(run("texture.handles", "universal"));
    stage.update();
    const QJsonValue fittedRadius = value("texture.tireRadius");
    const osg::Pnt2f fitted = placeOf(SessionTarget::Kind::Handle, "radiusShape");
    ASSERT_TRUE(run("texture.tireRadius", 2.5));
    EXPECT_EQ(value("texture.tireFit"), QJsonValue(false)) << "set by hand";
    stage.update();
    EXPECT_NE(stage.handleAt(fitted), "radiusShape") << "the handles stayed behind";
    ASSERT_TRUE(run("texture.tireFit", true));
    EXPECT_EQ(value("texture.tireRadius"), fittedRadius);
}

TEST_F(TextureProjectionTest, BadInputIsOneLineAndChangesNothing)
{
    const nbTextureValues before = tool.target().values();

    expectRefusals({
        { "texture.projection", "round" },
        { "texture.uvOffset", QJsonArray { 1 } },
        { "texture.uvRepeat", QJsonArray { 0, 1 } },
        { "texture.uvRepeat", QJsonArray { 1e-60, 1 } },
        { "texture.triplanarRepeatU", QJsonArray { 1, 1, 0 } },
        { "texture.triplanarOffsetU", QJsonArray { 1, 1, 1e300 } },
        { "texture.tireRadius", 0 },
        { "texture.anchor", "here" },
    });
    EXPECT_EQ(tool.target().values(), before);
    stage.selectByName("Vase");
    EXPECT_FALSE(run("texture.projection", "uv")) << "no picture";
    EXPECT_FALSE(run("texture.uvRotate", 3));
    EXPECT_TRUE(value("texture.projection").isNull());
}

}  // namespace
}  // namespace viewer
