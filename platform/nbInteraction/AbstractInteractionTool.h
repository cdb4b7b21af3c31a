// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <string>

namespace nbec::interaction {

class ToolInteractionContext;

/// Base of what the user does with the pointer in the view. A ToolInteractionContext drives it; the
/// base refuses every event.
///
/// Deliberate: the order of the virtual operations is fixed (slots 0 to 10 as numbered), and the
/// destructor stands after them, because tools built apart share this table.
/// In each operation `context` is the driving context, not owned and never null, and `hint` says
/// how the event is meant ("select", "add", "toggle", ...).
class NB_PLATFORM_API AbstractInteractionTool
{
public:
    AbstractInteractionTool() = default;
    /// A copy takes over the description. It is not active, as no context activated it.
    AbstractInteractionTool(const AbstractInteractionTool& other);
    /// Takes over the description; stays active or not.
    AbstractInteractionTool& operator=(const AbstractInteractionTool& other);

    /// Slot 0. The interaction mode is now `mode`; "" when the tool is being left.
    /// @return whether the tool knows the mode; false here
    virtual bool setToolMode(ToolInteractionContext* /*context*/, const std::string& /*mode*/)
    {
        return false;
    }

    /// Slot 1. The tool comes into use.
    virtual void activateTool(ToolInteractionContext* /*context*/) { active = true; }

    /// Slot 2. The tool goes out of use.
    virtual void deactivateTool(ToolInteractionContext* /*context*/) { active = false; }

    /// Slot 3. @return whether the tool is in use
    virtual bool isActive() const { return active; }

    /// Slot 4. A drag begins. @return whether the tool takes the drag; false here
    virtual bool startTool(ToolInteractionContext* /*context*/, const std::string& /*hint*/)
    {
        return false;
    }

    /// Slot 5. The pointer moved within a drag. @return whether the tool handled it; false here
    virtual bool processTool(ToolInteractionContext* /*context*/, const std::string& /*hint*/)
    {
        return false;
    }

    /// Slot 6. A drag ends. @return whether the tool handled it; false here
    virtual bool stopTool(ToolInteractionContext* /*context*/, const std::string& /*hint*/)
    {
        return false;
    }

    /// Slot 7. A single action without a drag. @return whether the tool handled it; false here
    virtual bool triggerTool(ToolInteractionContext* /*context*/, const std::string& /*hint*/)
    {
        return false;
    }

    /// Slot 8. The pointer moved without a button. @return whether the tool took it; false here
    virtual bool hoverTool(ToolInteractionContext* /*context*/, const std::string& /*hint*/)
    {
        return false;
    }

    /// Slot 9. The pointer no longer hovers. @return whether the tool handled it; false here
    virtual bool stopHoverTool(ToolInteractionContext* /*context*/, const std::string& /*hint*/)
    {
        return false;
    }

    /// Slot 10. @return whether the context's picker is to pick under the pointer before startTool
    /// and processTool with this hint, so that they find the hit in it. Here true for "select",
    /// "deselect", "add", "sub", "toggle" and "selectThrough".
    virtual bool isPickHint(const std::string& hint) const;

    virtual ~AbstractInteractionTool();

    /// Sets the line of text that tells the user what the tool does or did; "" for none.
    void setDescription(const std::string& text) { description = text; }

    const std::string& getDescription() const { return description; }

private:
    std::string description;
    bool active = false;
};

}  // namespace nbec::interaction
