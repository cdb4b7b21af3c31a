// SPDX-License-Identifier: MIT
#include "tests/platform/nbMaterialEditor/EditorTest.h"
#include "tests/platform/support/Edited.h"

using namespace editortest;

namespace {

constexpr const char* kPlanar = "::changedPlanarManipulator";
constexpr const char* kTriplanar = "::changedTriplanarManipulator";
constexpr const char* kUv = "::changedUVManipulator";
constexpr const char* kTire = "::changedTireManipulator";

class TextureValuesTest : public EditorTest
{
protected:
    nbTextureValues values() const { return nbTextureValues::of(*settings.get()); }
};

}  // namespace

// == Messages

TEST_F(TextureValuesTest, UvAndTireValuesAreTakenAsTheyCome)
{
    send(kUv, { { "offset", osg::Vec2f(0.5f, -3.f) } });
    send(kUv, { { "rotate", -45.f } });
    send(kUv, { { "scale", osg::Vec2f(0.25f, -2.f) } });
    EXPECT_EQ(values().offset, osg::Vec2f(0.5f, -3.f));
    EXPECT_EQ(values().rotate, -45.f);
    EXPECT_EQ(values().repeat, osg::Vec2f(4.f, -0.5f));
    EXPECT_EQ(material->getRepeat(kDiffuse), osg::Vec2f(4.f, -0.5f));

    send(kTire, { { "center", osg::Vec3f(1.f, 2.f, 3.f) } });
    send(kTire, { { "ScaleHeight", 2.f }, { "ScaleRadius", 3.f }, { "ScaleU", 0.25f } });
    expectNear(values().tireCenter, { 1.f, 2.f, 3.f }, "centre");
    EXPECT_EQ(values().tireScaleHeight, 2.f);
    EXPECT_EQ(values().tireScaleRadius, 3.f);
    EXPECT_EQ(values().tireScaleU, 0.25f);
    EXPECT_TRUE(values().tireAutoParameter);
    send(kTire, { { "autoParameter", true } });
    EXPECT_EQ(values().tireScaleRadius, 3.f) << "it was automatic before";
    send(kTire, { { "autoParameter", false } });
    EXPECT_FALSE(values().tireAutoParameter);
    nbtest::edited(place, osg::Transform3D::PartsFieldMask)
        ->setRotation(osg::Vec3f(30.f, 30.f, 30.f));
    send(kTire, { { "autoParameter", true } });
    expectNear(values().tireCenter, { 0.f, 0.f, 0.f }, "the box's middle");
    EXPECT_NEAR(values().tireScaleHeight, 2.f, kTolerance) << "however the box is turned";
    EXPECT_NEAR(values().tireScaleRadius, 1.f, kTolerance);
    EXPECT_EQ(values().tireScaleU, 0.25f);
    EXPECT_TRUE(log.empty());
}

TEST_F(TextureValuesTest, WrongMessagesLeaveEverythingAndCostOneLine)
{
    const osg::Vec2f good(2.f, 2.f);
    const osg::Vec3f way(1.f, 2.f, 3.f);
    const std::pair<const char*, Attributes> rows[] = {
        { kPlanar, {} },
        { kPlanar, { { "transVec", way }, { "offset", way } } },
        { kPlanar, { { "transVec", way }, { "scale", osg::Vec3f(1.f, kNaN, 1.f) } } },
        { kPlanar, { { "scale", way }, { "clamping", 1 } } },
        { kTriplanar, {} },
        { kTriplanar, { { "XOffset", good }, { "YOffset", osg::Vec3f() } } },
        { kTriplanar, { { "XOffset", good }, { "ZOffset", osg::Vec2f(kNaN, 0.f) } } },
        { kTriplanar, { { "XScale", good }, { "YScale", osg::Vec2f(0.f, 1.f) } } },
        { kUv, { { "rotate", 1.0 } } },
        { kUv, { { "scale", osg::Vec2f(1.f, 0.f) }, { "offset", good } } },
        { kUv, { { "scale", osg::Vec2f(1e-42f, 1.f) } } },
        { kTire, { { "ScaleHeight", 2.f }, { "ScaleRadius", 0.f } } },
        { kTire, { { "autoParameter", 1 }, { "ScaleU", 2.f } } },
    };
    const nbTextureValues before = values();
    const nbTransformState start = nbTransformState::of(*settings->getPlanarProjection());
    for (const auto& [message, attributes] : rows) {
        log.clear();
        send(message, attributes);
        EXPECT_EQ(log.size(), 1u) << message << testing::PrintToString(log);
        EXPECT_EQ(values(), before) << message << testing::PrintToString(log);
        EXPECT_TRUE(start.isSame(nbTransformState::of(*settings->getPlanarProjection())));
    }
    log.clear();
    material->setComponentSettings(kDiffuse, osg::NullFC);
    send(kUv, { { "offset", good } });
    send(kTire, { { "ScaleU", 2.f } });
    EXPECT_EQ(log.size(), 2u) << "no settings";
    material = osg::NullFC;
    root = osg::NullFC;
    send(kPlanar, { { "transVec", way } });
    EXPECT_EQ(log.size(), 3u) << "nothing left to edit";
    EXPECT_EQ(nbController::getModified(), 0);
    EXPECT_EQ(steps(), 0);
    EXPECT_TRUE(gui.told.empty());
}

TEST_F(TextureValuesTest, ADragIsOneStepAndNoneWhenItEndsWhereItBegan)
{
    // One whose reciprocal's reciprocal is another one.
    float repeat = 1.5f;
    while (1.f / (1.f / repeat) == repeat) {
        repeat += 0.37f;
    }
    settings->setRepeat(osg::Vec2f(repeat, 1.f));
    const float scale = 1.f / repeat;

    undo->beginGroup();
    send(kUv, { { "scale", osg::Vec2f(0.5f, 0.5f) } });
    send(kUv, { { "scale", osg::Vec2f(scale, 1.f) } });
    undo->endGroup();
    EXPECT_EQ(values().repeat.x(), repeat) << "the very repeat that it was";
    EXPECT_EQ(steps(), 0);

    undo->beginGroup();
    send(kTriplanar, { { "rotate", osg::Vec3f(1.f, 0.f, 0.f) } });
    send(kPlanar, { { "clamping", true } });
    undo->endGroup();
    EXPECT_EQ(steps(), 1);
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(values().triplanarRotation, osg::Vec3f(0.f, 0.f, 0.f));
    EXPECT_FALSE(settings->hasPlanarProjectionFlag(Settings::ClampZ));
}

// == Edits by panels

TEST_F(TextureValuesTest, SwitchingTheProjectionFitsWhatWasNeverUsed)
{
    setImage(20, 10);
    object = root.get();
    editor->setMaterial(material.get(), object, kDiffuse);
    nbtest::edited(place)->setScale(osg::Vec3f(2.f, 1.f, 1.f));
    nbtest::edited(place)->setRotation(osg::Vec3f(0.f, 0.f, 45.f));
    ASSERT_TRUE(editor->setTextureProjectionType(Settings::TriplanarProjection));
    // Pictures 2 units high (half of 4) and 4 units wide.
    expectNear(values().triplanarRepeatU, { 25.f, 25.f, 25.f }, "u");
    expectNear(values().triplanarRepeatV, { 50.f, 50.f, 50.f }, "v");
    EXPECT_EQ(steps(), 1);
    ASSERT_TRUE(editor->setTextureProjectionType(Settings::UVProjection));
    EXPECT_EQ(values().repeat, osg::Vec2f(1.f, 1.f));
    ASSERT_TRUE(editor->setTextureProjectionType(Settings::TireProjection));
    EXPECT_EQ(settings->getTextureProjectionType(), Settings::TireProjection);
    EXPECT_NEAR(values().tireScaleHeight, 2.f, kTolerance) << "in the object's own space";
    EXPECT_NEAR(values().tireScaleRadius, 1.f, kTolerance);

    send(kTriplanar, { { "XScale", osg::Vec2f(0.5f, 0.5f) } });
    ASSERT_TRUE(editor->setTextureProjectionType(Settings::TriplanarProjection));
    EXPECT_EQ(values().triplanarRepeatU[0], 2.f) << "what was used stays";
    EXPECT_TRUE(editor->setTextureProjectionType(Settings::TriplanarProjection));
    EXPECT_EQ(steps(), 5) << "nothing new";
    EXPECT_FALSE(editor->setTextureProjectionType(4));
    EXPECT_FALSE(editor->setTextureProjectionType(-1));
    while (undo->undo()) { }
    EXPECT_EQ(settings->getTextureProjectionType(), Settings::PlanarProjection);
    EXPECT_EQ(values(), nbTextureValues());

    settings->setPlanarProjection(osg::NullFC);
    ASSERT_TRUE(editor->setTextureProjectionType(Settings::PlanarProjection));
    EXPECT_TRUE(editor->getProjection() != osg::NullFC);
    material->setComponentSettings(kDiffuse, osg::NullFC);
    EXPECT_FALSE(editor->setTextureProjectionType(Settings::UVProjection)) << "no settings";
}
