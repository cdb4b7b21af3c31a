// SPDX-License-Identifier: MIT
#include "tests/platform/support/Edited.h"

#include <nbOpenSGExt/Transform3D.h>

#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr float kTolerance = 2e-6f;
constexpr float kAngleToleranceDeg = 2e-3f;

/// Where the matrix takes (1, 1, 1).
osg::Pnt3f image(const osg::Transform3DRefPtr& transform)
{
    osg::Pnt3f point(1.f, 1.f, 1.f);
    transform->getMatrix().multMatrixPnt(point);
    return point;
}

}  // namespace

TEST(Transform3D, MatrixTakesItsPartsInOrder)
{
    const osg::Transform3DRefPtr transform(osg::Transform3D::create());
    nbtest::edited(transform)->setTranslation(osg::Vec3f(1.f, 2.f, 3.f));
    nbtest::edited(transform)->setRotatePivot(osg::Vec3f(1.f, 0.f, 0.f));
    nbtest::edited(transform)->setScalePivot(osg::Vec3f(0.f, 1.f, 0.f));
    nbtest::edited(transform)->setRotation(osg::Vec3f(0.f, 0.f, 90.f));
    nbtest::edited(transform)->setScale(osg::Vec3f(2.f, 3.f, 4.f));

    // (1,1,1): about the scale pivot (2,1,4), about the rotate pivot (0,1,4), moved (1,3,7).
    EXPECT_TRUE(image(transform).equals(osg::Pnt3f(1.f, 3.f, 7.f), kTolerance));

    nbtest::edited(transform)->setRotationOrientation(
        osg::Quaternion(osg::Vec3f(1.f, 0.f, 0.f), osg::Pi / 2));

    // From the rotate pivot (1,1,4): the orientation turns first, (1,-4,1), then the rotation,
    // (4,1,1).
    EXPECT_TRUE(image(transform).equals(osg::Pnt3f(6.f, 3.f, 4.f), kTolerance));
}

TEST(Transform3D, RotationModesShareOneRotation)
{
    const osg::Transform3DRefPtr transform(osg::Transform3D::create());
    const osg::Quaternion quarterTurn(osg::Vec3f(0.f, 1.f, 0.f), osg::Pi / 2);

    transform->setRotation(quarterTurn);
    EXPECT_EQ(transform->getRotationMode(), osg::Transform3D::QuaternionMode);
    EXPECT_NEAR(transform->getRotation().y(), 90.f, kAngleToleranceDeg);

    transform->setRotation(osg::Vec3f(30.f, 0.f, 0.f));
    EXPECT_EQ(transform->getRotationMode(), osg::Transform3D::EulerMode);
    EXPECT_NEAR(transform->getRotationAsQuaternion().x(), std::sin(osg::Pi / 12), kTolerance);

    transform->setRotationMode(osg::Transform3D::AxisAlignedMode);
    transform->setRotation(quarterTurn);
    EXPECT_EQ(transform->getRotationMode(), osg::Transform3D::AxisAlignedMode);
    EXPECT_NEAR(transform->getEulerRotation().y(), 90.f, kAngleToleranceDeg);
}
