// SPDX-License-Identifier: MIT
#include "tests/fuzz/Stage.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbTransformState.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace nbec::manipulator::test {

namespace {

using interaction::InteractionEvent;

constexpr int kWidth = 640;
constexpr int kHeight = 480;

constexpr std::array<const char*, 6> kEvents = { "start", "process",   "stop",
                                                 "hover", "stopHover", "trigger" };
constexpr std::array<const char*, 4> kTools = { "tool", "mode", "camera", "precisionTool" };
constexpr std::array<const char*, 8> kHints = { "select", "toggle", "selectThrough", "tool",
                                                "add",    "sub",    "deselect",      "zoom" };
constexpr std::array<const char*, 3> kModes = { "tool", "precisionTool", "" };
constexpr std::array<const char*, 4> kComponents = { "diffuse", "diffuse", "transparency", "" };
constexpr std::array<const char*, 4> kReceivers = { "editor", "harm", "nobody", "" };
constexpr std::array<const char*, 8> kHarmed = {
    "harm::changedPlanarManipulator",    "harm::getScaleValues",
    "harm::placeTexture",                "harm::changedTireManipulator",
    "harm::changedTriplanarManipulator", "harm::changedUVManipulator",
    "nbTransform::changedTransformation", "nbTransform::updateTransformation"
};

void addChild(const osg::NodePtr& above, const osg::NodePtr& child)
{
    const nbEdit edit(above, osg::Node::ChildrenFieldMask);
    above->addChild(child);
}

void leaveParent(const osg::NodePtr& node)
{
    if (node != osg::NullFC && node->getParent() != osg::NullFC) {
        const osg::NodePtr above = node->getParent();
        const nbEdit edit(above, osg::Node::ChildrenFieldMask);
        above->subChild(node);
    }
}

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
    for (const osg::Vec3f& part :
         { state.translation, state.rotatePivot, state.scalePivot, state.eulerRotation, state.scale }) {
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

// == The editor object

void WildGui::change(Bytes& bytes)
{
    hasAll = bytes.flag();
    value = bytes.number3();
}

bool WildGui::hasComponent(const std::string& /*component*/) const
{
    return hasAll;
}

osg::Vec3f WildGui::getTriplanarRotation(const std::string& /*component*/) const
{
    return value;
}

osg::Vec2f WildGui::getTriplanarOffset(const std::string& /*component*/, osg::UInt32 axis) const
{
    return { value[axis % 3], value.y() };
}

osg::Vec2f WildGui::getTriplanarRepeat(const std::string& /*component*/, osg::UInt32 axis) const
{
    return { value.z(), value[axis % 3] };
}

osg::Real32 WildGui::getRotate(const std::string& /*component*/) const
{
    return value.x();
}

osg::Vec2f WildGui::getOffset(const std::string& /*component*/) const
{
    return { value.x(), value.y() };
}

osg::Vec2f WildGui::getRepeat(const std::string& /*component*/) const
{
    return { value.y(), value.z() };
}

osg::Vec3f WildGui::getTireCenter(const std::string& /*component*/) const
{
    return value;
}

osg::Real32 WildGui::getTireScaleU(const std::string& /*component*/) const
{
    return value.x();
}

osg::Real32 WildGui::getTireScaleHeight(const std::string& /*component*/) const
{
    return value.y();
}

osg::Real32 WildGui::getTireScaleRadius(const std::string& /*component*/) const
{
    return value.z();
}

// == The stage

Stage::Stage()
{
    for (const char* const name : kHarmed) {
        listen(name);
    }
    addView();
    otherRoot = osg::NodePtr(osg::makeCoredNode<osg::Group>());
    addChild(nbScenegraph::getInternalRoot(), otherRoot.get());
    editor = std::make_unique<nbMaterialEditor>("editor");
    plateModule = std::make_unique<nbSceneplateModule>();
    for (osg::UberCameraRefPtr& camera : cameras) {
        camera = osg::UberCamera::create();
    }
    for (std::size_t i = 0; i < kMaterials; ++i) {
        addMaterial(i);
    }
    for (std::size_t i = 0; i < kNodes; ++i) {
        addNode(i);
    }
    for (std::size_t i = 0; i < kPlates; ++i) {
        addPlate(i);
    }
    editor->setMaterial(materials[0].get(), nodes[0].get(), "diffuse", &wildGui);
}

Stage::~Stage()
{
    for (std::size_t i = 0; i < kNodes; ++i) {
        dropNode(i);
    }
    plateModule.reset();
    editor.reset();
    nbUndoService::the()->clear();
    nbOSGWidget::setInteractionMode(0);
    nbController::setPresenterMode(false);
}

void Stage::listen(const std::string& name)
{
    nbController::addReceiver(name, [this](nbMessage& message) {
        if (reaction == Reaction::None) {
            // What "::getScaleValues" is answered with.
            message.set("initialTextureScale", osg::Vec3f(static_cast<float>(reactionIndex), 1, 1),
                        true);
            message.set("projectionSize", osg::Vec2f(2.0F, 0.0F), true);
        }
        react();
    });
}

void Stage::react()
{
    const Reaction now = std::exchange(reaction, Reaction::None);
    switch (now) {
    case Reaction::Throw:
        throw std::runtime_error("a handler fails");
    case Reaction::ThrowNumber:
        throw 1;
    case Reaction::DropNode:
        return dropNode(reactionIndex % kNodes);
    case Reaction::DropMaterial:
        materials[reactionIndex % kMaterials] = osg::NullFC;
        return dropNode(reactionIndex % kNodes);
    case Reaction::DropSettings:
        if (materials[reactionIndex % kMaterials] != osg::NullFC) {
            materials[reactionIndex % kMaterials]->setComponentSettings(
                "diffuse", osg::ColorComponentSettingsPtr());
        }
        return;
    case Reaction::DropPlate:
        return dropPlate(reactionIndex % kPlates);
    case Reaction::DropView:
        return view.reset();
    case Reaction::DropCamera:
        cameras[reactionIndex % kCameras] = osg::NullFC;
        return;
    case Reaction::Undo:
        nbUndoService::the()->undo();
        return;
    case Reaction::ClearTexts:
        return notification::NotificationManager::getInstance()->clear();
    case Reaction::None:
    case Reaction::Count:
        return;
    }
}

// == What hosts do

void Stage::act(Bytes& bytes)
{
    switch (bytes.next() % 12) {
    case 0:
        return resize(bytes);
    case 1:
        return editCamera(bytes);
    case 2:
        return editNode(bytes);
    case 3:
        return editMaterial(bytes);
    case 4:
        return editPlate(bytes);
    case 5:
        return editUndo(bytes);
    case 6:
    case 7:
        return deleteOrAdd(bytes);
    case 8:
        manager.selectMode(mode(bytes));
        return;
    case 9:
        reaction = static_cast<Reaction>(bytes.next() % static_cast<std::size_t>(Reaction::Count));
        reactionIndex = bytes.next();
        return;
    case 10:
        nbOSGWidget::setInteractionMode(bytes.next() % 3);
        nbController::setPresenterMode(bytes.once(4));
        return wildGui.change(bytes);
    default:
        manager.cameraMoved(osg::Matrix());
        return manager.endDrag();
    }
}

void Stage::resize(Bytes& bytes)
{
    if (view != nullptr) {
        const int width = (static_cast<int>(bytes.next()) - 32) * 8;
        view->resize(width, (static_cast<int>(bytes.next()) - 32) * 8);
    }
}

void Stage::editCamera(Bytes& bytes) const
{
    const osg::UberCameraPtr edited = camera(bytes);
    if (edited == osg::NullFC) {
        return;
    }
    const osg::Vec3f from = bytes.flag() ? bytes.plain3() : bytes.number3();
    edited->setFromAtUp(osg::Pnt3f(from), osg::Pnt3f(), osg::Vec3f(0, 1, 0));
    const nbEdit edit(edited, osg::FieldBits::AllFields);
    edited->setFov(bytes.once(3) ? bytes.number() : 45.0F);
    edited->setOrthographic(bytes.once(3));
    edited->setZUp(bytes.once(3));
    edited->setHorizontalSizing(bytes.once(3));
    if (bytes.once(4)) {
        edited->setFrom(osg::Pnt3f(bytes.number3()));
        edited->setAt(osg::Pnt3f(bytes.number3()));
        edited->setUp(bytes.number3());
        edited->setPivot(osg::Pnt3f(bytes.number3()));
        edited->setNear(bytes.number());
        edited->setFar(bytes.number());
    }
}

void Stage::editNode(Bytes& bytes) const
{
    const osg::NodePtr edited = node(bytes);
    if (edited == osg::NullFC) {
        return;
    }
    const auto core = osg::Transform3DPtr::dcast(edited->getCore());
    if (core == osg::NullFC) {
        const nbEdit edit(edited, osg::Node::TravMaskFieldMask);
        return edited->setActive(bytes.flag());
    }
    const nbEdit edit(core, osg::FieldBits::AllFields);
    core->setTranslation(bytes.plain3());
    core->setRotation(bytes.plain3() * 90.0F);
    core->setScale(bytes.once(4) ? osg::Vec3f(0, bytes.plain(), 1) : osg::Vec3f(1, 2, 1));
    core->setRotatePivot(bytes.plain3());
}

void Stage::editMaterial(Bytes& bytes)
{
    const osg::UberMaterialPtr edited = material(bytes);
    const std::string name = component(bytes);
    if (edited == osg::NullFC) {
        return;
    }
    const osg::ColorComponentSettingsPtr settings = edited->getComponentSettings(name);
    switch (bytes.next() % 5) {
    case 0:
        edited->setImage(name, image(bytes));
        break;
    case 1:
        edited->setComponentSettings(name, osg::ColorComponentSettings::create());
        break;
    case 2:
        editor->setMaterial(edited, nodes[0].get(), name, gui(bytes));
        editor->setTextureProjectionType(bytes.next() % 4);
        break;
    case 3:
        editor->setFlags(bytes.next() % 16);
        break;
    default:
        if (settings != osg::NullFC) {
            const nbEdit edit(settings, osg::FieldBits::AllFields);
            settings->setTextureProjectionType(static_cast<osg::Int32>(bytes.next() % 5) - 1);
            settings->setOffset(bytes.finite2());
            settings->setRepeat(bytes.finite2());
            settings->setRotate(bytes.finite());
            settings->setTriplanarRotation(bytes.finite3());
            settings->setTriplanarRepeatU(bytes.finite3());
            settings->setTireScaleRadius(bytes.finite());
            settings->setTireScaleHeight(bytes.finite());
        }
    }
}

void Stage::editPlate(Bytes& bytes)
{
    if (bytes.once(6)) {
        plateModule = plateModule == nullptr ? std::make_unique<nbSceneplateModule>() : nullptr;
        if (plateModule == nullptr) {
            listen("sceneplateChanged");
            listen("sceneplateSelected");
            listen("sceneplatePreselected");
        }
    }
    if (plateModule != nullptr) {
        plateModule->select(somePlates(bytes), hint(bytes));
    }
    const osg::SceneplatePtr edited = nbSceneplateList::plateOf(plate(bytes));
    if (edited != osg::NullFC) {
        const nbEdit edit(edited, osg::FieldBits::AllFields);
        edited->setAnchor(bytes.next() % 10);
        edited->setPosition(bytes.flag() ? bytes.plain2() : bytes.finite2());
        edited->setSize(bytes.once(3) ? bytes.finite2() : osg::Vec2f(0.3F, 0.2F));
        edited->setRotation(bytes.finite());
        edited->setVisible(!bytes.once(4));
    }
}

void Stage::editUndo(Bytes& bytes) const
{
    nbUndoService* const undo = nbUndoService::the();
    switch (bytes.next() % 6) {
    case 0:
        return undo->beginGroup();
    case 1:
        return undo->endGroup();
    case 2:
        return undo->cancelGroup();
    case 3:
        undo->redo();
        return;
    case 4:
        return undo->clear();
    default:
        undo->undo();
    }
}

void Stage::deleteOrAdd(Bytes& bytes)
{
    const std::uint8_t what = bytes.next();
    const std::size_t index = bytes.next();
    const bool isAdded = bytes.flag();
    switch (what % 6) {
    case 0:
    case 1:
        dropNode(index % kNodes);
        if (isAdded) {
            addNode(index % kNodes);
        }
        return;
    case 2:
        materials[index % kMaterials] = osg::NullFC;
        if (isAdded) {
            addMaterial(index % kMaterials);
        }
        return;
    case 3:
        dropPlate(index % kPlates);
        if (isAdded) {
            addPlate(index % kPlates);
        }
        return;
    case 4:
        cameras[index % kCameras] =
            isAdded ? osg::UberCameraPtr(osg::UberCamera::create()) : osg::UberCameraPtr();
        return;
    default:
        if (index % 4 == 0) {
            return leaveParent(otherRoot.get());
        }
        if (index % 2 == 0) {
            otherView = isAdded ? std::make_unique<nbOSGWidget>() : nullptr;
            return;
        }
        view.reset();
        if (isAdded) {
            addView();
        }
    }
}

/// Even nodes hang at the top of the scene, odd ones below their forerunner; the first two are
/// transforms already, the others become ones.
void Stage::addNode(std::size_t index)
{
    const bool isNested = index % 2 == 1 && nodes[index - 1] != osg::NullFC &&
        nodes[index - 1]->getParent() != osg::NullFC;
    const osg::NodePtr parent = isNested ? nodes[index - 1].get() : nbScenegraph::getRootNode();
    const osg::NodePtr box = osg::makeBox(1, 1, 1, 1, 1, 1);
    const osg::UberMaterialPtr worn = materials[index % kMaterials].get();
    if (worn != osg::NullFC) {
        const auto geometry = osg::GeometryPtr::dcast(box->getCore());
        const nbEdit edit(geometry, osg::Geometry::MaterialFieldMask);
        geometry->setMaterial(worn);
    }
    nodes[index] = index < 2 ? osg::NodePtr(osg::makeCoredNode<osg::Transform3D>()) : box;
    if (index < 2) {
        addChild(nodes[index].get(), box);
    }
    addChild(parent, nodes[index].get());
}

void Stage::dropNode(std::size_t index)
{
    leaveParent(nodes[index].get());
    nodes[index] = osg::NullFC;
}

/// Each of another kind of projection, with a picture.
void Stage::addMaterial(std::size_t index)
{
    const osg::UberMaterialPtr made = osg::UberMaterial::create();
    materials[index] = made;
    const osg::ColorComponentSettingsPtr settings = osg::ColorComponentSettings::create();
    {
        const nbEdit edit(settings, osg::FieldBits::AllFields);
        settings->setTextureProjectionType(static_cast<osg::Int32>(index) + 1);
        settings->setPlanarProjection(osg::Transform3D::create());
        settings->setTireAutoParameter(false);
    }
    made->setComponentSettings("diffuse", settings);
}

void Stage::addPlate(std::size_t index)
{
    const osg::NodePtr node = osg::makeCoredNode<osg::Sceneplate>();
    const osg::SceneplatePtr core = nbSceneplateList::plateOf(node);
    {
        const nbEdit edit(core, osg::FieldBits::AllFields);
        core->setPosition(osg::Vec2f(0.2F * static_cast<float>(index), 0.1F));
    }
    plates[index] = node;
    addChild(nbScenegraph::getSceneplateRoot(), node);
}

void Stage::dropPlate(std::size_t index)
{
    leaveParent(plates[index].get());
    plates[index] = osg::NullFC;
}

void Stage::addView()
{
    view = std::make_unique<nbOSGWidget>();
    view->setMain();
    view->resize(kWidth, kHeight);
    view->getUberCamera()->setFromAtUp(osg::Pnt3f(1, 2, 8), osg::Pnt3f(), osg::Vec3f(0, 1, 0));
}

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
    const std::uint8_t choice = bytes.next() % 3;
    return choice == 0 ? &wildGui : choice == 1 ? editor->getStateChunk() : nullptr;
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
    osg::Matrix clipFromWorld;
    view->getCamera()->getWorldToScreen(clipFromWorld, *view->getViewport());
    osg::Pnt3f device;
    clipFromWorld.multFullMatrixPnt(point, device);
    const osg::Pnt2f px((device.x() + 1.0F) * 0.5F * static_cast<float>(view->getWidth()),
                        (1.0F - device.y()) * 0.5F * static_cast<float>(view->getHeight()));
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
    if (isPreviewOurs && !preview.isPaused() &&
        preview.getRefreshCount() != preview.getResumeCount()) {
        return "the preview was resumed and not refreshed";
    }
    const std::vector<float> all = values();
    const bool isFinite =
        std::all_of(all.begin(), all.end(), [](float value) { return std::isfinite(value); });
    return isFinite ? "" : "the scene holds a number that is not finite";
}

}  // namespace nbec::manipulator::test
