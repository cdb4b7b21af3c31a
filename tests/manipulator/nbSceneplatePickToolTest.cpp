// SPDX-License-Identifier: MIT
#include "manipulator/nbSceneplatePickTool.h"

#include "tests/platform/nbInteraction/ToolTest.h"
#include "tests/platform/support/Plates.h"

#include <nbKernel/nbController.h>

#include <gmock/gmock.h>

namespace {

using nbec::interaction::Picker;
using nbec::interaction::ToolInteractionContext;
using testing::ElementsAre;
using testing::IsEmpty;

/// Pixels of the 400 x 300 view at which the two plates and nothing are seen.
const osg::Pnt2f kLeftPx(100, 150);
const osg::Pnt2f kRightPx(300, 150);
const osg::Pnt2f kNothingPx(200, 10);

/// Gives tests what a derived tool of a host has.
class HostTool : public nbSceneplatePickTool
{
public:
    using nbSceneplatePickTool::isSelectionHint;
    using nbSceneplatePickTool::preselectionActive;
    using nbSceneplatePickTool::preselectionSent;
    using nbSceneplatePickTool::sceneplateId;
    using nbSceneplatePickTool::startPreselection;
    using nbSceneplatePickTool::stopPreselection;
};

class SceneplatePickToolTest : public ToolTest<HostTool>
{
protected:
    SceneplatePickToolTest()
    {
        widget.resize(400, 300);
        left = addPlate({ kLeftPx.x(), kLeftPx.y(), 60, 60 });
        right = addPlate({ kRightPx.x(), kRightPx.y(), 60, 60 });
        picker.setFilter(Picker::SceneplateFilter);
        nbOSGWidget::setInteractionMode(1);
        nbController::addReceiver("sceneplatePreselected", [this](nbMessage& message) {
            osg::NodePtr node;
            EXPECT_EQ(message.names(), std::vector<std::string>({ "node" }));
            EXPECT_TRUE(nbMessage::get(message, "node", node));
            preselected.push_back(node);
        });
        nbController::addReceiver("sceneplateSelected", [this](nbMessage& message) {
            EXPECT_EQ(message.names(), std::vector<std::string>({ "nodes", "hint" }));
            EXPECT_TRUE(nbMessage::get(message, "nodes", selected));
            EXPECT_TRUE(nbMessage::get(message, "hint", selectedHint));
            ++selections;
        });
        // The manager's first mode is "tool"; these tests begin without it.
        tool.preselectionActive = false;
        tool.preselectionSent = false;
        preselected.clear();
        widget.setCursor(Qt::ArrowCursor);
    }

    ~SceneplatePickToolTest() override
    {
        nbController::clear();
        nbOSGWidget::setInteractionMode(0);
    }

    static osg::NodePtr addPlate(const platetest::PlatePx& place)
    {
        const osg::NodePtr node =
            platetest::makePlate(place, 300, osg::Color4f(1.0F, 1.0F, 1.0F, 1.0F));
        nbScenegraph::getSceneplateRoot()->addChild(node);
        return node;
    }

    bool sendAt(const osg::Pnt2f& px, const std::string& event, const std::string& hint = "select")
    {
        if (event == "start") {
            widget.setPressPosition(px);
        }
        const bool handled = ToolTest::sendAt(px, event, hint);
        if (event == "stop") {
            widget.clearPressPosition();
        }
        return handled;
    }

    /// A drag from one place to another. @return the answer to its last step
    bool dragTo(const osg::Pnt2f& from, const osg::Pnt2f& to)
    {
        sendAt(from, "start");
        return sendAt(to, "process");
    }

    osg::NodePtr left;
    osg::NodePtr right;
    std::vector<osg::NodePtr> preselected;
    std::vector<osg::NodePtr> selected;
    std::string selectedHint;
    int selections = 0;
    const osg::NodePtr none;
};

TEST_F(SceneplatePickToolTest, HintsAreComparedExactly)
{
    for (const char* hint : { "select", "deselect", "add", "sub", "toggle" }) {
        EXPECT_TRUE(HostTool::isSelectionHint(hint)) << hint;
    }
    for (const char* hint : { "Select", "selectThrough", "", "select " }) {
        EXPECT_FALSE(HostTool::isSelectionHint(hint)) << hint;
        EXPECT_TRUE(tool.hoverTool(&context, hint));
        EXPECT_TRUE(tool.stopHoverTool(&context, hint));
        EXPECT_FALSE(tool.startTool(&context, hint));
        EXPECT_FALSE(tool.processTool(&context, hint));
        EXPECT_FALSE(tool.stopTool(&context, hint));
    }
    EXPECT_THAT(preselected, IsEmpty());
    EXPECT_EQ(selections, 0);
}

TEST_F(SceneplatePickToolTest, HoveringReportsThePlateAndAlsoNothing)
{
    EXPECT_TRUE(sendAt(kLeftPx, "hover"));
    EXPECT_FALSE(sendAt(kNothingPx, "hover"));
    EXPECT_THAT(preselected, ElementsAre(left, none));

    EXPECT_TRUE(tool.stopHoverTool(&context, "select"));
    EXPECT_TRUE(tool.stopHoverTool(&context, "select"));
    EXPECT_THAT(preselected, ElementsAre(left, none, none)) << "one end per outstanding report";
}

TEST_F(SceneplatePickToolTest, HoveringHoldsBack)
{
    nbScenegraph::setPreselectionEnabled(false);
    EXPECT_FALSE(sendAt(kLeftPx, "hover"));
    nbScenegraph::setPreselectionEnabled(true);

    nbController::setPresenterMode(true);
    EXPECT_FALSE(sendAt(kLeftPx, "hover"));
    EXPECT_TRUE(tool.setToolMode(&context, "tool"));
    EXPECT_FALSE(tool.preselectionSent);
    nbController::setPresenterMode(false);

    EXPECT_THAT(preselected, IsEmpty());
}

TEST_F(SceneplatePickToolTest, InteractionModeZeroReportsInModeToolOnly)
{
    nbOSGWidget::setInteractionMode(0);
    EXPECT_FALSE(sendAt(kLeftPx, "hover"));
    EXPECT_THAT(preselected, IsEmpty());

    EXPECT_TRUE(tool.setToolMode(&context, "tool"));
    EXPECT_EQ(widget.getCursor(), Qt::CrossCursor);
    EXPECT_THAT(preselected, ElementsAre(left)) << "reports at once";
    EXPECT_TRUE(sendAt(kRightPx, "hover"));

    EXPECT_TRUE(tool.setToolMode(&context, ""));
    EXPECT_EQ(widget.getCursor(), Qt::ArrowCursor);
    EXPECT_FALSE(tool.preselectionActive);
    EXPECT_FALSE(sendAt(kLeftPx, "hover"));
    EXPECT_THAT(preselected, ElementsAre(left, right, none));
}

TEST_F(SceneplatePickToolTest, LeavingModeToolWithoutAReportKeepsReporting)
{
    nbOSGWidget::setInteractionMode(0);
    tool.setToolMode(&context, "tool");
    tool.stopHoverTool(&context, "select");
    preselected.clear();

    EXPECT_TRUE(tool.setToolMode(&context, ""));

    // Deliberate: the mode ends only together with an outstanding report.
    EXPECT_TRUE(tool.preselectionActive);
    EXPECT_THAT(preselected, IsEmpty());
    EXPECT_TRUE(sendAt(kLeftPx, "hover"));
}

TEST_F(SceneplatePickToolTest, DragsOfThreePixelsBothWaysSelectByRectangle)
{
    using Nodes = std::vector<osg::NodePtr>;
    const osg::Vec2f across(280, 100);
    // A drag by n pixels spans n + 1.
    const std::tuple<const char*, osg::Pnt2f, osg::Vec2f, bool, Nodes> rows[] = {
        { "2 x 10", kLeftPx, { 1, 9 }, false, { left } },
        { "10 x 2", kLeftPx, { 9, 1 }, false, { left } },
        { "3 x 3", kLeftPx, { 2, 2 }, true, {} },
        { "3 x 3 up left", kLeftPx, { -2, -2 }, true, {} },
        { "40 x 3", kLeftPx, { 39, 2 }, true, {} },
        { "none", kLeftPx, { 0, 0 }, false, { left } },
        { "around both", { 60, 100 }, across, true, { left, right } },
        { "around both, up left", { 340, 200 }, -across, true, { left, right } },
    };
    for (const auto& [name, from, drag, isRectangle, found] : rows) {
        EXPECT_TRUE(dragTo(from, from + drag)) << name;
        EXPECT_EQ(widget.getRectSelection(), isRectangle) << name;
        EXPECT_EQ(sendAt(from + drag, "stop"), !found.empty()) << name;
        EXPECT_FALSE(widget.getRectSelection()) << name;
        EXPECT_EQ(selected, found) << name;
    }
}

TEST_F(SceneplatePickToolTest, RectangleEndsAnOutstandingPreselectionAndIsRedrawn)
{
    sendAt(kNothingPx, "hover");
    sendAt(kNothingPx, "start");
    preselected.clear();
    widget.redrawDone();

    EXPECT_FALSE(sendAt(kNothingPx + osg::Vec2f(1, 1), "process"));
    EXPECT_FALSE(widget.isRedrawPending());
    EXPECT_TRUE(sendAt(kNothingPx + osg::Vec2f(5, 5), "process"));
    EXPECT_TRUE(widget.isRedrawPending());
    EXPECT_TRUE(sendAt(kNothingPx, "process")) << "a rectangle stays one when it gets small";

    EXPECT_THAT(preselected, ElementsAre(none));
    EXPECT_FALSE(tool.preselectionSent);
}

TEST_F(SceneplatePickToolTest, WithoutPickerOrContextNothingIsToldAndTheRectangleStays)
{
    widget.setRectSelection(true);
    context.setPicker(nullptr);
    for (ToolInteractionContext* ctx :
         { &context, static_cast<ToolInteractionContext*>(nullptr) }) {
        EXPECT_FALSE(tool.hoverTool(ctx, "select"));
        EXPECT_FALSE(tool.startTool(ctx, "select"));
        EXPECT_FALSE(tool.stopTool(ctx, "select"));
        EXPECT_TRUE(tool.setToolMode(ctx, "tool"));
    }
    EXPECT_TRUE(widget.getRectSelection());
    EXPECT_TRUE(tool.preselectionActive);
    EXPECT_THAT(preselected, IsEmpty());
    EXPECT_EQ(selections, 0);
}

}  // namespace
