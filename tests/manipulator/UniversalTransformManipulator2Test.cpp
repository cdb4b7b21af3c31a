// SPDX-License-Identifier: MIT
#include "manipulator/UniversalTransformManipulator2.h"

#include "tests/manipulator/support/GizmoFixture.h"
#include "tests/platform/support/Edited.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGChangeCount.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace nbec::manipulator::test {

namespace {

using Gizmo = UniversalTransformManipulator2;
using Mode = Gizmo::ManipulatorMode;

}  // namespace

TEST_F(UniversalTransformManipulator2Test, EachModeShowsItsFamilies)
{
    const std::set<std::string> arrows = { "xaShape", "yaShape", "zaShape" };
    const std::set<std::string> planes = { "xyaShape", "xzaShape", "yzaShape" };
    const std::set<std::string> rings = { "rxShape", "ryShape", "rzShape" };
    const std::set<std::string> scales = { "xsShape", "ysShape", "zsShape" };
    const auto join = [](std::initializer_list<std::set<std::string>> sets) {
        std::set<std::string> all;
        for (const auto& set : sets) {
            all.insert(set.begin(), set.end());
        }
        return all;
    };

    struct Row
    {
        void (Gizmo::*activate)();
        Mode mode;
        std::set<std::string> shown;
        bool sphere, cube;
    };

    const std::vector<Row> rows = {
        { &Gizmo::activateUniversalManipulator, Mode::Universal,
          join({ arrows, planes, rings, scales, { "grid" } }), false, false },
        { &Gizmo::activateTranslateManipulator, Mode::Translate, join({ arrows, planes }), false,
          false },
        { &Gizmo::activateScaleManipulator, Mode::Scale, join({ scales, { "grid" } }), false,
          false },
        { &Gizmo::activateRotateManipulator, Mode::Rotate, rings, false, false },
        { &Gizmo::activateRotatePivotManipulator, Mode::RotatePivot,
          join({ arrows, planes, rings }), true, false },
        { &Gizmo::activateScalePivotManipulator, Mode::ScalePivot, join({ arrows, planes }), false,
          true },
        { &Gizmo::activateClippingManipulator, Mode::Clipping, join({ arrows, planes, rings }),
          false, false },
        { &Gizmo::activateTranslateRotateManipulator, Mode::TranslateRotate,
          join({ arrows, planes, rings }), false, false },
        { &Gizmo::activateTranslateRotateYZManipulator, Mode::TranslateRotateYZ,
          join({ arrows, planes, { "ryShape", "rzShape" } }), false, false },
        { &Gizmo::activateTranslateRotateScaleManipulator, Mode::TranslateRotateScale,
          join({ arrows, planes, rings, scales }), false, false },
    };
    EXPECT_EQ(gizmo.getMode(), Mode::Translate) << "after construction";
    const osg::NodePtr tree = root()->getChild(3)->getChild(0);
    const osg::NodePtr copy = root()->getChild(1)->getChild(0);
    for (const Row& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.mode));
        (gizmo.*row.activate)();
        EXPECT_EQ(gizmo.getMode(), row.mode);
        EXPECT_EQ(shownHandles(), row.shown);
        const osg::UInt32 last = tree->getNChildren() - 1;
        EXPECT_EQ(tree->getChild(last - 1)->getActive(), row.sphere);
        EXPECT_EQ(tree->getChild(last)->getActive(), row.cube);
        for (osg::UInt32 i = 0; i <= last; ++i) {
            EXPECT_EQ(copy->getChild(i)->getActive(), tree->getChild(i)->getActive());
        }
        EXPECT_FALSE(isShown(partsOf(handle("rxShape"))[1]))
            << "a ring's axis shows in its drag only";
    }
}

TEST_F(UniversalTransformManipulator2Test, KeepsItsSizeOnScreen)
{
    const auto scaleOf = [this] {
        return transformOf(root()->getChild(3)->getChild(0))->getScale();
    };
    gizmo.update(true);
    EXPECT_NEAR(scaleOf().x(), kScaleAtTen, 1e-6F);

    scene.lookFrom(osg::Pnt3f(0, 0, 20));
    gizmo.update(false);
    EXPECT_NEAR(scaleOf().x(), kScaleAtTen, 1e-6F) << "update(false) does not look at the camera";
    Gizmo::updateAllManipulators();
    EXPECT_NEAR(scaleOf().x(), 2 * kScaleAtTen, 1e-6F);

    scene.setOrthographic(true);
    Gizmo::updateAllManipulators();
    const double height = 2 * 20 * std::tan(22.5 * 3.14159265358979 / 180);
    const double width = height * 800 / 600;
    EXPECT_NEAR(scaleOf().y(), std::sqrt(width * width + height * height) / 20, 1e-4);
}

TEST_F(UniversalTransformManipulator2Test, IsPlacedWithAllOthersWhateverHappenedBetween)
{
    const osg::NodePtr tree = root()->getChild(3)->getChild(0);
    const osg::NodePtr elsewhere = osg::makeCoredNode<osg::Transform3D>();
    nbScenegraph::getRootNode()->addChild(elsewhere);
    const osg::NodeRefPtr alone(osg::makeCoredNode<osg::Transform3D>());
    const auto moveOf = [](const osg::NodePtr& node, float x) {
        return [node, x] {
            const auto transform = transformOf(node);
            nbtest::edited(transform, osg::Transform3D::TranslationFieldMask)
                ->setTranslation(osg::Vec3f(x, 0, 0));
        };
    };
    const std::vector<std::function<void()>> between {
        [] {},
        [] {},
        moveOf(elsewhere, 1.F),
        [&] { gizmo.setNode(elsewhere); },
        [] {},
        moveOf(elsewhere, 2.F),
        [] { Gizmo::setLocalSpaceManipulator(true); },
        [&] { gizmo.setNode(alone.get()); },
        moveOf(alone.get(), 3.F),
        [] { Gizmo::setManipulatorSize(64.F); },
    };
    float distance = 10.F;
    for (std::size_t i = 0; i < between.size(); ++i) {
        SCOPED_TRACE(i);
        between[i]();
        distance += 1.F;
        scene.lookFrom(osg::Pnt3f(0, 0, distance));
        Gizmo::updateAllManipulators();
        const osg::Matrix placed = tree->getToWorld();
        gizmo.update(true);
        EXPECT_TRUE(placed == tree->getToWorld());
    }
    Gizmo::setLocalSpaceManipulator(false);
    Gizmo::setManipulatorSize(32.F);
    gizmo.setNode(scene.node);
}

TEST_F(UniversalTransformManipulator2Test, FollowsTheNodeAndCostsNothingWhileItRests)
{
    gizmo.activateUniversalManipulator();
    gizmo.update(false);
    const osg::NodePtr tree = root()->getChild(3)->getChild(0);
    const osg::UInt32 edits = osg::getChangeCount(tree->getCore());
    gizmo.update(false);
    EXPECT_EQ(osg::getChangeCount(tree->getCore()), edits);

    const osg::Transform3DPtr transform = transformOf(scene.node);
    osg::beginEditCP(transform);
    transform->setTranslation(osg::Vec3f(1, 2, 3));
    transform->setRotatePivot(osg::Vec3f(0, 0, 1));
    transform->setScalePivot(osg::Vec3f(1, 0, 1));
    transform->setRotation(osg::Vec3f(0, 0, 90));
    osg::endEditCP(transform);
    gizmo.update(false);
    osg::Pnt3f origin;
    tree->getToWorld().multMatrixPnt(origin);
    EXPECT_TRUE(origin.equals(osg::Pnt3f(1, 2, 4), kTolerance)) << origin;

    gizmo.activateScalePivotManipulator();
    origin = osg::Pnt3f();
    tree->getToWorld().multMatrixPnt(origin);
    EXPECT_TRUE(origin.equals(osg::Pnt3f(1, 3, 4), kTolerance)) << origin;
}

TEST_F(UniversalTransformManipulator2Test, StandsAtTheCentreOfWhatIsNoTransformYet)
{
    const osg::NodePtr box = scene.node->getChild(0);
    const osg::Transform3DPtr transform = transformOf(scene.node);
    nbtest::edited(transform)->setTranslation(osg::Vec3f(0, -3, 0));

    gizmo.setNode(box);

    osg::Pnt3f origin;
    root()->getChild(3)->getChild(0)->getToWorld().multMatrixPnt(origin);
    EXPECT_TRUE(origin.equals(osg::Pnt3f(0, -3, 0), kTolerance)) << origin;
}

TEST_F(UniversalTransformManipulator2Test, LocalSpaceTurnsTheGizmoWithTheNode)
{
    const osg::Transform3DPtr transform = transformOf(scene.node);
    osg::beginEditCP(transform);
    transform->setRotation(osg::Vec3f(0, 0, 90));
    transform->setScale(osg::Vec3f(1, 5, 1));
    osg::endEditCP(transform);

    Gizmo::setLocalSpaceManipulator(true);
    gizmo.update(true);
    osg::Vec3f x(1, 0, 0);
    root()->getChild(3)->getChild(0)->getToWorld().multMatrixVec(x);
    Gizmo::setLocalSpaceManipulator(false);

    EXPECT_TRUE(x.equals(osg::Vec3f(0, kScaleAtTen, 0), kTolerance)) << x;
}

TEST_F(UniversalTransformManipulator2Test, HoverLightsUpTheHandleUnderThePointer)
{
    struct Row
    {
        const char* name;
        osg::Pnt3f unitPoint;
    };

    // Seen from a corner, so that no two of these points meet on screen.
    scene.lookFrom(osg::Pnt3f(5, 6, 7));
    const float half = 1.5F * 0.70710678F;
    const std::vector<Row> rows = {
        { "xaShape", osg::Pnt3f(2, 0, 0) },
        { "yaShape", osg::Pnt3f(0, 2, 0) },
        { "zaShape", osg::Pnt3f(0, 0, 2) },
        { "xsShape", osg::Pnt3f(1.5F, 0, 0) },
        { "ysShape", osg::Pnt3f(0, 1.5F, 0) },
        { "zsShape", osg::Pnt3f(0, 0, 1.5F) },
        { "grid", osg::Pnt3f(0, 0, 0) },
        { "rxShape", osg::Pnt3f(0, half, half) },
        { "ryShape", osg::Pnt3f(half, 0, half) },
        { "rzShape", osg::Pnt3f(half, half, 0) },
        { "xyaShape", osg::Pnt3f(0.25F, 0.25F, 0) },
        { "xzaShape", osg::Pnt3f(0.25F, 0, 0.25F) },
        { "yzaShape", osg::Pnt3f(0, 0.25F, 0.25F) },
    };
    for (const bool orthographic : { false, true }) {
        scene.setOrthographic(orthographic);
        gizmo.activateUniversalManipulator();
        const float scale = transformOf(root()->getChild(3)->getChild(0))->getScale().x();
        for (const Row& row : rows) {
            SCOPED_TRACE(std::string(row.name) +
                         (orthographic ? ", orthographic" : ", perspective"));
            EXPECT_TRUE(scene.hover(row.unitPoint * scale));
            EXPECT_FALSE(nbScenegraph::isPreselectionEnabled());
            for (const std::string& name : kAllNames) {
                for (const osg::NodePtr& part : partsOf(handle(name))) {
                    EXPECT_EQ(colorOf(part) == kOrange, name == row.name) << name;
                }
            }
        }
        EXPECT_FALSE(scene.send("hover", osg::Pnt2f(5, 5)));
        EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());
        EXPECT_EQ(colorOf(partsOf(handle("yzaShape"))[0]), "0 1 0");
    }
}

TEST_F(UniversalTransformManipulator2Test, HoveringTheSameHandleAgainEditsNothing)
{
    scene.hover(at(2, 0, 0));
    const osg::UInt64 edits = osg::getTreeChangeCount(root());

    EXPECT_TRUE(scene.hover(at(2.02F, 0, 0)));

    EXPECT_EQ(osg::getTreeChangeCount(root()), edits);
}

TEST_F(UniversalTransformManipulator2Test, GrabbingHidesTheOtherHandlesUntilItStops)
{
    gizmo.activateRotateManipulator();
    scene.lookFrom(osg::Pnt3f(6, 0, 8));
    const float half = 1.5F * 0.70710678F;
    const osg::Pnt2f onRing = scene.pixelOf(at(half, half, 0));

    ASSERT_TRUE(scene.send("start", onRing));
    EXPECT_EQ(shownHandles(), std::set<std::string> { "rzShape" });
    EXPECT_TRUE(isShown(partsOf(handle("rzShape"))[1])) << "the axis of the grabbed ring shows";
    EXPECT_EQ(colorOf(partsOf(handle("rzShape"))[0]), kOrange);
    EXPECT_TRUE(gizmo.hoverManipulator(&scene.context, "select")) << "the grabbed handle stays hot";

    EXPECT_TRUE(scene.send("stop", onRing));
    EXPECT_EQ(shownHandles(), (std::set<std::string> { "rxShape", "ryShape", "rzShape" }));
    EXPECT_FALSE(isShown(partsOf(handle("rzShape"))[1]));
    EXPECT_EQ(colorOf(partsOf(handle("rzShape"))[0]), "0 0 1");
}

TEST_F(UniversalTransformManipulator2Test, NothingIsGrabbedBesideTheHandlesOrWithoutANode)
{
    EXPECT_FALSE(scene.send("start", osg::Pnt2f(5, 5)));
    EXPECT_FALSE(gizmo.processManipulator(&scene.context, "select"));
    EXPECT_FALSE(gizmo.stopManipulator(&scene.context, "select"));
    EXPECT_EQ(shownHandles().size(), 6U);

    gizmo.setNode(osg::NodePtr());
    EXPECT_TRUE(shownHandles().empty());
    EXPECT_FALSE(scene.hover(at(2, 0, 0)));
    EXPECT_FALSE(scene.send("start", scene.pixelOf(at(2, 0, 0))));
}

TEST_F(UniversalTransformManipulator2Test, ANodeThatIsDestroyedReadsAsNone)
{
    nbScenegraph::getRootNode()->subChild(scene.node);
    ASSERT_EQ(gizmo.getNode(), osg::NullFC);

    gizmo.update(true);
    EXPECT_FALSE(scene.hover(at(2, 0, 0)));
    gizmo.activateScaleManipulator();
    gizmo.showActiveManipulator();
    EXPECT_TRUE(shownHandles().empty());
}

TEST_F(UniversalTransformManipulator2Test, TheTreeHangsUnderTheRootOnlyWhileActive)
{
    const osg::NodePtr internal = nbScenegraph::getInternalRoot();
    EXPECT_GE(internal->findChild(root()), 0);
    scene.hover(at(2, 0, 0));

    scene.manager.removeContext(&scene.context);

    EXPECT_EQ(internal->findChild(root()), -1);
    EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());
    EXPECT_EQ(colorOf(partsOf(handle("xaShape"))[1]), "1 0 0") << "the highlight goes with it";
}

TEST(UniversalTransformManipulator2, ANewSizeReachesTheSharedInstanceAtOnceAndOthersLater)
{
    Gizmo gizmo;
    GizmoScene scene;
    gizmo.setNode(scene.node);
    scene.install(gizmo);
    const osg::NodePtr tree = gizmo.getVisualisation()->getChild(3)->getChild(0);
    const auto scaleOf = [&tree] { return transformOf(tree)->getScale().x(); };

    Gizmo::setManipulatorSize(100.0F);
    EXPECT_NEAR(scaleOf(), kScaleAtTen, 1e-6F);
    Gizmo::updateAllManipulators();
    EXPECT_NEAR(scaleOf(), 10.0F / (0.5F * 800.0F / 45.0F), 1e-5F);
    Gizmo::setManipulatorSize(32.0F);
}

}  // namespace nbec::manipulator::test
