// SPDX-License-Identifier: MIT
#include "tests/platform/support/VirtualSlot.h"

#include <nbInteraction/AbstractInteractionTool.h>
#include <nbInteraction/InteractionContext.h>

#include <gtest/gtest.h>

namespace nbec::interaction {
namespace {

using nbtest::expectSlotsFrom;
using nbtest::virtualSlot;

TEST(InteractionContext, VirtualOperationsKeepTheirSlots)
{
    using Context = InteractionContext;
    expectSlotsFrom(0, &Context::getInteractionManager, &Context::enabled, &Context::disabled,
                    &Context::contextAdded, &Context::contextRemoved, &Context::contextRaised,
                    &Context::contextLowered, &Context::pointerMoved, &Context::cameraMoved,
                    &Context::triggerEvent, &Context::isRaised, &Context::isActive,
                    &Context::isEnabled, &Context::getPreferredPosition, &Context::selectMode);
}

TEST(AbstractInteractionTool, VirtualOperationsKeepTheirSlots)
{
    using Tool = AbstractInteractionTool;
    expectSlotsFrom(0, &Tool::setToolMode, &Tool::activateTool, &Tool::deactivateTool,
                    &Tool::isActive, &Tool::startTool, &Tool::processTool, &Tool::stopTool,
                    &Tool::triggerTool, &Tool::hoverTool, &Tool::stopHoverTool, &Tool::isPickHint);
    EXPECT_EQ(-1, virtualSlot(&Tool::setDescription));
}

}  // namespace
}  // namespace nbec::interaction
