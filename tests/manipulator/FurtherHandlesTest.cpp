// SPDX-License-Identifier: MIT
// Handles of the transform gizmo that a host adds: along the screen, about the view axis, free, and
// in two axes; and handles on the viewer's side.
#include "manipulator/course/DragControl.h"
#include "manipulator/drag/DragGeometry.h"
#include "tests/manipulator/support/AnyManipulator.h"
#include "tests/manipulator/support/HandleScene.h"

#include <cmath>

namespace nbec::manipulator::test {

namespace {

using Mode = Transform::ManipulatorMode;

const Pnt3f kEyes[] = { { 4, 5, 9 }, { 0, 0, 10 }, { 10, 0, 0 }, { -6, 2, -7 } };

}  // namespace

class FurtherHandles : public AnyManipulator<Transform>
{
protected:
    FurtherHandles()
    {
        nbtest::edited(transform())->setRotation(Vec3f(10, 20, 30));
        gizmo->setFurtherHandles({ true, true, true, true });
        gizmo->addDragListener([this](const DragEvent& event) { last = event; });
    }

    osg::Transform3DPtr transform() { return transformOf(stage.firstNode()); }

    osg::Matrix toWorld() { return stage.firstNode()->getToWorld(); }

    /// Drags a handle from every side. @param check  gets the world matrix at the start
    template <class Check>
    void dragFromEverySide(const char* name, const Check& check)
    {
        for (const Pnt3f& eye : kEyes) {
            for (const bool isOrthographic : { false, true }) {
                SCOPED_TRACE(testing::Message() << name << " from " << eye.x() << ' ' << eye.y()
                                                << ' ' << eye.z() << ' ' << isOrthographic);
                look(eye, isOrthographic);
                Transform::updateAllManipulators();
                const osg::Matrix before = toWorld();
                ASSERT_TRUE(press(name));
                const Pnt2f from = pointer;
                ASSERT_TRUE(say("process"));
                point(from + Vec2f(40, -25));
                ASSERT_TRUE(say("process"));
                check(before, from);
                ASSERT_TRUE(gizmo->cancelDrag());
                EXPECT_TRUE(toWorld() == before) << "taken back to the bit";
            }
        }
        look(kEyes[0]);
    }

    /// Axis and angle of the turn that the node has made since it had a world matrix.
    std::pair<Vec3f, float> turnSince(const osg::Matrix& before)
    {
        osg::Quaternion turn(orthonormalised(toWorld()));
        turn.mult(osg::Quaternion(orthonormalised(before)).inverse());
        std::pair<Vec3f, float> found;
        turn.getValueAsAxisRad(found.first, found.second);
        return found;
    }

    DragEvent last;
};

TEST_F(FurtherHandles, AreNotThereBeforeAHostAsks)
{
    drop();
    equipNew();
    EXPECT_EQ(node("vaShape"), osg::NullFC);
    EXPECT_FALSE(gizmo->setHandleVisible("rtShape", false));
    gizmo->setFurtherHandles({ false, true });
    EXPECT_FALSE(hover("vaShape"));
    gizmo->activateRotateManipulator();
    EXPECT_TRUE(hover("rvShape"));
    EXPECT_FALSE(hover("rtShape"));
    gizmo->setFurtherHandles({});
    EXPECT_FALSE(hover("rvShape"));
}

TEST_F(FurtherHandles, TheCentreFollowsThePointerInThePlaneOfTheScreen)
{
    dragFromEverySide("vaShape", [this](const osg::Matrix& before, const Pnt2f& from) {
        const View view;
        const Vec3f way = column(toWorld(), 3) - column(before, 3);
        const Vec2f seen =
            view.project(Pnt3f(column(toWorld(), 3))) - view.project(Pnt3f(column(before, 3)));
        EXPECT_NEAR(way.dot(view.sight()), 0.0F, 1e-3F * way.length());
        EXPECT_NEAR(seen.x(), pointer.x() - from.x(), 1.5F);
        EXPECT_NEAR(seen.y(), from.y() - pointer.y(), 1.5F);
        EXPECT_EQ(gizmo->getReadout().count(QLatin1String("right, up")), 1);
    });
}

TEST_F(FurtherHandles, TheOuterRingTurnsAboutTheViewAxis)
{
    gizmo->activateRotateManipulator();
    dragFromEverySide("rvShape", [this](const osg::Matrix& before, const Pnt2f& from) {
        const View view;
        const auto [axis, angle] = turnSince(before);
        EXPECT_NEAR(std::abs(axis.dot(view.sight())), 1.0F, 2e-3F);
        const Vec2f centre = view.project(Pnt3f(column(before, 3)));
        const auto angleOf = [&](const Pnt2f& px) {
            return std::atan2(static_cast<float>(view.getHeight()) - px.y() - centre.y(),
                              px.x() - centre.x());
        };
        const float swept = std::remainder(angleOf(pointer) - angleOf(from), 6.2831853F);
        const float turned = angle * (axis.dot(view.sight()) < 0 ? 1.0F : -1.0F);
        EXPECT_NEAR(std::remainder(turned - swept, 6.2831853F), 0.0F, 0.03F);
        gizmo->typeKey(QLatin1Char('9'));
        gizmo->typeKey(QLatin1Char('0'));
        EXPECT_NEAR(turnSince(before).second, 1.5707963F, 1e-3F);
    });
}

TEST_F(FurtherHandles, TheTrackballRollsWithThePointerWhereNothingElseIsHit)
{
    gizmo->activateRotateManipulator();
    ASSERT_TRUE(hover("rxShape")) << "over the disc";
    dragFromEverySide("rtShape", [this](const osg::Matrix& before, const Pnt2f&) {
        const View view;
        const auto [axis, angle] = turnSince(before);
        // Rolled to the right by 40 and up by 25 pixels.
        Vec3f expected = rotated(view.facing(), Vec3f(-25, 40, 0));
        expected.normalize();
        EXPECT_NEAR(axis.dot(expected), 1.0F, 5e-3F);
        EXPECT_GT(angle, 0.1F);
        EXPECT_GT(last.parameters.values[1], 0.0);
        for (const char key : { '0', '\t', '4', '5' }) {
            EXPECT_TRUE(gizmo->typeKey(QLatin1Char(key)));
        }
        const auto [typedAxis, typedAngle] = turnSince(before);
        EXPECT_NEAR(typedAngle, 0.7853982F, 1e-3F);
        EXPECT_NEAR(typedAxis.dot(rotated(view.facing(), Vec3f(0, 1, 0))), 1.0F, 1e-3F);
    });
    ASSERT_TRUE(press("rtShape"));
    EXPECT_TRUE(gizmo->typeKey(QLatin1Char('y')));
    EXPECT_TRUE(gizmo->typeKey(QLatin1Char('5')));
    EXPECT_EQ(last.handleName, "ryShape") << "goes on about an axis";
    say("stop");
}

TEST_F(FurtherHandles, PlanesOfModeScaleScaleAlongTwoAxes)
{
    gizmo->activateScaleManipulator();
    const Vec3f start = transform()->getScale();
    look(kEyes[0]);
    const char* const names[] = { "yzsShape", "xzsShape", "xysShape" };
    for (osg::UInt32 normal = 0; normal < 3; ++normal) {
        Transform::updateAllManipulators();
        ASSERT_TRUE(press(names[normal]));
        ASSERT_TRUE(say("process") && gizmo->typeKey(QLatin1Char('2')));
        for (osg::UInt32 i = 0; i < 3; ++i) {
            EXPECT_FLOAT_EQ(transform()->getScale()[i], start[i] * (i == normal ? 1.0F : 2.0F));
        }
        EXPECT_EQ(gizmo->getReadout().count(QLatin1String("x 2.00 (2.00, 2.00)")), 1);
        ASSERT_TRUE(gizmo->cancelDrag());
        EXPECT_EQ(transform()->getScale(), start);
    }
    // What is grabbed stays under the pointer.
    ASSERT_TRUE(press("xysShape"));
    const Pnt2f from = pointer;
    const Vec2f centre = View().project(Pnt3f(column(toWorld(), 3)));
    const Vec2f arm(from.x() - centre.x(),
                    static_cast<float>(View().getHeight()) - from.y() - centre.y());
    say("process");
    point(from + Vec2f(arm.x(), -arm.y()));
    say("process");
    EXPECT_NEAR(last.parameters.values[0], 2.0, 0.25) << "in perspective";
    say("stop");
}

TEST_F(FurtherHandles, HandlesStandOnTheViewersSideButForWhatIsHeld)
{
    gizmo->setFurtherHandles({ false, false, false, true, true });
    gizmo->activateTranslateRotateScaleManipulator();
    Transform::setLocalSpaceManipulator(true);
    for (const Pnt3f& eye :
         { Pnt3f(5, 6, 7), Pnt3f(-5, 6, -7), Pnt3f(-5, -6, -7), Pnt3f(5, -6, 7) }) {
        look(eye);
        gizmo->update(false);
        const Pnt3f centre(
            column(gizmo->getVisualisation()->getChild(3)->getChild(0)->getToWorld(), 3));
        const Vec3f away = View().sightAt(centre);
        for (const char* const name : { "xaShape", "yaShape", "zaShape", "xyaShape", "xzaShape",
                                        "yzaShape", "xsShape", "zsShape" }) {
            const osg::NodePtr part = partsOf(node(name)).back();
            const auto positions = osg::GeometryPtr::dcast(part->getCore())->getPositions();
            Vec3f middle;
            for (osg::UInt32 i = 0; i < positions->getSize(); ++i) {
                Pnt3f place = positions->getValue(i);
                part->getToWorld().multMatrixPnt(place);
                middle += place - centre;
            }
            middle.normalize();
            EXPECT_LE(middle.dot(away), 1e-3F) << name << " from " << eye.x() << ' ' << eye.y();
        }
    }
    const auto along = [this] { return unitVector(column(node("xaShape")->getToWorld(), 1)); };
    const Vec3f own = unitVector(column(toWorld(), 0));
    look(Pnt3f(9, 3, 3));
    gizmo->update(false);
    ASSERT_TRUE(press("xaShape") && say("process"));
    look(Pnt3f(-9, 3, 3));
    Transform::updateAllManipulators();
    EXPECT_NEAR(along().dot(own), 1.0F, 1e-4F);
    say("stop");
    EXPECT_NEAR(along().dot(own), -1.0F, 1e-4F);
    gizmo->setFurtherHandles({});
    EXPECT_NEAR(along().dot(own), 1.0F, 1e-4F) << "along its axis as ever";
    Transform::setLocalSpaceManipulator(false);
}

TEST_F(FurtherHandles, TheReadoutSaysWhatComesOfIt)
{
    nbtest::edited(transform())->setTranslation(Vec3f(3, 0, 0));
    look(kEyes[0]);
    const auto typed = [this](const char* name, const char* keys) {
        gizmo->update(true);
        EXPECT_TRUE(press(name) && say("process")) << name;
        for (; *keys != 0; ++keys) {
            gizmo->typeKey(QLatin1Char(*keys));
        }
        const QString text = gizmo->getReadout();
        gizmo->cancelDrag();
        return text.mid(text.indexOf(QLatin1Char('=')) + 2).toStdString();
    };
    EXPECT_EQ(typed("xaShape", "1.5"), "+1.50 along x (x 4.50)");
    gizmo->activateRotateManipulator();
    EXPECT_EQ(typed("rvShape", "765"), "765.0 = 2 x 360 + 45.0 deg");
    nbtest::edited(transform())->setRotation(Vec3f(0, 0, 30));
    EXPECT_EQ(typed("rzShape", "-405"), "-405.0 = -1 x 360 - 45.0 deg (-375.0 deg)");
    gizmo->activateUniversalManipulator();
    gizmo->setReadoutShown(true, 1.0F);
    ASSERT_TRUE(press("yaShape") && say("process"));
    for (const Pnt2f& px : { Pnt2f(799, 300), Pnt2f(400, 599), Pnt2f(900, 700), Pnt2f(-90, -9) }) {
        point(px);
        EXPECT_TRUE(say("process"));
        EXPECT_EQ(HandleScene::texts().size(), 1U) << "in the view at its edges";
    }
    gizmo->cancelDrag();
}

}  // namespace nbec::manipulator::test
