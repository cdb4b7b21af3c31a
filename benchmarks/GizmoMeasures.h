// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/GizmoStage.h"

#include <OpenSG/OSGIntersectAction.h>
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGRefPtr.h>

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <malloc.h>

/// What is measured of every gizmo, and beside it the plain way to the same end: a gizmo with
/// shapes of its own for one that shares them, the scene graph's own intersection for the picker,
/// placing in any case for placing when something has changed, the edit alone for a step of a drag.
namespace nbec::manipulator::bench {

// == Making one

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

/// The nodes, cores, materials and shapes of one, nothing shared.
template <class Gizmo>
osg::NodeRefPtr copyWithShapes(Gizmo& gizmo)
{
    return osg::NodeRefPtr(osg::deepCloneTree(gizmo.getVisualisation()));
}

template <class Gizmo>
void copyAndDestroy(benchmark::State& state)
{
    Gizmo gizmo;
    for (auto _ : state) {
        const osg::NodeRefPtr copy = copyWithShapes(gizmo);
        benchmark::DoNotOptimize(&copy);
    }
}

/// Bytes that each of 64 takes.
template <class Make>
void memoryOfEach(benchmark::State& state, Make&& make)
{
    constexpr std::size_t kCount = 64;
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::vector<decltype(make())> made;
        made.reserve(kCount);
        const std::size_t before = mallinfo2().uordblks;
        for (std::size_t i = 0; i < kCount; ++i) {
            made.push_back(make());
        }
        bytes = mallinfo2().uordblks - before;
    }
    state.counters["bytes_each"] = static_cast<double>(bytes / kCount);
}

template <class Gizmo>
void memoryOfOne(benchmark::State& state)
{
    {
        const Gizmo first;
    }
    memoryOfEach(state, [] { return std::make_unique<Gizmo>(); });
}

template <class Gizmo>
void memoryOfACopy(benchmark::State& state)
{
    Gizmo gizmo;
    memoryOfEach(state, [&gizmo] { return copyWithShapes(gizmo); });
}

// == Hovering

/// Wanders along a line on screen, a step at each call.
class Way
{
public:
    Way(const osg::Pnt2f& fromPx, const osg::Pnt2f& toPx)
        : from(fromPx)
        , whole(toPx - fromPx)
    { }

    osg::Pnt2f next()
    {
        constexpr int kSteps = 64;
        number = (number + 1) % kSteps;
        return from + whole * (static_cast<float>(number) / kSteps);
    }

private:
    osg::Pnt2f from;
    osg::Vec2f whole;
    int number = 0;
};

/// Fails if not every step is answered alike.
template <class Stage>
void hoverAlong(benchmark::State& state, Stage& stage, Way way, bool isHandle)
{
    std::int64_t hits = 0;
    for (auto _ : state) {
        hits += stage.hover(way.next()) ? 1 : 0;
    }
    if (hits != (isHandle ? static_cast<std::int64_t>(state.iterations()) : 0)) {
        state.SkipWithError(isHandle ? "a step missed the handle" : "a step hit a handle");
    }
}

template <class Stage>
void hoverOnHandle(benchmark::State& state)
{
    Stage stage;
    hoverAlong(state, stage, Way(stage.hoverFromPx, stage.hoverToPx), stage.isHandleHit);
}

template <class Stage>
void hoverOffHandles(benchmark::State& state)
{
    Stage stage;
    hoverAlong(state, stage, Way(osg::Pnt2f(40.F, 50.F), osg::Pnt2f(104.F, 50.F)), false);
}

/// The ray under the pointer against the triangles of the handles; lines it cannot hit.
template <class Stage>
void hoverPlainly(benchmark::State& state)
{
    Stage stage;
    Way way(stage.hoverFromPx, stage.hoverToPx);
    const std::unique_ptr<osg::IntersectAction> action(osg::IntersectAction::create());
    for (auto _ : state) {
        const osg::Pnt2f px = way.next();
        osg::Line ray;
        stage.view.getCamera()->calcViewRay(ray, static_cast<int>(px.x()), static_cast<int>(px.y()),
                                            *stage.view.getViewport());
        action->setLine(ray);
        action->apply(stage.gizmo.getCollider());
        benchmark::DoNotOptimize(action->didHit());
    }
}

// == Updates

template <class Stage>
void update(benchmark::State& state, bool force)
{
    Stage stage;
    stage.gizmo.update(true);
    for (auto _ : state) {
        stage.gizmo.update(force);
    }
}

// == Dragging

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

/// The same edits as steps of a drag.
/// @param edit  makes the one with a number
template <class Stage, class Edit>
void plainEdits(benchmark::State& state, Stage& stage, Edit&& edit)
{
    for (auto _ : state) {
        edit(stage.nextWay());
    }
}

// == All of it

/// Registers all but the steps, below the name of a gizmo.
template <class Stage>
void addMeasures(const std::string& name)
{
    using Gizmo = typename Stage::GizmoType;
    const auto add = [&name](const char* what, auto&& measure) {
        return benchmark::RegisterBenchmark((name + what).c_str(), measure);
    };
    add("/create and destroy", createAndDestroy<Gizmo>)->Unit(benchmark::kMicrosecond);
    add("/create and destroy, plainly", copyAndDestroy<Gizmo>)->Unit(benchmark::kMicrosecond);
    add("/memory", memoryOfOne<Gizmo>)->Iterations(1);
    add("/memory, plainly", memoryOfACopy<Gizmo>)->Iterations(1);
    add("/hover on a handle", hoverOnHandle<Stage>);
    add("/hover on a handle, plainly", hoverPlainly<Stage>);
    add("/hover off the handles", hoverOffHandles<Stage>);
    add("/update, nothing changed", [](benchmark::State& state) { update<Stage>(state, false); });
    add("/update, plainly", [](benchmark::State& state) { update<Stage>(state, true); });
}

}  // namespace nbec::manipulator::bench
