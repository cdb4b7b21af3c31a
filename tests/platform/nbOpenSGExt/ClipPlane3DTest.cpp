// SPDX-License-Identifier: MIT
#include "tests/platform/support/Edited.h"

#include <nbOpenSGExt/ClipPlane3D.h>
#include <nbOpenSGExt/Transform3D.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr float kTolerance = 1e-6f;

}  // namespace

TEST(ClipPlane3D, KeepsTheSameSideUnderMirrorsAndUnevenScales)
{
    const osg::Transform3DPtr transform = osg::Transform3D::create();
    const osg::NodeRefPtr parent(osg::makeNodeFor(transform));
    const osg::ClipPlane3DPtr core = osg::ClipPlane3D::create();
    const osg::NodePtr node = osg::makeNodeFor(core);
    parent->addChild(node);
    core->setEquation(osg::Vec4f(1.f, 1.f, 0.f, -1.f));
    nbtest::edited(transform, osg::Transform3D::ScaleFieldMask)
        ->setScale(osg::Vec3f(-2.f, 1.f, 1.f));

    osg::Vec4f equation;
    ASSERT_TRUE(core->getWorldEquation(node, equation));

    // What stays are the points beyond (1,0,0) and (0,1,0), now at (-2,0,0) and (0,1,0).
    const float length = std::sqrt(1.25f);
    EXPECT_NEAR(equation[0], -0.5f / length, kTolerance);
    EXPECT_NEAR(equation[1], 1.f / length, kTolerance);
    EXPECT_NEAR(equation[2], 0.f, kTolerance);
    EXPECT_NEAR(equation[3], -1.f / length, kTolerance);
}
