// SPDX-License-Identifier: MIT
#include <nbOpenSGExt/ClipPlane3D.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr float kTolerance = 1e-6f;

class ClipPlane3DTest : public testing::Test
{
protected:
    ClipPlane3DTest()
        : parent(osg::makeNodeFor(transform))
        , core(osg::ClipPlane3D::create())
        , node(osg::makeNodeFor(core))
    {
        parent->addChild(node);
    }

    void place(const osg::Transform3DPtr& edited, const osg::Vec3f& translation,
               const osg::Vec3f& rotationDeg, const osg::Vec3f& scale)
    {
        const nbEdit edit(edited, osg::Transform3D::PartsFieldMask);
        edited->setTranslation(translation);
        edited->setRotation(rotationDeg);
        edited->setScale(scale);
    }

    void expectEquation(float a, float b, float c, float d) const
    {
        osg::Vec4f equation;
        ASSERT_TRUE(core->getWorldEquation(node, equation));
        EXPECT_NEAR(equation[0], a, kTolerance);
        EXPECT_NEAR(equation[1], b, kTolerance);
        EXPECT_NEAR(equation[2], c, kTolerance);
        EXPECT_NEAR(equation[3], d, kTolerance);
    }

    const osg::Transform3DPtr transform = osg::Transform3D::create();
    osg::NodeRefPtr parent;
    osg::ClipPlane3DPtr core;
    osg::NodePtr node;
};

}  // namespace

TEST_F(ClipPlane3DTest, KeepsTheSameSideUnderMirrorsAndUnevenScales)
{
    core->setEquation(osg::Vec4f(1.f, 1.f, 0.f, -1.f));
    place(transform, osg::Vec3f(0.f, 0.f, 0.f), osg::Vec3f(0.f, 0.f, 0.f),
          osg::Vec3f(-2.f, 1.f, 1.f));

    // What stays are the points beyond (1,0,0) and (0,1,0), now at (-2,0,0) and (0,1,0).
    const float length = std::sqrt(1.25f);
    expectEquation(-0.5f / length, 1.f / length, 0.f, -1.f / length);
}

TEST_F(ClipPlane3DTest, CutsNothingWhereThereIsNoPlane)
{
    osg::Vec4f equation(9.f, 9.f, 9.f, 9.f);
    EXPECT_FALSE(core->getWorldEquation(osg::NullFC, equation));
    core->setEnable(false);
    EXPECT_FALSE(core->getWorldEquation(node, equation));
    core->setEnable(true);
    core->setEquation(osg::Vec4f(0.f, 0.f, 0.f, 1.f));
    EXPECT_FALSE(core->getWorldEquation(node, equation));
    core->setEquation(osg::Vec4f(0.f, 1.f, 0.f, 0.f));
    place(transform, osg::Vec3f(0.f, 0.f, 0.f), osg::Vec3f(0.f, 0.f, 0.f),
          osg::Vec3f(0.f, 1.f, 1.f));
    EXPECT_FALSE(core->getWorldEquation(node, equation));

    EXPECT_EQ(9.f, equation[0]);
}
