// SPDX-License-Identifier: MIT
#include "nbdPerspectiveMatch.h"

#include <nbKernelServices/detail/MatchEdit.h>
#include <nbKernelServices/detail/MatchState.h>

#include <algorithm>
#include <cmath>

namespace {

bool isLine(int which)
{
    return which >= 0 && which < nbdPerspectiveMatch::kLineCount;
}

double withKeptDigits(double stored, double given)
{
    return static_cast<double>(static_cast<float>(stored)) == given ? stored : given;
}

QLineF withKeptDigits(const QLineF& stored, const QLineF& given)
{
    return { withKeptDigits(stored.x1(), given.x1()), withKeptDigits(stored.y1(), given.y1()),
             withKeptDigits(stored.x2(), given.x2()), withKeptDigits(stored.y2(), given.y2()) };
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
        editMatch(getId(), [&](MatchState& state) {
            state.lines[which] = withKeptDigits(state.lines[which], line);
            state.isFresh = false;
        });
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
        editMatch(getId(), [&](MatchState& state) { state.type = type; });
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
        editMatch(getId(), [&](MatchState& state) {
            state.magnifyFactor = std::clamp(factor, kSmallestMagnifyFactor, kLargestMagnifyFactor);
        });
    }
}

void nbdPerspectiveMatch::setAnchoredToCentre(bool anchored) const
{
    editMatch(getId(), [&](MatchState& state) { state.anchoredToCentre = anchored; });
}
