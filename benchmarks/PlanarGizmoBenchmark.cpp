// SPDX-License-Identifier: MIT
// The gizmo of planar projections: making it, its memory, hovering, updates, and steps of a drag,
// nothing drawn: to a receiver that does nothing, and through the embedded editor into the material
// and back into the gizmo.
#include "benchmarks/TextureStage.h"
#include "manipulator/PlanarTextureManipulator.h"

namespace {

using nbec::manipulator::PlanarTextureManipulator;
namespace bench = nbec::manipulator::bench;

/// The gizmo on the picture's own box.
struct Stage : bench::TextureStage<PlanarTextureManipulator>
{
    Stage()
        : TextureStage("::changedPlanarManipulator", osg::ColorComponentSettings::PlanarProjection,
                       [](auto& bound, const osg::NodePtr& box) { bound.setNode(box); })
    {
        hoverFromPx = pixelOf(osg::Pnt3f(0, 1.15F, 0));  // along the y arrow
        hoverToPx = pixelOf(osg::Pnt3f(0, 1.5F, 0));
    }
};

void plainTranslation(benchmark::State& state)
{
    Stage stage;
    bench::plainEdits(state, stage, [&stage](float way) {
        const osg::Transform3DPtr projection = stage.settings->getPlanarProjection();
        const nbEdit edit(projection, osg::Transform3D::TranslationFieldMask);
        projection->setTranslation(osg::Vec3f(way, 0, 0));
    });
}

const osg::Pnt3f kArrow(1.9F, 0.F, 0.F);
const osg::Pnt3f kRing(0.6F, -0.8F, 0.F);
const osg::Pnt3f kScaleTab(2.5F, 0.F, 0.F);

const bool isAdded = [] {
    bench::addMeasures<Stage>("planar");
    const auto drag = bench::textureDrag<Stage>;
    benchmark::RegisterBenchmark("planar/drag, translate with text", drag, "nobody", kArrow);
    benchmark::RegisterBenchmark("planar/drag, rotate with text", drag, "nobody", kRing);
    benchmark::RegisterBenchmark("planar/drag, scale with text", drag, "nobody", kScaleTab);
    benchmark::RegisterBenchmark("planar/drag, translate, edited", drag, "editor", kArrow);
    benchmark::RegisterBenchmark("planar/drag, translate, plainly", plainTranslation);
    return true;
}();

}  // namespace
