// SPDX-License-Identifier: MIT
// The gizmos of triplanar, UV and tire projections: making one, its memory, hovering on a handle,
// updates, and steps of a drag, nothing drawn: to a receiver that does nothing, and through the
// embedded editor into the material and back into the gizmo.
#include "benchmarks/AnchoredTraits.h"
#include "benchmarks/TextureStage.h"

namespace {

using nbec::manipulator::TireProjectionManipulator;
using nbec::manipulator::TriplanarTextureManipulator;
using nbec::manipulator::UVTextureManipulator;
using nbec::manipulator::test::kAnchoredTraits;
using osg::ColorComponentSettings;
namespace bench = nbec::manipulator::bench;

/// The gizmo at the box's origin, with all its handles.
template <class Gizmo>
struct Stage : bench::TextureStage<Gizmo>
{
    Stage()
        : bench::TextureStage<Gizmo>(kAnchoredTraits<Gizmo>.changed, kAnchoredTraits<Gizmo>.type,
                                     [](Gizmo& bound, const osg::NodePtr& box) {
                                         bound.setAnchor(box, osg::Pnt3f(0, 0, 0));
                                         bound.activateUniversalManipulator();
                                     })
    {
        this->gizmo.update(true);
        this->hoverFromPx = this->pixelOf(osg::Pnt3f(0, 1.2F, 0));  // along the y arrow
        this->hoverToPx = this->pixelOf(osg::Pnt3f(0, 1.4F, 0));
    }
};

/// What a translation drag writes in the end.
template <class Gizmo>
void setOffset(ColorComponentSettings& settings, float way);

template <>
void setOffset<TriplanarTextureManipulator>(ColorComponentSettings& settings, float way)
{
    settings.setTriplanarOffsetU(osg::Vec3f(way, 0, 0));
    settings.setTriplanarOffsetV(osg::Vec3f(0, way, 0));
}

template <>
void setOffset<UVTextureManipulator>(ColorComponentSettings& settings, float way)
{
    settings.setOffset(osg::Vec2f(way, 0));
}

template <>
void setOffset<TireProjectionManipulator>(ColorComponentSettings& settings, float way)
{
    settings.setTireCenter(osg::Vec3f(way, 0, 0));
}

template <class Gizmo>
void plainTranslation(benchmark::State& state)
{
    Stage<Gizmo> stage;
    bench::plainEdits(state, stage, [&stage](float way) {
        const nbEdit edit(stage.settings, osg::FieldBits::AllFields);
        setOffset<Gizmo>(*stage.settings, way);
    });
}

template <class Gizmo>
void addAll(const std::string& name)
{
    const osg::Pnt3f arrow(0.F, 1.9F, 0.F);
    const auto drag = bench::textureDrag<Stage<Gizmo>>;
    bench::addMeasures<Stage<Gizmo>>(name);
    benchmark::RegisterBenchmark((name + "/drag, translate").c_str(), drag, "nobody", arrow);
    benchmark::RegisterBenchmark((name + "/drag, translate, edited").c_str(), drag, "editor",
                                 arrow);
    benchmark::RegisterBenchmark((name + "/drag, translate, plainly").c_str(),
                                 plainTranslation<Gizmo>);
}

const bool isAdded = [] {
    addAll<TriplanarTextureManipulator>("triplanar");
    addAll<UVTextureManipulator>("uv");
    addAll<TireProjectionManipulator>("tire");
    return true;
}();

}  // namespace
