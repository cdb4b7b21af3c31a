// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/AbstractInteractionContext.h>
#include <nbOpenSGUberCamera/nbCameraNavigation.h>

#include <functional>
#include <optional>
#include <string>

class nbOSGWidget;

namespace nbec::interaction {

class Picker;

/// Navigates the main render widget's camera on events of the tool "camera".
///
/// "start", "process" and "stop" with hint "orbit", "pan" or "zoom" are a drag: the camera is
/// computed from where it was at the start and the way of the pointer. Dragging to zoom goes nearer
/// to the right and upwards, half the distance for a quarter of the view's height. "trigger" with
/// hint "zoom" goes nearer by kWheelFactor for each wheel step of the event's amount. Both zoom
/// towards what lies under the pointer. A cancelled drag puts the camera back. Without a widget or
/// in a view without area every event is refused.
class NB_PLATFORM_API CameraInteractionContext : public AbstractInteractionContext
{
public:
    /// Distance that one wheel step towards the scene leaves of a distance.
    static constexpr double kWheelFactor = 0.85;

    CameraInteractionContext() = default;
    CameraInteractionContext(const CameraInteractionContext&) = delete;
    CameraInteractionContext& operator=(const CameraInteractionContext&) = delete;

    /// Sets what finds the scene point under the pointer to zoom to; its filter is kept. Without
    /// one that point is taken at the pivot's depth.
    /// @param newPicker  not owned; null for none
    void setPicker(Picker* newPicker) { picker = newPicker; }

    Picker* getPicker() const { return picker; }

    /// Sets what is called after each change of the camera made from here, when the contexts of the
    /// manager have been told and a redraw was asked for; null for nothing.
    void setChangedCallback(std::function<void()> callback)
    {
        changedCallback = std::move(callback);
    }

    /// Places the main widget's camera and tells everybody as a navigation from here does. A drag
    /// that runs goes on from there.
    /// @return false, and nothing changes, without a widget or if a number is not finite
    bool setPose(const CameraPose& pose);

    void contextRemoved(InteractionManager* manager) override;

    void pointerMoved(const osg::Pnt2f& positionPx) override { pointerPosition = positionPx; }

    bool triggerEvent(InteractionManager* manager, const InteractionEvent& event) override;

    /// @return Camera
    PreferredPosition getPreferredPosition() override { return Camera; }

    ~CameraInteractionContext() override;

private:
    /// What a drag is computed from.
    struct Drag
    {
        CameraPose startPose;  ///< where it began, for taking it back
        CameraPose pose;  ///< what the way is applied to
        osg::Pnt2f positionPx;  ///< where the way begins
        osg::Pnt3f targetWorld;  ///< what a zoom goes to
        std::string hint;
    };

    bool startDrag(const std::string& hint);
    bool processDrag();
    bool stopDrag(bool takeBack);
    bool zoomBySteps(double steps);
    /// @return what the pointer points at, world space
    osg::Pnt3f pointedAt(const CameraPose& pose, const nbOSGWidget& view) const;
    /// Sets the pose without touching the drag. @return whether the camera took it
    bool apply(nbOSGWidget& view, const CameraPose& pose);
    void rebaseDrag(const CameraPose& pose);

    osg::Pnt2f pointerPosition { 0.0F, 0.0F };
    Picker* picker = nullptr;
    std::function<void()> changedCallback;
    std::optional<Drag> drag;
};

}  // namespace nbec::interaction
