// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/ManipulatorInteractionContext.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <benchmark/benchmark.h>

#include <cstdint>

namespace nbec::manipulator::bench {

constexpr int kWidthPx = 1280;
constexpr int kHeightPx = 800;

/// A manipulator in a view of 1280 x 800 pixels, driven by events that take the whole path: pointer
/// position, context, manipulator. Nothing is drawn.
/// @tparam Gizmo  the manipulator
template <class Gizmo>
class GizmoStage
{
public:
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

    /// Takes hold of the handle at a pixel, within an open undo group.
    bool grabAt(const osg::Pnt2f& positionPx)
    {
        pressed = positionPx;
        nbUndoService::the()->beginGroup();
        return hover(pressed) && trigger(startEvent, pressed) && trigger(processEvent, pressed);
    }

    /// The next step of a pointer that wanders to and fro; no step repeats the one before.
    bool step()
    {
        const float offset = nextWay();
        return trigger(processEvent, pressed + osg::Vec2f(offset, -offset));
    }

    /// Numbers from 1 up to the way's length and back, pixels.
    float nextWay()
    {
        way = way % (2 * wayPx) + 1;
        return static_cast<float>(way <= wayPx ? way : 2 * wayPx - way);
    }

    nbOSGWidget view;
    Gizmo gizmo;
    int wayPx = 64;

protected:
    void look(const osg::Pnt3f& from)
    {
        view.getUberCamera()->setFromAtUp(from, osg::Pnt3f(0, 0, 0), osg::Vec3f(0, 1, 0));
    }

    /// Hangs the gizmo into the scene and gives it the events.
    void begin()
    {
        gizmo.setVisualisationRoot(nbScenegraph::getInternalRoot());
        context.setPicker(&picker);
        context.setManipulator(&gizmo);
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

    nbec::interaction::Picker picker;
    ManipulatorInteractionContext context;
    nbec::interaction::InteractionManager manager;
    osg::Pnt2f pressed;
    int way = 0;
    bool isFinished = false;
    const Event hoverEvent { "hover", "tool", "select" };
    const Event startEvent { "start", "tool", "select" };
    const Event processEvent { "process", "tool", "select" };
    const Event stopEvent { "stop", "tool", "select" };
};

// == What is measured of every gizmo

template <class Gizmo>
void createAndDestroy(benchmark::State& state)
{
    {
        const Gizmo first;
    }  // makes the geometry that all share
    for (auto _ : state) {
        Gizmo gizmo;
        benchmark::DoNotOptimize(&gizmo);
    }
}

/// Wanders along a line on screen; fails if not every step is answered alike.
/// @param isHandle  whether a handle lies under all of it
template <class Stage>
void hoverAlong(benchmark::State& state, Stage& stage, const osg::Pnt2f& from, const osg::Pnt2f& to,
                bool isHandle = true)
{
    constexpr int kSteps = 64;
    int number = 0;
    std::int64_t hits = 0;
    for (auto _ : state) {
        const float t = static_cast<float>(number) / kSteps;
        hits += stage.hover(from + (to - from) * t) ? 1 : 0;
        number = (number + 1) % kSteps;
    }
    if (hits != (isHandle ? static_cast<std::int64_t>(state.iterations()) : 0)) {
        state.SkipWithError(isHandle ? "a step missed the handle" : "a step hit a handle");
    }
}

/// Wanders where no handle is.
template <class Stage>
void hoverBeside(benchmark::State& state, Stage& stage)
{
    hoverAlong(state, stage, osg::Pnt2f(40.F, 50.F), osg::Pnt2f(104.F, 50.F), false);
}

template <class Stage>
void dragSteps(benchmark::State& state, Stage& stage, const osg::Pnt2f& handlePx)
{
    if (!stage.grabAt(handlePx)) {
        state.SkipWithError("the handle was missed");
        return;
    }
    std::int64_t handled = 0;
    for (auto _ : state) {
        handled += stage.step() ? 1 : 0;
    }
    if (handled != static_cast<std::int64_t>(state.iterations())) {
        state.SkipWithError("a step was refused");
    }
}

}  // namespace nbec::manipulator::bench
