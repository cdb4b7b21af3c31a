// SPDX-License-Identifier: MIT

#include <nbOpenSGExt/ClipPlane3D.h>

#include <OpenSG/OSGIntersectAction.h>
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGSwitch.h>

#include <cmath>
#include <limits>
#include <random>

#include "PickerTestSupport.h"

namespace {

constexpr float kTolerance = 1e-4f;

class PickerScene : public PickerTest
{
protected:
    osg::NodePtr scene = nbScenegraph::getRootNode();
};

void expectNear(const osg::Vec3f& actual, const osg::Vec3f& expected, float tolerance = kTolerance)
{
    EXPECT_LE((actual - expected).length(), tolerance) << actual << " instead of " << expected;
}

/// Turn by degrees about an axis, after a scale.
osg::Matrix turnedAndScaled(const osg::Vec3f& axis, float deg, const osg::Vec3f& scale)
{
    osg::Quaternion turn;
    turn.setValueAsAxisDeg(axis, deg);
    osg::Matrix matrix;
    matrix.setTransform(osg::Vec3f(), turn, scale);
    return matrix;
}

TEST_F(PickerScene, WhatIsNotSeenOrAuxiliaryIsPassedThrough)
{
    const osg::NodePtr behind = box(2.0f);
    const osg::NodePtr front = box(2.0f);
    const osg::NodePtr frontParent = placed(0.0f, 0.0f, 3.0f, front);
    hang(scene, behind);
    hang(scene, frontParent);
    ASSERT_EQ(pickAt(400.0f, 300.0f), front);

    setActive(frontParent, false);
    EXPECT_EQ(pickAt(400.0f, 300.0f), behind);
    setActive(frontParent, true);
    EXPECT_EQ(pickAt(400.0f, 300.0f), front);
    nbNodeUtils::setIsAuxiliaryNode(frontParent, true);
    EXPECT_EQ(pickAt(400.0f, 300.0f), behind);
    const osg::SwitchPtr chooser = osg::Switch::create();
    chooser->setChoice(0);
    const osg::NodePtr group = osg::makeNodeFor(chooser);
    hang(group, front);
    hang(group, behind);
    hang(scene, group);
    EXPECT_EQ(pickAt(400.0f, 300.0f), front);
    nbtest::edited(chooser, osg::Switch::ChoiceFieldMask)->setChoice(1);
    EXPECT_EQ(pickAt(400.0f, 300.0f), behind);

    // The internal root is auxiliary, the pick node plays no role.
    const osg::NodePtr helper = placed(0.0f, 0.0f, 5.0f, box(2.0f));
    hang(nbScenegraph::getInternalRoot(), helper);
    picker.setPickNode(helper);
    EXPECT_EQ(pickAt(400.0f, 300.0f), behind);
}

TEST_F(PickerScene, EditsShowAtTheNextPick)
{
    const osg::NodePtr ball = osg::makeSphere(3, 1.0f);
    const osg::NodePtr parent = placed(0.0f, 0.0f, 0.0f, ball);
    hang(scene, parent);
    nbec::interaction::Picker::buildTrees(scene);
    ASSERT_EQ(pickAt(400.0f, 300.0f), ball);

    osg::Matrix matrix;
    matrix.setTranslate(3.0f, 0.0f, 0.0f);
    setMatrix(parent, matrix);
    EXPECT_EQ(pickAt(400.0f, 300.0f), osg::NullFC);
    EXPECT_EQ(pickAt(490.0f, 300.0f), ball);

    // The first edit of the positions rebuilds the tree, the further ones refit it.
    for (int step = 1; step <= 3; ++step) {
        nbtest::changePoints(ball,
                             [](const osg::Pnt3f& p) { return p + osg::Vec3f(0.0f, 2.5f, 0.0f); });
        const float y = 300.0f - 75.0f * static_cast<float>(step);
        EXPECT_EQ(pickAt(490.0f, y), ball) << step;
        EXPECT_EQ(pickAt(490.0f, y + 75.0f), osg::NullFC) << step;
    }

    // Fewer triangles: only the first one is left.
    const auto lengths = osg::GeometryPtr::dcast(ball->getCore())->getLengths();
    nbtest::edited(lengths)->setValue(3, 0);
    EXPECT_EQ(pickAt(490.0f, 75.0f), osg::NullFC);
}

TEST_F(PickerScene, NormalIsUnitAndPerpendicularUnderScaleTurnAndMirror)
{
    const osg::Vec3f scales[] = { { 2.0f, 0.5f, 3.0f }, { -2.0f, 0.5f, 3.0f } };
    for (const osg::Vec3f& scale : scales) {
        const osg::NodePtr cube = box(1.0f);
        const osg::NodePtr parent =
            placed(turnedAndScaled({ 0.0f, 1.0f, 0.0f }, 30.0f, scale), cube);
        hang(scene, parent);
        ASSERT_EQ(pickAt(400.0f, 300.0f), cube);

        // The face z = 0.5 of the cube, turned by 30 degrees about y: it faces the eye whether
        // mirrored or not.
        expectNear(picker.getHitNormal(), { 0.5f, 0.0f, std::sqrt(0.75f) });
        scene->subChild(parent);
    }
}

TEST_F(PickerScene, NormalOfASmoothMeshIsMixedFromThatOfItsVertices)
{
    // Few triangles, and many, for which there is a tree; turned and scaled.
    for (const osg::UInt16 depth : { 0, 2 }) {
        const osg::NodePtr sphere = osg::makeSphere(depth, 1.0f);
        const osg::Vec3f scale(2.0f, 0.5f, 1.0f);
        const osg::NodePtr parent =
            placed(turnedAndScaled({ 0.0f, 1.0f, 0.0f }, 30.0f, scale), sphere);
        hang(scene, parent);
        osg::Vec3f last;
        for (int x = 380; x < 420; ++x) {
            ASSERT_EQ(pickAt(static_cast<float>(x), 295.0f), sphere);
            const osg::Vec3f normal = picker.getHitNormal();
            EXPECT_NEAR(normal.length(), 1.0f, 1e-5f);
            EXPECT_TRUE(x == 380 || (normal - last).length() < 0.03f) << x << ' ' << depth;
            last = normal;
        }
        scene->subChild(parent);
    }
}

TEST_F(PickerScene, MissesAndDestroyedNodesLeaveNoHitData)
{
    const osg::NodePtr cube = box(2.0f);
    hang(scene, cube);
    const osg::Pnt2f misses[] = { { 100.0f, 100.0f }, { -1.0f, 300.0f }, { 800.0f, 300.0f } };
    for (const osg::Pnt2f& miss : misses) {
        ASSERT_NE(pickAt(400.0f, 300.0f), osg::NullFC);
        EXPECT_EQ(picker.pickAt(miss), osg::NullFC) << miss;
        EXPECT_EQ(picker.getHitNode(), osg::NullFC);
        EXPECT_EQ(picker.getHitNormal(), osg::Vec3f());
    }
    const osg::NodePtr behind = placed(0.0f, 0.0f, -3.0f, box(3.0f));
    hang(scene, behind);
    ASSERT_EQ(pickAt(400.0f, 300.0f), cube);
    scene->subChild(cube);
    EXPECT_EQ(picker.getHitNode(), osg::NullFC);
    EXPECT_EQ(pickAt(400.0f, 300.0f), behind->getChild(0));
}

TEST_F(PickerScene, BrokenGeometryIsPassedThrough)
{
    const osg::NodePtr ball = osg::makeSphere(3, 1.0f);
    const osg::NodePtr behind = placed(0.0f, 0.0f, -4.0f, box(2.0f));
    hang(scene, ball);
    hang(scene, behind);
    ASSERT_EQ(pickAt(400.0f, 300.0f), ball);
    const float kNaN = std::numeric_limits<float>::quiet_NaN();
    nbtest::changePoints(ball, [kNaN](const auto&) { return osg::Pnt3f(kNaN, kNaN, kNaN); });
    EXPECT_EQ(pickAt(400.0f, 300.0f), behind->getChild(0));

    // A matrix that flattens everything to nothing.
    setMatrix(behind, turnedAndScaled({ 0.0f, 1.0f, 0.0f }, 0.0f, { 0.0f, 0.0f, 0.0f }));
    EXPECT_EQ(pickAt(400.0f, 300.0f), osg::NullFC);
}

TEST_F(PickerScene, RaysThatAreNotFiniteOrComeFromTooFarHitNothing)
{
    // Many triangles, and many items: both have search trees.
    for (int i = 0; i < 8; ++i) {
        hang(scene, osg::makeSphere(3, 1.0f));
    }
    ASSERT_NE(pickAt(400.0f, 300.0f), osg::NullFC);
    const osg::UberCameraPtr camera = widget.getUberCamera();
    for (const float nearest : { 1e19f, 1.0f }) {
        nbtest::edited(camera)->setNear(nearest);
        nbtest::edited(camera)->setFar(nearest * 100.0f);
        EXPECT_EQ(pickAt(400.0f, 300.0f) == osg::NullFC, nearest > 1e18f);
    }
    // The world's ray is as usual, that in the frame of a sphere pressed flat is not.
    camera->setFromAtUp({ 10.0f, 0.0f, 0.0f }, {}, { 0.0f, 1.0f, 0.0f });
    const osg::Matrix flat = turnedAndScaled({ 0.0f, 1.0f, 0.0f }, 0.0f, { 1e-25f, 1.0f, 1.0f });
    hang(scene, placed(3.0f, 0.0f, 0.0f, placed(flat, osg::makeSphere(3, 1.0f))));
    EXPECT_EQ(pickAt(400.0f, 300.0f)->getParent(), scene);
}

TEST_F(PickerScene, TreesOfAnyDepthArePicked)
{
    const osg::NodePtr cube = box(2.0f);
    osg::NodePtr top = cube;
    for (int i = 0; i < 100000; ++i) {
        top = placed(osg::Matrix(), top);
    }
    hang(scene, top);
    EXPECT_EQ(pickAt(400.0f, 300.0f), cube);
    nbNodeUtils::setName(cube, "cube");  // compares the tree with what was noted of it
    EXPECT_EQ(nameAt(400.0f, 300.0f), "cube");
    // From below, because a real OpenSG destroys trees by recursion.
    for (osg::NodePtr at = cube; at != top;) {
        const osg::NodePtr leaf = at;
        at = leaf->getParent();
        at->subChild(leaf);
    }
}

TEST_F(PickerScene, AgreesWithTheSceneGraphsOwnActionOnARandomScene)
{
    std::mt19937 random(20240501);
    std::uniform_real_distribution<float> unit(-1.0f, 1.0f);
    osg::NodePtr shape;
    for (int i = 0; i < 60; ++i) {
        // Every fourth one shares the core of the one before.
        shape = i % 4 == 3 ? osg::makeNodeFor(shape->getCore())
            : i % 3 == 0   ? box(1.0f)
            : i % 3 == 1   ? osg::makeSphere(2, 0.6f)
                           : osg::makeTorus(0.2f, 0.6f, 8, 16);
        osg::Matrix matrix =
            turnedAndScaled({ unit(random), unit(random), 1.0f }, 180.0f * unit(random),
                            { 1.5f + unit(random), 1.5f + unit(random), 1.0f });
        matrix.setTranslate(8.0f * unit(random), 6.0f * unit(random), 4.0f * unit(random));
        hang(scene, placed(matrix, shape));
    }
    const std::unique_ptr<osg::IntersectAction> action(osg::IntersectAction::create());
    int hits = 0;
    for (int i = 0; i < 2000; ++i) {
        const float x = std::floor(400.0f + 400.0f * unit(random) * 0.99f);
        const float y = std::floor(300.0f + 300.0f * unit(random) * 0.99f);
        // Through the pixel's centre in the plane at depth 10.
        const osg::Pnt3f eye(0.0f, 0.0f, 10.0f);
        action->setLine(
            osg::Line(eye, osg::Pnt3f((x + 0.5f - 400.0f) / 30.0f, (299.5f - y) / 30.0f, 0.0f)));
        action->apply(scene);
        const osg::NodePtr expected = action->didHit() ? action->getHitObject() : osg::NodePtr();

        ASSERT_EQ(pickAt(x, y), expected) << x << ", " << y;
        if (expected != osg::NullFC) {
            ++hits;
            expectNear(picker.getHitPoint().subZero(), action->getHitPoint().subZero(), 2e-3f);
            EXPECT_NEAR(picker.getHitNormal().length(), 1.0f, 1e-5f);
        }
    }
    EXPECT_GT(hits, 500);
}

TEST_F(PickerScene, RectangleTakesWhatLiesWhollyInside)
{
    // In the plane z = 0: from 370 to 430 pixels, its front at depth 9.5 a little larger.
    const osg::NodePtr centre = box(1.0f);
    const osg::NodePtr right = box(1.0f);
    const osg::NodePtr hidden = box(1.0f);
    const osg::NodePtr helper = box(1.0f);
    const osg::NodePtr behindEye = box(1.0f);
    hang(scene, centre);
    hang(scene, placed(5.0f, 0.0f, 0.0f, right));
    hang(scene, placed(0.0f, 0.0f, -5.0f, hidden));
    hang(scene, placed(0.0f, 0.0f, 30.0f, behindEye));
    hang(scene, helper);
    nbNodeUtils::setIsAuxiliaryNode(helper, true);
    // Half a unit at depth 9.5: 15.8 pixels.
    using Nodes = std::vector<osg::NodePtr>;

    EXPECT_EQ(picker.pickRectangle({ 384, 284, 32, 32 }), (Nodes { centre, hidden }));
    EXPECT_EQ(picker.pickRectangle({ 385, 284, 31, 32 }), Nodes { hidden });
    EXPECT_EQ(picker.pickRectangle(QRect(QPoint(415, 315), QPoint(384, 284))),
              (Nodes { centre, hidden }));
    EXPECT_EQ(picker.pickRectangle({ 0, 0, 800, 600 }), (Nodes { centre, right, hidden }));
    EXPECT_EQ(picker.pickRectangle({ 400, 300, 0, 0 }), Nodes {});
    setActive(right, false);
    EXPECT_EQ(picker.pickRectangle({ 500, 200, 200, 200 }), Nodes {});
}

/// A clip plane whose frame is a transform node of its own cuts away what has x below the frame's
/// origin, from one item and from many.
TEST_F(PickerScene, WhatIsCutAwayIsPassedThrough)
{
    osg::ClipPlane3DPtr plane;
    const osg::NodePtr cut = osg::makeCoredNode<osg::ClipPlane3D>(&plane);
    const osg::NodePtr frame = placed(0.0f, 0.0f, 0.0f, osg::makeCoredNode<osg::Group>());
    hang(scene, frame);
    hang(scene, cut);
    nbtest::edited(plane)->setEquation(osg::Vec4f(1.0f, 0.0f, 0.0f, 0.0f));
    nbtest::edited(plane)->setTransformNode(frame);
    const osg::NodePtr cube = box(4.0f);
    hang(cut, cube);
    EXPECT_EQ(pickAt(380.0f, 300.0f), osg::NullFC);

    nbtest::edited(plane, osg::ClipPlane3D::EnableFieldMask)->setEnable(false);
    EXPECT_EQ(pickAt(380.0f, 300.0f), cube);
    nbtest::edited(plane, osg::ClipPlane3D::EnableFieldMask)->setEnable(true);
    EXPECT_EQ(pickAt(380.0f, 300.0f), osg::NullFC);
    hang(scene, cube);
    EXPECT_EQ(pickAt(380.0f, 300.0f), cube);

    scene->subChild(cube);
    std::vector<osg::NodePtr> cubes;
    for (int i = -4; i <= 4; ++i) {
        cubes.push_back(box(0.8f));
        hang(cut, placed(static_cast<float>(i), 0.0f, 0.0f, cubes.back()));
    }
    EXPECT_EQ(pickAt(400.0f + 60.0f, 300.0f), cubes[6]);
    EXPECT_EQ(pickAt(400.0f - 60.0f, 300.0f), osg::NullFC);
    // A rectangle takes what is seen of them.
    EXPECT_EQ(picker.pickRectangle(QRect(0, 0, 800, 600)).size(), 5U);
}

}  // namespace
