// SPDX-License-Identifier: MIT
// What the bytes choose, where the pointer goes, and whether the scene is still sound.
#include "tests/fuzz/Stage.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUberMaterial/nbTextureValues.h>
#include <nbOpenSGUtils/nbTransformState.h>

#include <OpenSG/OSGGeometry.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::test {

namespace {

using interaction::InteractionEvent;

constexpr std::array<const char*, 6> kEvents = { "start", "process",   "stop",
                                                 "hover", "stopHover", "trigger" };
constexpr std::array<const char*, 4> kTools = { "tool", "mode", "camera", "precisionTool" };
constexpr std::array<const char*, 8> kHints = { "select", "toggle", "selectThrough", "tool",
                                                "add",    "sub",    "deselect",      "zoom" };
constexpr std::array<const char*, 3> kModes = { "tool", "precisionTool", "" };
constexpr std::array<const char*, 4> kComponents = { "diffuse", "diffuse", "transparency", "" };
constexpr std::array<const char*, 4> kReceivers = { "editor", "harm", "nobody", "" };

template <class Vector>
void append(std::vector<float>& values, const Vector& vector)
{
    const auto* const first = vector.getValues();
    values.insert(values.end(), first, first + sizeof(Vector) / sizeof(*first));
}

void append(std::vector<float>& values, const osg::Quaternion& turn)
{
    values.insert(values.end(), { turn.x(), turn.y(), turn.z(), turn.w() });
}

void appendTransform(std::vector<float>& values, const osg::Transform3D& core)
{
    const nbTransformState state = nbTransformState::of(core);
    for (const osg::Vec3f& part : { state.translation, state.rotatePivot, state.scalePivot,
                                    state.eulerRotation, state.scale }) {
        append(values, part);
    }
    append(values, state.rotationQuaternion);
    append(values, state.rotationOrientation);
}

void appendSettings(std::vector<float>& values, const osg::ColorComponentSettings& settings)
{
    const nbTextureValues texture = nbTextureValues::of(settings);
    append(values, texture.offset);
    append(values, texture.repeat);
    for (const osg::Vec3f& part :
         { texture.triplanarRotation, texture.triplanarOffsetU, texture.triplanarOffsetV,
           texture.triplanarRepeatU, texture.triplanarRepeatV, texture.tireCenter }) {
        append(values, part);
    }
    values.insert(values.end(),
                  { texture.rotate, texture.tireScaleU, texture.tireScaleHeight,
                    texture.tireScaleRadius, texture.tireAutoParameter ? 1.0F : 0.0F,
                    static_cast<float>(settings.getPlanarProjectionFlags()) });
    const osg::Transform3DPtr projection = settings.getPlanarProjection();
    if (projection != osg::NullFC) {
        appendTransform(values, *projection);
    }
}

void collectGeometry(const osg::NodePtr& node, std::vector<osg::NodePtr>& found)
{
    if (!node->getActive()) {
        return;
    }
    if (osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC) {
        found.push_back(node);
    }
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        collectGeometry(node->getChild(i), found);
    }
}

}  // namespace

// == What there is

osg::NodePtr Stage::node(Bytes& bytes) const
{
    const std::size_t index = bytes.next() % (kNodes + 2);
    return index < kNodes ? nodes[index].get()
        : index == kNodes ? osg::NodePtr()
                          : nbScenegraph::getRootNode();
}

osg::UberMaterialPtr Stage::material(Bytes& bytes) const
{
    const std::size_t index = bytes.next() % (kMaterials + 1);
    return index < kMaterials ? materials[index].get() : osg::UberMaterialPtr();
}

osg::NodePtr Stage::plate(Bytes& bytes) const
{
    const std::size_t index = bytes.next() % (kPlates + 1);
    return index < kPlates ? plates[index].get() : nodes[0].get();
}

std::vector<osg::NodePtr> Stage::somePlates(Bytes& bytes) const
{
    std::vector<osg::NodePtr> some;
    for (unsigned left = bytes.next() % 4; left > 0; --left) {
        some.push_back(plate(bytes));
    }
    return some;
}

Stage::Edited Stage::firstEdited(std::size_t index)
{
    editor->setMaterial(materials[index].get(), nodes[0].get(), "diffuse", &wildGui);
    return { materials[index].get(), "diffuse", nullptr };
}

std::vector<osg::NodePtr> Stage::allPlates() const
{
    std::vector<osg::NodePtr> all;
    for (const auto& one : plates) {
        all.push_back(one.get());
    }
    if (plateModule != nullptr) {
        plateModule->select(all, "select");
    }
    return all;
}

osg::UberCameraPtr Stage::camera(Bytes& bytes) const
{
    const std::size_t index = bytes.next() % (2 * kCameras + 1);
    if (index < kCameras) {
        return cameras[index].get();
    }
    return index == kCameras || view == nullptr ? osg::UberCameraPtr() : view->getUberCamera();
}

osg::ImagePtr Stage::image(Bytes& bytes)
{
    const std::uint8_t width = bytes.next() % 6;
    if (width == 0) {
        return osg::ImagePtr();
    }
    if (width < 5) {
        picture = osg::Image::create();
        picture->set(bytes.flag() ? osg::Image::OSG_RGB_PF : osg::Image::OSG_RGBA_PF, width, 2);
    }
    return picture.get();
}

nbStateChunkBase* Stage::gui(Bytes& bytes)
{
    return bytes.next() % 3 == 0 ? &wildGui : nullptr;
}

std::string Stage::receiver(Bytes& bytes) const
{
    return bytes.once(8) ? bytes.text() : bytes.oneOf(kReceivers);
}

std::string Stage::component(Bytes& bytes) const
{
    return bytes.once(8) ? bytes.text() : bytes.oneOf(kComponents);
}

std::string Stage::hint(Bytes& bytes) const
{
    return bytes.once(8) ? bytes.text() : bytes.oneOf(kHints);
}

std::string Stage::mode(Bytes& bytes) const
{
    return bytes.once(8) ? bytes.text() : bytes.oneOf(kModes);
}

// == Input

osg::Pnt2f Stage::pixelOf(const osg::Pnt3f& world) const
{
    osg::Matrix clipFromWorld;
    view->getCamera()->getWorldToScreen(clipFromWorld, *view->getViewport());
    osg::Pnt3f device;
    clipFromWorld.multFullMatrixPnt(world, device);
    return osg::Pnt2f((device.x() + 1.0F) * 0.5F * static_cast<float>(view->getWidth()),
                      (1.0F - device.y()) * 0.5F * static_cast<float>(view->getHeight()));
}

osg::Pnt2f Stage::aimAt(const osg::NodePtr& tree, Bytes& bytes) const
{
    const std::uint8_t choice = bytes.next();
    const std::uint8_t corner = bytes.next();
    const osg::Pnt2f anywhere(static_cast<float>(choice) * 2.5F, static_cast<float>(corner) * 2.0F);
    if (choice % 8 == 0 || tree == osg::NullFC || view == nullptr) {
        return anywhere;
    }
    std::vector<osg::NodePtr> shown;
    collectGeometry(tree, shown);
    if (shown.empty()) {
        return anywhere;
    }
    const osg::NodePtr target = shown[choice / 8U % shown.size()];
    const auto positions = osg::GeometryPtr::dcast(target->getCore())->getPositions();
    if (positions == osg::NullFC || positions->getSize() == 0) {
        return anywhere;
    }
    osg::Pnt3f point = positions->getValue(corner % positions->getSize());
    target->getToWorld().multMatrixPnt(point);
    const osg::Pnt2f px = pixelOf(point);
    return std::isfinite(px.x()) && std::isfinite(px.y()) ? px : anywhere;
}

void Stage::point(const osg::Pnt2f& px)
{
    if (view != nullptr) {
        view->setMousePosition(px);
    }
    manager.pointerMoved(px);
}

void Stage::send(const osg::Pnt2f& target, Bytes& bytes)
{
    point(bytes.once(16) ? osg::Pnt2f(bytes.number2()) : target);
    const std::string name = bytes.once(16) ? bytes.text() : bytes.oneOf(kEvents);
    const bool isPlain = !bytes.once(4);
    const std::string tool = isPlain ? "tool" : bytes.oneOf(kTools);
    manager.triggerEvent(InteractionEvent(name, tool, isPlain ? "select" : hint(bytes)));
}

void Stage::drag(const osg::Pnt2f& target, Bytes& bytes)
{
    const auto say = [this](const char* name) {
        manager.triggerEvent(InteractionEvent(name, "tool", "select"));
    };
    osg::Pnt2f pointer = target;
    point(pointer);
    say("hover");
    if (view != nullptr && bytes.flag()) {
        view->setPressPosition(pointer);
    }
    say("start");
    for (unsigned left = bytes.next() % 4; left > 0; --left) {
        say("process");
        pointer += bytes.plain2() * (bytes.once(4) ? 500.0F : 10.0F);
        point(pointer);
    }
    if (!bytes.once(4)) {
        say("stop");
        if (view != nullptr) {
            view->clearPressPosition();
        }
    }
}

// == Invariants

std::vector<float> Stage::values() const
{
    std::vector<float> result;
    for (const auto& node : nodes) {
        const auto core = node == osg::NullFC ? osg::Transform3DPtr()
                                              : osg::Transform3DPtr::dcast(node->getCore());
        if (core != osg::NullFC) {
            appendTransform(result, *core);
            append(result, core->getMatrix());
        }
    }
    for (const auto& worn : materials) {
        if (worn == osg::NullFC) {
            continue;
        }
        for (const std::string& name : worn->getComponentNames()) {
            const osg::ColorComponentSettingsPtr settings = worn->getComponentSettings(name);
            if (settings != osg::NullFC) {
                appendSettings(result, *settings);
            }
        }
    }
    for (const auto& node : plates) {
        const osg::SceneplatePtr core = nbSceneplateList::plateOf(node.get());
        if (core != osg::NullFC) {
            append(result, core->getPosition());
            append(result, core->getSize());
            result.insert(result.end(), { core->getScale(), core->getRotation() });
        }
    }
    return result;
}

std::string Stage::check() const
{
    if (picker.getFilter() != interaction::Picker::SceneFilter) {
        return "the picker was left at another filter";
    }
    if (nbUndoService::the()->isRecording() != nbUndoService::the()->isGroupOpen()) {
        return "a scope of undo was left open";
    }
    if (!preview.isPaused() && preview.getRefreshCount() != preview.getResumeCount()) {
        return "the preview was resumed and not refreshed";
    }
    const std::vector<float> all = values();
    const bool isFinite =
        std::all_of(all.begin(), all.end(), [](float value) { return std::isfinite(value); });
    return isFinite ? "" : "the scene holds a number that is not finite";
}

}  // namespace nbec::manipulator::test
