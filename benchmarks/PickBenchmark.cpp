// SPDX-License-Identifier: MIT
// Picking: handles under a moving pointer, scenes of three sizes, and the building of search trees.
// Beside each stands the naive way: the scene graph's own action, a loop over all triangles, Embree
// alone.
#include "benchmarks/WavySphere.h"

#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbGeoFactory.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGCoredNodePtr.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGIntersectAction.h>
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <embree3/rtcore.h>

namespace {

using nbec::interaction::Picker;

constexpr int kWidthPx = 1280;
constexpr int kHeightPx = 800;
constexpr float kPi = 3.14159265f;

void hang(const osg::NodePtr& parent, const osg::NodePtr& child)
{
    const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
    parent->addChild(child);
}

osg::NodePtr placed(const osg::Vec3f& translation, const osg::Quaternion& rotation,
                    const osg::NodePtr& child)
{
    const osg::ComponentTransformPtr core = osg::ComponentTransform::create();
    const osg::NodePtr node = osg::makeNodeFor(core);
    {
        const nbEdit edit(core, osg::FieldBits::AllFields);
        core->setTranslation(translation);
        core->setRotation(rotation);
    }
    hang(node, child);
    return node;
}

/// The view: eye at (0, 0, 5), 45 degrees, 1280 x 800.
class Stage
{
public:
    Stage()
    {
        widget.resize(kWidthPx, kHeightPx);
        widget.getUberCamera()->setFromAtUp({ 0.0f, 0.0f, 5.0f }, { 0.0f, 0.0f, 0.0f },
                                            { 0.0f, 1.0f, 0.0f });
    }

    ~Stage() { nbScenegraph::clear(); }

    nbOSGWidget widget;
    Picker picker;
};

/// Pixels that a pointer passes on its way around the view's middle, a few pixels per step.
std::vector<osg::Pnt2f> pointerPath(float radiusPx)
{
    constexpr int kSteps = 2048;
    std::vector<osg::Pnt2f> path;
    for (int i = 0; i < kSteps; ++i) {
        const float angle = 2.0f * kPi * static_cast<float>(i) / kSteps;
        path.emplace_back(kWidthPx / 2.0f + radiusPx * std::sin(3.0f * angle),
                          kHeightPx / 2.0f + radiusPx * std::sin(4.0f * angle + 0.5f));
    }
    return path;
}

// == Handles

/// A gizmo: per axis an arrow of line and cone, a scale box, a ring, a plane handle with two bars;
/// a ball in the middle. In the two-pass arrangement, with an unnamed copy first. About 160 pixels
/// from the middle to an arrow's tip.
class GizmoStage : public Stage
{
public:
    GizmoStage()
    {
        osg::Matrix small;
        small.setScale(0.4f);
        place->setMatrix(small);
        osg::NodePtr handles = osg::makeCoredNode<osg::Group>();
        for (int axis = 0; axis < 3; ++axis) {
            addAxis(handles, axis);
        }
        addHandle(handles, "grid", osg::makeSphere(2, 0.125f));
        const osg::NodePtr copy = osg::cloneTree(handles);
        hang(root, inMaterialGroup(copy));
        hang(root, inMaterialGroup(handles));
        nbNodeUtils::setIsAuxiliaryNode(root, true);
        nbNodeUtils::setIsManipulatorNode(root, true);
        hang(nbScenegraph::getInternalRoot(), root);
        picker.setPickNode(root);
        picker.setFilter(Picker::HandleFilter);
    }

    osg::TransformPtr place = osg::Transform::create();
    osg::NodePtr root = osg::makeNodeFor(place);

private:
    static osg::NodePtr inMaterialGroup(const osg::NodePtr& child)
    {
        const osg::MaterialGroupPtr core = osg::MaterialGroup::create();
        core->setMaterial(osg::SimpleMaterial::create());
        const osg::NodePtr node = osg::makeNodeFor(core);
        hang(node, child);
        return node;
    }

    static void addHandle(const osg::NodePtr& parent, const std::string& name,
                          const osg::NodePtr& shape)
    {
        nbNodeUtils::setName(shape, name, true);
        hang(parent, shape);
    }

    static void addAxis(const osg::NodePtr& handles, int axis)
    {
        osg::Quaternion turn;
        if (axis == 0) {
            turn.setValueAsAxisDeg(0.0f, 0.0f, 1.0f, -90.0f);
        } else if (axis == 2) {
            turn.setValueAsAxisDeg(1.0f, 0.0f, 0.0f, 90.0f);
        }
        const osg::Quaternion none;
        const std::string letter(1, "xyz"[axis]);
        const osg::NodePtr upright = osg::makeCoredNode<osg::Group>();
        const auto add = [&](const std::string& name, float height, const osg::NodePtr& shape) {
            addHandle(upright, letter + name, placed({ 0.0f, height, 0.0f }, none, shape));
        };
        add("aShape", 1.0f, nbGeoFactory::makeLine(2.0f));
        add("aShape", 2.0f, osg::makeCone(0.4f, 0.1f, 24, true, true));
        add("sShape", 0.75f, nbGeoFactory::makeLine(1.5f));
        add("sShape", 1.5f, osg::makeBox(0.175f, 0.175f, 0.175f, 1, 1, 1));
        add("rShape", 0.0f, nbGeoFactory::makeLineTorus(1.5f, 36, false));
        addHandle(upright, letter + "pShape",
                  placed({ 0.3f, 0.3f, 0.0f }, none, osg::makePlane(0.2f, 0.2f, 1, 1)));
        addHandle(upright, letter + "pShape",
                  placed({ 0.4f, 0.3f, 0.0f }, none,
                         osg::makeCylinder(0.2f, 0.01f, 8, true, true, true)));
        addHandle(upright, letter + "pShape",
                  placed({ 0.2f, 0.3f, 0.0f }, none,
                         osg::makeCylinder(0.2f, 0.01f, 8, true, true, true)));
        hang(handles, placed(osg::Vec3f(), turn, upright));
    }
};

/// Positions of a path at which the picker finds a handle, or finds none.
std::vector<osg::Pnt2f> filterPath(Picker& picker, const std::vector<osg::Pnt2f>& path, bool hit)
{
    std::vector<osg::Pnt2f> result;
    for (const osg::Pnt2f& px : path) {
        if ((picker.pickAt(px) != osg::NullFC) == hit) {
            result.push_back(px);
        }
    }
    return result;
}

void pickAlong(benchmark::State& state, Picker& picker, const std::vector<osg::Pnt2f>& path)
{
    if (path.empty()) {
        state.SkipWithError("the pointer's path is empty");
        return;
    }
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(picker.pickAt(path[next]));
        next = next + 1 < path.size() ? next + 1 : 0;
    }
    state.SetItemsProcessed(state.iterations());
}

void hoverOnHandles(benchmark::State& state)
{
    GizmoStage stage;
    pickAlong(state, stage.picker, filterPath(stage.picker, pointerPath(170.0f), true));
}

void hoverBetweenHandles(benchmark::State& state)
{
    GizmoStage stage;
    pickAlong(state, stage.picker, filterPath(stage.picker, pointerPath(170.0f), false));
}

void hoverBesideTheGizmo(benchmark::State& state)
{
    GizmoStage stage;
    std::vector<osg::Pnt2f> path;
    for (int i = 0; i < 200; ++i) {
        path.emplace_back(50.0f + static_cast<float>(i), 60.0f);
    }
    pickAlong(state, stage.picker, path);
}

/// The gizmo moves before each pick, so that its picture is drawn anew.
void hoverOverAMovingGizmo(benchmark::State& state)
{
    GizmoStage stage;
    const osg::Matrix matrices[2] = { stage.place->getMatrix(), [&] {
                                         osg::Matrix moved = stage.place->getMatrix();
                                         moved.setTranslate(0.01f, 0.0f, 0.0f);
                                         return moved;
                                     }() };
    std::size_t step = 0;
    for (auto _ : state) {
        {
            const nbEdit edit(stage.place, osg::Transform::MatrixFieldMask);
            stage.place->setMatrix(matrices[++step % 2]);
        }
        benchmark::DoNotOptimize(stage.picker.pickAt({ 700.0f, 400.0f }));
    }
    state.SetItemsProcessed(state.iterations());
}

osg::Line rayThrough(const Stage& stage, const osg::Pnt2f& px)
{
    const float height =
        2.0f * std::tan(0.5f * stage.widget.getUberCamera()->getFov() * kPi / 180.0f);
    const float scale = height / kHeightPx;
    return { osg::Pnt3f(0.0f, 0.0f, 5.0f),
             osg::Vec3f((px[0] - kWidthPx / 2.0f) * scale, (kHeightPx / 2.0f - px[1]) * scale,
                        -1.0f) };
}

void actionAlong(benchmark::State& state, const Stage& stage, const osg::NodePtr& root,
                 const std::vector<osg::Pnt2f>& path)
{
    const std::unique_ptr<osg::IntersectAction> action(osg::IntersectAction::create());
    std::size_t next = 0;
    for (auto _ : state) {
        action->setLine(rayThrough(stage, path[next]));
        action->apply(root);
        benchmark::DoNotOptimize(action->didHit());
        next = next + 1 < path.size() ? next + 1 : 0;
    }
    state.SetItemsProcessed(state.iterations());
}

void hoverByTheSceneGraphsAction(benchmark::State& state)
{
    GizmoStage stage;
    actionAlong(state, stage, nbScenegraph::getInternalRoot(), pointerPath(170.0f));
}

// == Scenes

class MeshStage : public Stage
{
public:
    explicit MeshStage(int triangles)
        : mesh(bench::makeWavySphere(triangles))
    {
        osg::Quaternion turn;
        turn.setValueAsAxisDeg(1.0f, 1.0f, 0.0f, 40.0f);
        hang(nbScenegraph::getRootNode(),
             placed({ 0.1f, 0.0f, 0.0f }, turn, osg::makeNodeFor(mesh)));
    }

    osg::GeometryPtr mesh;
};

void scenePick(benchmark::State& state)
{
    MeshStage stage(static_cast<int>(state.range(0)));
    Picker::buildTrees(nbScenegraph::getWorldRoot());
    pickAlong(state, stage.picker, pointerPath(220.0f));
}

/// The pointer jumps: nothing of the tree is in the processor's caches from the pick before.
void scenePickAtRandomPixels(benchmark::State& state)
{
    MeshStage stage(static_cast<int>(state.range(0)));
    Picker::buildTrees(nbScenegraph::getWorldRoot());
    std::vector<osg::Pnt2f> path;
    unsigned seed = 1;
    const auto random = [&seed] {
        seed = seed * 1664525u + 1013904223u;
        return static_cast<float>(seed >> 8) / static_cast<float>(1u << 24);
    };
    for (int i = 0; i < 20000; ++i) {
        const float x = random();
        path.emplace_back(kWidthPx / 2.0f + 440.0f * (x - 0.5f),
                          kHeightPx / 2.0f + 440.0f * (random() - 0.5f));
    }
    pickAlong(state, stage.picker, path);
}

void scenePickByTheSceneGraphsAction(benchmark::State& state)
{
    MeshStage stage(static_cast<int>(state.range(0)));
    actionAlong(state, stage, nbScenegraph::getRootNode(), pointerPath(220.0f));
}

void scenePickByALoopOverTriangles(benchmark::State& state)
{
    MeshStage stage(static_cast<int>(state.range(0)));
    const auto& positions = osg::GeoPositions3fPtr::dcast(stage.mesh->getPositions())->getField();
    const auto& indices = osg::GeoIndicesUI32Ptr::dcast(stage.mesh->getIndices())->getField();
    const std::vector<osg::Pnt2f> path = pointerPath(220.0f);
    std::size_t next = 0;
    for (auto _ : state) {
        const osg::Line ray = rayThrough(stage, path[next]);
        float nearest = osg::Inf;
        for (osg::UInt32 i = 0; i + 2 < indices.size(); i += 3) {
            float t = 0.0f;
            if (ray.intersect(positions[indices[i]], positions[indices[i + 1]],
                              positions[indices[i + 2]], t) &&
                t >= 0.0f && t < nearest) {
                nearest = t;
            }
        }
        benchmark::DoNotOptimize(nearest);
        next = next + 1 < path.size() ? next + 1 : 0;
    }
    state.SetItemsProcessed(state.iterations());
}

/// Many small objects.
void scenePickAmongBoxes(benchmark::State& state)
{
    Stage stage;
    const int side = static_cast<int>(std::lround(std::cbrt(static_cast<double>(state.range(0)))));
    const osg::NodePtr box = osg::makeBox(0.05f, 0.05f, 0.05f, 1, 1, 1);
    const osg::NodePtr all = osg::makeCoredNode<osg::Group>();
    for (int i = 0; i < side * side * side; ++i) {
        const osg::Vec3f place(static_cast<float>(i % side), static_cast<float>(i / side % side),
                               static_cast<float>(i / side / side));
        const osg::Vec3f middle(0.5f, 0.5f, 0.5f);
        hang(all,
             placed(place * (2.0f / static_cast<float>(side)) - middle * 2.0f, osg::Quaternion(),
                    osg::makeNodeFor(box->getCore())));
    }
    hang(all, box);
    hang(nbScenegraph::getRootNode(), all);
    pickAlong(state, stage.picker, pointerPath(220.0f));
}

/// A gizmo below the same root is edited before each pick, as during a drag.
void scenePickWhileAGizmoMoves(benchmark::State& state)
{
    MeshStage stage(100000);
    GizmoStage gizmo;
    gizmo.widget.setMain();
    std::size_t step = 0;
    for (auto _ : state) {
        {
            const nbEdit edit(gizmo.place, osg::Transform::MatrixFieldMask);
        }
        benchmark::DoNotOptimize(
            stage.picker.pickAt({ 640.0f, 400.0f + static_cast<float>(++step % 50) }));
    }
    state.SetItemsProcessed(state.iterations());
}

// == Trees

void buildTree(benchmark::State& state)
{
    MeshStage stage(static_cast<int>(state.range(0)));
    const osg::NodePtr node = nbScenegraph::getRootNode()->getChild(0)->getChild(0);
    for (auto _ : state) {
        state.PauseTiming();
        // A new geometry has no tree yet; that of the old one goes with it.
        node->setCore(stage.mesh->clone());
        stage.mesh = osg::GeometryPtr::dcast(node->getCore());
        state.ResumeTiming();
        Picker::buildTrees(node);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void buildTreeByEmbreeAlone(benchmark::State& state)
{
    MeshStage stage(static_cast<int>(state.range(0)));
    const auto& positions = osg::GeoPositions3fPtr::dcast(stage.mesh->getPositions())->getField();
    const auto& indices = osg::GeoIndicesUI32Ptr::dcast(stage.mesh->getIndices())->getField();
    const RTCDevice device = rtcNewDevice(nullptr);
    for (auto _ : state) {
        const RTCScene scene = rtcNewScene(device);
        const RTCGeometry mesh = rtcNewGeometry(device, RTC_GEOMETRY_TYPE_TRIANGLE);
        std::memcpy(rtcSetNewGeometryBuffer(mesh, RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3,
                                            sizeof(osg::Pnt3f), positions.size()),
                    &positions[0], positions.size() * sizeof(osg::Pnt3f));
        std::memcpy(rtcSetNewGeometryBuffer(mesh, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3,
                                            3 * sizeof(osg::UInt32), indices.size() / 3),
                    &indices[0], indices.size() * sizeof(osg::UInt32));
        rtcCommitGeometry(mesh);
        rtcAttachGeometry(scene, mesh);
        rtcReleaseGeometry(mesh);
        rtcCommitScene(scene);
        rtcReleaseScene(scene);
    }
    rtcReleaseDevice(device);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(hoverOnHandles);
BENCHMARK(hoverBetweenHandles);
BENCHMARK(hoverBesideTheGizmo);
BENCHMARK(hoverOverAMovingGizmo);
BENCHMARK(hoverByTheSceneGraphsAction);
BENCHMARK(scenePick)->Arg(10000)->Arg(100000)->Arg(1000000);
BENCHMARK(scenePickAtRandomPixels)->Arg(10000)->Arg(100000)->Arg(1000000);
BENCHMARK(scenePickByTheSceneGraphsAction)->Arg(10000)->Arg(100000)->Arg(1000000);
BENCHMARK(scenePickByALoopOverTriangles)->Arg(10000)->Arg(100000)->Arg(1000000);
BENCHMARK(scenePickAmongBoxes)->Arg(1000)->Arg(8000);
BENCHMARK(scenePickWhileAGizmoMoves);
BENCHMARK(buildTree)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(buildTreeByEmbreeAlone)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
