// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/AbstractInteractionContext.h>

#include <functional>

namespace nbec::interaction {

/// Navigates the main render widget's camera on events of the tool "camera".
///
/// "start", "process" and "stop" with hint "orbit", "pan" or "zoom" are a drag: the camera follows
/// the pointer from where it was at the start. "trigger" with hint "zoom" moves by the event's
/// amount of wheel steps towards the point under the pointer (positive: closer). A cancelled drag
/// puts the camera back. Without a widget or with a view without area every event is refused.
class NB_PLATFORM_API CameraInteractionContext : public AbstractInteractionContext
{
public:
    CameraInteractionContext();
    /// A copy takes over the pointer, but neither callback nor running drag.
    CameraInteractionContext(const CameraInteractionContext& other);
    CameraInteractionContext& operator=(const CameraInteractionContext& other);

    void pointerMoved(const osg::Pnt2f& positionPx) override;
    bool triggerEvent(InteractionManager* manager, const InteractionEvent& event) override;
    /// @return Camera
    PreferredPosition getPreferredPosition() override;

    /// Sets what is called after each change of the camera made from here, after the contexts of
    /// the manager have been told and a redraw was asked for; null for nothing.
    void setChangedCallback(std::function<void()> callback);

    ~CameraInteractionContext() override;

private:
    struct Drag;

    osg::Pnt2f pointerPosition { 0.0f, 0.0f };
    std::function<void()> changedCallback;
};

}  // namespace nbec::interaction
