// SPDX-License-Identifier: MIT
#pragma once

#include "tests/platform/nbInteraction/PickerTestSupport.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/ToolInteractionContext.h>

/// The view of PickerTest with a tool on a context.
template <class Tool>
class ToolTest : public PickerTest
{
protected:
    ToolTest()
    {
        context.setPicker(&picker);
        context.setTool(&tool);
        manager.addContext(&context);
    }

    ~ToolTest() override { manager.removeContext(&context); }

    /// An event with the pointer at a pixel.
    bool sendAt(const osg::Pnt2f& px, const std::string& event, const std::string& hint = "select")
    {
        widget.setMousePosition(px);
        manager.pointerMoved(px);
        return manager.triggerEvent(nbec::interaction::InteractionEvent(event, "tool", hint));
    }

    Tool tool;
    nbec::interaction::ToolInteractionContext context;
    nbec::interaction::InteractionManager manager;
};
