// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <string>
#include <utility>

#include <manipulator/ManipulatorInteractionContext.h>

namespace viewer {

/// The manipulators' interaction context of the viewer: knows which handle is dragged.
class DragContext : public nbec::manipulator::ManipulatorInteractionContext
{
public:
    /// A context at the position of manipulators.
    DragContext();

    bool triggerEvent(nbec::interaction::InteractionManager* manager,
                      const nbec::interaction::InteractionEvent& event) override;

    /// Name of the handle that is being dragged, "" for none.
    const std::string& grabbedHandle() const { return grabbed; }

    /// Sets what is called when a drag has begun and when it has ended; empty for nothing.
    void setDragCallback(std::function<void()> callback) { dragCallback = std::move(callback); }

    /// Sets what the step of a drag is called, by the name of the handle; "" for what the
    /// manipulator calls it; empty: that for every handle.
    void setTitles(std::function<QString(const std::string& handle)> newTitles)
    {
        titles = std::move(newTitles);
    }

private:
    bool start(nbec::interaction::InteractionManager* manager,
               const nbec::interaction::InteractionEvent& event);
    bool stop(nbec::interaction::InteractionManager* manager,
              const nbec::interaction::InteractionEvent& event);
    void notify() const;

    std::function<void()> dragCallback;
    std::function<QString(const std::string&)> titles;
    bool isDragged = false;
    std::string grabbed;
};

}  // namespace viewer
