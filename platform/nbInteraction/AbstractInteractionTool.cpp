// SPDX-License-Identifier: MIT
#include <nbInteraction/AbstractInteractionTool.h>
#include <nbInteraction/EventNames.h>

#include <algorithm>
#include <iterator>

namespace nbec::interaction {

AbstractInteractionTool::AbstractInteractionTool(const AbstractInteractionTool& other)
    : description(other.description)
{ }

AbstractInteractionTool& AbstractInteractionTool::operator=(const AbstractInteractionTool& other)
{
    description = other.description;
    return *this;
}

AbstractInteractionTool::~AbstractInteractionTool() = default;

bool AbstractInteractionTool::setToolMode(ToolInteractionContext*, const std::string&)
{
    return false;
}

void AbstractInteractionTool::activateTool(ToolInteractionContext*)
{
    active = true;
}

void AbstractInteractionTool::deactivateTool(ToolInteractionContext*)
{
    active = false;
}

bool AbstractInteractionTool::isActive() const
{
    return active;
}

bool AbstractInteractionTool::startTool(ToolInteractionContext*, const std::string&)
{
    return false;
}

bool AbstractInteractionTool::processTool(ToolInteractionContext*, const std::string&)
{
    return false;
}

bool AbstractInteractionTool::stopTool(ToolInteractionContext*, const std::string&)
{
    return false;
}

bool AbstractInteractionTool::triggerTool(ToolInteractionContext*, const std::string&)
{
    return false;
}

bool AbstractInteractionTool::hoverTool(ToolInteractionContext*, const std::string&)
{
    return false;
}

bool AbstractInteractionTool::stopHoverTool(ToolInteractionContext*, const std::string&)
{
    return false;
}

bool AbstractInteractionTool::isPickHint(const std::string& hint) const
{
    static constexpr const char* kPickHints[] = { names::kSelect, names::kDeselect,
                                                  names::kAdd,    names::kSub,
                                                  names::kToggle, names::kSelectThrough };
    return std::any_of(std::begin(kPickHints), std::end(kPickHints),
                       [&hint](const char* pickHint) { return hint == pickHint; });
}

void AbstractInteractionTool::setDescription(const std::string& text)
{
    description = text;
}

const std::string& AbstractInteractionTool::getDescription() const
{
    return description;
}

}  // namespace nbec::interaction
