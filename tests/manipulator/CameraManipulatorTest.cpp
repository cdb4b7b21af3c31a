// SPDX-License-Identifier: MIT
#include "manipulator/CameraManipulator.h"

#include "tests/manipulator/support/GizmoScene.h"
#include "tests/platform/support/Edited.h"

#include <nbKernel/nbScenegraph.h>

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

namespace {

class CameraManipulatorTest : public testing::Test
{
protected:
    void SetUp() override { scene.install(cross); }

    osg::NodePtr transformNode() { return cross.getVisualisation()->getChild(1)->getChild(0); }

    osg::Transform3DPtr placement() { return transformOf(transformNode()); }

    /// Perspective camera of a field of view, its pivot at the origin, looking along -z from a
    /// distance.
    void setCamera(float fovDeg, float distance)
    {
        const osg::UberCameraPtr camera = scene.widget.getUberCamera();
        scene.lookFrom(osg::Pnt3f(0, 0, distance));
        nbtest::edited(camera)->setFov(fovDeg);
        nbtest::edited(camera)->setPivot(osg::Pnt3f(0, 0, 0));
    }

    CameraManipulator cross;  // outlives the scene, which deactivates it
    GizmoScene scene;
};

}  // namespace

TEST_F(CameraManipulatorTest, ShowsExactlyWhileBoundToALiveNode)
{
    EXPECT_FALSE(isShown(transformNode()));
    cross.setNode(scene.node);
    EXPECT_TRUE(isShown(transformNode()));
    cross.setNode(osg::NodePtr());
    EXPECT_FALSE(isShown(transformNode()));

    cross.setNode(scene.node);
    scene.manager.removeContext(&scene.context);
    nbScenegraph::getRootNode()->subChild(scene.node);
    setCamera(30.0F, 100.0F);
    scene.manager.addContext(&scene.context);
    EXPECT_FALSE(isShown(transformNode())) << "a destroyed node reads as none";
}

TEST_F(CameraManipulatorTest, StandsAtThePivotInConstantSize)
{
    setCamera(1.0F, 672.0F);
    cross.setNode(scene.node);
    EXPECT_NEAR(placement()->getScale().x(), 1.0F, 1e-6F);

    setCamera(1.0F, 336.0F);
    cross.update(false);
    EXPECT_NEAR(placement()->getScale().z(), 0.5F, 1e-6F);

    const osg::UberCameraPtr camera = scene.widget.getUberCamera();
    nbtest::edited(camera)->setOrthographic(true);
    nbtest::edited(camera)->setPivot(osg::Pnt3f(1, 2, 3));
    CameraManipulator::updateAllManipulators();
    EXPECT_NEAR(placement()->getScale().x(), camera->getNearPlaneDiagonal() / 20, 1e-6F);
    {
        nbOSGWidget other;
        other.getUberCamera()->setPose(camera->getPose());
        const nbOSGWidget::Drawing drawing(other);
        cross.update(false);
        EXPECT_NEAR(placement()->getScale().x(), other.getUberCamera()->getNearPlaneDiagonal() / 20,
                    1e-6F);
    }
    cross.update(false);
    EXPECT_NEAR(placement()->getScale().x(), camera->getNearPlaneDiagonal() / 20, 1e-6F);
    EXPECT_TRUE(placement()->getTranslation().equals(osg::Vec3f(1, 2, 3), 1e-6F));
}

TEST_F(CameraManipulatorTest, AnOrthographicViewThatIsResizedIsNoticed)
{
    const osg::UberCameraPtr camera = scene.widget.getUberCamera();
    scene.setOrthographic(true);
    cross.setNode(scene.node);
    const float before = placement()->getScale().x();

    scene.widget.resize(800, 200);
    cross.update(false);

    // Deliberate: eye, pivot and field of view are what the placement itself compares, so a new
    // aspect alone does not resize the cross before one of them changes.
    EXPECT_FLOAT_EQ(placement()->getScale().x(), before);
    scene.lookFrom(osg::Pnt3f(0, 0, 11));
    cross.update(false);
    EXPECT_NEAR(placement()->getScale().x(), camera->getNearPlaneDiagonal() / 20, 1e-6F);
}

TEST_F(CameraManipulatorTest, TakesNoDragAndNoHover)
{
    cross.setNode(scene.node);
    const osg::Pnt2f centre(400, 300);

    EXPECT_FALSE(scene.send("hover", centre));
    EXPECT_FALSE(scene.send("start", centre));
    EXPECT_FALSE(cross.processManipulator(&scene.context, "select"));
    EXPECT_FALSE(cross.stopManipulator(&scene.context, "select"));
    EXPECT_TRUE(cross.resetManipulator(&scene.context, "select"));
    EXPECT_EQ(scene.picker.getFilter(), 0) << "the picker is left at the scene";
}

}  // namespace nbec::manipulator::test
