// SPDX-License-Identifier: MIT
// Frames of 1280 x 800 pixels of eight bodies with the transform gizmo over one of them, with and
// without the kept image of the scene: the pointer goes on and off a handle, a body is dragged, the
// camera moves. Times are those of the renderer until the driver is done.
// Needs a display: tests/support/with-display.sh nbRedrawBenchmark
#include "benchmarks/GizmoStage.h"
#include "benchmarks/WavySphere.h"
#include "manipulator/UniversalTransformManipulator2.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGRenderAction/nbOffscreenView.h>

#include <OpenSG/OSGGeoFunctions.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <QtGui/QGuiApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace {

using nbec::manipulator::UniversalTransformManipulator2;
namespace manipulators = nbec::manipulator::bench;

constexpr int kBodies = 8;
constexpr double kMillisecondsPerSecond = 1e3;

/// Which body is dragged: the first or the last one to be drawn.
enum Body : std::int64_t
{
    First,
    Last
};

/// Bodies at the corners of a cube, seen from (5, 6, 7).
struct Stage : manipulators::GizmoStage<UniversalTransformManipulator2>
{
    Stage(std::int64_t triangles, bool isSceneKept, Body body)
    {
        look(osg::Pnt3f(5, 6, 7));
        for (int i = 0; i < kBodies; ++i) {
            bodies.push_back(addBody(i, static_cast<int>(triangles / kBodies)));
        }
        const osg::NodePtr& target = body == First ? bodies.front() : bodies.back();
        gizmo.setNode(target);
        gizmo.activateUniversalManipulator();
        begin();
        picture.getAction().setSceneKept(isSceneKept);
        picture.getAction().setTimed(true);
        gizmo.update(true);
        frame();
        frame();
    }

    /// Pixel of a place on the gizmo's y arrow, beyond the scale box.
    osg::Pnt2f arrowPx()
    {
        constexpr float kAlong = 1.25F;
        const osg::NodePtr place = gizmo.getVisualisation()->getChild(3)->getChild(0);
        return pixelIn(place, osg::Pnt3f(0.F, kAlong, 0.F));
    }

    /// Draws. @return seconds
    double frame()
    {
        picture.render(view.getViewport(), manipulators::kWidthPx, manipulators::kHeightPx);
        return picture.getAction().getStatistics().milliseconds / kMillisecondsPerSecond;
    }

    void moveCamera() { look(osg::Pnt3f(5.F + 0.001F * nextWay(), 6.F, 7.F)); }

    std::vector<osg::NodePtr> bodies;
    nbOffscreenView picture;

private:
    static osg::NodePtr addBody(int corner, int triangles)
    {
        const osg::GeometryPtr mesh = bench::makeWavySphere(triangles);
        osg::calcVertexNormals(mesh);
        osg::Transform3DPtr place;
        const osg::NodePtr node = osg::makeCoredNode<osg::Transform3D>(&place);
        {
            const auto side = [corner](int bit) { return (corner & bit) != 0 ? 1.1F : -1.1F; };
            const nbEdit edit(place, osg::Transform3D::TranslationFieldMask);
            place->setTranslation(osg::Vec3f(side(1), side(2), side(4)));
        }
        node->addChild(osg::makeNodeFor(mesh));
        nbScenegraph::getRootNode()->addChild(node);
        return node;
    }
};

/// Qt's part of the windowless drawing.
void startGui()
{
    static int argc = 1;
    static char name[] = "nbRedrawBenchmark";
    static char* argv[] = { name, nullptr };
    static const QGuiApplication application(argc, argv);
}

/// Times the frames after a change each.
template <class Change>
void run(benchmark::State& state, Stage& stage, Change&& change)
{
    double least = std::numeric_limits<double>::max();
    for (auto _ : state) {
        change();
        const double seconds = stage.frame();
        least = std::min(least, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["least_ms"] = least * kMillisecondsPerSecond;
    const nbRenderAction::Statistics statistics = stage.picture.getAction().getStatistics();
    state.counters["calls"] = static_cast<double>(statistics.drawCalls);
    state.counters["triangles"] = static_cast<double>(statistics.triangles);
    state.counters["reused"] = static_cast<double>(statistics.reused);
}

void hoverFrame(benchmark::State& state)
{
    startGui();
    Stage stage(state.range(0), state.range(1) != 0, First);
    const osg::Pnt2f handlePx = stage.arrowPx();
    bool isOn = false;
    bool wasHit = true;
    run(state, stage, [&] {
        isOn = !isOn;
        wasHit = stage.hover(isOn ? handlePx : osg::Pnt2f(4.F, 4.F)) == isOn && wasHit;
    });
    if (!wasHit) {
        state.SkipWithError("the handle was missed");
    }
}

void dragFrame(benchmark::State& state)
{
    startGui();
    Stage stage(state.range(0), state.range(1) != 0, static_cast<Body>(state.range(2)));
    if (!stage.grabAt(stage.arrowPx())) {
        state.SkipWithError("the handle was missed");
        return;
    }
    run(state, stage, [&stage] { stage.step(); });
}

void cameraFrame(benchmark::State& state)
{
    startGui();
    Stage stage(state.range(0), state.range(1) != 0, First);
    run(state, stage, [&stage] { stage.moveCamera(); });
}

const std::vector<std::vector<std::int64_t>> kSizes { { 10'000, 100'000, 1'000'000 }, { 0, 1 } };

BENCHMARK(hoverFrame)
    ->ArgNames({ "triangles", "kept" })
    ->ArgsProduct(kSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(dragFrame)
    ->ArgNames({ "triangles", "kept", "last" })
    ->ArgsProduct({ kSizes[0], kSizes[1], { First, Last } })
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(cameraFrame)
    ->ArgNames({ "triangles", "kept" })
    ->ArgsProduct(kSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
