// SPDX-License-Identifier: MIT
#include <nbInteraction/CameraInteractionContext.h>
#include <nbInteraction/InteractionManager.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

namespace nbec::interaction {
namespace {

constexpr float kTolerance = 1e-3f;

class CameraInteractionContextTest : public testing::Test
{
protected:
    CameraInteractionContextTest()
    {
        widget->resize(400, 300);
        CameraPose pose;
        pose.from = osg::Pnt3f(0, 0, 10);
        pose.at = osg::Pnt3f(0, 0, 0);
        pose.pivot = osg::Pnt3f(0, 0, 0);
        context.setPose(pose);
        manager.addContext(&context);
    }

    ~CameraInteractionContextTest() override { nbScenegraph::clear(); }

    bool send(const std::string& event, const std::string& hint, double amount = 0.0)
    {
        return manager.triggerEvent(InteractionEvent(event, "camera", hint, amount));
    }

    void point(float x, float y) { manager.pointerMoved(osg::Pnt2f(x, y)); }

    CameraPose pose() const { return widget->getUberCamera()->getPose(); }

    float pivotDistance() const { return (pose().from - pose().pivot).length(); }

    /// Where a world point is seen.
    osg::Pnt2f seen(const osg::Pnt3f& world) const
    {
        osg::Pnt2f pixel(-1, -1);
        nbCameraNavigation::project(pose(), world, 400, 300, pixel);
        return pixel;
    }

    std::unique_ptr<nbOSGWidget> widget = std::make_unique<nbOSGWidget>();
    InteractionManager manager;
    CameraInteractionContext context;
};

TEST_F(CameraInteractionContextTest, WheelGoesNearerAndKeepsWhatIsUnderThePointer)
{
    const osg::Pnt3f world(2, 1, 0);
    const osg::Pnt2f before = seen(world);
    point(before[0], before[1]);

    EXPECT_TRUE(send("trigger", "zoom", 2.0));

    EXPECT_NEAR(before[0], seen(world)[0], 0.05f);
    EXPECT_NEAR(before[1], seen(world)[1], 0.05f);
    EXPECT_NEAR(10.0 * std::pow(CameraInteractionContext::kWheelFactor, 2), pose().from[2],
                kTolerance);
    send("trigger", "zoom", -2.0);
    EXPECT_NEAR(0.0f, (pose().from - osg::Pnt3f(0, 0, 10)).length(), kTolerance);
    EXPECT_FALSE(send("trigger", "zoom", std::numeric_limits<double>::quiet_NaN()));
}

TEST_F(CameraInteractionContextTest, ZoomHalvesTheDistanceAndPanKeepsThePivotUnderThePointer)
{
    point(200, 150);
    send("start", "zoom");
    point(200, 75);
    send("process", "zoom");
    EXPECT_NEAR(5.0f, pivotDistance(), kTolerance) << "by a quarter of the height";
    point(125, 150);
    send("process", "zoom");
    EXPECT_NEAR(20.0f, pivotDistance(), kTolerance);
    manager.cancelDrag();
    point(200, 150);
    send("start", "pan");
    point(250, 120);
    send("process", "pan");
    const osg::Pnt2f pixel = seen(osg::Pnt3f(0, 0, 0));
    EXPECT_NEAR(250.0f, pixel[0], 0.05f);
    EXPECT_NEAR(120.0f, pixel[1], 0.05f);
    EXPECT_NEAR(10.0f, pivotDistance(), kTolerance);
}

TEST_F(CameraInteractionContextTest, CancelPutsTheCameraBackAndInterruptionLeavesIt)
{
    for (const bool isCancelled : { true, false }) {
        const osg::Pnt3f eye = pose().from;
        point(200, 150);
        send("start", "orbit");
        point(300, 200);
        send("process", "orbit");
        send("trigger", "zoom", 1.0);
        isCancelled ? manager.cancelDrag() : manager.endDrag();
        EXPECT_EQ(isCancelled, eye == pose().from);
    }
}

}  // namespace
}  // namespace nbec::interaction
