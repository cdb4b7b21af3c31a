// SPDX-License-Identifier: MIT
// Along which axes and about which point the transform gizmo works.
#include "tests/manipulator/support/HandleScene.h"
#include "tests/platform/support/Edited.h"

#include <nbTransform/nbTransformModel.h>

namespace nbec::manipulator::test {

namespace {

using Gizmo = UniversalTransformManipulator2;
using Axes = Gizmo::GizmoAxes;
using Pivot = Gizmo::GizmoPivot;
using Mode = Gizmo::ManipulatorMode;

constexpr float kTolerance = 1e-4F;
constexpr float kRadPerDeg = 0.0174532925F;

TEST(GizmoFrames, ArrowsRingsAndPivotsFollowTheChosenAxes)
{
    const float sine = std::sin(30 * kRadPerDeg);
    const float cosine = std::cos(30 * kRadPerDeg);
    osg::Quaternion aboutZ;
    aboutZ.setValueAsAxisDeg(0, 0, 1, 30);
    const float viewLength = std::sqrt(40.0F);

    const struct
    {
        const char* name;
        Axes axes;
        osg::Quaternion given;
        Vec3f x;  ///< in the world
    } rows[] = {
        { "world", Axes::World, {}, { 1, 0, 0 } },
        { "own", Axes::Own, {}, { -sine, cosine, 0 } },
        { "parent", Axes::Parent, {}, { cosine, sine, 0 } },
        { "view", Axes::View, {}, { 6 / viewLength, 0, -2 / viewLength } },
        { "given", Axes::Given, aboutZ.inverse(), { cosine, -sine, 0 } },
        { "face", Axes::Given, Gizmo::axesOfFace(Vec3f(0, 0, -3)), { -1, 0, 0 } },
        { "floor", Axes::Given, Gizmo::axesOfFace(Vec3f(0, 1, 0)), { 1, 0, 0 } },
    };

    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        DragScene drags;
        drags.edit(drags.parentCore(),
                   [](const auto& core) { core->setRotation(Vec3f(0, 0, 30)); });
        drags.edit(drags.core(), [](const auto& core) { core->setRotation(Vec3f(0, 0, 90)); });
        drags.look(Camera::Oblique, false);
        drags.gizmo.setAxes(row.axes, row.given);
        for (const Mode mode : { Mode::Translate, Mode::RotatePivot }) {
            drags.activate(mode);
            const auto read = mode == Mode::Translate ? &nbTransformModel::getTranslation
                                                      : &nbTransformModel::getRotationPivot;
            const Vec3f before = read(drags.scene.node, true);
            ASSERT_TRUE(drags.drag(kArrow, Vec2f(60, 25)));
            EXPECT_TRUE(drags.release());
            const Vec3f moved = read(drags.scene.node, true) - before;
            EXPECT_GT(moved.length(), 0.1F);
            EXPECT_NEAR(moved.cross(row.x).length(), 0.0F, 1e-3F * moved.length());
        }
        drags.activate(Mode::Rotate);
        ASSERT_TRUE(drags.grab(Vec3f(0, kDiagonal, kDiagonal)));  // x ring
        const osg::Matrix before = drags.scene.node->getToWorld();
        EXPECT_TRUE(drags.dragBy(Vec2f(20, 20)));
        Vec3f turned = row.x;
        Vec3f kept = row.x;
        osg::Matrix worldToNode;
        before.inverse(worldToNode);
        worldToNode.multMatrixVec(turned);
        drags.scene.node->getToWorld().multMatrixVec(turned);
        EXPECT_GT(greatestDifference(before, drags.scene.node->getToWorld()), 0.03F);
        expectNear(turned, kept, "the ring's axis", 1e-3F);
        EXPECT_TRUE(drags.release());
    }
}

TEST(GizmoFrames, NodesTurnAndScaleAboutTheChosenPoint)
{
    const struct
    {
        const char* name;
        Pivot pivot;
        Vec3f point;
    } rows[] = {
        { "own", Pivot::Own, { 0, 0, 0 } },
        { "first", Pivot::First, { 0, 0, 0 } },
        { "common", Pivot::Common, { 1.5F, 1, 0 } },
        { "given", Pivot::Given, { -1, 0.5F, 0 } },
    };

    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        DragScene drags;
        const osg::NodePtr nodes[] = { drags.scene.node, drags.addFurther(Vec3f(3, 2, 0)) };
        drags.look(Camera::Front, true);
        drags.gizmo.setNode(nodes[0], { nodes[1] });
        drags.gizmo.setPivot(row.pivot, Pnt3f(row.point));
        drags.gizmo.setPivot(Pivot::Given, Pnt3f(NAN, 0, 0));  // changes nothing, as no axes do
        drags.gizmo.setAxes(Axes::Given, osg::Quaternion(Vec3f(NAN, 0, 0), 1));
        expectNear(drags.onGizmo(Vec3f()).subZero(), row.point, "the gizmo", kTolerance);
        const auto check = [&](float turnDeg, const Vec3f& factors) {
            for (const osg::NodePtr& node : nodes) {
                const Vec3f place = node == nodes[0] ? Vec3f() : Vec3f(3, 2, 0);
                Vec3f arm = place - row.point;
                for (osg::UInt32 i = 0; i < 3; ++i) {
                    arm[i] *= factors[i];
                }
                const float sine = std::sin(turnDeg * kRadPerDeg);
                const float cosine = std::cos(turnDeg * kRadPerDeg);
                const Vec3f turned(arm.x() * cosine - arm.y() * sine,
                                   arm.x() * sine + arm.y() * cosine, 0);
                expectNear(transformOf(node)->getTranslation(),
                           row.pivot == Pivot::Own ? place : row.point + turned, "place",
                           kTolerance);
            }
            expectNear(drags.onGizmo(Vec3f()).subZero(), row.point, "the gizmo", kTolerance);
            EXPECT_TRUE(drags.gizmo.cancelDrag());
            expectNear(transformOf(nodes[1])->getTranslation(), Vec3f(3, 2, 0), "taken back", 0.0F);
        };
        drags.activate(Mode::Rotate);
        ASSERT_TRUE(drags.drag(kRing, Vec2f(-51, -22)));
        const float turnDeg = drags.core()->getRotation().z();
        EXPECT_GT(turnDeg, 30.0F);
        check(turnDeg, Vec3f(1, 1, 1));
        drags.activate(Mode::Scale);
        drags.gizmo.enableSnapping(true);
        ASSERT_TRUE(drags.drag(kScaleHandle, Vec2f(75, 0)));
        expectNear(drags.core()->getScale(), Vec3f(2, 1, 1), "scale", kTolerance);
        check(0.0F, Vec3f(2, 1, 1));
        drags.look(Camera::Oblique, true);
        ASSERT_TRUE(drags.drag(Vec3f(), Vec2f(0, -100)));
        expectNear(drags.core()->getScale(), Vec3f(1.2F, 1.2F, 1.2F), "scale", kTolerance);
        check(0.0F, Vec3f(1.2F, 1.2F, 1.2F));

        drags.look(Camera::Front, true);
        drags.activate(Mode::Translate);  // the gizmo goes along
        ASSERT_TRUE(drags.drag(kArrow, Vec2f(150, 0)));
        const Vec3f moved = drags.core()->getTranslation();
        EXPECT_GT(moved.x(), 0.5F);
        expectNear(drags.onGizmo(Vec3f()).subZero(), row.point + moved, "the gizmo", kTolerance);
        EXPECT_TRUE(drags.release());
    }
}

using interaction::SnapSearch;

const Vec3f kPlaneXY(0.25F, 0.25F, 0);

class Snapping : public testing::Test
{
protected:
    Snapping()
    {
        other = drags.addFurther(Vec3f(3, 2, 0));  // from (2, 1, -1) to (4, 3, 1)
        drags.look(Camera::Front, false);
        drags.gizmo.enableSnapping(true);
    }

    bool stepOver(const Pnt3f& world, const Vec2f& besidePx = Vec2f())
    {
        return drags.scene.send("process", drags.scene.pixelOf(world) + besidePx);
    }

    Vec3f place() const { return drags.core()->getTranslation(); }

    /// Lets go and goes back to where the first drag began.
    void goBack()
    {
        drags.release();
        drags.edit(drags.core(), [](const auto& core) { core->setTranslation(Vec3f()); });
    }

    /// Length of the cross that marks the place, 0 if it is hidden. @param center  its middle
    float markLength(Pnt3f& center) const
    {
        const osg::NodePtr holder = drags.gizmo.getVisualisation()->getChild(2);
        if (holder->getNChildren() == 0 || !isShown(holder->getChild(0))) {
            return 0.0F;
        }
        const auto positions = osg::GeoPositions3fPtr::dcast(
            osg::GeometryPtr::dcast(holder->getChild(0)->getCore())->getPositions());
        const Vec3f line = positions->getField()[1] - positions->getField()[0];
        center = positions->getField()[0] + line * 0.5F;
        return line.length();
    }

    mutable DragScene drags;
    osg::NodePtr other;
};

TEST_F(Snapping, AbsoluteGridTakesEachAxisOfAPlaneByItself)
{
    drags.gizmo.setSnapping({ true });
    for (const bool isLocal : { false, true }) {
        UniversalTransformManipulator2::setLocalSpaceManipulator(isLocal);
        drags.edit(drags.core(), [](const auto& core) {
            core->setTranslation(Vec3f(0.3F, 0.2F, 0.1F));
            core->setRotation(Vec3f(0, 0, 90));
        });
        ASSERT_TRUE(drags.drag(kPlaneXY, Vec2f(70, -130)));
        EXPECT_TRUE(drags.release());
        expectNear(place(), Vec3f(1, 2, 0.1F), "translation", kTolerance);
        const Vec3f before = place();
        ASSERT_TRUE(drags.drag(kArrow, Vec2f(-180, 40)));
        EXPECT_TRUE(drags.gizmo.cancelDrag());
        expectNear(place(), before, "taken back", 0.0F);
    }
}

TEST_F(Snapping, AbsoluteAnglesCountFromTheNodeWithoutRotation)
{
    drags.gizmo.setSnapping({ true });
    drags.edit(drags.core(), [](const auto& core) { core->setRotation(Vec3f(0, 0, 20)); });
    drags.activate(Mode::Rotate);
    ASSERT_TRUE(drags.grab(kRing));
    EXPECT_TRUE(drags.stepTo(Vec2f(-51, -22)));  // 45 degrees on
    EXPECT_TRUE(drags.release());
    expectNear(drags.core()->getRotation(), Vec3f(0, 0, 60), "rotation", 0.01F);
}

TEST_F(Snapping, GeometryUnderThePointerTakesTheGizmosCentreToIt)
{
    const std::tuple<SnapSearch::Kind, Pnt3f, Pnt3f> rows[] = {
        { SnapSearch::Vertex, { 2.05F, 1.05F, 1 }, { 2, 1, 1 } },
        { SnapSearch::EdgeMiddle, { 2.05F, 2, 1 }, { 2, 2, 1 } },
        { SnapSearch::Edge, { 1.95F, 1.4F, 1 }, { 2, 1.4F, 1 } },
        { SnapSearch::Face, { 2.6F, 1.4F, 1 }, { 2.6F, 1.4F, 1 } },
        { SnapSearch::Centre, { 3.05F, 2, 0 }, { 3, 2, 0 } },
        { SnapSearch::Pivot, { 3.05F, 2, 0 }, { 3, 2, 0 } },
    };

    for (const auto& [kind, pointed, target] : rows) {
        SCOPED_TRACE(kind);
        const float tolerance = kind == SnapSearch::Edge || kind == SnapSearch::Face
            ? 0.02F  // a pixel
            : kTolerance;
        drags.gizmo.setSnapping({ false, kind });
        ASSERT_TRUE(drags.grab(kPlaneXY));
        EXPECT_TRUE(stepOver(pointed));
        expectNear(place(), Vec3f(target.x(), target.y(), 0), "in the plane", tolerance);
        Pnt3f marked;
        EXPECT_GT(markLength(marked), 0.1F);
        expectNear(marked.subZero(), target.subZero(), "the mark", tolerance);
        goBack();
        EXPECT_EQ(markLength(marked), 0.0F);
        ASSERT_TRUE(drags.grab(kArrow));
        EXPECT_TRUE(stepOver(pointed));
        expectNear(place(), Vec3f(target.x(), 0, 0), "along the arrow", tolerance);
        EXPECT_TRUE(drags.gizmo.cancelDrag());
        expectNear(place(), Vec3f(), "taken back", 0.0F);
    }
}

TEST_F(Snapping, PointsGoBeforeEdgesBeforeFacesAndAreLeftLate)
{
    const unsigned all = SnapSearch::Vertex | SnapSearch::Edge | SnapSearch::Face;
    drags.gizmo.setSnapping({ false, all, 10.0F });
    const Pnt3f corner(2, 1, 1);
    ASSERT_TRUE(drags.grab(kPlaneXY));
    EXPECT_TRUE(stepOver(corner, Vec2f(12, 12)));
    EXPECT_GT(place().x(), 2.05F) << "the face";
    EXPECT_TRUE(stepOver(corner, Vec2f(5, -12)));
    EXPECT_NEAR(place().x(), 2.0F, kTolerance) << "the edge";
    EXPECT_GT(place().y(), 1.1F);
    EXPECT_TRUE(stepOver(corner, Vec2f(5, -5)));
    expectNear(place(), Vec3f(2, 1, 0), "the corner", kTolerance);
    EXPECT_TRUE(stepOver(corner, Vec2f(5, -12)));
    expectNear(place(), Vec3f(2, 1, 0), "the corner still", kTolerance);
    EXPECT_TRUE(stepOver(corner, Vec2f(5, -20)));
    EXPECT_GT(place().y(), 1.1F);
    EXPECT_TRUE(stepOver(corner, Vec2f(12, -30)));
    EXPECT_NEAR(place().x(), 2.0F, kTolerance) << "the edge still";
    EXPECT_TRUE(stepOver(corner, Vec2f(25, -30)));
    EXPECT_GT(place().x(), 2.1F);
}

TEST_F(Snapping, NothingIsItsOwnTargetButAPivotGoesToItsObject)
{
    drags.gizmo.setSnapping({ false, SnapSearch::Vertex | SnapSearch::Edge });
    const Pnt3f ownCorner(1, 1, 1);
    ASSERT_TRUE(drags.grab(kArrow));
    EXPECT_TRUE(stepOver(ownCorner));
    expectNear(place(), Vec3f(), "a fifth of a step", 0.0F);
    EXPECT_TRUE(stepOver(Pnt3f(2.9F, 1.9F, 1)));
    EXPECT_NEAR(std::remainder(place().x(), 1.0F), 0.0F, kTolerance) << "no diagonal of a face";
    goBack();
    drags.activate(Mode::RotatePivot);
    ASSERT_TRUE(drags.grab(kPlaneXY));
    EXPECT_TRUE(stepOver(ownCorner));
    EXPECT_TRUE(drags.release());
    expectNear(drags.core()->getRotatePivot(), Vec3f(1, 1, 0), "pivot", kTolerance);
    EXPECT_FALSE(drags.gizmo.cancelDrag());
}

}  // namespace
}  // namespace nbec::manipulator::test
