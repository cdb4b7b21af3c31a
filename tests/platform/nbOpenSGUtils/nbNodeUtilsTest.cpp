// SPDX-License-Identifier: MIT
#include "tests/platform/support/Edited.h"

#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <gtest/gtest.h>

namespace {

constexpr float kTolerance = 1e-5f;

/// A parent with a matrix of its own, the node under test, and a box below it.
class ConversionTest : public testing::Test
{
protected:
    void SetUp() override
    {
        root = osg::makeCoredNode<osg::Group>();
        node = osg::Node::create();
        leaf = osg::makeBox(1.f, 2.f, 3.f, 1, 1, 1);
        root->addChild(node);
        node->addChild(leaf);
        nbNodeUtils::setName(node, "part");
        nbNodeUtils::setIsAuxiliaryNode(node, true);
    }

    void convertAndCompare()
    {
        const osg::Matrix before = leaf->getToWorld();
        const osg::RefPtr<osg::NodeCorePtr> core(node->getCore());

        EXPECT_TRUE(nbNodeUtils::convertToTransform3DNode(node) == node);

        EXPECT_TRUE(node->getToWorld().equals(before, kTolerance));
        EXPECT_TRUE(leaf->getToWorld().equals(before, kTolerance));
        if (const auto centred = osg::ComponentTransformPtr::dcast(core.get())) {
            EXPECT_EQ(nbNodeUtils::getTransformNodeRotatePivot(node), centred->getCenter());
            EXPECT_EQ(nbNodeUtils::getTransformNodeScalePivot(node), centred->getCenter());
            EXPECT_TRUE(nbNodeUtils::getTransformNodeTranslation(node).equals(
                centred->getTranslation(), kTolerance));
        }
        EXPECT_TRUE(nbNodeUtils::setTransformNodeRotatePivot(node, 1.f, 2.f, 3.f, true, -1));
        EXPECT_TRUE(nbNodeUtils::setTransformNodeScalePivot(node, 3.f, -2.f, 1.f, true, -1));
        EXPECT_TRUE(leaf->getToWorld().equals(before, 10 * kTolerance));
        EXPECT_TRUE(osg::Transform3DPtr::dcast(node->getCore()) != osg::NullFC);
        EXPECT_EQ(nbNodeUtils::getName(node), "part");
        EXPECT_TRUE(nbNodeUtils::isAuxiliaryNode(node));
    }

    void setMatrix(const osg::Matrix& matrix)
    {
        const osg::TransformPtr core = osg::Transform::create();
        nbtest::edited(core, osg::Transform::MatrixFieldMask)->setMatrix(matrix);
        node->setCore(core);
    }

    osg::NodeRefPtr root;
    osg::NodePtr node;
    osg::NodePtr leaf;
};

}  // namespace

TEST_F(ConversionTest, AnyMatrixKeepsThePlaceOfTheChildren)
{
    osg::Matrix turned;
    turned.setTransform(osg::Vec3f(1.f, 2.f, 3.f), osg::Quaternion(osg::Vec3f(1.f, 2.f, 3.f), 1.f),
                        osg::Vec3f(2.f, 3.f, 4.f));
    const std::pair<const char*, osg::Matrix> rows[] = {
        { "turned and scaled", turned },
        { "mirror in y", osg::Matrix(1, 0, 0, 4, 0, -2, 0, 5, 0, 0, 3, 6, 0, 0, 0, 1) },
        { "flat in x", osg::Matrix(0, 0, 0, 4, 0, 2, 0, 5, 0, 0, 3, 6, 0, 0, 0, 1) },
        { "all in one point", osg::Matrix(0, 0, 0, 4, 0, 0, 0, 5, 0, 0, 0, 6, 0, 0, 0, 1) },
        { "two columns alike", osg::Matrix(1, 1, 0, 4, 0, 0, 2, 5, 0, 0, 0, 6, 0, 0, 0, 1) },
        { "shear", osg::Matrix(1, .5, .25, 4, 0, 2, .75, 5, 0, 0, -3, 6, 0, 0, 0, 1) },
    };
    for (const auto& [name, matrix] : rows) {
        SCOPED_TRACE(name);
        SetUp();
        setMatrix(matrix);

        convertAndCompare();

        EXPECT_EQ(leaf->getParent(), node);
    }
}

TEST_F(ConversionTest, ComponentTransformKeepsItsCentreAsPivots)
{
    for (const bool turnedScale : { false, true }) {
        SetUp();
        const osg::ComponentTransformPtr core = osg::ComponentTransform::create();
        const osg::Quaternion orientation(osg::Vec3f(1.f, 0.f, 0.f), turnedScale ? 0.7f : 0.f);
        nbtest::edited(core)->setTranslation(osg::Vec3f(1.f, 2.f, 3.f));
        nbtest::edited(core)->setCenter(osg::Vec3f(4.f, 5.f, 6.f));
        nbtest::edited(core)->setRotation(osg::Quaternion(osg::Vec3f(0.f, 1.f, 1.f), 0.5f));
        nbtest::edited(core)->setScale(osg::Vec3f(1.f, 2.f, 3.f));
        nbtest::edited(core)->setScaleOrientation(orientation);
        node->setCore(core);

        convertAndCompare();

        EXPECT_EQ(leaf->getParent(), node);
    }
}

TEST(nbNodeUtils, WorldBoundsLeaveAuxiliaryAndInactiveOut)
{
    const osg::NodeRefPtr root(osg::makeCoredNode<osg::Group>());
    osg::TransformPtr move;
    const osg::NodePtr moved = osg::makeCoredNode<osg::Transform>(&move);
    move->getMatrix().setTranslate(10.f, 0.f, 0.f);
    root->addChild(moved);
    moved->addChild(osg::makeBox(2.f, 2.f, 2.f, 1, 1, 1));
    const osg::NodePtr helper = osg::makeBox(100.f, 1.f, 1.f, 1, 1, 1);
    const osg::NodePtr hidden = osg::makeBox(1.f, 100.f, 1.f, 1, 1, 1);
    root->addChild(helper);
    root->addChild(hidden);
    nbNodeUtils::setIsAuxiliaryNode(helper, true);
    hidden->setActive(false);

    const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(root);

    EXPECT_TRUE(bounds.getMin().equals(osg::Pnt3f(9.f, -1.f, -1.f), kTolerance));
    EXPECT_TRUE(bounds.getMax().equals(osg::Pnt3f(11.f, 1.f, 1.f), kTolerance));
    const osg::BoxVolume part = nbNodeUtils::getWorldBounds(moved->getChild(0));
    EXPECT_TRUE(part.getMax().equals(osg::Pnt3f(11.f, 1.f, 1.f), kTolerance));
}
