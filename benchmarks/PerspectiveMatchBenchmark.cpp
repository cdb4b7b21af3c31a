// SPDX-License-Identifier: MIT
// The perspective match manipulator, nothing drawn: making it, its memory, hovering on and off its
// lines, steps of a drag within an open undo group, updates. Events take the whole path: pointer
// position, context, manipulator. Beside the step of a drag stands what the host does in it:
// setting the line and solving the camera.
#include "benchmarks/GizmoMeasures.h"
#include "manipulator/PerspectiveMatchManipulator.h"

#include <nbKernelServices/nbdCameraNode.h>

namespace {

using nbec::manipulator::PerspectiveMatchManipulator;
namespace bench = nbec::manipulator::bench;
using bench::kHeightPx;
using bench::kWidthPx;

constexpr int kWayPx = 16;

/// The match of a camera at (5, 6, 7) that looks at the origin, its lines as the camera sees them.
struct Stage : bench::GizmoStage<PerspectiveMatchManipulator>
{
    Stage()
    {
        wayPx = kWayPx;
        look(osg::Pnt3f(5, 6, 7));
        const osg::UberCameraPtr camera = view.getUberCamera();
        cameraNode = nbdCameraNode(camera->getInternalParentNode().getFieldContainerId());
        cameraNode.layLinesAsSeen();
        begin();
        gizmo.setCamera(camera);
        // The middle of X line 1.
        const QPointF centre = cameraNode.getPerspectiveMatch().getXLine1().center();
        hoverFromPx = hoverToPx =
            osg::Pnt2f(static_cast<float>(centre.x() * kHeightPx),
                       static_cast<float>(kHeightPx - 1 - centre.y() * kHeightPx));
    }

    nbdCameraNode cameraNode;
};

void dragStep(benchmark::State& state)
{
    Stage stage;
    bench::dragSteps(state, stage, stage.hoverFromPx);
}

void hostStep(benchmark::State& state)
{
    Stage stage;
    stage.gizmo.setCamera(osg::NullFC);
    nbUndoService::the()->beginGroup();
    const nbdPerspectiveMatch match = stage.cameraNode.getPerspectiveMatch();
    const QLineF start = match.getXLine1();
    for (auto _ : state) {
        match.setXLine1(start.translated(static_cast<double>(stage.nextWay()) / kHeightPx, 0));
        stage.cameraNode.updateFromPerspectiveMatch();
    }
}

void updateAfterResize(benchmark::State& state)
{
    Stage stage;
    for (auto _ : state) {
        stage.view.resize(kWidthPx + static_cast<int>(stage.nextWay()), kHeightPx);
    }
}

const bool isAdded = [] {
    bench::addMeasures<Stage>("match");
    return true;
}();

}  // namespace

BENCHMARK(dragStep)->Name("match/step of a drag")->Unit(benchmark::kMicrosecond);
BENCHMARK(hostStep)->Name("match/the host's part of a step")->Unit(benchmark::kMicrosecond);
BENCHMARK(updateAfterResize)->Name("match/update after a resize");
