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

bool AbstractInteractionTool::isPickHint(const std::string& hint) const
{
    static constexpr const char* kPickHints[] = { names::kSelect, names::kDeselect,
                                                  names::kAdd,    names::kSub,
                                                  names::kToggle, names::kSelectThrough };
    return std::any_of(std::begin(kPickHints), std::end(kPickHints),
                       [&hint](const char* pickHint) { return hint == pickHint; });
}

}  // namespace nbec::interaction
