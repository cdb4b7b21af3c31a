// SPDX-License-Identifier: MIT
// Snapping to the grid, to absolute angles and to places on the geometry under the pointer.
#include "tests/manipulator/support/HandleScene.h"
#include "tests/platform/support/Edited.h"

#include <nbInteraction/SnapSearch.h>

#include <OpenSG/OSGGeometry.h>

namespace nbec::manipulator::test {

namespace {

using interaction::SnapSearch;
using Mode = UniversalTransformManipulator2::ManipulatorMode;

constexpr float kTolerance = 1e-4F;
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
        ASSERT_TRUE(drags.grab(kPlaneXY));
        EXPECT_TRUE(drags.dragBy(Vec2f(70, -130)));
        EXPECT_TRUE(drags.release());
        expectNear(place(), Vec3f(1, 2, 0.1F), "translation", kTolerance);
        const Vec3f before = place();
        ASSERT_TRUE(drags.grab(kArrow));
        EXPECT_TRUE(drags.dragBy(Vec2f(-180, 40)));
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
    const struct
    {
        SnapSearch::Kind kind;
        Pnt3f pointed;
        Pnt3f target;
    } rows[] = {
        { SnapSearch::Vertex, { 2.05F, 1.05F, 1 }, { 2, 1, 1 } },
        { SnapSearch::EdgeMiddle, { 2.05F, 2, 1 }, { 2, 2, 1 } },
        { SnapSearch::Edge, { 1.95F, 1.4F, 1 }, { 2, 1.4F, 1 } },
        { SnapSearch::Face, { 2.6F, 1.4F, 1 }, { 2.6F, 1.4F, 1 } },
        { SnapSearch::Centre, { 3.05F, 2, 0 }, { 3, 2, 0 } },
        { SnapSearch::Pivot, { 3.05F, 2, 0 }, { 3, 2, 0 } },
    };

    for (const auto& row : rows) {
        SCOPED_TRACE(row.kind);
        const float tolerance = row.kind == SnapSearch::Edge || row.kind == SnapSearch::Face
            ? 0.02F  // a pixel
            : kTolerance;
        drags.gizmo.setSnapping({ false, row.kind });
        ASSERT_TRUE(drags.grab(kPlaneXY));
        EXPECT_TRUE(stepOver(row.pointed));
        expectNear(place(), Vec3f(row.target.x(), row.target.y(), 0), "in the plane", tolerance);
        Pnt3f marked;
        EXPECT_GT(markLength(marked), 0.1F);
        expectNear(marked.subZero(), row.target.subZero(), "the mark", tolerance);
        goBack();
        EXPECT_EQ(markLength(marked), 0.0F);
        ASSERT_TRUE(drags.grab(kArrow));
        EXPECT_TRUE(stepOver(row.pointed));
        expectNear(place(), Vec3f(row.target.x(), 0, 0), "along the arrow", tolerance);
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
