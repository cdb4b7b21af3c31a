// SPDX-License-Identifier: MIT
#include <nbOpenSGUberCamera/UberCamera.h>

#include <gtest/gtest.h>

#include <limits>

using osg::Matrix;
using osg::Pnt3f;
using osg::UberCamera;
using osg::UberCameraPtr;
using osg::UberCameraRefPtr;
using osg::Vec3f;

namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kTolerance = 1e-5f;

/// At (0, 0, 10), looking at the origin, 90 degrees, near 1, far 100.
UberCameraRefPtr makeCamera()
{
    UberCameraRefPtr camera(UberCamera::create());
    camera->setFromAtUp(Pnt3f(0.f, 0.f, 10.f), Pnt3f(0.f, 0.f, 0.f), Vec3f(0.f, 1.f, 0.f));
    camera->setPivot(Pnt3f(0.f, 0.f, 0.f));
    camera->setFov(90.f);
    camera->setNear(1.f);
    camera->setFar(100.f);
    return camera;
}

}  // namespace

TEST(UberCamera, ProjectsWithDegreesEvenBelowPi)
{
    const UberCameraRefPtr camera = makeCamera();
    Matrix projection;
    camera->getProjection(projection, 800, 600);
    EXPECT_NEAR(projection[0][0], 0.75f, kTolerance);
    EXPECT_NEAR(projection[1][1], 1.f, kTolerance);
    EXPECT_NEAR(projection[2][2], -1.020202f, kTolerance);
    EXPECT_NEAR(projection[3][2], -2.020202f, kTolerance);
    EXPECT_EQ(projection[2][3], -1.f);
    EXPECT_EQ(projection[3][3], 0.f);

    camera->setFov(1.f);
    camera->getProjection(projection, 800, 600);
    EXPECT_NEAR(projection[1][1], 114.58865f, 1e-3f);  // 1 / tan(0.5 degrees)
}

TEST(UberCamera, OrthographicViewIsAsHighAsThePerspectiveAtItsCentre)
{
    const UberCameraRefPtr camera = makeCamera();
    camera->setViewAspect(4.f / 3.f);
    EXPECT_NEAR(camera->getNearPlaneDiagonal(), 2.f * 5.f / 3.f, kTolerance);

    camera->setOrthographic(true);
    Matrix projection;
    camera->getProjection(projection, 800, 600);

    EXPECT_NEAR(projection[1][1], 0.1f, kTolerance);
    EXPECT_NEAR(projection[0][0], 0.075f, kTolerance);
    EXPECT_EQ(projection[2][3], 0.f);
    EXPECT_NEAR(camera->getTop() - camera->getBottom(), 20.f, 1e-4f);
    EXPECT_NEAR(camera->getRight() - camera->getLeft(), 80.f / 3.f, 1e-4f);
    EXPECT_NEAR(camera->getNearPlaneDiagonal(), 100.f / 3.f, 1e-4f);
}

TEST(UberCamera, BeaconFollowsEditsOfTheFields)
{
    const UberCameraRefPtr camera(UberCamera::create());
    Matrix viewing;
    camera->getViewing(viewing, 1, 1);
    EXPECT_EQ(viewing, Matrix::identity()) << "a new camera is at the origin";

    osg::beginEditCP(camera.get(), UberCamera::FromFieldMask | UberCamera::AtFieldMask);
    camera->setFrom(Pnt3f(1.f, 2.f, 3.f));
    camera->setAt(Pnt3f(1.f, 2.f, -3.f));
    osg::endEditCP(camera.get(), UberCamera::FromFieldMask | UberCamera::AtFieldMask);

    const Matrix world = camera->getInternalParentNode()->getToWorld();
    EXPECT_EQ(world[3], osg::Vec4f(1.f, 2.f, 3.f, 1.f));
    EXPECT_EQ(camera->getBeacon(), camera->getInternalParentNode());
    EXPECT_FALSE(camera->setFromAtUp(Pnt3f(kNan, 0.f, 0.f), Pnt3f(), Vec3f(0.f, 1.f, 0.f)));
    EXPECT_EQ(camera->getFrom(0), Pnt3f(1.f, 2.f, 3.f));
}

TEST(UberCamera, DepthRangeEnclosesBoxPivotAndHandles)
{
    const Pnt3f origin;
    const Pnt3f one(1.f, 1.f, 1.f);
    const Pnt3f far(0.f, 0.f, -90.f);
    const Pnt3f behind(0.f, 0.f, 60.f);
    const Pnt3f wide(1e3f, 1e3f, 1e3f);
    const Pnt3f broken(kNan, 0.f, 0.f);

    const std::tuple<const char*, Pnt3f, Pnt3f, Pnt3f, bool, float, float> rows[] = {
        { "before the eye", -1.f * one, one, origin, false, 4.5f, 16.5f },
        { "pivot beyond", -1.f * one, one, far, false, 4.5f, 150.f },
        { "eye inside", -1.f * wide, wide, origin, false, 0.01515f, 1515.f },
        { "behind the eye", behind, behind, behind, false, 5.f, 15.f },
        { "empty", one, origin, origin, false, 5.f, 15.f },
        { "not finite", origin, broken, origin, false, 5.f, 15.f },
        { "flat view", -1.f * one, one, origin, true, -5.162136f, 25.162136f },
    };

    for (const auto& [name, boundsMin, boundsMax, pivot, orthographic, nearPlane, farPlane] :
         rows) {
        const UberCameraRefPtr camera = makeCamera();
        camera->setPivot(pivot);
        camera->setOrthographic(orthographic);

        camera->setNearFarFromBounds(boundsMin, boundsMax);

        EXPECT_NEAR(camera->getNear(), nearPlane, 1e-4f) << name;
        EXPECT_NEAR(camera->getFar(), farPlane, 1e-2f) << name;
    }
}
