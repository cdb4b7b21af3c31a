// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/EventNames.h>
#include <nbInteraction/MultimodeInteractionContext.h>

namespace nbec::interaction {

class AbstractInteractionTool;
class Picker;

/// Context that drives one tool: events of its tool name become calls of the tool's operations.
///
/// The tool is active exactly while it is set on a context that is added and enabled. It is told
/// the current mode after its activation and the mode "" before its deactivation. Context and tool
/// own neither each other nor the picker; a tool is taken off its context before it dies.
class NB_PLATFORM_API ToolInteractionContext : public MultimodeInteractionContext
{
public:
    explicit ToolInteractionContext(PreferredPosition position = Tool);
    /// A tool has one context, so there are no copies.
    ToolInteractionContext(const ToolInteractionContext&) = delete;
    ToolInteractionContext& operator=(const ToolInteractionContext&) = delete;

    /// Changes the tool; the former one is deactivated first, after the stop of its running drag.
    /// @param newTool  not owned; null for none
    void setTool(AbstractInteractionTool* newTool);

    AbstractInteractionTool* getTool() const { return tool; }

    /// @param newPicker  not owned; null for none
    void setPicker(Picker* newPicker) { picker = newPicker; }

    Picker* getPicker() const { return picker; }

    /// The tool name of the events that reach the tool: "tool".
    static const char* getToolName() { return names::kTool; }

    /// @return the last pointer position, device pixels, y from the top; (0, 0) at first
    const osg::Pnt2f& getPointerPosition() const { return pointerPosition; }

    void enabled(InteractionManager* manager) override;
    void disabled(InteractionManager* manager) override;
    void contextAdded(InteractionManager* manager) override;
    void contextRemoved(InteractionManager* manager) override;
    void pointerMoved(const osg::Pnt2f& positionPx) override;

    /// Passes "start", "process", "stop", "trigger" and "hover" of the tool name to the tool and
    /// answers what it answers. "stopHover" reaches the tool too and is left to the others as well.
    bool triggerEvent(InteractionManager* manager, const InteractionEvent& event) override;

    /// Keeps the mode and passes it to the tool, if that is active.
    /// @return whether the tool knows it; false without an active tool
    bool selectMode(const std::string& mode) override;

    ~ToolInteractionContext() override;

private:
    /// Activates or deactivates the tool so that it follows this context's state.
    void activateIfUsable();
    void deactivateIfActive();
    bool callTool(const InteractionEvent& event);
    void pickFor(const std::string& hint);

    AbstractInteractionTool* tool = nullptr;
    Picker* picker = nullptr;
    osg::Pnt2f pointerPosition { 0.0F, 0.0F };
    bool toolIsActivated = false;
};

}  // namespace nbec::interaction
