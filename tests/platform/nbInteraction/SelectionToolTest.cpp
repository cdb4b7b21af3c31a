// SPDX-License-Identifier: MIT
#include <nbInteraction/SelectionTool.h>
#include <nbOpenSGSelection/nbSelection.h>

#include <gmock/gmock.h>

#include <memory>

#include "ToolTest.h"

namespace nbec::interaction {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Pixels at which the two boxes and nothing are seen.
const osg::Pnt2f kLeftPx(310, 300);
const osg::Pnt2f kRightPx(490, 300);
const osg::Pnt2f kNothingPx(400, 20);

class SelectionToolTest : public ToolTest<SelectionTool>
{
protected:
    SelectionToolTest()
    {
        hang(nbScenegraph::getRootNode(), placed(-3.0f, 0.0f, 0.0f, left));
        hang(nbScenegraph::getRootNode(), placed(3.0f, 0.0f, 0.0f, right));
    }

    ~SelectionToolTest() override { nbSelection::clear(); }

    void click(const osg::Pnt2f& px, const std::string& hint)
    {
        sendAt(px, "start", hint);
        sendAt(px, "stop", hint);
    }

    osg::NodePtr left = box(1.0f);
    osg::NodePtr right = box(1.0f);
};

TEST_F(SelectionToolTest, HintSaysWhatAClickDoesToTheSelection)
{
    click(kLeftPx, "select");
    EXPECT_THAT(nbSelection::getNodes(), ElementsAre(left));
    click(kRightPx, "selectThrough");
    EXPECT_THAT(nbSelection::getNodes(), ElementsAre(right));
    click(kLeftPx, "add");
    click(kLeftPx, "add");
    EXPECT_THAT(nbSelection::getNodes(), ElementsAre(right, left));
    click(kRightPx, "toggle");
    EXPECT_THAT(nbSelection::getNodes(), ElementsAre(left));
    click(kRightPx, "toggle");
    EXPECT_THAT(nbSelection::getNodes(), ElementsAre(left, right));

    click(kNothingPx, "add");
    click(kNothingPx, "toggle");
    EXPECT_EQ(2u, nbSelection::getNodes().size());
    click(kNothingPx, "select");
    EXPECT_THAT(nbSelection::getNodes(), IsEmpty());
    EXPECT_FALSE(sendAt(kLeftPx, "start", "sub"));
}

TEST_F(SelectionToolTest, OnlyAReleaseNearThePressIsAClick)
{
    nbOSGWidget::getMGLW(-1)->setPixelRatio(2.0f);
    const osg::Pnt2f near(kLeftPx[0] + 8, kLeftPx[1]);
    const osg::Pnt2f far(kLeftPx[0] + 7, kLeftPx[1] + 5);

    sendAt(kLeftPx, "start", "select");
    EXPECT_TRUE(sendAt(far, "process", "select"));
    EXPECT_TRUE(sendAt(far, "stop", "select"));
    EXPECT_TRUE(nbSelection::isEmpty());

    sendAt(kLeftPx, "start", "select");
    sendAt(near, "stop", "select");
    EXPECT_THAT(nbSelection::getNodes(), ElementsAre(left));
}

TEST_F(SelectionToolTest, InterruptedOrCancelledPressSelectsNothing)
{
    for (const bool isCancelled : { false, true }) {
        EXPECT_TRUE(sendAt(kLeftPx, "start", "select"));
        isCancelled ? manager.cancelDrag() : manager.endDrag();
        EXPECT_FALSE(sendAt(kLeftPx, "stop", "select"));
        EXPECT_TRUE(nbSelection::isEmpty());
    }
}

TEST_F(SelectionToolTest, ToolIsActiveWhileItsContextIsAddedAndEnabled)
{
    EXPECT_TRUE(tool.isActive());
    manager.setEnabled(&context, false);
    EXPECT_FALSE(tool.isActive());
    manager.setEnabled(&context, true);
    EXPECT_TRUE(tool.isActive());

    auto dying = std::make_unique<ToolInteractionContext>(Selection);
    manager.removeContext(&context);
    dying->setTool(&tool);
    dying->setPicker(&picker);
    manager.addContext(dying.get());
    EXPECT_TRUE(sendAt(kLeftPx, "start", "select"));
    dying.reset();
    EXPECT_FALSE(tool.isActive());
    EXPECT_FALSE(sendAt(kLeftPx, "stop", "select"));
    EXPECT_TRUE(nbSelection::isEmpty());
}

}  // namespace
}  // namespace nbec::interaction
