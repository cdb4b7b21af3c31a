// SPDX-License-Identifier: MIT
// The pick tools, which have no handles: making one, hovering, a step of a drag. Beside them stands
// the pick alone.
#include "benchmarks/GizmoMeasures.h"
#include "manipulator/nbSceneplatePickTool.h"
#include "modules/textureplacement/TexturePlacementPickTool.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGSimpleGeometry.h>

namespace {

using nbec::interaction::Picker;
using nbec::modules::textureplacement::TexturePlacementPickTool;
namespace bench = nbec::manipulator::bench;

/// Plates of 64 x 40 pixels in ten rows of ten, in as many layers as it takes.
template <int kPlates>
struct PlateStage : bench::GizmoStage<nbSceneplatePickTool>
{
    PlateStage()
    {
        for (int i = 0; i < kPlates; ++i) {
            osg::SceneplatePtr plate;
            const osg::NodePtr node = osg::makeCoredNode<osg::Sceneplate>(&plate);
            const nbEdit edit(plate, osg::FieldBits::AllFields);
            plate->setSize(osg::Vec2f(0.08F, 0.05F));
            plate->setPosition(osg::Vec2f(static_cast<float>(i % 10) * 0.1F - 0.45F,
                                          static_cast<float>(i / 10 % 10) * 0.1F - 0.45F));
            nbScenegraph::getSceneplateRoot()->addChild(node);
        }
        nbOSGWidget::setInteractionMode(1);
        picker().setFilter(Picker::SceneplateFilter);
        begin();
        hoverFromPx = osg::Pnt2f(280, 400);
        hoverToPx = osg::Pnt2f(1000, 400);
    }

    PlateStage(const PlateStage&) = delete;
    PlateStage& operator=(const PlateStage&) = delete;

    ~PlateStage()
    {
        finish();
        nbOSGWidget::setInteractionMode(0);
    }
};

/// A sphere of about 10,000 triangles.
struct PlacementStage : bench::GizmoStage<TexturePlacementPickTool>
{
    PlacementStage()
    {
        look(osg::Pnt3f(0, 0, 5));
        nbScenegraph::getRootNode()->addChild(osg::makeLatLongSphere(70, 70, 1));
        begin();
        hoverFromPx = osg::Pnt2f(560, 400);
        hoverToPx = osg::Pnt2f(720, 400);
    }
};

/// One event of a kind after the other along the stage's line.
template <class Stage>
void eventsAlong(benchmark::State& state, bool isDrag)
{
    Stage stage;
    bench::Way way(stage.hoverFromPx, stage.hoverToPx);
    if (isDrag) {
        stage.press(way.next());
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(isDrag ? stage.drag(way.next()) : stage.hover(way.next()));
    }
}

template <class Stage>
void picksAlong(benchmark::State& state)
{
    Stage stage;
    bench::Way way(stage.hoverFromPx, stage.hoverToPx);
    for (auto _ : state) {
        benchmark::DoNotOptimize(stage.picker().pickAt(way.next()));
    }
}

const bool isAdded = [] {
    const auto add = [](const char* name, auto&&... measure) {
        return benchmark::RegisterBenchmark(name, measure...);
    };
    add("plate tool/create and destroy", bench::createAndDestroy<nbSceneplatePickTool>);
    add("plate tool/hover", eventsAlong<PlateStage<100>>, false);
    add("plate tool/hover/2000", eventsAlong<PlateStage<2000>>, false);
    add("plate tool/step of a rectangle", eventsAlong<PlateStage<100>>, true);
    add("plate tool/hover, plainly", picksAlong<PlateStage<100>>);
    add("placement tool/create and destroy", bench::createAndDestroy<TexturePlacementPickTool>);
    add("placement tool/step of a drag", eventsAlong<PlacementStage>, true);
    add("placement tool/step of a drag, plainly", picksAlong<PlacementStage>);
    return true;
}();

}  // namespace
