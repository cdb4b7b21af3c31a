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

TEST(Cameras, RaysKeepTheirDirectionFarFromTheOriginAndNeedAWindow)
{
    const RefPtr<PassiveWindowPtr> window(PassiveWindow::create());
    const RefPtr<ViewportPtr> viewport(Viewport::create());
    const RefPtr<PerspectiveCameraPtr> camera(PerspectiveCamera::create());
    TransformPtr beaconCore;
    const RefPtr<NodePtr> beacon(makeCoredNode<Transform>(&beaconCore));
    viewport->setSize(0.f, 0.f, 1.f, 1.f);
    window->setSize(800, 600);
    window->addPort(viewport);
    camera->setBeacon(beacon);
    camera->setFov(osgdegree2rad(90.f));
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

    window->subPort(viewport);
    line = Line(Pnt3f(1.f, 2.f, 3.f), Vec3f(0.f, 1.f, 0.f));
    EXPECT_TRUE(viewport->getParent() == NullFC);
    EXPECT_FALSE(camera->calcViewRay(line, 400, 300, *viewport.get()));
    EXPECT_FLOAT_EQ(line.getPosition()[2], 3.f);
    viewport->setSize(0.f, 0.f, 400.f, 300.f);
    EXPECT_FALSE(camera->calcViewRay(line, 400, 300, *viewport.get()));
}
