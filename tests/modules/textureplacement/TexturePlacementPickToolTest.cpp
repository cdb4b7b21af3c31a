// SPDX-License-Identifier: MIT
#include "modules/textureplacement/TexturePlacementPickTool.h"

#include "tests/platform/nbInteraction/ToolTest.h"

#include <nbKernel/nbController.h>

#include <gmock/gmock.h>

namespace nbec::modules::textureplacement {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr float kTolerance = 1e-4f;

/// A tool on a context in front of a box of 4 units around the origin; what it sends is written
/// down as "name" or, for the preview, "name enabled".
class TexturePlacementPickToolTest : public ToolTest<TexturePlacementPickTool>,
                                     public nbOSGWidget::Observer
{
protected:
    TexturePlacementPickToolTest()
    {
        hang(nbScenegraph::getRootNode(), placed(0.0f, 0.0f, 0.0f, named("box", box(4.0f))));
        widget.setObserver(this);
        nbController::addReceiver("editor::placeTexture", [this](nbMessage& message) {
            sent.push_back("editor::placeTexture");
            EXPECT_THAT(message.names(), ElementsAre("hitNode", "hitPoint", "hitNormal"));
            EXPECT_TRUE(nbMessage::get(message, "hitNode", hitNode));
            EXPECT_TRUE(nbMessage::get(message, "hitPoint", hitPoint));
            EXPECT_TRUE(nbMessage::get(message, "hitNormal", hitNormal));
        });
        nbController::addReceiver("setMatRenderEnabled", [this](nbMessage& message) {
            bool enabled = false;
            EXPECT_TRUE(nbMessage::get(message, "enabled", enabled));
            sent.push_back(enabled ? "setMatRenderEnabled true" : "setMatRenderEnabled false");
        });
        nbController::addReceiver("updateMatRender",
                                  [this](nbMessage&) { sent.push_back("updateMatRender"); });
        tool.setMessageReceiver("editor");
    }

    ~TexturePlacementPickToolTest() override
    {
        widget.setObserver(nullptr);
        nbController::clear();
    }

    void antialiasingCancelled() override { throw sent.emplace_back("cancelAntialiasing"); }

    std::vector<std::string> takeSent() { return std::exchange(sent, {}); }

    std::vector<std::string> sent;
    osg::NodePtr hitNode;
    osg::Pnt3f hitPoint;
    osg::Vec3f hitNormal;
};

TEST_F(TexturePlacementPickToolTest, APressPlacesAndSoDoesEveryMoveUntilTheRelease)
{
    EXPECT_TRUE(sendAt({ 400.0f, 300.0f }, "start"));

    EXPECT_THAT(takeSent(), ElementsAre("setMatRenderEnabled false", "editor::placeTexture"));
    EXPECT_EQ("box", nbNodeUtils::getName(hitNode));
    EXPECT_NEAR(2.0f, hitPoint.z(), kTolerance);
    EXPECT_NEAR(1.0f, hitNormal.z(), kTolerance);

    // The front face lies at depth 8: 37.5 pixels a unit; rays go through centres of pixels.
    EXPECT_TRUE(sendAt({ 437.0f, 300.0f }, "process"));
    EXPECT_NEAR(1.0f, hitPoint.x(), kTolerance);
    EXPECT_THAT(takeSent(), ElementsAre("editor::placeTexture"));

    EXPECT_TRUE(sendAt({ 437.0f, 300.0f }, "stop"));
    EXPECT_THAT(takeSent(),
                ElementsAre("cancelAntialiasing", "setMatRenderEnabled true", "updateMatRender"));
}

TEST_F(TexturePlacementPickToolTest, APressBesideEveryObjectSendsANullNode)
{
    hitNode = nbScenegraph::getRootNode();

    EXPECT_TRUE(sendAt({ 10.0f, 10.0f }, "start"));

    EXPECT_THAT(sent, ElementsAre("setMatRenderEnabled false", "editor::placeTexture"));
    EXPECT_EQ(osg::NullFC, hitNode);
    EXPECT_EQ("Set Texture Center Position", tool.getDescription());
}

TEST_F(TexturePlacementPickToolTest, HintsOfOthersAreRefusedAndZoomIsTakenForNothing)
{
    const std::pair<const char*, bool> rows[] = {
        { "add", false },      { "zoom", true },    { "", false },
        { "selected", false }, { "selec", false },  { "zoomed", false },
        { "toggle", false },   { "Select", false }, { "selectThrough", false }
    };

    for (const auto& [hint, taken] : rows) {
        EXPECT_EQ(taken, tool.startTool(&context, hint)) << hint;
        EXPECT_EQ(taken, tool.processTool(&context, hint)) << hint;
        EXPECT_EQ(taken, tool.stopTool(&context, hint)) << hint;
    }
    EXPECT_THAT(sent, IsEmpty());
}

TEST_F(TexturePlacementPickToolTest, WithoutAPickerNothingStarts)
{
    EXPECT_TRUE(tool.isActive());
    context.setPicker(nullptr);

    EXPECT_FALSE(tool.startTool(&context, "select"));
    EXPECT_TRUE(tool.processTool(&context, "select"));

    EXPECT_THAT(sent, IsEmpty());
}

TEST_F(TexturePlacementPickToolTest, DescriptionShowsTheHitUnlessThatIsSwitchedOff)
{
    picker.pickAt({ 400.0f, 300.0f });
    const osg::Pnt3f point = picker.getHitPoint();
    sendAt({ 400.0f, 300.0f }, "start");
    std::ostringstream expected;
    expected << "Position: [" << point.x() << ", " << point.y() << ", " << point.z()
             << "] Direction: [0, 0, 1]";
    EXPECT_EQ(expected.str(), tool.getDescription());
    sendAt({ 400.0f, 300.0f }, "stop");

    manager.setEnabled(&context, false);
    EXPECT_EQ("", tool.getDescription());
    tool.setDescriptionText("Click");
    tool.setShowHitData(false);
    manager.setEnabled(&context, true);
    sendAt({ 400.0f, 300.0f }, "start");
    EXPECT_EQ("Click", tool.getDescription());
}

TEST_F(TexturePlacementPickToolTest, OnlyTheModeToolShowsTheCrossHair)
{
    const std::pair<const char*, Qt::CursorShape> rows[] = {
        { "tool", Qt::CrossCursor }, { "toolbox", Qt::ArrowCursor }, { "tool", Qt::CrossCursor },
        { "too", Qt::ArrowCursor },  { "tool", Qt::CrossCursor },    { "", Qt::ArrowCursor }
    };

    for (const auto& [mode, cursor] : rows) {
        EXPECT_TRUE(tool.setToolMode(&context, mode));
        EXPECT_EQ(cursor, widget.getCursor()) << mode;
    }
}

TEST_F(TexturePlacementPickToolTest, WithoutAReceiverTheBareSuffixIsSentAndALostStopIsMadeGood)
{
    tool.setMessageReceiver("");

    sendAt({ 400.0f, 300.0f }, "start");

    EXPECT_EQ(1U, nbController::getLostCalls()["::placeTexture"]);
    tool.deactivateTool(&context);
    EXPECT_FALSE(tool.isActive());
    EXPECT_EQ("updateMatRender", sent.back());
}

}  // namespace
}  // namespace nbec::modules::textureplacement
