// SPDX-License-Identifier: MIT
// Frames of 1280 x 800 pixels of eight bodies with the transform gizmo over one of them, with and
// without the kept image of the scene: the pointer goes on and off a handle, a body is dragged, the
// camera moves. Times are the processor's, of all threads, the software renderer's included, until
// the driver is done; the counter least_ms is the shortest time that passed.
// Needs a display: tests/support/with-display.sh nbRedrawBenchmark
#include "benchmarks/GizmoStage.h"
#include "benchmarks/WavySphere.h"
#include "manipulator/UniversalTransformManipulator2.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGRenderAction/nbRenderAction.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGGeoFunctions.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <QOpenGLFramebufferObject>
#include <QtGui/QGuiApplication>
#include <QtGui/QOffscreenSurface>
#include <QtGui/QOpenGLContext>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <limits>
#include <memory>
#include <vector>

namespace {

using nbec::manipulator::UniversalTransformManipulator2;
namespace manipulators = nbec::manipulator::bench;

constexpr int kBodies = 8;
constexpr int kMovedTriangles = 10'000;
constexpr double kMillisecondsPerSecond = 1e3;

/// Which body is dragged: the first or the last one to be drawn.
enum Body : std::int64_t
{
    First,
    Last
};

/// What it takes to draw without a window.
class Target
{
public:
    Target()
    {
        QSurfaceFormat format;
        format.setVersion(3, 3);
        format.setProfile(QSurfaceFormat::CoreProfile);
        context.setFormat(format);
        surface.setFormat(format);
        surface.create();
        if (context.create() && context.makeCurrent(&surface)) {
            buffer = std::make_unique<QOpenGLFramebufferObject>(manipulators::kWidthPx,
                                                                manipulators::kHeightPx);
            action.setTimed(true);
        }
    }

    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;

    ~Target()
    {
        action.release();
        buffer.reset();
    }

    bool draw(const osg::ViewportPtr& viewport)
    {
        return buffer != nullptr &&
            action.render(viewport, manipulators::kWidthPx, manipulators::kHeightPx,
                          buffer->handle());
    }

    nbRenderAction action;

private:
    QOffscreenSurface surface;
    QOpenGLContext context;
    std::unique_ptr<QOpenGLFramebufferObject> buffer;
};

/// What a frame took.
struct Time
{
    double seconds = 0.0;
    double busySeconds = 0.0;
};

/// Bodies, seen from (5, 6, 7), of which one has the gizmo.
struct Stage : manipulators::GizmoStage<UniversalTransformManipulator2>
{
    /// Alike, at the corners of a cube.
    Stage(std::int64_t triangles, bool isSceneKept, Body body)
    {
        std::vector<osg::NodePtr> bodies;
        for (int i = 0; i < kBodies; ++i) {
            const auto side = [i](int bit) { return (i & bit) != 0 ? 1.1F : -1.1F; };
            bodies.push_back(addBody(osg::Vec3f(side(1), side(2), side(4)), 1.F,
                                     static_cast<int>(triangles / kBodies)));
        }
        start(body == First ? bodies.front() : bodies.back(), isSceneKept);
    }

    /// One of 10,000 triangles, the first in the tree, and others in the cells of a cube that
    /// have a million together.
    Stage(std::int64_t others, bool isSceneKept, const osg::Vec3f& place)
    {
        constexpr std::int64_t kTriangles = 1'000'000;
        const osg::NodePtr moved = addBody(place, 0.4F, kMovedTriangles);
        const auto cells = static_cast<int>(std::ceil(std::cbrt(static_cast<double>(others))));
        const float cell = 4.F / static_cast<float>(cells);
        const auto at = [&](std::int64_t i) { return cell * static_cast<float>(i % cells) - 2.F; };
        for (std::int64_t i = 0; i < others; ++i) {
            addBody(osg::Vec3f(at(i), at(i / cells), at(i / cells / cells)), 0.4F * cell,
                    static_cast<int>(kTriangles / others));
        }
        start(moved, isSceneKept);
    }

    /// Pixel of a place on the gizmo's y arrow, beyond the scale box.
    osg::Pnt2f arrowPx()
    {
        constexpr float kAlong = 1.25F;
        const osg::NodePtr place = gizmo.getVisualisation()->getChild(3)->getChild(0);
        return pixelIn(place, osg::Pnt3f(0.F, kAlong, 0.F));
    }

    Time frame()
    {
        const std::clock_t before = std::clock();
        if (!target.draw(view.getViewport())) {
            return {};
        }
        const std::clock_t after = std::clock();
        return { target.action.getStatistics().milliseconds / kMillisecondsPerSecond,
                 static_cast<double>(after - before) / CLOCKS_PER_SEC };
    }

    void moveCamera() { look(osg::Pnt3f(5.F + 0.001F * nextWay(), 6.F, 7.F)); }

    Target target;

private:
    void start(const osg::NodePtr& moved, bool isSceneKept)
    {
        look(osg::Pnt3f(5, 6, 7));
        gizmo.setNode(moved);
        gizmo.activateUniversalManipulator();
        begin();
        target.action.setSceneKept(isSceneKept);
        target.action.setMovedLast(isSceneKept);
        gizmo.update(true);
        frame();
        frame();
    }

    static osg::NodePtr addBody(const osg::Vec3f& position, float size, int triangles)
    {
        const osg::GeometryPtr mesh = bench::makeWavySphere(triangles);
        osg::calcVertexNormals(mesh);
        osg::Transform3DPtr place;
        const osg::NodePtr node = osg::makeCoredNode<osg::Transform3D>(&place);
        {
            const nbEdit edit(place, osg::FieldBits::AllFields);
            place->setTranslation(position);
            place->setScale(osg::Vec3f(size, size, size));
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
    constexpr double kMost = std::numeric_limits<double>::max();
    Time least { kMost, kMost };
    std::vector<double> seconds;
    for (auto _ : state) {
        change();
        const Time time = stage.frame();
        least = { std::min(least.seconds, time.seconds),
                  std::min(least.busySeconds, time.busySeconds) };
        seconds.push_back(time.seconds);
        state.SetIterationTime(time.busySeconds);
    }
    if (least.seconds <= 0.0) {
        state.SkipWithError("nothing can be drawn on this display");
    }
    state.counters["least_ms"] = least.seconds * kMillisecondsPerSecond;
    const auto middle = seconds.begin() + static_cast<std::ptrdiff_t>(seconds.size() / 2);
    std::nth_element(seconds.begin(), middle, seconds.end());
    state.counters["median_ms"] = *middle * kMillisecondsPerSecond;
    state.counters["busy_ms"] = least.busySeconds * kMillisecondsPerSecond;
    const nbRenderAction::Statistics statistics = stage.target.action.getStatistics();
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

/// Places of the dragged one of many: among the others, and where it widens the scene's bounds.
const osg::Vec3f kAmong(1.F, 0.5F, 1.F);
const osg::Vec3f kAbove(0.F, 2.8F, 0.F);

void dragAmongMany(benchmark::State& state)
{
    startGui();
    Stage stage(state.range(0), state.range(1) != 0, state.range(2) != 0 ? kAbove : kAmong);
    if (!stage.grabAt(stage.arrowPx())) {
        state.SkipWithError("the handle was missed");
        return;
    }
    stage.step();
    stage.frame();
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
    ->Name("redraw/highlight")
    ->ArgNames({ "triangles", "kept" })
    ->ArgsProduct(kSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(dragFrame)
    ->Name("redraw/drag")
    ->ArgNames({ "triangles", "kept", "last" })
    ->ArgsProduct({ kSizes[0], kSizes[1], { First, Last } })
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(dragAmongMany)
    ->Name("redraw/drag among many")
    ->ArgNames({ "others", "kept", "widens" })
    ->ArgsProduct({ { 100, 10'000 }, { 0, 1 }, { 0, 1 } })
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(cameraFrame)
    ->Name("redraw/camera")
    ->ArgNames({ "triangles", "kept" })
    ->ArgsProduct(kSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
