// SPDX-License-Identifier: MIT
#include "tests/platform/nbMaterialEditor/EditorTest.h"
#include "tests/platform/support/Edited.h"

#include <nbMaterialEditor/nbMaterialPreview.h>

#include <cmath>

using namespace editortest;

namespace {

constexpr float kHalfPi = 1.57079633f;

class nbMaterialEditorTest : public EditorTest
{
protected:
    osg::Transform3DPtr projection() const { return settings->getPlanarProjection(); }

    static void change(const Attributes& attributes)
    {
        send("::changedPlanarManipulator", attributes);
    }

    static void placeTexture(const osg::NodePtr& node, const osg::Pnt3f& point,
                             const osg::Vec3f& normal)
    {
        send("::placeTexture",
             { { "hitNode", node }, { "hitPoint", point }, { "hitNormal", normal } });
    }

    /// A direction of the projection's frame, in the object's space.
    osg::Vec3f direction(float x, float y, float z) const
    {
        osg::Vec3f result(x, y, z);
        projection()->getMatrix().multMatrixVec(result);
        return result;
    }
};

}  // namespace

// == Changes by manipulators

TEST_F(nbMaterialEditorTest, OffsetAloneMovesWithinThePlaneAndRotateTurnsBackwardsAboutOwnZ)
{
    const osg::Quaternion aboutZ(osg::Vec3f(0.f, 0.f, 1.f), kHalfPi);
    nbtest::edited(projection())->setRotation(osg::Vec3f(0.f, 90.f, 0.f));
    nbtest::edited(projection())->setRotationOrientation(aboutZ);
    nbtest::edited(projection())->setScale(osg::Vec3f(2.f, 2.f, 2.f));
    // Own X looks to Y, own Y to +Z, and Z to X.
    change({ { "offset", osg::Vec2f(1.f, 3.f) } });
    expectNear(projection()->getTranslation(), { 0.f, 1.f, 3.f }, "offset");

    expectNear(direction(0.f, 1.f, 0.f), { 0.f, 0.f, 2.f }, "own y before");
    change({ { "rotate", 0.5f * kHalfPi } });
    change({ { "rotate", kHalfPi } });
    expectNear(direction(0.f, 0.f, 1.f), { 2.f, 0.f, 0.f }, "own z stays");
    expectNear(direction(1.f, 0.f, 0.f), { 0.f, 0.f, -2.f }, "own x turned by -90 degrees");
    EXPECT_EQ(projection()->getRotationOrientation(), aboutZ);
    change({ { "rotate", 0.f } });
    EXPECT_EQ(projection()->getRotationMode(), osg::Transform3D::EulerMode)
        << "back at the start nothing has changed";
}

TEST_F(nbMaterialEditorTest, ScaleIsAbsoluteAndClampingSwitchesTheExtentOn)
{
    change({ { "scale", osg::Vec3f(2.f, 3.f, 4.f) } });
    change({ { "scale", osg::Vec3f(0.f, 3.f, 5.f) } });
    expectNear(projection()->getScale(), { 0.f, 3.f, 5.f }, "scale");
    EXPECT_FALSE(settings->hasPlanarProjectionFlag(Settings::ClampZ));

    settings->setPlanarProjectionFlags(Settings::RepeatU);
    change({ { "clamping", true },
             { "scale", osg::Vec3f(1.f, 1.f, 7.f) },
             { "offset", osg::Vec2f(1.f, 1.f) },
             { "transVec", osg::Vec3f(0.f, 0.f, 1.f) },
             { "somethingElse", 1 } });
    expectNear(projection()->getScale(), { 1.f, 1.f, 7.f }, "all at once");
    expectNear(projection()->getTranslation(), { 0.f, 0.f, 1.f }, "all at once");
    EXPECT_EQ(settings->getPlanarProjectionFlags(), Settings::RepeatU | Settings::ClampZ);
    change({ { "clamping", false }, { "rotate", 1.f } });
    EXPECT_TRUE(settings->hasPlanarProjectionFlag(Settings::ClampZ)) << "switched off nowhere";
}

TEST_F(nbMaterialEditorTest, ASumBeyondAllFloatsIsRefused)
{
    projection()->setTranslation(osg::Vec3f(3e38f, 0.f, 0.f));
    change({ { "transVec", osg::Vec3f(3e38f, 0.f, 0.f) } });
    EXPECT_EQ(log.size(), 1u);
    EXPECT_EQ(projection()->getTranslation().x(), 3e38f);
}

TEST_F(nbMaterialEditorTest, ScaleValuesTellTheSizeAndWhatThePictureNeeds)
{
    projection()->setScale(osg::Vec3f(2.f, 3.f, 4.f));
    const auto ask = [] {
        nbMessage message;
        nbController::call("label::getScaleValues", message, 0);
        return message;
    };
    osg::Vec3f textureScale;
    osg::Vec2f size;
    const nbMessage plain = ask();
    ASSERT_TRUE(nbMessage::get(plain, "initialTextureScale", textureScale));
    ASSERT_TRUE(nbMessage::get(plain, "projectionSize", size));
    EXPECT_EQ(textureScale, osg::Vec3f(1.f, 1.f, 1.f));
    EXPECT_EQ(size, osg::Vec2f(4.f, 6.f));

    setImage(8, 2);
    ASSERT_TRUE(nbMessage::get(ask(), "initialTextureScale", textureScale));
    EXPECT_EQ(textureScale, osg::Vec3f(4.f, 1.f, 1.f));
    material->setComponentSettings(kDiffuse, osg::NullFC);
    EXPECT_EQ(ask().size(), 0u);
    EXPECT_TRUE(log.empty());
}

// == Placing

TEST_F(nbMaterialEditorTest, PlacingAlongAWayKeepsTheTurnWhateverTheWay)
{
    projection()->setRotation(osg::Vec3f(0.f, 0.f, 25.f));
    projection()->setMatrix(projection()->computeMatrix());
    const osg::Vec3f normals[] = {
        { 1.f, 0.f, 0.f }, { 0.f, 1.f, 0.f }, { 0.f, -1.f, 1.f }, { 0.f, 0.f, 1.f }
    };
    for (const osg::Vec3f& normal : normals) {
        placeTexture(object, osg::Pnt3f(0.f, 0.f, 1.f), normal);
    }
    const float angle = 25.f * kHalfPi / 90.f;
    expectNear(direction(1.f, 0.f, 0.f), { std::cos(angle), std::sin(angle), 0.f },
               "back at the first normal");

    placeTexture(object, osg::Pnt3f(0.f, 0.f, -1.f), osg::Vec3f(0.f, 0.f, -1.f));
    expectNear(direction(0.f, 0.f, 1.f), { 0.f, 0.f, -1.f }, "the other side");
    expectNear(direction(0.f, 1.f, 0.f), { std::sin(angle), std::cos(angle), 0.f },
               "leans as much");
    const osg::Quaternion turn = projection()->getRotationAsQuaternion();
    placeTexture(object, osg::Pnt3f(0.f, 0.f, -0.5f), osg::Vec3f(0.f, 0.f, 0.f));
    EXPECT_EQ(projection()->getRotationAsQuaternion(), turn) << "a normal without length";
    expectNear(projection()->getTranslation(), { 0.f, 0.f, -0.5f }, "but the point is taken");
}

TEST_F(nbMaterialEditorTest, PlacingKeepsUprightAndTheSizeInTheWorld)
{
    const nbTransformState fresh = nbTransformState::of(*projection());
    const osg::Vec3f normals[] = { { 1.f, 0.f, 0.f },  { -1.f, 0.f, 0.1f }, { 0.f, 0.5f, -1.f },
                                   { 1.f, -2.f, 3.f }, { 0.f, 1.f, 0.f },   { 0.1f, -1.f, 0.f } };
    for (const osg::Vec3f& normal : normals) {
        for (const osg::Vec3f& turn : { osg::Vec3f(0, 0, 0), osg::Vec3f(20, 70, 0) }) {
            const nbEdit edit(place, osg::Transform3D::PartsFieldMask);
            place->setRotation(turn);
            place->setScale(osg::Vec3f(4.f, 1.f, 0.5f));
            place->setMatrix(place->computeMatrix());
            ASSERT_TRUE(editor->setProjection(fresh));
            const auto side = [this](float x, float y) {
                osg::Vec3f world = direction(x, y, 0.f);
                object->getToWorld().multMatrixVec(world);
                return world;
            };
            const float width = side(1.f, 0.f).length();
            const float height = side(0.f, 1.f).length();
            placeTexture(object, osg::Pnt3f(1.f, 0.f, 0.f), normal);
            EXPECT_NEAR(side(1.f, 0.f).length(), width, 1e-4f) << normal;
            EXPECT_NEAR(side(0.f, 1.f).length(), height, 1e-4f) << normal;
            osg::Vec3f n = normal;
            n.normalize();
            osg::Vec3f up = osg::Vec3f(0.f, 1.f, 0.f) - n * n.y();
            if (up.length() < 0.3f) {
                up = osg::Vec3f(0.f, 0.f, n.y() < 0.f ? 1.f : -1.f);
            }
            up.normalize();
            const osg::Vec3f seen = side(0.f, 1.f) * (1.f / height);
            if (turn == osg::Vec3f()) {
                EXPECT_NEAR(seen.dot(up), 1.f, 0.02f) << normal;
            }
            EXPECT_NEAR(seen.dot(n), 0.f, 1e-4f) << normal;
        }
    }
}

TEST_F(nbMaterialEditorTest, PlacingNeedsAHitOnWhatIsEdited)
{
    const nbTransformState before = nbTransformState::of(*projection());
    const osg::NodeRefPtr other(osg::makeBox(1.f, 1.f, 1.f, 1, 1, 1));
    placeTexture(osg::NullFC, osg::Pnt3f(1.f, 1.f, 1.f), osg::Vec3f(1.f, 0.f, 0.f));
    placeTexture(other.get(), osg::Pnt3f(1.f, 1.f, 1.f), osg::Vec3f(1.f, 0.f, 0.f));
    EXPECT_TRUE(log.empty());
    nbtest::edited(place, osg::Transform3D::PartsFieldMask)->setScale(osg::Vec3f(1.f, 0.f, 1.f));
    placeTexture(object, osg::Pnt3f(1.f, 0.f, 1.f), osg::Vec3f(0.f, 1.f, 0.f));
    EXPECT_EQ(log.size(), 1u) << "a flat object";
    EXPECT_TRUE(before.isSame(nbTransformState::of(*projection())));

    osg::GeometryPtr::dcast(other->getCore())->setMaterial(material.get());
    placeTexture(other.get(), osg::Pnt3f(0.5f, 0.f, 0.f), osg::Vec3f(1.f, 0.f, 0.f));
    expectNear(projection()->getTranslation(), { 0.5f, 0.f, 0.f },
               "another geometry with the material, in its own space");
}

// == Edits by panels

TEST_F(nbMaterialEditorTest, APictureForAPlainComponentGetsAFittingProjection)
{
    material->setComponentSettings(kDiffuse, osg::NullFC);
    const osg::RefPtr<osg::ImagePtr> image(osg::Image::create());
    image->set(osg::Image::OSG_RGB_PF, 20, 10);
    EXPECT_FALSE(editor->setProjection(nbTransformState()));
    EXPECT_FALSE(editor->setFlags(0));
    EXPECT_FALSE(editor->setCoverage(true, true));
    nbtest::edited(place, osg::Transform3D::PartsFieldMask)
        ->setTranslation(osg::Vec3f(5.f, 0.f, 0.f));

    ASSERT_TRUE(editor->setImage(image.get()));

    EXPECT_TRUE(material->getImage(kDiffuse) == image.get());
    ASSERT_TRUE(editor->getProjection() != osg::NullFC);
    expectNear(editor->getProjection()->getTranslation(), { 0.f, 0.f, 1.f }, "on the front");
    expectNear(editor->getProjection()->getScale(), { 0.5f, 0.25f, 0.5f }, "half of the box");
    EXPECT_EQ(steps(), 1);
    ASSERT_TRUE(undo->undo());
    EXPECT_TRUE(material->getComponentNames().empty());
    ASSERT_TRUE(undo->redo());
    expectNear(editor->getProjection()->getScale(), { 0.5f, 0.25f, 0.5f }, "again");
    EXPECT_TRUE(material->getImage(kDiffuse) == image.get());
}

TEST_F(nbMaterialEditorTest, SettingsAreEditedWithUndo)
{
    setImage(20, 10);
    const osg::RefPtr<osg::ImagePtr> image(material->getImage(kDiffuse));

    EXPECT_TRUE(editor->setFlags(Settings::KeepAspectRatio | Settings::RepeatU));
    EXPECT_EQ(settings->getPlanarProjectionFlags(), Settings::KeepAspectRatio | Settings::RepeatU);
    expectNear(projection()->getScale(), { 1.f, 0.5f, 1.f }, "square pixels");
    EXPECT_TRUE(editor->setCoverage(true, true));
    EXPECT_TRUE(settings->getAsMask() && settings->getInvert());
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(editor->setImage(osg::NullFC));
        EXPECT_TRUE(editor->setCoverage(true, true));
        EXPECT_EQ(steps(), 3) << "nothing new";
    }
    nbTransformState broken = nbTransformState::of(*projection());
    broken.scale[1] = kNaN;
    EXPECT_FALSE(editor->setProjection(broken));
    while (undo->undo()) { }
    EXPECT_EQ(settings->getPlanarProjectionFlags(), 0u);
    EXPECT_FALSE(settings->getAsMask() || settings->getInvert());
    EXPECT_TRUE(material->getImage(kDiffuse) == image.get());
    expectNear(projection()->getScale(), { 1.f, 1.f, 1.f }, "as at the start");
}

// == The preview

TEST_F(nbMaterialEditorTest, PreviewPausesAndRefreshesOnceResumed)
{
    const auto enable = [](const boost::any& value) {
        nbMessage message;
        message.set("enabled", value, true);
        nbController::call("setMatRenderEnabled", message, 0);
    };
    int refreshes = 0;
    nbMaterialPreview preview;
    preview.setRefreshCallback([&] { ++refreshes; });
    nbMaterialPreview second;
    EXPECT_FALSE(preview.isPaused());

    enable(false);
    enable(false);
    EXPECT_TRUE(preview.isPaused());
    nbController::call("updateMatRender", 0);
    preview.refresh();
    EXPECT_EQ(refreshes, 0) << "paused";
    enable(true);
    EXPECT_EQ(refreshes, 1) << "what was owed";
    EXPECT_FALSE(preview.isPaused() || second.isPaused());
    nbController::call("updateMatRender", 0);
    EXPECT_EQ(refreshes, 2);
}
