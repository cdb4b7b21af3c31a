// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/DragContext.h"

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
    void setClickCallback(std::function<void(const std::string& hint)> callback);

private:
    std::function<void(const std::string&)> clickCallback;
    osg::Pnt2f pressPx;
    bool isClick = false;
};

}  // namespace viewer
