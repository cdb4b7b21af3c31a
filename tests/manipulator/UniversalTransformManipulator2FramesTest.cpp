// SPDX-License-Identifier: MIT
// Along which axes and about which point the transform gizmo works.
#include "tests/manipulator/support/HandleScene.h"
#include "tests/platform/support/Edited.h"

#include <nbTransform/nbTransformModel.h>

#include <OpenSG/OSGQuaternion.h>

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
            ASSERT_TRUE(drags.grab(kArrow));
            EXPECT_TRUE(drags.dragBy(Vec2f(60, 25)));
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
        ASSERT_TRUE(drags.grab(kRing));
        EXPECT_TRUE(drags.dragBy(Vec2f(-51, -22)));
        const float turnDeg = drags.core()->getRotation().z();
        EXPECT_GT(turnDeg, 30.0F);
        check(turnDeg, Vec3f(1, 1, 1));
        drags.activate(Mode::Scale);
        drags.gizmo.enableSnapping(true);
        ASSERT_TRUE(drags.grab(kScaleHandle));
        EXPECT_TRUE(drags.dragBy(Vec2f(75, 0)));
        expectNear(drags.core()->getScale(), Vec3f(2, 1, 1), "scale", kTolerance);
        check(0.0F, Vec3f(2, 1, 1));
        drags.look(Camera::Oblique, true);
        ASSERT_TRUE(drags.grab(Vec3f()));
        EXPECT_TRUE(drags.dragBy(Vec2f(0, -100)));
        expectNear(drags.core()->getScale(), Vec3f(1.2F, 1.2F, 1.2F), "scale", kTolerance);
        check(0.0F, Vec3f(1.2F, 1.2F, 1.2F));

        drags.look(Camera::Front, true);
        drags.activate(Mode::Translate);  // the gizmo goes along
        ASSERT_TRUE(drags.grab(kArrow));
        EXPECT_TRUE(drags.dragBy(Vec2f(150, 0)));
        const Vec3f moved = drags.core()->getTranslation();
        EXPECT_GT(moved.x(), 0.5F);
        expectNear(drags.onGizmo(Vec3f()).subZero(), row.point + moved, "the gizmo", kTolerance);
        EXPECT_TRUE(drags.release());
    }
}

}  // namespace

}  // namespace nbec::manipulator::test
