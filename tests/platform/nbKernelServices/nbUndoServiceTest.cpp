// SPDX-License-Identifier: MIT
#include <nbKernelServices/nbChildrenRecord.h>
#include <nbKernelServices/nbScopedMultiCommand.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <QUndoStack>

#include <gtest/gtest.h>

using osg::Transform3D;
using osg::Vec3f;

namespace {

class nbUndoServiceTest : public testing::Test
{
protected:
    nbUndoServiceTest()
        : root(osg::makeNodeFor(osg::Group::create()))
        , node(osg::makeNodeFor(Transform3D::create()))
    {
        undo->clear();
        root->addChild(node);
    }

    ~nbUndoServiceTest() override { undo->clear(); }

    void moveTo(float x) { moveTo(node, x); }

    static void moveTo(const osg::NodePtr& moved, float x)
    {
        nbTransformModel::the()->setTranslation(1, false, [&](osg::UInt32) {
            return nbTransformModel::Value({ moved, -1 }, Vec3f(x, 0.f, 0.f));
        });
    }

    float place() const { return nbNodeUtils::getTransformNodeTranslation(node)[0]; }

    nbUndoService* const undo = nbUndoService::the();
    osg::NodeRefPtr root;
    osg::NodePtr node;
};

}  // namespace

// == Scopes

TEST_F(nbUndoServiceTest, NestedScopesJoinTheOuterOneAndTheFirstTitleHolds)
{
    {
        const nbScopedUndo scope(true);
        const nbScopedMultiCommand command(QStringLiteral("Change lines"));
        moveTo(1.f);
        moveTo(2.f);
    }

    EXPECT_EQ(1, undo->getStack()->count());
    EXPECT_EQ("Change lines", undo->getStack()->undoText());
    undo->undo();
    EXPECT_EQ(0.f, place());
}

TEST_F(nbUndoServiceTest, NothingRecordedAndNothingChangedLeaveNoStep)
{
    {
        const nbScopedUndo empty(true);
    }
    moveTo(0.f);
    {
        const nbScopedUndo scope(true);
        moveTo(3.f);
        moveTo(0.f);
    }
    {
        const nbScopedUndo muted(false);
        moveTo(5.f);
    }

    EXPECT_EQ(0, undo->getStack()->count());
    EXPECT_EQ(5.f, place());
}

// == Groups

TEST_F(nbUndoServiceTest, UndoAndRedoAreRefusedWithinGroupsAndScopes)
{
    moveTo(1.f);
    moveTo(2.f);
    undo->undo();

    undo->beginGroup();
    EXPECT_FALSE(undo->undo());
    EXPECT_FALSE(undo->redo());
    undo->endGroup();
    {
        const nbScopedUndo scope(true);
        EXPECT_FALSE(undo->undo());
    }
    EXPECT_EQ(1.f, place());
    EXPECT_TRUE(undo->redo());
}

TEST_F(nbUndoServiceTest, EndsWithinAScopeWaitForTheScope)
{
    undo->beginGroup();
    {
        const nbScopedUndo scope(true);
        moveTo(1.f);
        undo->cancelGroup();
        EXPECT_TRUE(undo->isGroupOpen());
        moveTo(2.f);
    }

    EXPECT_FALSE(undo->isGroupOpen());
    EXPECT_EQ(0.f, place());
}

TEST_F(nbUndoServiceTest, WhatWasDestroyedIsPassedOver)
{
    const osg::NodePtr other = osg::makeNodeFor(Transform3D::create());
    root->addChild(other);
    undo->beginGroup();
    moveTo(1.f);
    moveTo(other, 1.f);
    root->subChild(node);
    undo->endGroup();
    ASSERT_EQ(1, undo->getStack()->count());
    undo->undo();
    EXPECT_EQ(0.f, nbNodeUtils::getTransformNodeTranslation(other)[0]);

    root->subChild(other);
    EXPECT_TRUE(undo->redo());
    EXPECT_TRUE(undo->undo());
}

TEST_F(nbUndoServiceTest, WhoHearsOfAStepMayMakeAnother)
{
    const auto addGroup = [this] {
        undo->beginGroup();
        undo->record(std::make_unique<nbChildrenRecord>(std::vector<osg::NodePtr> { root }));
        root->addChild(osg::makeNodeFor(osg::Group::create()));
        undo->endGroup();
    };
    QObject listener;
    QObject::connect(undo->getStack(), &QUndoStack::indexChanged, &listener,
                     [&] { root->getNChildren() == 2 ? addGroup() : void(); });
    addGroup();
    EXPECT_EQ(2, undo->getStack()->count());
}

// == Conversions

TEST_F(nbUndoServiceTest, ConversionsBeforeTheFirstScopeBelongToItsStep)
{
    const osg::NodePtr plain = osg::makeNodeFor(osg::Group::create());
    const osg::NodePtr child = osg::makeNodeFor(osg::Group::create());
    plain->addChild(child);
    root->addChild(plain);
    const osg::NodeCorePtr group = plain->getCore();

    nbNodeUtils::convertToTransform3DNode(plain);
    nbNodeUtils::setTransformNodeRotatePivot(plain, 1.f, 2.f, 3.f, true, -1);
    EXPECT_EQ(0, undo->getStack()->count());
    moveTo(plain, 4.f);
    EXPECT_EQ(1, undo->getStack()->count());

    undo->undo();
    EXPECT_EQ(group, plain->getCore());
    ASSERT_EQ(1u, plain->getNChildren());
    EXPECT_EQ(child, plain->getChild(0));
    EXPECT_EQ(1u, group->getParents().getSize());

    undo->redo();
    EXPECT_EQ(4.f, nbNodeUtils::getTransformNodeTranslation(plain)[0]);
    EXPECT_EQ(Vec3f(1.f, 2.f, 3.f), nbNodeUtils::getTransformNodeRotatePivot(plain));
    ASSERT_EQ(1u, plain->getNChildren());
    EXPECT_EQ(group, plain->getChild(0)->getCore());
    EXPECT_EQ(plain, child->getParent()->getParent());
}
