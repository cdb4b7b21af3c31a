// SPDX-License-Identifier: MIT
// The scene-plate manipulator: making it, its memory, hovering its handles, updates, a step of a
// drag. A step is the whole way: pointer position, context, manipulator, message, module with an
// open group of undo, plate, handles; nothing is drawn.
#include "benchmarks/GizmoMeasures.h"
#include "manipulator/nbSceneplateManipulator.h"

#include <nbOpenSGUtils/nbEdit.h>
#include <nbSceneplateModule/nbSceneplateModule.h>

namespace {

namespace bench = nbec::manipulator::bench;

const osg::Pnt2f kCentrePx(640, 400);

/// Plates of 320 x 200 pixels at the centre of the view, all selected.
class Stage : public bench::GizmoStage<nbSceneplateManipulator>
{
public:
    explicit Stage(std::int64_t count = 1)
    {
        hoverFromPx = kCentrePx + osg::Vec2f(0, 20.F);
        hoverToPx = kCentrePx + osg::Vec2f(64.F, 20.F);
        for (std::int64_t i = 0; i < count; ++i) {
            osg::SceneplatePtr plate;
            nodes.push_back(osg::makeCoredNode<osg::Sceneplate>(&plate));
            const nbEdit edit(plate, osg::FieldBits::AllFields);
            plate->setSize(osg::Vec2f(0.4F, 0.25F));
            nbScenegraph::getSceneplateRoot()->addChild(nodes.back());
        }
        module.select(nodes, "select");
        gizmo.setNodes(nodes);
        begin();
    }

    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    ~Stage() { finish(); }

    std::vector<osg::NodePtr> nodes;

private:
    nbSceneplateModule module;
};

/// @param handle  where it is grabbed, from the centre of the frame, pixels
void dragStep(benchmark::State& state, const osg::Vec2f& handle)
{
    Stage stage(state.range(0));
    bench::dragSteps(state, stage, kCentrePx + handle);
}

void plainMove(benchmark::State& state)
{
    Stage stage(state.range(0));
    bench::plainEdits(state, stage, [&stage](float way) {
        for (const osg::NodePtr& node : stage.nodes) {
            const auto plate = osg::SceneplatePtr::dcast(node->getCore());
            const nbEdit edit(plate, osg::Sceneplate::PositionFieldMask);
            plate->setPosition(osg::Vec2f(way / static_cast<float>(bench::kHeightPx), 0));
        }
    });
}

const bool isAdded = [] {
    bench::addMeasures<Stage>("plates");
    return true;
}();

}  // namespace

BENCHMARK_CAPTURE(dragStep, move, osg::Vec2f(0, 20))
    ->Name("plates/move")
    ->Arg(1)
    ->Arg(100)
    ->Arg(2000);
BENCHMARK_CAPTURE(dragStep, turn, osg::Vec2f(0, -132))
    ->Name("plates/turn")
    ->Arg(1)
    ->Arg(100)
    ->Arg(2000);
BENCHMARK_CAPTURE(dragStep, scale, osg::Vec2f(160, -100))
    ->Name("plates/scale")
    ->Arg(1)
    ->Arg(100)
    ->Arg(2000);
BENCHMARK(plainMove)->Name("plates/move, plainly")->Arg(1)->Arg(100);
