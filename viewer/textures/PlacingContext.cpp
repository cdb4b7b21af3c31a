// SPDX-License-Identifier: MIT
#include "viewer/textures/PlacingContext.h"

#include "viewer/texts/Text.h"
#include "viewer/textures/TextureTool.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace viewer {
namespace {

// Of a notch of the wheel.
constexpr double kTurnDeg = 5.0;
constexpr double kFineTurnDeg = 1.0;
constexpr double kRatio = 1.1;
constexpr double kFineRatio = 1.01;
/// Larger or smaller than this a picture is made by its handles.
constexpr double kMostSize = 1000.0;
constexpr double kRadPerDeg = 0.017453292519943295;
constexpr double kWholeTurnDeg = 360.0;
constexpr double kPercent = 100.0;

using nbec::interaction::DragEnd;
using nbec::interaction::InteractionEvent;
using nbec::interaction::InteractionManager;
using nbec::interaction::Picker;
using nbec::interaction::ToolInteractionContext;
namespace names = nbec::interaction::names;

DragEnd endOf(const InteractionManager* manager)
{
    return manager != nullptr ? manager->getDragEnd() : DragEnd::Released;
}

}  // namespace

bool PlacingContext::placeHandles(const InteractionManager* manager, const std::string& event)
{
    if (event == names::kStart || event == names::kProcess) {
        // A click beside the surface must not select something else.
        areHandlesPlaced = owner.setAnchor(getPointerPosition()) || areHandlesPlaced;
        return true;
    }
    if (event == names::kStop && std::exchange(areHandlesPlaced, false) &&
        endOf(manager) == DragEnd::Released) {
        owner.setPlacing(false);
    }
    return event == names::kStop;
}

void PlacingContext::show(Pointer now)
{
    pointer = now;
    Picker* const finder = getPicker();
    const osg::NodePtr hit =
        pointer == Pointer::Hovering && getTool() != nullptr ? finder->pick() : osg::NodePtr();
    owner.target().showPlacing(hit, finder->getHitPoint(), finder->getHitNormal());
}

void PlacingContext::setTurn(double newAngleDeg, double newSize)
{
    angleDeg = std::remainder(newAngleDeg, kWholeTurnDeg);
    size = std::clamp(newSize, 1.0 / kMostSize, kMostSize);
    owner.target().setPlacingTurn(static_cast<float>(angleDeg * kRadPerDeg),
                                  static_cast<float>(size));
}

void PlacingContext::turn(InteractionManager* manager, double steps, bool isFine)
{
    if (getMode() == names::kPrecisionToolMode) {
        setTurn(angleDeg, size * std::pow(isFine ? kFineRatio : kRatio, steps));
    } else {
        setTurn(angleDeg + steps * (isFine ? kFineTurnDeg : kTurnDeg), size);
    }
    if (pointer == Pointer::Pressed) {
        ToolInteractionContext::triggerEvent(
            manager, InteractionEvent(names::kProcess, names::kTool, names::kSelect));
    } else {
        show(pointer);
    }
}

bool PlacingContext::triggerEvent(InteractionManager* manager, const InteractionEvent& event)
{
    const std::string& name = event.getEvent();
    const bool isTool = event.getTool() == names::kTool;
    if (getTool() == nullptr) {
        return isTool && placeHandles(manager, name);
    }
    if (name == names::kTrigger && event.getHint() == names::kZoom) {
        turn(manager, event.getAmount(), event.isFine());
        return true;
    }
    if (isTool && name == names::kHover) {
        show(Pointer::Hovering);
        return true;
    }
    const bool isTaken = ToolInteractionContext::triggerEvent(manager, event);
    if (isTool && name == names::kStopHover) {
        show(Pointer::Away);
    } else if (isTool && name == names::kStart && isTaken) {
        pointer = Pointer::Pressed;
    } else if (isTool && name == names::kStop && pointer == Pointer::Pressed) {
        pointer = Pointer::Away;
        if (endOf(manager) != DragEnd::Cancelled) {
            setTurn(0.0, 1.0);
        }
    }
    return isTaken;
}

void PlacingContext::contextRemoved(InteractionManager* manager)
{
    show(Pointer::Away);
    setTurn(0.0, 1.0);
    ToolInteractionContext::contextRemoved(manager);
}

QString PlacingContext::text() const
{
    return getTool() == nullptr
        ? Text::tr("A click places the handles; Esc ends")
        : Text::tr("A click places the picture, the wheel turns it (%1°), Ctrl and the wheel size "
                   "it (%2%); Shift slows, Esc ends")
              .arg(angleDeg, 0, 'f', 0)
              .arg(size * kPercent, 0, 'f', 0);
}

}  // namespace viewer
