// SPDX-License-Identifier: MIT
#include "tests/platform/nbMaterialEditor/EditorTest.h"
#include "tests/platform/support/Edited.h"

#include <nbMaterialEditor/nbPicturePlacing.h>

namespace {

using namespace editortest;

/// A picture of 64 x 32 on a box that is turned, and twice as long along its x.
class PicturePlacing : public EditorTest
{
protected:
    void SetUp() override
    {
        EditorTest::SetUp();
        nbtest::edited(place)->setScale(osg::Vec3f(2, 1, 1));
        nbtest::edited(place)->setRotation(osg::Vec3f(20, 30, 40));
        setImage(64, 32);
    }

    nbPicturePlacing placing() { return { *editor, object }; }

    /// Where a place of the object is in the planar picture, -1 to 1.
    osg::Vec3f inPicture(const osg::Vec3f& ofObject) const
    {
        osg::Matrix pictureFromObject;
        editor->getProjection()->getMatrix().inverse(pictureFromObject);
        osg::Pnt3f found(ofObject);
        pictureFromObject.multMatrixPnt(found);
        return found.subZero();
    }

    osg::Vec3f inWorld(osg::Vec3f ofObject, bool isPlace) const
    {
        if (isPlace) {
            osg::Pnt3f found(ofObject);
            object->getToWorld().multMatrixPnt(found);
            return found.subZero();
        }
        object->getToWorld().multMatrixVec(ofObject);
        return ofObject;
    }
};

TEST_F(PicturePlacing, CoversAFaceOrTheObjectInOneStep)
{
    const osg::Vec3f up = inWorld({ 0, 1, 0 }, false);
    ASSERT_TRUE(placing().fitToFace(osg::Pnt3f(inWorld({ 1, 0.3F, -0.2F }, true)), up));
    expectNear(inPicture({ 1, 1, -1 }), { 1, 1, 0 }, "corner of the face");
    expectNear(inPicture({ 1, -1, 1 }), { -1, -1, 0 }, "opposite one");
    EXPECT_EQ(steps(), 1);

    const osg::Vec3f before = inPicture({ 0, 0, 1 });
    ASSERT_TRUE(placing().turn(1));
    expectNear(inPicture({ 0, 0, 1 }), { before.y(), -before.x(), before.z() }, "turned");
    ASSERT_TRUE(placing().flip(0));
    expectNear(inPicture({ 0, 0, 1 }), { -before.y(), -before.x(), before.z() }, "flipped");
    ASSERT_TRUE(placing().alignTo(inWorld({ 0, 0, 1 }, false), up, up));
    ASSERT_TRUE(placing().fitToObject());
    expectNear(inPicture({ 1, 1, 1 }), { -1, 1, 0 }, "corner of the object");
    expectNear(inPicture({ -1, -1, -1 }), { 1, -1, -1 }, "the one behind");
    EXPECT_EQ(steps(), 5);
}

TEST_F(PicturePlacing, GivesPixelsTheSizeThatIsWantedInTheWorld)
{
    for (const auto type :
         { Settings::PlanarProjection, Settings::TriplanarProjection, Settings::UVProjection }) {
        nbtest::edited(settings.get())->setTextureProjectionType(type);
        ASSERT_TRUE(placing().setTexelsPerUnit({ 50, 20 }));
        const osg::Vec2f found = placing().getTexelsPerUnit();
        EXPECT_NEAR(found.x(), 50, 1e-3);
        EXPECT_NEAR(found.y(), 20, 1e-3);
    }
    nbtest::edited(settings.get())->setTextureProjectionType(Settings::PlanarProjection);
    // 64 pixels at 50 a unit are half of 1.28; the object doubles its x.
    EXPECT_NEAR(editor->getProjection()->getScale().x(), 0.32F, kTolerance);
    material->setImage(kDiffuse, {});
    EXPECT_FALSE(placing().setTexelsPerUnit({ 50, 50 }));
    EXPECT_FALSE(nbPicturePlacing(*editor, {}).fitToObject());
}

}  // namespace
