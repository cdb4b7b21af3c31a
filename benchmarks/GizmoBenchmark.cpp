// SPDX-License-Identifier: MIT
// The transform gizmo: making and destroying it, its memory, hovering on and off its handles, an
// update while nothing has changed. Hovering is the whole path of an event: pointer position,
// context, manipulator, picker.
#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/UniversalTransformManipulator2.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <OpenSG/OSGSimpleGeometry.h>

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <memory>

#include <malloc.h>

namespace {

using nbec::manipulator::ManipulatorInteractionContext;
using nbec::manipulator::UniversalTransformManipulator2;

/// A box with the universal gizmo over it, seen from (5, 6, 7) in 1280 x 800 pixels.
class Stage
{
public:
    Stage()
    {
        view.resize(1280, 800);
        view.getUberCamera()->setFromAtUp(osg::Pnt3f(5, 6, 7), osg::Pnt3f(0, 0, 0),
                                          osg::Vec3f(0, 1, 0));
        const osg::NodePtr box = osg::makeBox(1, 1, 1, 1, 1, 1);
        nbScenegraph::getRootNode()->addChild(box);
        gizmo.setVisualisationRoot(nbScenegraph::getInternalRoot());
        gizmo.setNode(box);
        gizmo.activateUniversalManipulator();
        context.setPicker(&picker);
        context.setManipulator(&gizmo);
        manager.addContext(&context);
    }

    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    ~Stage()
    {
        manager.removeContext(&context);
        nbScenegraph::clear();
    }

    /// Pixel of a world point. @return device pixels, y from the top
    osg::Pnt2f pixelOf(const osg::Pnt3f& world) const
    {
        osg::Matrix clipFromWorld;
        view.getCamera()->getWorldToScreen(clipFromWorld, *view.getViewport());
        osg::Pnt3f device;
        clipFromWorld.multFullMatrixPnt(world, device);
        return osg::Pnt2f((device.x() + 1.0F) * 640.0F, (1.0F - device.y()) * 400.0F);
    }

    bool hover(const osg::Pnt2f& positionPx)
    {
        view.setMousePosition(positionPx);
        return context.triggerEvent(&manager, hoverEvent);
    }

    nbOSGWidget view;
    UniversalTransformManipulator2 gizmo;
    nbec::interaction::Picker picker;
    ManipulatorInteractionContext context;
    nbec::interaction::InteractionManager manager;
    const nbec::interaction::InteractionEvent hoverEvent { "hover", "tool", "select" };
};

void createAndDestroy(benchmark::State& state)
{
    {
        const UniversalTransformManipulator2 first;
    }  // makes the geometry that all share
    for (auto _ : state) {
        UniversalTransformManipulator2 gizmo;
        benchmark::DoNotOptimize(gizmo);
    }
}

void memoryOfOne(benchmark::State& state)
{
    constexpr std::size_t kCount = 64;
    std::size_t bytes = 0;
    {
        const UniversalTransformManipulator2 first;
    }
    for (auto _ : state) {
        const std::size_t before = mallinfo2().uordblks;
        const auto gizmos = std::make_unique<std::array<UniversalTransformManipulator2, kCount>>();
        bytes = mallinfo2().uordblks - before;
        benchmark::DoNotOptimize(gizmos.get());
    }
    state.counters["bytes_each"] = static_cast<double>(bytes / kCount);
}

/// Wanders along the y arrow beyond the scale box, so that every step is a hit at another place of
/// one handle.
void hoverOnHandle(benchmark::State& state)
{
    Stage stage;
    const osg::Pnt2f from = stage.pixelOf(osg::Pnt3f(0, 1.17F, 0));
    const osg::Pnt2f to = stage.pixelOf(osg::Pnt3f(0, 1.35F, 0));
    constexpr int kSteps = 64;
    int step = 0;
    int hits = 0;
    for (auto _ : state) {
        const float t = static_cast<float>(step) / kSteps;
        hits += stage.hover(from + (to - from) * t) ? 1 : 0;
        step = (step + 1) % kSteps;
    }
    if (hits != static_cast<int>(state.iterations())) {
        state.SkipWithError("a step missed the handle");
    }
}

void hoverOffHandles(benchmark::State& state)
{
    Stage stage;
    constexpr int kSteps = 64;
    int step = 0;
    int hits = 0;
    for (auto _ : state) {
        hits += stage.hover(osg::Pnt2f(40.0F + static_cast<float>(step), 50.0F)) ? 1 : 0;
        step = (step + 1) % kSteps;
    }
    if (hits != 0) {
        state.SkipWithError("a step hit a handle");
    }
}

/// Between the handles: inside the gizmo's bounds on screen, but on none of them.
void hoverBetweenHandles(benchmark::State& state)
{
    Stage stage;
    const osg::Pnt2f between = stage.pixelOf(osg::Pnt3f(0.62F, 0.62F, 0.62F));
    int hits = 0;
    for (auto _ : state) {
        hits += stage.hover(between) ? 1 : 0;
    }
    state.counters["hits"] = hits;
}

void updateUnchanged(benchmark::State& state)
{
    Stage stage;
    stage.gizmo.update(true);
    for (auto _ : state) {
        stage.gizmo.update(false);
    }
}

}  // namespace

BENCHMARK(createAndDestroy)->Name("gizmo/create and destroy")->Unit(benchmark::kMicrosecond);
BENCHMARK(memoryOfOne)->Name("gizmo/memory")->Iterations(1);
BENCHMARK(hoverOnHandle)->Name("gizmo/hover on a handle");
BENCHMARK(hoverOffHandles)->Name("gizmo/hover off the handles");
BENCHMARK(hoverBetweenHandles)->Name("gizmo/hover between the handles");
BENCHMARK(updateUnchanged)->Name("gizmo/update, nothing changed");
