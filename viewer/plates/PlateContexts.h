// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/DragContext.h"

#include <nbInteraction/ToolInteractionContext.h>

#include <OpenSG/OSGVector.h>

#include <functional>
#include <string>

namespace viewer {

/// Context of the manipulator of scene plates. A click on the body, which covers what lies within
/// the frame, is passed on, so that plates there can be selected.
class PlateDragContext : public DragContext
{
public:
    /// Farthest that the pointer may go between press and release of a click, logical pixels.
    static constexpr float kClickTolerance = 3.0F;

    bool triggerEvent(nbec::interaction::InteractionManager* manager,
                      const nbec::interaction::InteractionEvent& event) override;

    /// Sets what a click on the body calls, with its hint.
    void setClickCallback(std::function<void(const std::string& hint)> callback)
    {
        clickCallback = std::move(callback);
    }

private:
    std::function<void(const std::string&)> clickCallback;
    osg::Pnt2f pressPx;
    bool isClick = false;
};

/// Context of the tool that picks scene plates. It takes every drag and hover of the tool, also
/// where there is no plate, so that a rectangle may begin anywhere and nothing of the 3D scene is
/// selected. A drag that was interrupted or cancelled picks nothing.
class PlatePickContext : public nbec::interaction::ToolInteractionContext
{
public:
    PlatePickContext();

    bool triggerEvent(nbec::interaction::InteractionManager* manager,
                      const nbec::interaction::InteractionEvent& event) override;

private:
    bool stop(nbec::interaction::InteractionManager* manager,
              const nbec::interaction::InteractionEvent& event);
};

}  // namespace viewer
