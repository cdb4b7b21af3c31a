// SPDX-License-Identifier: MIT
// The scene-plate manipulator: making and destroying it, hovering its handles, an update while
// nothing has changed, a step of a drag. A step is the whole way: pointer position, context,
// manipulator, message, module with an open group of undo, plate, handles; nothing is drawn.
#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/nbSceneplateManipulator.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbSceneplateModule/nbSceneplateModule.h>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

namespace {

using nbec::manipulator::ManipulatorInteractionContext;
using Event = nbec::interaction::InteractionEvent;

constexpr int kWayPx = 64;
const osg::Pnt2f kCentrePx(640, 400);

/// Plates of 320 x 200 pixels at the centre of 1280 x 800, all selected.
class Stage
{
public:
    explicit Stage(std::int64_t count)
    {
        view.resize(1280, 800);
        for (std::int64_t i = 0; i < count; ++i) {
            osg::SceneplatePtr plate;
            nodes.push_back(osg::makeCoredNode<osg::Sceneplate>(&plate));
            const nbEdit edit(plate, osg::FieldBits::AllFields);
            plate->setSize(osg::Vec2f(0.4F, 0.25F));
            nbScenegraph::getSceneplateRoot()->addChild(nodes.back());
        }
        module.select(nodes, "select");
        manipulator.setVisualisationRoot(nbScenegraph::getInternalRoot());
        manipulator.setNodes(nodes);
        context.setPicker(&picker);
        context.setManipulator(&manipulator);
        manager.addContext(&context);
    }

    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    ~Stage()
    {
        trigger(stopEvent, kCentrePx);
        nbUndoService::the()->endGroup();
        nbUndoService::the()->clear();
        manager.removeContext(&context);
        nbScenegraph::clear();
    }

    bool grab(const osg::Pnt2f& positionPx)
    {
        pressed = positionPx;
        nbUndoService::the()->beginGroup();
        return trigger(startEvent, pressed) && trigger(processEvent, pressed);
    }

    /// The next step of a pointer that wanders to and fro; no step repeats the one before.
    bool step()
    {
        way = way % (2 * kWayPx) + 1;
        const auto offset = static_cast<float>(way <= kWayPx ? way : 2 * kWayPx - way);
        return trigger(processEvent, pressed + osg::Vec2f(offset, -offset));
    }

    bool hover(const osg::Pnt2f& positionPx) { return trigger(hoverEvent, positionPx); }

    nbOSGWidget view;
    nbSceneplateManipulator manipulator;

private:
    bool trigger(const Event& event, const osg::Pnt2f& positionPx)
    {
        view.setMousePosition(positionPx);
        return context.triggerEvent(&manager, event);
    }

    std::vector<osg::NodePtr> nodes;
    nbSceneplateModule module;
    nbec::interaction::Picker picker;
    ManipulatorInteractionContext context;
    nbec::interaction::InteractionManager manager;
    osg::Pnt2f pressed;
    int way = 0;
    const Event startEvent { "start", "tool", "select" };
    const Event processEvent { "process", "tool", "select" };
    const Event stopEvent { "stop", "tool", "select" };
    const Event hoverEvent { "hover", "tool", "select" };
};

void createAndDestroy(benchmark::State& state)
{
    {
        const nbSceneplateManipulator first;
    }  // makes the geometry that all share
    for (auto _ : state) {
        nbSceneplateManipulator manipulator;
        benchmark::DoNotOptimize(manipulator);
    }
}

void hoverOnBody(benchmark::State& state)
{
    Stage stage(1);
    constexpr int kSteps = 64;
    int step = 0;
    int hits = 0;
    for (auto _ : state) {
        hits += stage.hover(kCentrePx + osg::Vec2f(static_cast<float>(step), 20.0F)) ? 1 : 0;
        step = (step + 1) % kSteps;
    }
    if (hits != static_cast<int>(state.iterations())) {
        state.SkipWithError("a step missed the body");
    }
}

void updateUnchanged(benchmark::State& state)
{
    Stage stage(1);
    stage.manipulator.update(true);
    for (auto _ : state) {
        stage.manipulator.update(false);
    }
}

/// @param handle  where it is grabbed, from the centre of the frame, pixels
void dragStep(benchmark::State& state, const osg::Vec2f& handle)
{
    Stage stage(state.range(0));
    if (!stage.grab(kCentrePx + handle)) {
        state.SkipWithError("no handle was grabbed");
        return;
    }
    for (auto _ : state) {
        if (!stage.step()) {
            state.SkipWithError("a step was refused");
            break;
        }
    }
}

}  // namespace

BENCHMARK(createAndDestroy)->Name("plates/create and destroy")->Unit(benchmark::kMicrosecond);
BENCHMARK(hoverOnBody)->Name("plates/hover on the body");
BENCHMARK(updateUnchanged)->Name("plates/update, nothing changed");
BENCHMARK_CAPTURE(dragStep, move, osg::Vec2f(0, 20))->Name("plates/move")->Arg(1)->Arg(100);
BENCHMARK_CAPTURE(dragStep, turn, osg::Vec2f(0, -132))->Name("plates/turn")->Arg(1)->Arg(100);
BENCHMARK_CAPTURE(dragStep, scale, osg::Vec2f(160, -100))->Name("plates/scale")->Arg(1)->Arg(100);
