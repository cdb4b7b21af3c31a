// SPDX-License-Identifier: MIT
// The perspective match manipulator, nothing drawn: making and destroying it, hovering on and off
// its lines, steps of a drag within an open undo group, updates. Events take the whole path:
// pointer position, context, manipulator. Beside the step of a drag stands what the host does in
// it: setting the line and solving the camera.
#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/PerspectiveMatchManipulator.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbKernelServices/nbdCameraNode.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <benchmark/benchmark.h>

namespace {

using nbec::manipulator::ManipulatorInteractionContext;
using nbec::manipulator::PerspectiveMatchManipulator;
using Event = nbec::interaction::InteractionEvent;

constexpr int kWidthPx = 1280;
constexpr int kHeightPx = 800;
constexpr int kWayPx = 16;

/// The match of a camera at (5, 6, 7) that looks at the origin, its lines as the camera sees them,
/// in 1280 x 800 pixels.
class Stage
{
public:
    Stage()
    {
        view.resize(kWidthPx, kHeightPx);
        const osg::UberCameraPtr camera = view.getUberCamera();
        camera->setFromAtUp(osg::Pnt3f(5, 6, 7), osg::Pnt3f(0, 0, 0), osg::Vec3f(0, 1, 0));
        cameraNode = nbdCameraNode(camera->getInternalParentNode().getFieldContainerId());
        cameraNode.layLinesAsSeen();
        manipulator.setVisualisationRoot(nbScenegraph::getInternalRoot());
        context.setPicker(&picker);
        context.setManipulator(&manipulator);
        manager.addContext(&context);
        manipulator.setCamera(camera);
        const QPointF centre = cameraNode.getPerspectiveMatch().getXLine1().center();
        linePx = osg::Pnt2f(static_cast<float>(centre.x() * kHeightPx),
                            static_cast<float>(kHeightPx - 1 - centre.y() * kHeightPx));
    }

    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    ~Stage()
    {
        trigger(stopEvent, linePx);
        nbUndoService::the()->endGroup();
        nbUndoService::the()->clear();
        manager.removeContext(&context);
        nbScenegraph::clear();
    }

    bool hover(const osg::Pnt2f& positionPx) { return trigger(hoverEvent, positionPx); }

    bool grab()
    {
        nbUndoService::the()->beginGroup();
        return hover(linePx) && trigger(startEvent, linePx) && trigger(processEvent, linePx);
    }

    /// The next step of a pointer that wanders to and fro; no step repeats the one before.
    bool step() { return trigger(processEvent, linePx + osg::Vec2f(nextWay(), 0)); }

    float nextWay()
    {
        way = way % (2 * kWayPx) + 1;
        return static_cast<float>(way <= kWayPx ? way : 2 * kWayPx - way);
    }

    nbOSGWidget view;
    PerspectiveMatchManipulator manipulator;
    nbdCameraNode cameraNode;
    osg::Pnt2f linePx;  ///< the middle of X line 1

private:
    bool trigger(const Event& event, const osg::Pnt2f& positionPx)
    {
        view.setMousePosition(positionPx);
        context.pointerMoved(positionPx);
        return context.triggerEvent(&manager, event);
    }

    nbec::interaction::Picker picker;
    ManipulatorInteractionContext context;
    nbec::interaction::InteractionManager manager;
    int way = 0;
    const Event hoverEvent { "hover", "tool", "select" };
    const Event startEvent { "start", "tool", "select" };
    const Event processEvent { "process", "tool", "select" };
    const Event stopEvent { "stop", "tool", "select" };
};

void createAndDestroy(benchmark::State& state)
{
    for (auto _ : state) {
        PerspectiveMatchManipulator manipulator;
        benchmark::DoNotOptimize(&manipulator);
    }
}

void hoverOnLine(benchmark::State& state)
{
    Stage stage;
    std::int64_t hits = 0;
    for (auto _ : state) {
        hits += stage.hover(stage.linePx) ? 1 : 0;
    }
    if (hits != static_cast<std::int64_t>(state.iterations())) {
        state.SkipWithError("a step missed the line");
    }
}

void hoverOffLines(benchmark::State& state)
{
    Stage stage;
    std::int64_t hits = 0;
    for (auto _ : state) {
        hits += stage.hover(osg::Pnt2f(20, 20)) ? 1 : 0;
    }
    if (hits != 0) {
        state.SkipWithError("a step hit a line");
    }
}

void dragStep(benchmark::State& state)
{
    Stage stage;
    if (!stage.grab()) {
        state.SkipWithError("the line was missed");
        return;
    }
    for (auto _ : state) {
        stage.step();
    }
}

void hostStep(benchmark::State& state)
{
    Stage stage;
    stage.manipulator.setCamera(osg::NullFC);
    nbUndoService::the()->beginGroup();
    const nbdPerspectiveMatch match = stage.cameraNode.getPerspectiveMatch();
    const QLineF start = match.getXLine1();
    for (auto _ : state) {
        match.setXLine1(start.translated(static_cast<double>(stage.nextWay()) / kHeightPx, 0));
        stage.cameraNode.updateFromPerspectiveMatch();
    }
}

void updateUnchanged(benchmark::State& state)
{
    Stage stage;
    for (auto _ : state) {
        stage.manipulator.update(true);
    }
}

void updateAfterResize(benchmark::State& state)
{
    Stage stage;
    for (auto _ : state) {
        stage.view.resize(kWidthPx + static_cast<int>(stage.nextWay()), kHeightPx);
    }
}

}  // namespace

BENCHMARK(createAndDestroy)->Name("match/create and destroy")->Unit(benchmark::kMicrosecond);
BENCHMARK(hoverOnLine)->Name("match/hover on a line");
BENCHMARK(hoverOffLines)->Name("match/hover off the lines");
BENCHMARK(dragStep)->Name("match/step of a drag")->Unit(benchmark::kMicrosecond);
BENCHMARK(hostStep)->Name("match/the host's part of a step")->Unit(benchmark::kMicrosecond);
BENCHMARK(updateUnchanged)->Name("match/update, nothing changed");
BENCHMARK(updateAfterResize)->Name("match/update after a resize");
