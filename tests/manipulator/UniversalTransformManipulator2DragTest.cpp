// SPDX-License-Identifier: MIT
// Drags of every handle with numbers worked out by hand; a unit of the gizmo is 48.5 (perspective)
// or 50 pixels (orthographic).
#include "tests/manipulator/support/HandleScene.h"
#include "tests/platform/support/Edited.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/ClipPlane3D.h>

#include <iterator>

namespace nbec::manipulator::test {

namespace {

using Mode = UniversalTransformManipulator2::ManipulatorMode;

constexpr float kTolerance = 2e-4F;
constexpr float kRadiansPerDegree = 0.0174532925F;
constexpr bool kWorld = false;
constexpr bool kLocal = true;
constexpr bool kPerspective = false;
constexpr bool kOrthographic = true;

/// Where the node stands: all rotations turn by 90 degrees about z.
enum class Setting
{
    Plain,
    TurnedNode,  ///< and scaled by 2
    TurnedParent,  ///< and scaled by 2
    MirroredParent
};

struct DragRow
{
    const char* name;
    Mode mode;
    Camera camera;
    bool orthographic;
    bool local;
    Setting setting;
    Vec3f grab;  ///< in gizmo units
    Vec2f offsetPx;
    Vec3f translation;
    Vec3f rotation;
    Vec3f scale;
};

const Vec3f kNone(0, 0, 0);
const Vec3f kOne(1, 1, 1);
const Vec3f kTwo(2, 2, 2);
const Vec3f kQuarterTurn(0, 0, 90);

// clang-format off
const DragRow kDragRows[] = {
    // Rings, from the point at 45 degrees on screen, 73 or 75 pixels from the centre, to the one above or beside the centre.
    { "z", Mode::Rotate, Camera::Front, kPerspective, kWorld, Setting::Plain, { kDiagonal, kDiagonal, 0 }, { -51, -22 }, kNone, { 0, 0, 45 }, kOne },
    { "x", Mode::Rotate, Camera::Side, kPerspective, kWorld, Setting::Plain, { 0, kDiagonal, -kDiagonal }, { -51, -22 }, kNone, { 45, 0, 0 }, kOne },
    { "y", Mode::Universal, Camera::Top, kPerspective, kWorld, Setting::Plain, { kDiagonal, 0, -kDiagonal }, { -51, -22 }, kNone, { 0, 45, 0 }, kOne },
    { "z orthographic, turned node", Mode::TranslateRotate, Camera::Front, kOrthographic, kWorld, Setting::TurnedNode, { kDiagonal, kDiagonal, 0 }, { -53, -22 }, kNone, { 0, 0, 135 }, kTwo },
    { "y orthographic, local, turned node", Mode::Rotate, Camera::Side, kOrthographic, kLocal, Setting::TurnedNode, { kDiagonal, 0, -kDiagonal }, { 22, 53 }, kNone, { 0, 45, 90 }, kTwo },
    { "x local, turned parent", Mode::Rotate, Camera::Top, kPerspective, kLocal, Setting::TurnedParent, { 0, -kDiagonal, -kDiagonal }, { 22, 51 }, kNone, { -45, 0, 0 }, kOne },
    { "x world, turned parent", Mode::TranslateRotateScale, Camera::Side, kPerspective, kWorld, Setting::TurnedParent, { 0, kDiagonal, -kDiagonal }, { -51, -22 }, kNone, { 0, -45, 0 }, kOne },
    { "z below a mirrored parent, 45 in the world", Mode::Rotate, Camera::Front, kPerspective, kWorld, Setting::MirroredParent, { kDiagonal, kDiagonal, 0 }, { -51, -22 }, kNone, { 0, 0, -45 }, kOne },
    { "z world, turned parent", Mode::TranslateRotateYZ, Camera::Front, kPerspective, kWorld, Setting::TurnedParent, { kDiagonal, kDiagonal, 0 }, { -51, -22 }, kNone, { 0, 0, 45 }, kOne },
    // Scale handles: a box is 73 or 75 pixels from the centre; 97 or 100 pixels are two gizmo units.
    { "x", Mode::Scale, Camera::Front, kPerspective, kWorld, Setting::Plain, { 1.5F, 0, 0 }, { 73, 20 }, kNone, kNone, { 2, 1, 1 } },
    { "y", Mode::Scale, Camera::Front, kPerspective, kWorld, Setting::Plain, { 0, 1.5F, 0 }, { 20, -73 }, kNone, kNone, { 1, 2, 1 } },
    { "z", Mode::Scale, Camera::Side, kPerspective, kWorld, Setting::Plain, { 0, 0, 1.5F }, { -73, 4 }, kNone, kNone, { 1, 1, 2 } },
    { "x orthographic, turned node", Mode::Scale, Camera::Front, kOrthographic, kWorld, Setting::TurnedNode, { 1.5F, 0, 0 }, { 0, -75 }, kNone, kQuarterTurn, { 4, 2, 2 } },
    { "z orthographic, turned parent", Mode::Scale, Camera::Top, kOrthographic, kLocal, Setting::TurnedParent, { 0, 0, 1.5F }, { 0, 150 }, kNone, kNone, { 1, 1, 3 } },
    { "x to the far side", Mode::Scale, Camera::Front, kPerspective, kWorld, Setting::Plain, { 1.5F, 0, 0 }, { -160, 0 }, kNone, kNone, { 0.01F, 1, 1 } },
    { "uniform up", Mode::Scale, Camera::Oblique, kPerspective, kWorld, Setting::Plain, kNone, { 30, -97 }, kNone, kNone, { 1.2F, 1.2F, 1.2F } },
    { "uniform down", Mode::Scale, Camera::Oblique, kOrthographic, kWorld, Setting::TurnedNode, kNone, { 30, 100 }, kNone, kQuarterTurn, { 1.6F, 1.6F, 1.6F } },
    { "uniform to its least", Mode::Scale, Camera::Oblique, kOrthographic, kWorld, Setting::TurnedParent, kNone, { 0, 600 }, kNone, kNone, { 0.1F, 0.1F, 0.1F } },
};

// clang-format on

/// Offset by which a ring that was grabbed at 45 degrees is turned: far out on the ray through its
/// centre, where whole pixels are fine enough.
Vec2f turnedBy(float degrees)
{
    const float angle = (45.0F + degrees) * kRadiansPerDegree;
    return { 250.0F * std::cos(angle) - 51.0F, 51.0F - 250.0F * std::sin(angle) };
}

}  // namespace

TEST(Drags, EndWhereItWasWorkedOut)
{
    for (const DragRow& row : kDragRows) {
        SCOPED_TRACE(row.name);
        DragScene drags;
        UniversalTransformManipulator2::setLocalSpaceManipulator(row.local);
        const auto turnAndScale = [](const osg::Transform3DPtr& transform) {
            transform->setRotation(kQuarterTurn);
            transform->setScale(kTwo);
        };
        if (row.setting == Setting::TurnedNode) {
            drags.edit(drags.core(), turnAndScale);
        } else if (row.setting == Setting::TurnedParent) {
            drags.edit(drags.parentCore(), turnAndScale);
        } else if (row.setting == Setting::MirroredParent) {
            drags.edit(drags.parentCore(), [](const auto& of) { of->setScale(Vec3f(-1, 1, 1)); });
        }
        drags.activate(row.mode);
        drags.look(row.camera, row.orthographic);

        ASSERT_TRUE(drags.drag(row.grab, row.offsetPx));
        EXPECT_TRUE(drags.release());
        expectNear(drags.core()->getTranslation(), row.translation, "translation");
        expectNear(drags.core()->getRotation(), row.rotation, "rotation", 0.01F);
        expectNear(drags.core()->getScale(), row.scale, "scale", 2e-3F);
    }
}

TEST(Drags, UniformFactorGrowsUpTheScreenWhereZIsUp)
{
    DragScene drags;
    drags.activate(Mode::Scale);
    const osg::UberCameraPtr camera = drags.scene.widget.getUberCamera();
    nbtest::edited(camera)->setZUp(true);
    camera->setFromAtUp(Pnt3f(0, -10, 0), Pnt3f(0, 0, 0), Vec3f(0, 0, 1));
    UniversalTransformManipulator2::updateAllManipulators();
    ASSERT_TRUE(drags.drag(kNone, Vec2f(0, -97)));
    expectNear(drags.core()->getScale(), Vec3f(1.2F, 1.2F, 1.2F), "scale", 2e-3F);
}

TEST(Drags, TinyScenesAreDraggedAsLargeOnes)
{
    constexpr float kTiny = 1e-6F;
    for (const bool isLocal : { kWorld, kLocal }) {
        for (const bool isParentTiny : { false, true }) {
            DragScene drags;
            UniversalTransformManipulator2::setLocalSpaceManipulator(isLocal);
            drags.scene.lookFrom(Pnt3f(0, 0, 10 * kTiny));
            const Pnt3f corner(kTiny, kTiny, kTiny);
            drags.scene.widget.getUberCamera()->setNearFarFromBounds(Pnt3f(corner * -1.0F), corner);
            drags.edit(isParentTiny ? drags.parentCore() : drags.core(),
                       [](const osg::Transform3DPtr& core) {
                           core->setScale(Vec3f(kTiny, kTiny, kTiny));
                       });
            const float unit = isParentTiny ? 1.0F : kTiny;
            drags.activate(Mode::Universal);
            ASSERT_TRUE(drags.drag(kArrow, Vec2f(72, 0)));
            EXPECT_NEAR(drags.core()->getTranslation().x() / unit, kStep, 2e-3F);
            EXPECT_TRUE(drags.dragBy(Vec2f()));
            EXPECT_TRUE(drags.release());
            ASSERT_TRUE(drags.drag(kRing, Vec2f(-51, -22)));
            EXPECT_NEAR(drags.core()->getRotation().z(), 45, 0.1F);
            EXPECT_TRUE(drags.dragBy(Vec2f()));
            EXPECT_TRUE(drags.release());
            ASSERT_TRUE(drags.drag(kScaleHandle, Vec2f(73, 0)));
            EXPECT_NEAR(drags.core()->getScale().x() / unit, 2, 0.01F);
        }
    }
}

TEST(Drags, ScaleHandlesLieAlongTheNodesOwnAxesInEveryMode)
{
    for (const Mode mode : { Mode::Universal, Mode::TranslateRotateScale, Mode::Scale }) {
        DragScene drags;
        drags.edit(drags.core(), [](const osg::Transform3DPtr& core) {
            core->setRotation(Vec3f(0, 0, 50));
            core->setRotationOrientation(
                osg::Quaternion(Vec3f(0, 0, 1), -20.0F * kRadiansPerDegree));
        });
        drags.activate(mode);
        const float cosine = std::cos(30.0F * kRadiansPerDegree);
        const Vec3f own(cosine, 0.5F, 0);
        ASSERT_TRUE(drags.grabAt("xsShape", Pnt3f(own * (1.5F * kUnit))));
        EXPECT_TRUE(drags.dragBy(Vec2f(73 * cosine, -36.5F)));
        expectNear(drags.core()->getScale(), Vec3f(2, 1, 1), "scale", 0.02F);
    }
}

TEST(Drags, ARingTurnsByWhatIsSweptAlongItAtEveryTilt)
{
    for (const bool isOrthographic : { false, true }) {
        for (const float tiltDeg : { 10.0F, 50.0F, 65.0F, 75.0F, 85.0F }) {
            DragScene drags;
            drags.activate(Mode::Rotate);
            drags.look(Camera::Front, isOrthographic);
            const float tilt = tiltDeg * kRadiansPerDegree;
            drags.scene.lookFrom(Pnt3f(0, -10.0F * std::sin(tilt), 10.0F * std::cos(tilt)));
            drags.gizmo.update(true);
            const auto point = [](int degrees) {
                const float angle = (static_cast<float>(degrees) - 60.0F) * kRadiansPerDegree;
                return Vec3f(1.5F * std::cos(angle), 1.5F * std::sin(angle), 0);
            };
            const auto goTo = [&](int degrees) {
                return drags.scene.send("process", drags.rayPixelOf(drags.onGizmo(point(degrees))));
            };
            const auto turned = [&] { return drags.core()->getRotation().z(); };
            ASSERT_TRUE(drags.grab(point(0)));
            for (int degrees = 1; degrees <= 360; ++degrees) {
                ASSERT_TRUE(goTo(degrees));
                if (degrees % 90 == 0) {
                    EXPECT_NEAR(turned(), degrees, 4) << tiltDeg << ' ' << isOrthographic;
                }
            }
            for (int degrees = 359; degrees >= 0; --degrees) {
                ASSERT_TRUE(goTo(degrees));
            }
            ASSERT_TRUE(drags.stepTo(Vec2f()));
            EXPECT_EQ(turned(), 0) << tiltDeg << ' ' << isOrthographic;
            ASSERT_TRUE(drags.stepTo(Vec2f(-90, -300)) && drags.stepTo(Vec2f()));
            EXPECT_NEAR(std::remainder(turned(), 360), 0, 1e-3) << "over the ring and back";
        }
    }
}

TEST(Drags, AClipPlaneIsMovedByItsTransformNode)
{
    DragScene drags;
    osg::ClipPlane3DPtr plane;
    const osg::NodePtr cut = osg::makeCoredNode<osg::ClipPlane3D>(&plane);
    addChild(nbScenegraph::getRootNode(), cut);
    nbtest::edited(plane)->setTransformNode(drags.scene.node);
    drags.gizmo.setNode(cut);
    drags.activate(Mode::Clipping);
    ASSERT_TRUE(drags.drag(Vec3f(1.9F, 0, 0), Vec2f(72, 0)));
    expectNear(drags.core()->getTranslation(), Vec3f(kStep, 0, 0), "translation");
}

// == Pivots

TEST(PivotDrags, MoveThePivotAndLeaveTheObject)
{
    for (const bool local : { false, true }) {
        for (const Mode mode : { Mode::RotatePivot, Mode::ScalePivot }) {
            DragScene drags;
            UniversalTransformManipulator2::setLocalSpaceManipulator(local);
            drags.edit(drags.parentCore(), [](const osg::Transform3DPtr& parent) {
                parent->setScale(kTwo);
                parent->setRotation(Vec3f(0, 0, 30));
            });
            drags.edit(drags.core(), [](const osg::Transform3DPtr& core) {
                core->setRotation(Vec3f(0, 0, 60));
                core->setScale(Vec3f(1, 3, 2));
            });
            drags.activate(mode);
            drags.gizmo.enableSnapping(true);  // pivots never snap
            const osg::Matrix before = drags.scene.node->getToWorld();
            // The gizmo's x axis is the world's, or the node's: 90 degrees further on screen.
            ASSERT_TRUE(drags.drag(Vec3f(1.9F, 0, 0), local ? Vec2f(0, -36) : Vec2f(36, 0)));
            EXPECT_TRUE(drags.release());
            EXPECT_LT(greatestDifference(before, drags.scene.node->getToWorld()), 1e-5F);
            const Pnt3f expected = local ? Pnt3f(0, kStep / 2, 0) : Pnt3f(kStep / 2, 0, 0);
            EXPECT_LT((drags.onGizmo(kNone) - expected).length(), kTolerance)
                << "local " << local << " mode " << static_cast<int>(mode);
        }
    }
}

TEST(PivotDrags, TurnThePivotAndLeaveTheObject)
{
    for (const auto rotationMode : { osg::Transform3D::EulerMode, osg::Transform3D::QuaternionMode,
                                     osg::Transform3D::AxisAlignedMode }) {
        DragScene drags;
        drags.edit(drags.core(), [&](const osg::Transform3DPtr& core) {
            core->setRotation(Vec3f(0, 0, 20));
            core->setRotationMode(rotationMode);
            core->setRotationQuaternion(core->getRotationAsQuaternion());
            core->setTranslation(Vec3f(0, 0, 0));
            core->setScale(Vec3f(1, 3, 2));
        });
        drags.edit(drags.core(), [](const osg::Transform3DPtr& core) {
            core->setRotationQuaternion(osg::Quaternion(Vec3f(0, 0, 1), 20.0F * kRadiansPerDegree));
        });
        drags.activate(Mode::RotatePivot);
        const osg::Matrix before = drags.scene.node->getToWorld();
        ASSERT_TRUE(drags.drag(Vec3f(kDiagonal, kDiagonal, 0), Vec2f(-51, -22)));
        EXPECT_TRUE(drags.release());
        EXPECT_LT(greatestDifference(before, drags.scene.node->getToWorld()), 1e-5F);
        expectNear(drags.core()->getRotation(), Vec3f(0, 0, 65), "pivot", 0.01F);
    }
}

TEST(PivotDrags, AnglesGoOnFromWhereTheyWere)
{
    for (const Mode mode : { Mode::RotatePivot, Mode::Rotate }) {
        for (const auto rotation :
             { osg::Transform3D::EulerMode, osg::Transform3D::QuaternionMode }) {
            DragScene drags;
            drags.edit(drags.core(), [&](const osg::Transform3DPtr& core) {
                core->setRotation(Vec3f(0, 80, 0));
                if (rotation == osg::Transform3D::QuaternionMode) {
                    core->setRotation(core->getRotationAsQuaternion());
                }
            });
            drags.activate(mode);
            drags.look(Camera::Top, false);
            ASSERT_TRUE(drags.drag(Vec3f(kDiagonal, 0, kDiagonal), Vec2f(22, -51)));
            if (mode == Mode::Rotate) {
                EXPECT_EQ(HandleScene::texts(), Names { "Rotation (0.00, 125.00, 0.00)" });
            }
            if (rotation == osg::Transform3D::EulerMode) {
                expectNear(drags.core()->getRotation(), Vec3f(0, 125, 0), "angles", 0.01F);
            }
        }
    }
}

TEST(Drags, RingsOfAnAxisAlignedNodeTurnAboutItsParentsAxes)
{
    DragScene drags;
    UniversalTransformManipulator2::setLocalSpaceManipulator(true);
    drags.edit(drags.core(), [](const osg::Transform3DPtr& core) {
        core->setRotation(kQuarterTurn);
        core->setRotationMode(osg::Transform3D::AxisAlignedMode);
    });
    drags.activate(Mode::Rotate);
    drags.look(Camera::Side, false);
    ASSERT_TRUE(drags.grabAt("rxShape", Pnt3f(Vec3f(0, kDiagonal, -kDiagonal) * kUnit)));
    EXPECT_TRUE(drags.dragBy(Vec2f(-51, -22)));
    const osg::Matrix placed = drags.scene.node->getToWorld();
    expectNear(Vec3f(placed[1][0], placed[1][1], placed[1][2]), Vec3f(-1, 0, 0), "stays");
    expectNear(Vec3f(placed[0][0], placed[0][1], placed[0][2]),
               Vec3f(0, std::sqrt(0.5F), std::sqrt(0.5F)), "turns", 1e-3F);
}

// == Snapping

TEST(SnappingDrags, RotationGathersSmallSteps)
{
    DragScene drags;
    drags.activate(Mode::Rotate);
    drags.gizmo.enableSnapping(true);
    ASSERT_TRUE(drags.grab(Vec3f(kDiagonal, kDiagonal, 0)));
    const float reached[] = { 0, 15, 15, 30, 15 };
    const float pointerDeg[] = { 5, 10, 15, 20, 12 };
    for (std::size_t i = 0; i < std::size(reached); ++i) {
        EXPECT_TRUE(drags.stepTo(turnedBy(pointerDeg[i])));
        EXPECT_NEAR(drags.core()->getRotation().z(), reached[i], 1e-3F) << "step " << i;
    }
}

TEST(SnappingDrags, TheExactRuleTurnsByWhatIsSweptAndKeepsAScale)
{
    DragScene drags;
    drags.activate(Mode::Rotate);
    drags.gizmo.enableSnapping(true);
    drags.gizmo.setSnapRule(UniversalTransformManipulator2::SnapRule::Exact);
    ASSERT_TRUE(drags.grab(Vec3f(kDiagonal, kDiagonal, 0)));
    for (int i = 1; i <= 180; ++i) {
        const int pointerDeg = i <= 90 ? i : 180 - i;
        EXPECT_TRUE(drags.stepTo(turnedBy(static_cast<float>(pointerDeg))));
        EXPECT_NEAR(drags.core()->getRotation().z(), pointerDeg, 8) << "step " << i;
        if (i % 90 == 0) {
            EXPECT_NEAR(drags.core()->getRotation().z(), pointerDeg, 1e-3F) << "step " << i;
        }
    }
    EXPECT_TRUE(drags.release());

    drags.activate(Mode::Scale);
    drags.edit(drags.core(),
               [](const osg::Transform3DPtr& core) { core->setScale(Vec3f(-1, 1, 1)); });
    ASSERT_TRUE(drags.grabAt("xsShape", drags.onGizmo(Vec3f(1.5F, 0, 0))));
    EXPECT_TRUE(drags.stepTo(Vec2f(71, 0)));  // 2 / 73 = 0.027
    expectNear(drags.core()->getScale(), Vec3f(-0.1F, 1, 1), "one step", 1e-6F);
}

TEST(SnappingDrags, TranslationsAndScalesEndOnMultiples)
{
    DragScene drags;
    drags.activate(Mode::Universal);
    drags.gizmo.setManipulatorMode("precisionTool");
    ASSERT_TRUE(drags.drag(Vec3f(1.9F, 0, 0), Vec2f(36, 0)));
    EXPECT_EQ(drags.core()->getTranslation(), kNone);  // 0.497 units
    EXPECT_TRUE(drags.dragBy(Vec2f(37, 0)));
    expectNear(drags.core()->getTranslation(), Vec3f(1, 0, 0), "just past the half", 1e-6F);
    EXPECT_TRUE(drags.dragBy(Vec2f(-110, 0)));
    expectNear(drags.core()->getTranslation(), Vec3f(-2, 0, 0), "back past -1.5", 1e-6F);
    EXPECT_TRUE(drags.dragBy(Vec2f(0, 0)));
    EXPECT_TRUE(drags.release());

    drags.gizmo.setManipulatorMode("tool");
    drags.gizmo.enableSnapping(true);
    ASSERT_TRUE(drags.drag(Vec3f(1.5F, 0, 0), Vec2f(20, 0)));  // factor 93 / 73 = 1.274
    expectNear(drags.core()->getScale(), Vec3f(1.3F, 1, 1), "scale", 1e-6F);
    EXPECT_TRUE(drags.dragBy(Vec2f(-71, 0)));  // 2 / 73 = 0.027
    expectNear(drags.core()->getScale(), Vec3f(0, 1, 1), "scale", 1e-6F);
}

}  // namespace nbec::manipulator::test
