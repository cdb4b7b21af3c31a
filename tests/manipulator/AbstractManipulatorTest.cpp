// SPDX-License-Identifier: MIT
#include "manipulator/AbstractManipulator.h"

#include "tests/manipulator/support/RecordingManipulator.h"

#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGContainerCensus.h>

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

namespace {

/// A manipulator that keeps every default of the base.
class PlainManipulator : public NodeManipulator
{
public:
    osg::NodePtr getVisualisation() override { return osg::NodePtr(); }

    osg::NodePtr getCollider() override { return osg::NodePtr(); }

    void update(bool /*force*/) override { }
};

class AbstractManipulatorTest : public testing::Test
{
protected:
    void SetUp() override { nbScenegraph::setPreselectionEnabled(true); }

    void TearDown() override { nbScenegraph::setPreselectionEnabled(true); }

    osg::UInt32 childrenOf(const osg::RefPtr<osg::NodePtr>& parent)
    {
        return parent->getNChildren();
    }

    osg::RefPtr<osg::NodePtr> root { osg::makeCoredNode<osg::Group>() };
    osg::RefPtr<osg::NodePtr> otherRoot { osg::makeCoredNode<osg::Group>() };
    RecordingManipulator manipulator;
};

}  // namespace

TEST_F(AbstractManipulatorTest, VisualisationHangsUnderTheRootExactlyWhileActive)
{
    manipulator.setVisualisationRoot(root.get());
    EXPECT_EQ(childrenOf(root), 0U);

    manipulator.activate(nullptr);
    manipulator.activate(nullptr);
    EXPECT_TRUE(manipulator.isActive());
    ASSERT_EQ(childrenOf(root), 1U);
    EXPECT_EQ(root->getChild(0), manipulator.getVisualisation());

    manipulator.deactivate(nullptr);
    EXPECT_FALSE(manipulator.isActive());
    EXPECT_EQ(childrenOf(root), 0U);
}

TEST_F(AbstractManipulatorTest, AnActiveVisualisationFollowsItsRoot)
{
    manipulator.setVisualisationRoot(root.get());
    manipulator.activate(nullptr);
    const osg::NodePtr sibling = osg::makeCoredNode<osg::Group>();
    root->addChild(sibling);

    manipulator.setVisualisationRoot(root.get());
    EXPECT_EQ(root->findChild(manipulator.getVisualisation()), 0)
        << "the same root must not re-hang it";

    manipulator.setVisualisationRoot(otherRoot.get());
    EXPECT_EQ(childrenOf(root), 1U);
    EXPECT_EQ(childrenOf(otherRoot), 1U);

    manipulator.setVisualisationRoot(osg::NodePtr());
    EXPECT_EQ(childrenOf(otherRoot), 0U);
    EXPECT_EQ(manipulator.getVisualisationRoot(), osg::NullFC);

    manipulator.deactivate(nullptr);
    manipulator.setVisualisationRoot(root.get());
    EXPECT_EQ(childrenOf(root), 1U) << "an inactive manipulator only stores the root";
}

TEST_F(AbstractManipulatorTest, HoldsOneCountOnTheRootAndCopiesHoldTheirOwn)
{
    const osg::Int32 before = root.get().getRefCount();
    {
        PlainManipulator original;
        original.setVisualisationRoot(root.get());
        original.setMousePosition(osg::Pnt2f(3, 4));
        PlainManipulator copy(original);
        PlainManipulator assigned;
        assigned.setVisualisationRoot(otherRoot.get());
        assigned = original;

        EXPECT_EQ(root.get().getRefCount(), before + 3);
        EXPECT_EQ(otherRoot.get().getRefCount(), 1);
        EXPECT_EQ(copy.getMousePosition(), osg::Pnt2f(3, 4));
        EXPECT_EQ(assigned.getVisualisationRoot(), root.get());
    }
    EXPECT_EQ(root.get().getRefCount(), before);
}

TEST_F(AbstractManipulatorTest, PreselectionIsOffWhileAHandleIsHovered)
{
    manipulator.answer = true;
    EXPECT_TRUE(manipulator.hover(nullptr, "select"));
    EXPECT_FALSE(nbScenegraph::isPreselectionEnabled());

    manipulator.answer = false;
    EXPECT_FALSE(manipulator.hover(nullptr, "select"));
    EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());

    manipulator.answer = true;
    manipulator.hover(nullptr, "select");
    EXPECT_TRUE(manipulator.reset(nullptr, "select"));
    EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());

    manipulator.hover(nullptr, "select");
    manipulator.activate(nullptr);
    manipulator.deactivate(nullptr);
    EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());
}

TEST_F(AbstractManipulatorTest, PreselectionThatSomebodyElseSwitchedOffStaysOff)
{
    nbScenegraph::setPreselectionEnabled(false);

    manipulator.answer = true;
    manipulator.hover(nullptr, "select");
    manipulator.answer = false;
    manipulator.hover(nullptr, "select");
    manipulator.reset(nullptr, "select");
    manipulator.activate(nullptr);
    manipulator.deactivate(nullptr);

    EXPECT_FALSE(nbScenegraph::isPreselectionEnabled());
}

TEST_F(AbstractManipulatorTest, DragOperationsAnswerTrueAndTheOthersFalseByDefault)
{
    PlainManipulator plain;

    EXPECT_TRUE(plain.startManipulator(nullptr, "select"));
    EXPECT_TRUE(plain.processManipulator(nullptr, "select"));
    EXPECT_TRUE(plain.stopManipulator(nullptr, "select"));
    EXPECT_FALSE(plain.hoverManipulator(nullptr, "select"));
    EXPECT_FALSE(plain.resetManipulator(nullptr, "select"));
    EXPECT_FALSE(plain.setManipulatorMode("precisionTool"));
}

}  // namespace nbec::manipulator::test
