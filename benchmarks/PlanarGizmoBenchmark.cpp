// SPDX-License-Identifier: MIT
// The gizmo of planar projections: making and destroying it, hovering, an update while nothing has
// changed, and steps of a drag, nothing drawn: to a receiver that does nothing, and through the
// embedded editor into the material and back into the gizmo.
#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/PlanarTextureManipulator.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbMaterialEditor/nbMaterialEditor.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <benchmark/benchmark.h>

namespace {

using nbec::manipulator::ManipulatorInteractionContext;
using nbec::manipulator::PlanarTextureManipulator;
using Event = nbec::interaction::InteractionEvent;

constexpr int kWayPx = 64;

/// A box with a projected picture and the gizmo with all its handles, seen from (2, 3, 7) in
/// 1280 x 800 pixels.
class Stage
{
public:
    Stage()
    {
        view.resize(1280, 800);
        view.getUberCamera()->setFromAtUp(osg::Pnt3f(2, 3, 7), osg::Pnt3f(0, 0, 0),
                                          osg::Vec3f(0, 1, 0));
        const osg::NodePtr box = osg::makeBox(4, 4, 1, 1, 1, 1);
        const auto settings = osg::ColorComponentSettings::create();
        settings->setPlanarProjection(osg::Transform3D::create());
        material->setComponentSettings(osg::UberMaterial::kDiffuseComponent, settings);
        osg::GeometryPtr::dcast(box->getCore())->setMaterial(material.get());
        nbScenegraph::getRootNode()->addChild(box);
        editor.setMaterial(material.get(), box, osg::UberMaterial::kDiffuseComponent);
        nbController::addReceiver("nobody::changedPlanarManipulator", [](nbMessage&) {});
        gizmo.setMaterialComponent(material.get(), osg::UberMaterial::kDiffuseComponent, nullptr);
        gizmo.setVisualisationRoot(nbScenegraph::getInternalRoot());
        gizmo.setNode(box);
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
        nbController::clear();
        nbScenegraph::clear();
    }

    /// Pixel of a point of the gizmo's unit frame. @return device pixels, y from the top
    osg::Pnt2f pixelOf(const osg::Pnt3f& unit)
    {
        osg::Pnt3f world = unit;
        gizmo.getVisualisation()->getChild(0)->getToWorld().multMatrixPnt(world);
        osg::Matrix clipFromWorld;
        view.getCamera()->getWorldToScreen(clipFromWorld, *view.getViewport());
        osg::Pnt3f device;
        clipFromWorld.multFullMatrixPnt(world, device);
        return osg::Pnt2f((device.x() + 1.0F) * 640.0F, (1.0F - device.y()) * 400.0F);
    }

    bool hover(const osg::Pnt2f& positionPx) { return trigger(hoverEvent, positionPx); }

    bool grab(const osg::Pnt3f& unit)
    {
        pressed = pixelOf(unit);
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
    PlanarTextureManipulator gizmo;

private:
    bool trigger(const Event& event, const osg::Pnt2f& positionPx)
    {
        view.setMousePosition(positionPx);
        context.pointerMoved(positionPx);
        return context.triggerEvent(&manager, event);
    }

    osg::UberMaterialRefPtr material { osg::UberMaterial::create() };
    nbMaterialEditor editor { "editor" };
    nbec::interaction::Picker picker;
    ManipulatorInteractionContext context;
    nbec::interaction::InteractionManager manager;
    osg::Pnt2f pressed;
    int way = 0;
    const Event hoverEvent { "hover", "tool", "select" };
    const Event startEvent { "start", "tool", "select" };
    const Event processEvent { "process", "tool", "select" };
    const Event stopEvent { "stop", "tool", "select" };
};

void createAndDestroy(benchmark::State& state)
{
    {
        const PlanarTextureManipulator first;
    }  // makes the geometry that all share
    for (auto _ : state) {
        PlanarTextureManipulator gizmo;
        benchmark::DoNotOptimize(gizmo);
    }
}

/// Wanders along the y arrow, so that every step is a hit at another place of one handle.
void hoverOnHandle(benchmark::State& state)
{
    Stage stage;
    const osg::Pnt2f from = stage.pixelOf(osg::Pnt3f(0, 1.15F, 0));
    const osg::Pnt2f to = stage.pixelOf(osg::Pnt3f(0, 1.5F, 0));
    constexpr int kSteps = 64;
    int step = 0;
    int hits = 0;
    for (auto _ : state) {
        const float t = static_cast<float>(step) / kSteps;
        hits += stage.hover(from + (to - from) * t) ? 1 : 0;
        step = (step + 1) % kSteps;
    }
    if (hits != static_cast<int>(state.iterations())) {
        state.SkipWithError("a step missed the handle");
    }
}

void hoverOffHandles(benchmark::State& state)
{
    Stage stage;
    constexpr int kSteps = 64;
    int step = 0;
    int hits = 0;
    for (auto _ : state) {
        hits += stage.hover(osg::Pnt2f(40.0F + static_cast<float>(step), 50.0F)) ? 1 : 0;
        step = (step + 1) % kSteps;
    }
    if (hits != 0) {
        state.SkipWithError("a step hit a handle");
    }
}

void updateUnchanged(benchmark::State& state)
{
    Stage stage;
    stage.gizmo.update(true);
    for (auto _ : state) {
        stage.gizmo.update(false);
    }
}

void dragSteps(benchmark::State& state, const char* receiver, const osg::Pnt3f& unit)
{
    Stage stage;
    stage.gizmo.setMessageReceiver(receiver);
    if (!stage.grab(unit)) {
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

const osg::Pnt3f kArrow(1.9F, 0.F, 0.F);
const osg::Pnt3f kRing(0.6F, -0.8F, 0.F);
const osg::Pnt3f kScaleTab(2.5F, 0.F, 0.F);

}  // namespace

BENCHMARK(createAndDestroy)->Name("planar/create and destroy")->Unit(benchmark::kMicrosecond);
BENCHMARK(hoverOnHandle)->Name("planar/hover on a handle");
BENCHMARK(hoverOffHandles)->Name("planar/hover off the handles");
BENCHMARK(updateUnchanged)->Name("planar/update, nothing changed");
BENCHMARK_CAPTURE(dragSteps, translate, "nobody", kArrow)->Name("planar/drag, translate with text");
BENCHMARK_CAPTURE(dragSteps, rotate, "nobody", kRing)->Name("planar/drag, rotate with text");
BENCHMARK_CAPTURE(dragSteps, scale, "nobody", kScaleTab)->Name("planar/drag, scale with text");
BENCHMARK_CAPTURE(dragSteps, edited, "editor", kArrow)->Name("planar/drag, translate, edited");
