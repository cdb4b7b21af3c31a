// SPDX-License-Identifier: MIT
// One step of a drag through the transform model, beside a plain loop that makes the same edits.
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbTransform/nbTransformModel.h>

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr std::int64_t kManyNodes = 1000;

/// Nodes below one turned and scaled parent, with pivots, within an open group of undo.
class Scene
{
public:
    explicit Scene(std::int64_t count)
        : root(osg::makeNodeFor(osg::Group::create()))
    {
        const osg::NodePtr parent = addTransform(root);
        for (std::int64_t i = 0; i < count; ++i) {
            nodes.push_back(addTransform(parent));
        }
        nbUndoService::the()->beginGroup();
    }

    ~Scene()
    {
        nbUndoService::the()->endGroup();
        nbUndoService::the()->clear();
    }

    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    osg::UInt32 size() const { return static_cast<osg::UInt32>(nodes.size()); }

    const osg::NodePtr& operator[](osg::UInt32 index) const { return nodes[index]; }

private:
    static osg::NodePtr addTransform(const osg::NodePtr& parent)
    {
        const osg::Transform3DPtr core = osg::Transform3D::create();
        osg::beginEditCP(core);
        core->setTranslation(osg::Vec3f(1.f, 2.f, 3.f));
        core->setRotation(osg::Vec3f(10.f, 20.f, 30.f));
        core->setRotatePivot(osg::Vec3f(0.5f, 0.25f, 0.f));
        core->setScalePivot(osg::Vec3f(0.5f, 0.f, 0.25f));
        core->setScale(osg::Vec3f(1.f, 2.f, 3.f));
        osg::endEditCP(core);
        const osg::NodePtr node = osg::makeNodeFor(core);
        parent->addChild(node);
        return node;
    }

    osg::NodeRefPtr root;
    std::vector<osg::NodePtr> nodes;
};

/// Values that go on from step to step, so that no edit repeats the one before.
class Values
{
public:
    osg::Vec3f operator()(osg::UInt32 index) const
    {
        return osg::Vec3f(offset, offset + static_cast<float>(index), 3.f);
    }

    void next() { offset = offset < 90.f ? offset + 0.25f : 1.f; }

private:
    float offset = 1.f;
};

using Setter = void (osg::Transform3D::*)(const osg::Vec3f&);

/// @param inner  what a step makes, once for all nodes, to bring a value into the nodes' own space
template <class Inner>
void plainLoop(benchmark::State& state, Setter set, osg::BitVector mask, Inner inner)
{
    const Scene scene(state.range(0));
    Values values;
    for (auto _ : state) {
        values.next();
        const auto toInner = inner(scene);
        for (osg::UInt32 i = 0; i < scene.size(); ++i) {
            const auto core = osg::Transform3DPtr::dcast(scene[i]->getCore());
            const osg::Vec3f value = toInner(values(i));
            osg::beginEditCP(core, mask);
            (*core.*set)(value);
            osg::endEditCP(core, mask);
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void plainLoop(benchmark::State& state, Setter set, osg::BitVector mask)
{
    plainLoop(state, set, mask,
              [](const Scene&) { return [](const osg::Vec3f& value) { return value; }; });
}

template <class Step>
void throughModel(benchmark::State& state, Step step)
{
    const Scene scene(state.range(0));
    Values values;
    const auto valueOf = [&](osg::UInt32 i) {
        return nbTransformModel::Value({ scene[i], -1 }, values(i));
    };
    for (auto _ : state) {
        values.next();
        step(scene.size(), valueOf);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void PlainTranslation(benchmark::State& state)
{
    plainLoop(state, &osg::Transform3D::setTranslation, osg::Transform3D::TranslationFieldMask);
}

void PlainWorldTranslation(benchmark::State& state)
{
    plainLoop(state, &osg::Transform3D::setTranslation, osg::Transform3D::TranslationFieldMask,
              [](const Scene& scene) {
                  osg::Matrix parentFromWorld = scene[0]->getParent()->getToWorld();
                  parentFromWorld.invert();
                  return [parentFromWorld](const osg::Vec3f& place) {
                      osg::Pnt3f inner;
                      parentFromWorld.multMatrixPnt(place.addToZero(), inner);
                      return inner - osg::Pnt3f();
                  };
              });
}

void LocalTranslation(benchmark::State& state)
{
    throughModel(state, [](osg::UInt32 count, auto& values) {
        nbTransformModel::the()->setTranslation(count, false, values);
    });
}

void WorldTranslation(benchmark::State& state)
{
    throughModel(state, [](osg::UInt32 count, auto& values) {
        nbTransformModel::the()->setTranslation(count, true, values);
    });
}

void PlainRotation(benchmark::State& state)
{
    plainLoop(state, &osg::Transform3D::setEulerRotation, osg::Transform3D::RotationFieldMask);
}

void Rotation(benchmark::State& state)
{
    throughModel(state, [](osg::UInt32 count, auto& values) {
        nbTransformModel::the()->setRotation(count, values);
    });
}

void PlainScale(benchmark::State& state)
{
    plainLoop(state, &osg::Transform3D::setScale, osg::Transform3D::ScaleFieldMask);
}

void Scale(benchmark::State& state)
{
    throughModel(state, [](osg::UInt32 count, auto& values) {
        nbTransformModel::the()->setScale(count, values);
    });
}

void WorldRotatePivot(benchmark::State& state)
{
    throughModel(state, [](osg::UInt32 count, auto& values) {
        nbTransformModel::the()->setRotationPivot(count, true, values);
    });
}

BENCHMARK(PlainTranslation)->Arg(1)->Arg(kManyNodes);
BENCHMARK(PlainWorldTranslation)->Arg(1)->Arg(kManyNodes);
BENCHMARK(LocalTranslation)->Arg(1)->Arg(kManyNodes);
BENCHMARK(WorldTranslation)->Arg(1)->Arg(kManyNodes);
BENCHMARK(PlainRotation)->Arg(1)->Arg(kManyNodes);
BENCHMARK(Rotation)->Arg(1)->Arg(kManyNodes);
BENCHMARK(PlainScale)->Arg(1)->Arg(kManyNodes);
BENCHMARK(Scale)->Arg(1)->Arg(kManyNodes);
BENCHMARK(WorldRotatePivot)->Arg(1)->Arg(kManyNodes);

}  // namespace
