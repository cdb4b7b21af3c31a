// SPDX-License-Identifier: MIT
// Steps of a drag on the transform gizmo, nothing drawn: pointer position in, event routed,
// transform set within an open undo group, messages sent, gizmo placed. Beside the step for many
// nodes stands a plain loop that makes the same edits. Gizmos are placed anew after the camera has
// moved.
#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/UniversalTransformManipulator2.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <OpenSG/OSGSimpleGeometry.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

using nbec::manipulator::ManipulatorInteractionContext;
using nbec::manipulator::UniversalTransformManipulator2;
using Event = nbec::interaction::InteractionEvent;

constexpr std::int64_t kManyNodes = 1000;
constexpr std::size_t kManyGizmos = 1000;
constexpr int kWayPx = 64;

osg::NodePtr addTransform(const osg::Vec3f& translation)
{
    const osg::NodePtr node = osg::makeCoredNode<osg::Transform3D>();
    const auto core = osg::Transform3DPtr::dcast(node->getCore());
    osg::beginEditCP(core);
    core->setTranslation(translation);
    core->setRotation(osg::Vec3f(10.F, 20.F, 30.F));
    core->setRotatePivot(osg::Vec3f(0.5F, 0.25F, 0.F));
    osg::endEditCP(core);
    nbScenegraph::getRootNode()->addChild(node);
    return node;
}

/// Nodes with a gizmo over the first one, whose handle is grabbed, seen from (5, 6, 7) in 1280 x
/// 800 pixels.
class Stage
{
public:
    explicit Stage(std::int64_t furtherCount)
    {
        view.resize(1280, 800);
        view.getUberCamera()->setFromAtUp(osg::Pnt3f(5, 6, 7), osg::Pnt3f(0, 0, 0),
                                          osg::Vec3f(0, 1, 0));
        node = addTransform(osg::Vec3f(-0.5F, -0.25F, 0.F));
        for (std::int64_t i = 0; i < furtherCount; ++i) {
            further.push_back(addTransform(osg::Vec3f(static_cast<float>(i), 20.F, 0.F)));
        }
        gizmo.setVisualisationRoot(nbScenegraph::getInternalRoot());
        gizmo.setNode(node, further);
        context.setPicker(&picker);
        context.setManipulator(&gizmo);
        manager.addContext(&context);
    }

    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    ~Stage()
    {
        trigger(stopEvent, pressed);
        nbUndoService::the()->endGroup();
        nbUndoService::the()->clear();
        manager.removeContext(&context);
        nbScenegraph::clear();
    }

    /// Grabs the handle at a point of the gizmo's unit frame.
    bool grab(const osg::Pnt3f& unit)
    {
        osg::Pnt3f world = unit;
        gizmo.getVisualisation()->getChild(3)->getChild(0)->getToWorld().multMatrixPnt(world);
        osg::Matrix clipFromWorld;
        view.getCamera()->getWorldToScreen(clipFromWorld, *view.getViewport());
        osg::Pnt3f device;
        clipFromWorld.multFullMatrixPnt(world, device);
        pressed = osg::Pnt2f((device.x() + 1.0F) * 640.0F, (1.0F - device.y()) * 400.0F);
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

    nbOSGWidget view;
    UniversalTransformManipulator2 gizmo;
    osg::NodePtr node;
    std::vector<osg::NodePtr> further;

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
    osg::Pnt2f pressed;
    int way = 0;
    const Event startEvent { "start", "tool", "select" };
    const Event processEvent { "process", "tool", "select" };
    const Event stopEvent { "stop", "tool", "select" };
};

using Activation = void (UniversalTransformManipulator2::*)();

struct Drag
{
    Activation activate;
    osg::Pnt3f grab;
};

const Drag kTranslate { &UniversalTransformManipulator2::activateTranslateManipulator,
                        { 1.9F, 0.F, 0.F } };
const Drag kRotate { &UniversalTransformManipulator2::activateRotateManipulator,
                     { 1.06066F, 0.F, 1.06066F } };
const Drag kScale { &UniversalTransformManipulator2::activateScaleManipulator, { 1.5F, 0.F, 0.F } };

void runSteps(benchmark::State& state, Stage& stage, const Drag& drag)
{
    (stage.gizmo.*drag.activate)();
    if (!stage.grab(drag.grab)) {
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

void oneNode(benchmark::State& state, const Drag& drag, bool withText)
{
    Stage stage(0);
    stage.gizmo.setDescriptionEnabled(withText);
    runSteps(state, stage, drag);
}

void manyNodes(benchmark::State& state, const Drag& drag)
{
    Stage stage(state.range(0));
    stage.gizmo.setDescriptionEnabled(false);
    runSteps(state, stage, drag);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

using Setter = void (osg::Transform3D::*)(const osg::Vec3f&);

/// The same edits as a step of manyNodes, without undo, permissions and spaces.
void plainLoop(benchmark::State& state, Setter set, osg::BitVector mask)
{
    const Stage stage(state.range(0));
    float offset = 1.F;
    for (auto _ : state) {
        offset = offset < 90.F ? offset + 0.25F : 1.F;
        for (const osg::NodePtr& node : stage.further) {
            const auto core = osg::Transform3DPtr::dcast(node->getCore());
            osg::beginEditCP(core, mask);
            (*core.*set)(osg::Vec3f(offset, 20.F, 30.F));
            osg::endEditCP(core, mask);
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// All gizmos placed again after a move of the camera.
void placeMany(benchmark::State& state)
{
    Stage stage(0);
    std::vector<std::unique_ptr<UniversalTransformManipulator2>> gizmos;
    for (std::size_t i = 0; i < kManyGizmos; ++i) {
        gizmos.push_back(std::make_unique<UniversalTransformManipulator2>());
        gizmos.back()->setNode(
            addTransform(osg::Vec3f(static_cast<float>(i % 32), static_cast<float>(i / 32), 0.F)));
        gizmos.back()->showActiveManipulator();
    }
    float turn = 0.F;
    for (auto _ : state) {
        turn = turn < 3.F ? turn + 0.01F : 0.F;
        stage.view.getUberCamera()->setFromAtUp(osg::Pnt3f(5.F + turn, 6, 7), osg::Pnt3f(0, 0, 0),
                                                osg::Vec3f(0, 1, 0));
        UniversalTransformManipulator2::updateAllManipulators();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kManyGizmos));
}

}  // namespace

BENCHMARK_CAPTURE(oneNode, translate, kTranslate, false)->Name("drag/one node, translate");
BENCHMARK_CAPTURE(oneNode, translateText, kTranslate, true)
    ->Name("drag/one node, translate, with text");
BENCHMARK_CAPTURE(oneNode, rotate, kRotate, false)->Name("drag/one node, rotate");
BENCHMARK_CAPTURE(oneNode, rotateText, kRotate, true)->Name("drag/one node, rotate, with text");
BENCHMARK_CAPTURE(oneNode, scale, kScale, false)->Name("drag/one node, scale");
BENCHMARK_CAPTURE(oneNode, scaleText, kScale, true)->Name("drag/one node, scale, with text");
BENCHMARK_CAPTURE(manyNodes, translate, kTranslate)->Name("drag/many, translate")->Arg(kManyNodes);
BENCHMARK_CAPTURE(plainLoop, translate, &osg::Transform3D::setTranslation,
                  osg::Transform3D::TranslationFieldMask)
    ->Name("plain/many, translate")
    ->Arg(kManyNodes);
BENCHMARK_CAPTURE(manyNodes, rotate, kRotate)->Name("drag/many, rotate")->Arg(kManyNodes);
BENCHMARK_CAPTURE(plainLoop, rotate, static_cast<Setter>(&osg::Transform3D::setRotation),
                  osg::Transform3D::RotationFieldMask)
    ->Name("plain/many, rotate")
    ->Arg(kManyNodes);
BENCHMARK_CAPTURE(manyNodes, scale, kScale)->Name("drag/many, scale")->Arg(kManyNodes);
BENCHMARK_CAPTURE(plainLoop, scale, &osg::Transform3D::setScale, osg::Transform3D::ScaleFieldMask)
    ->Name("plain/many, scale")
    ->Arg(kManyNodes);
BENCHMARK(placeMany)->Name("gizmos/1000 placed after a camera move");
