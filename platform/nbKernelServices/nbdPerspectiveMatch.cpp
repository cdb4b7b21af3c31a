// SPDX-License-Identifier: MIT
#include "nbdPerspectiveMatch.h"

#include <nbKernelServices/detail/MatchEdit.h>
#include <nbKernelServices/detail/MatchState.h>

#include <algorithm>
#include <cmath>

namespace {

/// Names of the lines as properties, by nbdPerspectiveMatch::Line.
constexpr const char* kLineProperties[] = { "xLine1", "xLine2", "yLine1",
                                            "yLine2", "zLine1", "zLine2" };

bool isLine(int which)
{
    return which >= 0 && which < nbdPerspectiveMatch::kLineCount;
}

}  // namespace

nbdPerspectiveMatch::nbdPerspectiveMatch(const nbdObject& object)
    : nbdObject(object.getKind() == Kind::PerspectiveMatch ? object : nbdObject())
{ }

QLineF nbdPerspectiveMatch::getLine(Line which) const
{
    const MatchState* const state = MatchTable::find(getId());
    return state != nullptr && isLine(which) ? state->lines[which] : QLineF();
}

void nbdPerspectiveMatch::setLine(Line which, const QLineF& line) const
{
    if (isLine(which)) {
        editMatch(*this, kLineProperties[which],
                  [&](MatchState& state) { state.lines[which] = line; });
    }
}

nbCameraTypes::VanishingLinesType nbdPerspectiveMatch::getVanishingLinesType() const
{
    const MatchState* const state = MatchTable::find(getId());
    return state != nullptr ? state->type : nbCameraTypes::XYZLines;
}

void nbdPerspectiveMatch::setVanishingLinesType(nbCameraTypes::VanishingLinesType type) const
{
    if (type >= 0 && type < nbCameraTypes::kVanishingLinesTypeCount) {
        editMatch(*this, "vanishingLinesType", [&](MatchState& state) { state.type = type; });
    }
}

float nbdPerspectiveMatch::getMagnifyFactor() const
{
    const MatchState* const state = MatchTable::find(getId());
    return state != nullptr ? state->magnifyFactor : kDefaultMagnifyFactor;
}

void nbdPerspectiveMatch::setMagnifyFactor(float factor) const
{
    if (std::isfinite(factor)) {
        editMatch(*this, "magnifyFactor", [&](MatchState& state) {
            state.magnifyFactor = std::clamp(factor, kSmallestMagnifyFactor, kLargestMagnifyFactor);
        });
    }
}
