// SPDX-License-Identifier: MIT
#include "tests/platform/support/LogLines.h"

#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbTransform/nbTransformModel.h>

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

#include <functional>
#include <limits>

using osg::Transform3D;
using osg::Transform3DPtr;
using osg::Vec3f;

namespace {

constexpr float kTolerance = 2e-5f;

/// Sets what is not as in a new transform.
using Change = std::function<void(Transform3D&)>;

class nbTransformModelTest : public testing::Test
{
protected:
    nbTransformModelTest()
        : root(osg::makeNodeFor(osg::Group::create()))
    {
        nbUndoService::the()->clear();
    }

    ~nbTransformModelTest() override { nbUndoService::the()->clear(); }

    osg::NodePtr add(const Change& change = {}, const osg::NodePtr& parent = osg::NullFC)
    {
        const Transform3DPtr core = Transform3D::create();
        if (change) {
            const nbEdit edit(core, Transform3D::PartsFieldMask);
            change(*core);
        }
        const osg::NodePtr node = osg::makeNodeFor(core);
        (parent == osg::NullFC ? root.get() : parent)->addChild(node);
        return node;
    }

    osg::NodePtr addScaled(const Vec3f& scale)
    {
        return add([&scale](Transform3D& of) { of.setScale(scale); });
    }

    static auto giving(const osg::NodePtr& node, const Vec3f& value)
    {
        return [node, value](osg::UInt32) { return nbTransformModel::Value({ node, -1 }, value); };
    }

    static Transform3DPtr coreOf(const osg::NodePtr& node)
    {
        return Transform3DPtr::dcast(node->getCore());
    }

    osg::NodeRefPtr root;
    nbtest::LogLines logLines;
    std::vector<std::string>& logged = logLines.lines;
    nbTransformModel* const model = nbTransformModel::the();
};

void expectNear(const Vec3f& actual, const Vec3f& expected)
{
    EXPECT_TRUE(actual.equals(expected, kTolerance)) << actual;
}

}  // namespace

// == Values

TEST_F(nbTransformModelTest, ParentsAmongTheTargetsAreReadAsTheyAreThen)
{
    const osg::NodePtr parent = add();
    const osg::NodePtr child = add({}, parent);
    const std::vector<osg::NodePtr> nodes { child, parent, child };

    model->setTranslation(3, true, [&](osg::UInt32 i) {
        return nbTransformModel::Value({ nodes[i], -1 }, Vec3f(i == 1 ? 10.f : 1.f, 0.f, 0.f));
    });

    expectNear(coreOf(child)->getTranslation(), Vec3f(-9.f, 0.f, 0.f));
}

// == Refusals

TEST_F(nbTransformModelTest, BadTargetsAreLeftAloneWithOneLineForAll)
{
    const osg::NodePtr good = add();
    const osg::NodePtr locked = add();
    nbNodePermission::setAllowed(locked, nbNodePermission::Transform, false);
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();
    const std::vector<nbTransformModel::Value> values {
        { { osg::NullFC, -1 }, Vec3f(1.f, 1.f, 1.f) },
        { { good, -1 }, Vec3f(nan, 1.f, 1.f) },
        { { locked, -1 }, Vec3f(1.f, 1.f, 1.f) },
        { { good, -1 }, Vec3f(1.f, 1.f, infinite) },
    };

    EXPECT_EQ(0u, model->setTranslation(4, true, [&](osg::UInt32 i) { return values[i]; }));

    EXPECT_EQ(coreOf(good)->getTranslation(), Vec3f());
    EXPECT_EQ(coreOf(locked)->getTranslation(), Vec3f());
    EXPECT_EQ(1u, logged.size());
    EXPECT_FALSE(nbUndoService::the()->undo());
}

TEST_F(nbTransformModelTest, WorldValuesUnderAFlattenedOrTinyParentAreRefused)
{
    const osg::NodePtr node = add({}, addScaled(Vec3f(1.f, 0.f, 1.f)));

    EXPECT_EQ(0u, model->setTranslation(1, true, giving(node, Vec3f(1.f, 2.f, 3.f))));
    EXPECT_EQ(0u, model->setRotationPivot(1, true, giving(node, Vec3f(1.f, 2.f, 3.f))));
    EXPECT_EQ(2u, logged.size());
    EXPECT_EQ(1u, model->setTranslation(1, false, giving(node, Vec3f(1.f, 2.f, 3.f))));

    const osg::NodePtr tiny = add({}, addScaled(Vec3f(1e-30f, 1e-30f, 1e-30f)));
    EXPECT_EQ(0u, model->setTranslation(1, true, giving(tiny, Vec3f(1e20f, 0.f, 0.f))));
    EXPECT_EQ(coreOf(tiny)->getTranslation(), Vec3f()) << "it would be beyond all floats";
    EXPECT_EQ(3u, logged.size());
}

// == Pivots

TEST_F(nbTransformModelTest, ScalePivotIsThePointThatScalingLeavesAlone)
{
    const osg::NodePtr node = add([](Transform3D& of) {
        of.setRotation(Vec3f(0.f, 0.f, 180.f));
        of.setScale(Vec3f(2.f, 2.f, 2.f));
    });

    // The object's x looks to -x and is doubled: the point at (4,0,0) is its (-2,0,0).
    model->setScalePivot(1, false, giving(node, Vec3f(4.f, 0.f, 0.f)));

    expectNear(coreOf(node)->getScalePivot(), Vec3f(-2.f, 0.f, 0.f));
    expectNear(nbTransformModel::getScalePivot(node, false), Vec3f(4.f, 0.f, 0.f));
    model->setScale(1, giving(node, Vec3f(5.f, 5.f, 5.f)));
    osg::Pnt3f fixed(-2.f, 0.f, 0.f);
    node->getToWorld().multMatrixPnt(fixed);
    expectNear(Vec3f(fixed), Vec3f(4.f, 0.f, 0.f));
}

TEST_F(nbTransformModelTest, ScalePivotOfAFlatObjectStaysInItsPlane)
{
    const osg::NodePtr node = addScaled(Vec3f(2.f, 0.f, 1.f));
    const osg::Matrix before = node->getToWorld();

    EXPECT_EQ(1u, model->setScalePivot(1, false, giving(node, Vec3f(4.f, 5.f, 6.f))));

    expectNear(coreOf(node)->getScalePivot(), Vec3f(2.f, 0.f, 6.f));
    EXPECT_TRUE(node->getToWorld().equals(before, kTolerance));
}

// == Groups of steps

TEST_F(nbTransformModelTest, AGroupThatGoesBackToItsStartLeavesNoStep)
{
    const osg::NodePtr parent = add([](Transform3D& of) {
        of.setTranslation(Vec3f(1.f, 2.f, 3.f));
        of.setRotation(Vec3f(0.f, 0.f, 90.f));
        of.setScale(Vec3f(2.f, 2.f, 2.f));
    });

    for (int row = 0; row < 36; ++row) {
        SCOPED_TRACE(row);
        static constexpr const char* kOrders[] = { "xyz", "yzx", "zxy", "xzy", "yxz", "zyx" };
        const auto turn = [row](Transform3D& of) {
            of.setEulerRotationOrder(kOrders[row % 6]);
            of.setTranslation(Vec3f(1.f, -2.f, 3.f));
            of.setEulerRotation(Vec3f(25.f, -50.f, 110.f));
            of.setRotationQuaternion(of.getRotationAsQuaternion());
            of.setRotationMode(row / 6 % 3);
            of.setScale(Vec3f(row < 18 ? 2.f : -1.f, 0.5f, 3.f));
            of.setRotatePivot(Vec3f(0.5f, 1.f, -1.f));
            of.setScalePivot(Vec3f(-1.f, 0.25f, 2.f));
        };
        const osg::NodePtr node = add(turn, parent);
        const Vec3f away(-7.f, 0.3f, 2.f);
        const Vec3f angles = coreOf(node)->getRotation();
        const Vec3f translation = nbTransformModel::getTranslation(node, true);

        nbUndoService::the()->beginGroup();
        model->setTranslation(1, true, giving(node, away));
        model->setTranslation(1, true, giving(node, translation));
        model->setRotation(1, giving(node, away));
        model->setRotation(1, giving(node, angles));
        nbUndoService::the()->endGroup();
        nbUndoService::the()->beginGroup();
        const Vec3f rotatePivot = nbTransformModel::getRotationPivot(node, true);
        model->setRotationPivot(1, true, giving(node, away));
        model->setRotationPivot(1, true, giving(node, rotatePivot));
        const Vec3f scalePivot = nbTransformModel::getScalePivot(node, true);
        model->setScalePivot(1, true, giving(node, away));
        model->setScalePivot(1, true, giving(node, scalePivot));
        model->setRotationPivotOrientation(1, giving(node, away));
        model->setRotationPivotOrientation(1, giving(node, angles));
        nbUndoService::the()->endGroup();

        EXPECT_FALSE(nbUndoService::the()->undo());
    }
}

TEST_F(nbTransformModelTest, EditsOfOtherKindsInAGroupAreNotLost)
{
    const osg::NodePtr node = add([](Transform3D& of) { of.setRotation(Vec3f(0.f, 0.f, 90.f)); });
    nbUndoService::the()->beginGroup();

    model->setRotationPivot(1, false, giving(node, Vec3f(1.f, 0.f, 0.f)));
    model->setTranslation(1, false, giving(node, Vec3f(5.f, 0.f, 0.f)));
    const osg::Matrix before = node->getToWorld();
    model->setRotationPivot(1, false, giving(node, Vec3f(0.f, 3.f, 0.f)));

    EXPECT_TRUE(node->getToWorld().equals(before, kTolerance));
    nbUndoService::the()->endGroup();
}
