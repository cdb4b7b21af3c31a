// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/Manipulator.h"
#include "manipulator/ManipulatorInteractionContext.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <type_traits>

namespace nbec::manipulator::bench {

constexpr int kWidthPx = 1280;
constexpr int kHeightPx = 800;

/// A manipulator or tool in a view of 1280 x 800 pixels, driven by events that take the whole path:
/// pointer position, context, manipulator. Nothing is drawn.
/// @tparam Gizmo  the manipulator or tool
template <class Gizmo>
class GizmoStage
{
    static constexpr bool kIsManipulator = std::is_base_of_v<Manipulator, Gizmo>;

public:
    using GizmoType = Gizmo;

    GizmoStage() { view.resize(kWidthPx, kHeightPx); }

    GizmoStage(const GizmoStage&) = delete;
    GizmoStage& operator=(const GizmoStage&) = delete;

    ~GizmoStage() { finish(); }

    /// Pixel of a world point. @return device pixels, y from the top
    osg::Pnt2f pixelOfWorld(const osg::Pnt3f& world) const
    {
        osg::Matrix clipFromWorld;
        view.getCamera()->getWorldToScreen(clipFromWorld, *view.getViewport());
        osg::Pnt3f device;
        clipFromWorld.multFullMatrixPnt(world, device);
        return osg::Pnt2f((device.x() + 1.F) * 0.5F * kWidthPx,
                          (1.F - device.y()) * 0.5F * kHeightPx);
    }

    /// Pixel of a point in the frame of a node.
    osg::Pnt2f pixelIn(const osg::NodePtr& frame, const osg::Pnt3f& point) const
    {
        osg::Pnt3f world = point;
        frame->getToWorld().multMatrixPnt(world);
        return pixelOfWorld(world);
    }

    bool hover(const osg::Pnt2f& positionPx) { return trigger(hoverEvent, positionPx); }

    bool press(const osg::Pnt2f& positionPx) { return trigger(startEvent, positionPx); }

    bool drag(const osg::Pnt2f& positionPx) { return trigger(processEvent, positionPx); }

    /// Takes hold of the handle at a pixel, within an open undo group.
    bool grabAt(const osg::Pnt2f& positionPx)
    {
        pressed = positionPx;
        nbUndoService::the()->beginGroup();
        return hover(pressed) && press(pressed) && drag(pressed);
    }

    /// The next step of a pointer that wanders to and fro; no step repeats the one before.
    bool step()
    {
        const float offset = nextWay();
        return drag(pressed + osg::Vec2f(offset, -offset));
    }

    /// Numbers from 1 up to the way's length and back, pixels.
    float nextWay()
    {
        way = way % (2 * wayPx) + 1;
        return static_cast<float>(way <= wayPx ? way : 2 * wayPx - way);
    }

    nbec::interaction::Picker& picker() { return contextPicker; }

    nbOSGWidget view;
    Gizmo gizmo;
    int wayPx = 64;
    osg::Pnt2f hoverFromPx;  ///< a handle lies under all of the line from here
    osg::Pnt2f hoverToPx;  ///< to here
    bool isHandleHit = true;  ///< whether the gizmo says so

protected:
    void look(const osg::Pnt3f& from)
    {
        view.getUberCamera()->setFromAtUp(from, osg::Pnt3f(0, 0, 0), osg::Vec3f(0, 1, 0));
    }

    /// Hangs the gizmo into the scene and gives it the events.
    void begin()
    {
        context.setPicker(&contextPicker);
        if constexpr (kIsManipulator) {
            gizmo.setVisualisationRoot(nbScenegraph::getInternalRoot());
            context.setManipulator(&gizmo);
        } else {
            context.setTool(&gizmo);
        }
        manager.addContext(&context);
    }

    /// Ends the drag and empties the scene; called first by the destructors of stages whose members
    /// the gizmo needs until then.
    void finish()
    {
        if (isFinished) {
            return;
        }
        isFinished = true;
        trigger(stopEvent, pressed);
        nbUndoService::the()->endGroup();
        nbUndoService::the()->clear();
        manager.removeContext(&context);
        nbScenegraph::clear();
    }

private:
    using Event = nbec::interaction::InteractionEvent;

    bool trigger(const Event& event, const osg::Pnt2f& positionPx)
    {
        view.setMousePosition(positionPx);
        context.pointerMoved(positionPx);
        return context.triggerEvent(&manager, event);
    }

    nbec::interaction::Picker contextPicker;
    std::conditional_t<kIsManipulator, ManipulatorInteractionContext,
                       nbec::interaction::ToolInteractionContext>
        context;
    nbec::interaction::InteractionManager manager;
    osg::Pnt2f pressed;
    int way = 0;
    bool isFinished = false;
    const Event hoverEvent { "hover", "tool", "select" };
    const Event startEvent { "start", "tool", "select" };
    const Event processEvent { "process", "tool", "select" };
    const Event stopEvent { "stop", "tool", "select" };
};

}  // namespace nbec::manipulator::bench
