// SPDX-License-Identifier: MIT
#include "tests/platform/support/LogLines.h"

#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGExt/nbEulerRotation.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbTransform/nbTransformModel.h>

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <string>
#include <vector>

using osg::Transform3D;
using osg::Transform3DPtr;
using osg::Vec3f;

namespace {

constexpr float kTolerance = 2e-5f;

/// What a node is made of, and what hangs above it.
struct Placement
{
    Vec3f translation { 0.f, 0.f, 0.f };
    Vec3f rotationDeg { 0.f, 0.f, 0.f };
    Vec3f scale { 1.f, 1.f, 1.f };
    Vec3f rotatePivot { 0.f, 0.f, 0.f };
    Vec3f scalePivot { 0.f, 0.f, 0.f };
    osg::Int32 mode = Transform3D::EulerMode;
    std::string order = "xyz";
};

Transform3DPtr makeCore(const Placement& placement)
{
    const Transform3DPtr core = Transform3D::create();
    const nbEdit edit(core, Transform3D::PartsFieldMask);
    core->setTranslation(placement.translation);
    core->setEulerRotationOrder(placement.order);
    core->setEulerRotation(placement.rotationDeg);
    core->setRotationQuaternion(
        nbEulerRotation::toQuaternion(placement.rotationDeg, placement.order));
    core->setRotationMode(placement.mode);
    core->setScale(placement.scale);
    core->setRotatePivot(placement.rotatePivot);
    core->setScalePivot(placement.scalePivot);
    return core;
}

class nbTransformModelTest : public testing::Test
{
protected:
    nbTransformModelTest()
        : root(osg::makeNodeFor(osg::Group::create()))
    {
        nbUndoService::the()->clear();
    }

    ~nbTransformModelTest() override { nbUndoService::the()->clear(); }

    osg::NodePtr add(const Placement& placement, const osg::NodePtr& parent = osg::NullFC)
    {
        const osg::NodePtr node = osg::makeNodeFor(makeCore(placement));
        (parent == osg::NullFC ? root.get() : parent)->addChild(node);
        return node;
    }

    /// Below a parent moved by (1,2,3), turned by 90 degrees about z and scaled by 2: the parent's
    /// (x,y,z) is the world's (1 - 2y, 2 + 2x, 3 + 2z).
    osg::NodePtr addBelowTurnedParent(const Placement& placement)
    {
        return add(placement,
                   add({ Vec3f(1.f, 2.f, 3.f), Vec3f(0.f, 0.f, 90.f), Vec3f(2.f, 2.f, 2.f) }));
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

void expectNear(const Vec3f& actual, const Vec3f& expected, float tolerance = kTolerance)
{
    for (osg::UInt32 i = 0; i < 3; ++i) {
        EXPECT_NEAR(actual[i], expected[i], tolerance) << "component " << i;
    }
}

void expectSameBits(const Vec3f& actual, const Vec3f& expected)
{
    EXPECT_EQ(0, std::memcmp(actual.getValues(), expected.getValues(), sizeof(Vec3f)))
        << actual[0] << " " << actual[1] << " " << actual[2];
}

void expectNear(const osg::Matrix& actual, const osg::Matrix& expected, float tolerance)
{
    for (osg::UInt32 column = 0; column < 4; ++column) {
        for (osg::UInt32 row = 0; row < 4; ++row) {
            EXPECT_NEAR(actual[column][row], expected[column][row], tolerance)
                << "column " << column << " row " << row;
        }
    }
}

/// Rows for tests that must hold however a node is turned.
const std::vector<Placement>& turnedPlacements()
{
    static const std::vector<Placement> placements = [] {
        std::vector<Placement> rows;
        const Placement plain { Vec3f(1.f, -2.f, 3.f), Vec3f(25.f, -50.f, 110.f),
                                Vec3f(2.f, 0.5f, 3.f), Vec3f(0.5f, 1.f, -1.f),
                                Vec3f(-1.f, 0.25f, 2.f) };
        for (const char* order : { "xyz", "yzx", "zxy", "xzy", "yxz", "zyx" }) {
            rows.push_back(plain);
            rows.back().order = order;
        }
        for (const osg::Int32 mode :
             { Transform3D::QuaternionMode, Transform3D::AxisAlignedMode }) {
            rows.push_back(plain);
            rows.back().mode = mode;
        }
        rows.push_back(plain);
        rows.back().scale = Vec3f(-1.f, 2.f, 0.5f);
        return rows;
    }();
    return placements;
}

}  // namespace

// == Values

TEST_F(nbTransformModelTest, ParentsAmongTheTargetsAreReadAsTheyAreThen)
{
    const osg::NodePtr parent = add({});
    const osg::NodePtr child = add({}, parent);
    const std::vector<osg::NodePtr> nodes { child, parent, child };

    model->setTranslation(3, true, [&](osg::UInt32 i) {
        return nbTransformModel::Value({ nodes[i], -1 }, Vec3f(i == 1 ? 10.f : 1.f, 0.f, 0.f));
    });

    expectNear(coreOf(child)->getTranslation(), Vec3f(-9.f, 0.f, 0.f));
}

TEST_F(nbTransformModelTest, NodesOfOtherKindsAreConvertedWithinTheUndoStep)
{
    const osg::NodePtr node = osg::makeNodeFor(osg::Group::create());
    root->addChild(node);
    const osg::NodeCorePtr group = node->getCore();

    model->setTranslation(1, false, giving(node, Vec3f(1.f, 2.f, 3.f)));
    ASSERT_NE(coreOf(node), osg::NullFC);
    EXPECT_TRUE(nbUndoService::the()->undo());

    EXPECT_EQ(group, node->getCore());
    EXPECT_EQ(0u, node->getNChildren());
}

// == Refusals

TEST_F(nbTransformModelTest, BadTargetsAreLeftAloneWithOneLineForAll)
{
    const osg::NodePtr good = add({});
    const osg::NodePtr locked = add({});
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

    expectSameBits(coreOf(good)->getTranslation(), Vec3f(0.f, 0.f, 0.f));
    expectSameBits(coreOf(locked)->getTranslation(), Vec3f(0.f, 0.f, 0.f));
    EXPECT_EQ(1u, logged.size());
    EXPECT_FALSE(nbUndoService::the()->undo());
}

TEST_F(nbTransformModelTest, WorldValuesUnderAFlattenedParentAreRefused)
{
    Placement flat;
    flat.scale = Vec3f(1.f, 0.f, 1.f);
    const osg::NodePtr node = add({}, add(flat));

    EXPECT_EQ(0u, model->setTranslation(1, true, giving(node, Vec3f(1.f, 2.f, 3.f))));
    EXPECT_EQ(0u, model->setRotationPivot(1, true, giving(node, Vec3f(1.f, 2.f, 3.f))));
    EXPECT_EQ(2u, logged.size());
    EXPECT_EQ(1u, model->setTranslation(1, false, giving(node, Vec3f(1.f, 2.f, 3.f))));
}

TEST_F(nbTransformModelTest, ResultsBeyondFloatsAreRefused)
{
    Placement tiny;
    tiny.scale = Vec3f(1e-30f, 1e-30f, 1e-30f);
    const osg::NodePtr node = add({}, add(tiny));

    EXPECT_EQ(0u, model->setTranslation(1, true, giving(node, Vec3f(1e20f, 0.f, 0.f))));

    expectSameBits(coreOf(node)->getTranslation(), Vec3f(0.f, 0.f, 0.f));
    EXPECT_EQ(1u, logged.size());
}

// == Pivots

TEST_F(nbTransformModelTest, ScalePivotIsThePointThatScalingLeavesAlone)
{
    Placement placement;
    placement.rotationDeg = Vec3f(0.f, 0.f, 180.f);
    placement.scale = Vec3f(2.f, 2.f, 2.f);
    const osg::NodePtr node = add(placement);

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
    Placement placement;
    placement.scale = Vec3f(2.f, 0.f, 1.f);
    const osg::NodePtr node = add(placement);
    const osg::Matrix before = node->getToWorld();

    EXPECT_EQ(1u, model->setScalePivot(1, false, giving(node, Vec3f(4.f, 5.f, 6.f))));

    expectNear(coreOf(node)->getScalePivot(), Vec3f(2.f, 0.f, 6.f));
    expectNear(node->getToWorld(), before, kTolerance);
}

// == Groups of steps

TEST_F(nbTransformModelTest, AGroupThatGoesBackToItsStartLeavesNoStep)
{
    for (const Placement& placement : turnedPlacements()) {
        SCOPED_TRACE(placement.order + " in mode " + std::to_string(placement.mode));
        const osg::NodePtr node = addBelowTurnedParent(placement);
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
    Placement placement;
    placement.rotationDeg = Vec3f(0.f, 0.f, 90.f);
    const osg::NodePtr node = add(placement);
    nbUndoService::the()->beginGroup();

    model->setRotationPivot(1, false, giving(node, Vec3f(1.f, 0.f, 0.f)));
    model->setTranslation(1, false, giving(node, Vec3f(5.f, 0.f, 0.f)));
    const osg::Matrix before = node->getToWorld();
    model->setRotationPivot(1, false, giving(node, Vec3f(0.f, 3.f, 0.f)));

    expectNear(node->getToWorld(), before, kTolerance);
    nbUndoService::the()->endGroup();
}
