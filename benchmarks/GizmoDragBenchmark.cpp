// SPDX-License-Identifier: MIT
// Steps of a drag on the transform gizmo, nothing drawn: pointer position in, event routed,
// transform set within an open undo group, messages sent, gizmo placed. Beside the step for many
// nodes stands a plain loop that makes the same edits. Gizmos are placed anew after the camera has
// moved.
#include "benchmarks/GizmoMeasures.h"
#include "benchmarks/WavySphere.h"
#include "manipulator/UniversalTransformManipulator2.h"

#include <nbInteraction/SnapSearch.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <OpenSG/OSGSimpleGeometry.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include <ChangeCount.h>

namespace {

using nbec::manipulator::UniversalTransformManipulator2;
namespace bench = nbec::manipulator::bench;

constexpr std::int64_t kManyNodes = 1000;
constexpr std::size_t kManyGizmos = 1000;

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

/// Nodes with a gizmo over the first one, seen from (5, 6, 7).
struct Stage : bench::GizmoStage<UniversalTransformManipulator2>
{
    explicit Stage(std::int64_t furtherCount)
    {
        look(osg::Pnt3f(5, 6, 7));
        node = addTransform(osg::Vec3f(-0.5F, -0.25F, 0.F));
        for (std::int64_t i = 0; i < furtherCount; ++i) {
            further.push_back(addTransform(osg::Vec3f(static_cast<float>(i), 20.F, 0.F)));
        }
        gizmo.setNode(node, further);
        begin();
    }

    osg::NodePtr node;
    std::vector<osg::NodePtr> further;
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
    const osg::NodePtr frame = stage.gizmo.getVisualisation()->getChild(3)->getChild(0);
    bench::dragSteps(state, stage, stage.pixelIn(frame, drag.grab));
}

void oneNode(benchmark::State& state, const Drag& drag, bool withText)
{
    Stage stage(0);
    stage.gizmo.setDescriptionEnabled(withText);
    runSteps(state, stage, drag);
}

/// With text, overlay, readout and a listener.
void oneNodeWatched(benchmark::State& state, const Drag& drag)
{
    Stage stage(0);
    std::size_t heard = 0;
    nbec::manipulator::setDragOverlayShown(true);
    stage.gizmo.setReadoutShown(true);
    stage.gizmo.addDragListener([&heard](const nbec::manipulator::DragEvent&) { ++heard; });
    runSteps(state, stage, drag);
    nbec::manipulator::setDragOverlayShown(false);
    state.counters["heard"] = static_cast<double>(heard);
}

/// A step that snaps to whatever lies under the pointer, in a scene of a million triangles in some
/// number of objects.
void snapToGeometry(benchmark::State& state)
{
    constexpr int kTriangles = 1'000'000;
    Stage stage(0);
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        const osg::NodePtr place = addTransform(osg::Vec3f(
            1.F + 2.F * static_cast<float>(i % 10), 0.F, 1.F - 2.F * static_cast<float>(i / 10)));
        place->addChild(osg::makeNodeFor(
            ::bench::makeWavySphere(kTriangles / static_cast<int>(state.range(0)))));
    }
    constexpr unsigned kAllKinds = 63;
    stage.gizmo.setSnapping({ true, kAllKinds });
    stage.gizmo.enableSnapping(true);
    runSteps(state, stage, kTranslate);
    if (stage.gizmo.getVisualisation()->getChild(2)->getNChildren() == 0) {
        state.SkipWithError("nothing was snapped to");
    }
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
/// @param isDrawn  the change counts are looked at in between, as a renderer does
/// @param isMoved  a node has been moved, too
void placeMany(benchmark::State& state, bool isDrawn, bool isMoved)
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
        if (isMoved) {
            osg::endEditCP(stage.node->getCore(), osg::Transform3D::TranslationFieldMask);
        }
        UniversalTransformManipulator2::updateAllManipulators();
        if (isDrawn) {
            benchmark::DoNotOptimize(osg::getTreeChangeCount(nbScenegraph::getInternalRoot()));
        }
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
BENCHMARK_CAPTURE(oneNodeWatched, translate, kTranslate)
    ->Name("drag/one node, translate, with text, overlay, readout and listener");
BENCHMARK(snapToGeometry)->Name("drag/one node, snapping to geometry")->Arg(1)->Arg(100);
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
BENCHMARK_CAPTURE(placeMany, camera, false, false)->Name("gizmos/1000 placed after a camera move");
BENCHMARK_CAPTURE(placeMany, drawn, true, false)
    ->Name("gizmos/1000 placed after a camera move and a frame");
BENCHMARK_CAPTURE(placeMany, node, true, true)
    ->Name("gizmos/1000 placed after moves of the camera and a node, and a frame");
