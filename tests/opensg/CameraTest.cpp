// SPDX-License-Identifier: MIT
// Cameras and viewports where the usual picture ends.
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGPassiveWindow.h>
#include <OpenSG/OSGPerspectiveCamera.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGTransform.h>
#include <OpenSG/OSGViewport.h>

#include <gtest/gtest.h>

#include <cmath>

OSG_USING_NAMESPACE

namespace {

class Cameras : public testing::Test
{
protected:
    Cameras()
        : window(PassiveWindow::create())
        , viewport(Viewport::create())
        , camera(PerspectiveCamera::create())
        , beacon(makeCoredNode<Transform>(&beaconCore))
    {
        viewport->setSize(0.f, 0.f, 1.f, 1.f);
        window->setSize(800, 600);
        window->addPort(viewport);
        camera->setBeacon(beacon);
        camera->setFov(osgdegree2rad(90.f));
        camera->setNear(1.f);
        camera->setFar(100.f);
    }

    TransformPtr beaconCore;
    RefPtr<PassiveWindowPtr> window;
    RefPtr<ViewportPtr> viewport;
    RefPtr<PerspectiveCameraPtr> camera;
    RefPtr<NodePtr> beacon;
};

}  // namespace

TEST_F(Cameras, RayKeepsItsDirectionFarFromTheOriginAndWithAWideDepthRange)
{
    camera->setNear(0.001f);
    camera->setFar(1e6f);
    beaconCore->getMatrix().setTranslate(Vec3f(4096.f, -2048.f, 8192.f));
    changedCP(beaconCore, Transform::MatrixFieldMask);
    Line line;

    ASSERT_TRUE(camera->calcViewRay(line, 600, 151, *viewport.get()));

    // A quarter of the width right of the middle, of the height above it; the aspect is 4 : 3.
    const Real32 length = std::sqrt(4.f / 9.f + 0.25f + 1.f);
    EXPECT_NEAR(line.getDirection()[0], 2.f / 3.f / length, 1e-5f);
    EXPECT_NEAR(line.getDirection()[1], 0.5f / length, 1e-5f);
    EXPECT_NEAR(line.getDirection()[2], -1.f / length, 1e-5f);
}

TEST_F(Cameras, ViewportOutsideAnyWindowHasNoRays)
{
    window->subPort(viewport);
    Line line(Pnt3f(1.f, 2.f, 3.f), Vec3f(0.f, 1.f, 0.f));

    EXPECT_TRUE(viewport->getParent() == NullFC);
    EXPECT_FALSE(camera->calcViewRay(line, 400, 300, *viewport.get()));
    EXPECT_FLOAT_EQ(line.getPosition()[2], 3.f);
    viewport->setSize(0.f, 0.f, 400.f, 300.f);
    EXPECT_FALSE(camera->calcViewRay(line, 400, 300, *viewport.get()));
}
