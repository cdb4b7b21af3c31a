// SPDX-License-Identifier: MIT
#include "tests/platform/support/VirtualSlot.h"

#include <nbInteraction/AbstractInteractionTool.h>
#include <nbInteraction/InteractionContext.h>

#include <gtest/gtest.h>

namespace nbec::interaction {
namespace {

using nbtest::virtualSlot;

TEST(InteractionContext, VirtualOperationsKeepTheirSlots)
{
    EXPECT_EQ(0, virtualSlot(&InteractionContext::getInteractionManager));
    EXPECT_EQ(1, virtualSlot(&InteractionContext::enabled));
    EXPECT_EQ(2, virtualSlot(&InteractionContext::disabled));
    EXPECT_EQ(3, virtualSlot(&InteractionContext::contextAdded));
    EXPECT_EQ(4, virtualSlot(&InteractionContext::contextRemoved));
    EXPECT_EQ(5, virtualSlot(&InteractionContext::contextRaised));
    EXPECT_EQ(6, virtualSlot(&InteractionContext::contextLowered));
    EXPECT_EQ(7, virtualSlot(&InteractionContext::pointerMoved));
    EXPECT_EQ(8, virtualSlot(&InteractionContext::cameraMoved));
    EXPECT_EQ(9, virtualSlot(&InteractionContext::triggerEvent));
    EXPECT_EQ(10, virtualSlot(&InteractionContext::isRaised));
    EXPECT_EQ(11, virtualSlot(&InteractionContext::isActive));
    EXPECT_EQ(12, virtualSlot(&InteractionContext::isEnabled));
    EXPECT_EQ(13, virtualSlot(&InteractionContext::getPreferredPosition));
    EXPECT_EQ(14, virtualSlot(&InteractionContext::selectMode));
}

TEST(AbstractInteractionTool, VirtualOperationsKeepTheirSlots)
{
    EXPECT_EQ(0, virtualSlot(&AbstractInteractionTool::setToolMode));
    EXPECT_EQ(1, virtualSlot(&AbstractInteractionTool::activateTool));
    EXPECT_EQ(2, virtualSlot(&AbstractInteractionTool::deactivateTool));
    EXPECT_EQ(3, virtualSlot(&AbstractInteractionTool::isActive));
    EXPECT_EQ(4, virtualSlot(&AbstractInteractionTool::startTool));
    EXPECT_EQ(5, virtualSlot(&AbstractInteractionTool::processTool));
    EXPECT_EQ(6, virtualSlot(&AbstractInteractionTool::stopTool));
    EXPECT_EQ(7, virtualSlot(&AbstractInteractionTool::triggerTool));
    EXPECT_EQ(8, virtualSlot(&AbstractInteractionTool::hoverTool));
    EXPECT_EQ(9, virtualSlot(&AbstractInteractionTool::stopHoverTool));
    EXPECT_EQ(10, virtualSlot(&AbstractInteractionTool::isPickHint));
    EXPECT_EQ(-1, virtualSlot(&AbstractInteractionTool::setDescription));
}

}  // namespace
}  // namespace nbec::interaction
