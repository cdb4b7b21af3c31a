// SPDX-License-Identifier: MIT
// From a person's input to the picture on the screen, in the viewer's window with a view of
// 1280 x 800 pixels: the pointer goes over a handle, drags one, turns the view. Each figure is the
// median of several events, wall clock; the counter busy_ms is the processor time of all threads,
// the software renderer's included, for an event.
// Needs a display: tests/support/with-display.sh nbViewerBenchmark
#include "benchmarks/WavySphere.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/replay/SessionStage.h"
#include "viewer/stage/Stage.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGGeoFunctions.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QSurfaceFormat>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <vector>

namespace {

/// Even, so that a hovering pointer that comes and goes ends off the handle, and comes again.
constexpr int kEvents = 16;
constexpr double kMillisecondsPerSecond = 1e3;
constexpr qint64 kPatienceMs = 20'000;

QApplication& application()
{
    static int argc = 1;
    static char name[] = "nbViewerBenchmark";
    static char* argv[] = { name, nullptr };
    QSurfaceFormat format;
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(format);
    static QApplication theApplication(argc, argv);
    return theApplication;
}

/// The viewer's window with the start scene, and more triangles if so wished.
class Viewer
{
public:
    explicit Viewer(std::int64_t moreTriangles)
        : window(viewer::MainWindow::Attendance::Unattended)
    {
        window.view().fixSize(QSize(1280, 800));
        // As with a person there.
        window.view().setCoarseWhileMoving(true);
        window.show();
        window.showStartScene();
        if (moreTriangles > 0) {
            const osg::GeometryPtr mesh = bench::makeWavySphere(static_cast<int>(moreTriangles));
            osg::calcVertexNormals(mesh);
            const osg::NodePtr root = nbScenegraph::getRootNode();
            const nbEdit edit(root, osg::Node::ChildrenFieldMask);
            root->addChild(osg::makeNodeFor(mesh));
        }
        QObject::connect(&window.view(), &QOpenGLWidget::frameSwapped, [this] { ++pictures; });
        window.view().view().update();
        rest();
    }

    QPointF handle()
    {
        viewer::SessionTarget target;
        target.kind = viewer::SessionTarget::Kind::Handle;
        target.name = QStringLiteral("yaShape");
        osg::Pnt2f px(-1.F, -1.F);
        QString error;
        viewer::resolveTarget(target, window.view().stage(), px, error);
        return window.view().toLogical(px);
    }

    void send(QEvent::Type type, const QPointF& at, Qt::MouseButton button, Qt::MouseButtons held,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QPointF onScreen = at + window.view().mapToGlobal(QPoint());
        QMouseEvent event(type, at, onScreen, button, held, modifiers);
        QCoreApplication::sendEvent(&window.view(), &event);
    }

    /// Seconds until the next picture is shown; negative if none comes.
    double waitForPicture()
    {
        const int before = pictures;
        QElapsedTimer clock;
        clock.start();
        while (pictures == before) {
            if (clock.elapsed() > kPatienceMs) {
                return -1.0;
            }
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        }
        return window.view().inputToPictureMs() / kMillisecondsPerSecond;
    }

    /// Handles what comes for a while.
    void rest()
    {
        constexpr qint64 kRestMs = 600;
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < kRestMs) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        }
    }

private:
    viewer::MainWindow window;
    int pictures = 0;
};

/// Times the pictures after events each of which changes something.
template <class Send>
void run(benchmark::State& state, Viewer& viewer, Send&& send)
{
    double busySeconds = 0.0;
    for (auto _ : state) {
        std::vector<double> seconds;
        const std::clock_t before = std::clock();
        for (int i = 0; i < kEvents; ++i) {
            send(i);
            seconds.push_back(viewer.waitForPicture());
        }
        busySeconds += static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC / kEvents;
        const auto middle = seconds.begin() + kEvents / 2;
        std::nth_element(seconds.begin(), middle, seconds.end());
        if (*std::min_element(seconds.begin(), seconds.end()) < 0.0) {
            state.SkipWithError("no picture came");
            return;
        }
        state.SetIterationTime(*middle);
    }
    state.counters["busy_ms"] = benchmark::Counter(busySeconds * kMillisecondsPerSecond,
                                                   benchmark::Counter::kAvgIterations);
}

void hover(benchmark::State& state)
{
    application();
    Viewer viewer(state.range(0));
    const QPointF handle = viewer.handle();
    run(state, viewer, [&](int i) {
        viewer.send(QEvent::MouseMove, i % 2 == 0 ? handle : QPointF(3, 3), Qt::NoButton,
                    Qt::NoButton);
    });
}

void dragStep(benchmark::State& state)
{
    application();
    Viewer viewer(state.range(0));
    const QPointF handle = viewer.handle();
    viewer.send(QEvent::MouseMove, handle, Qt::NoButton, Qt::NoButton);
    viewer.send(QEvent::MouseButtonPress, handle, Qt::LeftButton, Qt::LeftButton);
    viewer.send(QEvent::MouseMove, handle - QPointF(0, 2), Qt::NoButton, Qt::LeftButton);
    viewer.waitForPicture();
    run(state, viewer, [&](int i) {
        viewer.send(QEvent::MouseMove, handle - QPointF(0, 4 * (i + 1)), Qt::NoButton,
                    Qt::LeftButton);
    });
    viewer.send(QEvent::MouseButtonRelease, handle, Qt::LeftButton, Qt::NoButton);
    viewer.rest();
}

void orbit(benchmark::State& state)
{
    application();
    Viewer viewer(state.range(0));
    const QPointF start(640, 700);
    viewer.send(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton, Qt::AltModifier);
    run(state, viewer, [&](int i) {
        viewer.send(QEvent::MouseMove, start + QPointF(3 * (i + 1), 0), Qt::NoButton,
                    Qt::LeftButton, Qt::AltModifier);
    });
    viewer.send(QEvent::MouseButtonRelease, start, Qt::LeftButton, Qt::NoButton, Qt::AltModifier);
    viewer.rest();
}

BENCHMARK(hover)
    ->Name("viewer/hover")
    ->ArgName("more")
    ->Arg(0)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(dragStep)
    ->Name("viewer/drag step")
    ->ArgName("more")
    ->Arg(0)
    ->Arg(1'000'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(orbit)
    ->Name("viewer/orbit")
    ->ArgName("more")
    ->Arg(0)
    ->Arg(1'000'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
