// SPDX-License-Identifier: MIT
// The transform gizmo and the mark of the camera's pivot: making them, their memory, hovering on
// and off their handles, updates.
#include "benchmarks/GizmoMeasures.h"
#include "manipulator/CameraManipulator.h"
#include "manipulator/UniversalTransformManipulator2.h"

#include <OpenSG/OSGSimpleGeometry.h>

namespace {

using nbec::manipulator::CameraManipulator;
using nbec::manipulator::UniversalTransformManipulator2;
namespace bench = nbec::manipulator::bench;

/// A box and a gizmo, seen from (5, 6, 7).
template <class Gizmo>
struct BoxStage : bench::GizmoStage<Gizmo>
{
    BoxStage()
    {
        this->look(osg::Pnt3f(5, 6, 7));
        box = osg::makeBox(1, 1, 1, 1, 1, 1);
        nbScenegraph::getRootNode()->addChild(box);
        this->gizmo.setNode(box);
        this->begin();
    }

    osg::NodePtr box;
};

struct TransformStage : BoxStage<UniversalTransformManipulator2>
{
    TransformStage()
    {
        gizmo.activateUniversalManipulator();
        // The y arrow beyond the scale box.
        hoverFromPx = pixelOfWorld(osg::Pnt3f(0, 1.17F, 0));
        hoverToPx = pixelOfWorld(osg::Pnt3f(0, 1.35F, 0));
    }
};

struct CameraStage : BoxStage<CameraManipulator>
{
    CameraStage()
    {
        hoverFromPx = pixelOfWorld(osg::Pnt3f(0, 0, 0));
        hoverToPx = pixelOfWorld(osg::Pnt3f(0, 0.1F, 0));
        isHandleHit = false;  // the cross is looked at and never taken hold of
    }
};

/// Between the handles: inside the gizmo's bounds on screen, but on none of them.
void hoverBetweenHandles(benchmark::State& state)
{
    TransformStage stage;
    const osg::Pnt2f between = stage.pixelOfWorld(osg::Pnt3f(0.5F, 0, 0.5F));
    bench::hoverAlong(state, stage, bench::Way(between, between), false);
}

/// Placed again after a move of the camera.
void updateAfterACameraMove(benchmark::State& state)
{
    CameraStage stage;
    for (auto _ : state) {
        stage.view.getUberCamera()->setFromAtUp(osg::Pnt3f(5.F + stage.nextWay() * 0.01F, 6, 7),
                                                osg::Pnt3f(0, 0, 0), osg::Vec3f(0, 1, 0));
        stage.gizmo.update(false);
    }
}

const bool isAdded = [] {
    bench::addMeasures<TransformStage>("gizmo");
    bench::addMeasures<CameraStage>("camera");
    return true;
}();

}  // namespace

BENCHMARK(hoverBetweenHandles)->Name("gizmo/hover between the handles");
BENCHMARK(updateAfterACameraMove)->Name("camera/update after a camera move");
