// SPDX-License-Identifier: MIT
#include "tests/fuzz/Stage.h"

#include "tests/platform/support/Edited.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbKernelServiceFactory.h>
#include <nbKernelServices/nbObjectService.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <stdexcept>
#include <utility>

namespace nbec::manipulator::test {

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 480;

constexpr std::array<const char*, 8> kHarmed = { "harm::changedPlanarManipulator",
                                                 "harm::getScaleValues",
                                                 "harm::placeTexture",
                                                 "harm::changedTireManipulator",
                                                 "harm::changedTriplanarManipulator",
                                                 "harm::changedUVManipulator",
                                                 "nbTransform::changedTransformation",
                                                 "nbTransform::updateTransformation" };

void addChild(const osg::NodePtr& above, const osg::NodePtr& child)
{
    nbtest::edited(above, osg::Node::ChildrenFieldMask)->addChild(child);
}

void leaveParent(const osg::NodePtr& node)
{
    if (node != osg::NullFC && node->getParent() != osg::NullFC) {
        const osg::NodePtr above = node->getParent();
        const nbEdit edit(above, osg::Node::ChildrenFieldMask);
        above->subChild(node);
    }
}

}  // namespace

// == The stage

Stage::Stage(unsigned endOrder)
    : endBits(endOrder)
{
    for (const char* const name : kHarmed) {
        listen(name);
    }
    listenToObjects();
    addView();
    otherRoot = osg::NodePtr(osg::makeCoredNode<osg::Group>());
    addChild(nbScenegraph::getInternalRoot(), otherRoot.get());
    renewReceivers();
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

void Stage::endEarly()
{
    if ((endBits & 1U) != 0) {
        ownManager.reset();
    }
    if ((endBits & 2U) != 0) {
        view.reset();
    }
}

void Stage::listen(const std::string& name)
{
    nbController::addReceiver(name, [this](nbMessage& message) {
        // What "::getScaleValues" is answered with.
        message.set("initialTextureScale", osg::Vec3f(static_cast<float>(faultIndex), 1, 1), true);
        message.set("projectionSize", osg::Vec2f(2.0F, 0.0F), true);
        commit(std::exchange(nextFault, Fault::None), faultIndex);
    });
}

/// Qt lets no slot throw.
void Stage::listenToObjects()
{
    const auto* const service = nbKernelServiceFactory::the().find<nbObjectService>();
    QObject::connect(service, &nbObjectService::propertyChanged, &listener, [this] {
        if (nextFault != Fault::Throw && nextFault != Fault::ThrowNumber) {
            commit(std::exchange(nextFault, Fault::None), faultIndex);
        }
    });
}

void Stage::arm(Fault what, std::size_t index)
{
    nextFault = what;
    faultIndex = index;
}

void Stage::renewReceivers()
{
    editor.reset();
    editor = std::make_unique<nbMaterialEditor>("editor");
    plateModule.reset();
    plateModule = std::make_unique<nbSceneplateModule>();
}

void Stage::commit(Fault what, std::size_t index)
{
    switch (what) {
    case Fault::Throw:
        throw std::runtime_error("a handler fails");
    case Fault::ThrowNumber:
        throw 1;
    case Fault::DropNode:
        return dropNode(index % kNodes);
    case Fault::DropMaterial:
        return dropMaterial(index % kMaterials);
    case Fault::DropSettings:
        if (materials[index % kMaterials] != osg::NullFC) {
            materials[index % kMaterials]->setComponentSettings("diffuse",
                                                                osg::ColorComponentSettingsPtr());
        }
        return;
    case Fault::DropPlate:
        return dropPlate(index % kPlates);
    case Fault::DropView:
        return view.reset();
    case Fault::DropCamera:
        cameras[index % kCameras] = osg::NullFC;
        return;
    case Fault::Undo:
        nbUndoService::the()->undo();
        return;
    case Fault::ClearTexts:
        return notification::NotificationManager::getInstance()->clear();
    case Fault::None:
    case Fault::Count:
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
        nextFault = static_cast<Fault>(bytes.next() % static_cast<std::size_t>(Fault::Count));
        faultIndex = bytes.next();
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
    static constexpr void (*kCalls[])(nbUndoService&) = { [](nbUndoService& undo) { undo.beginGroup(); },
                                                          [](nbUndoService& undo) { undo.endGroup(); },
                                                          [](nbUndoService& undo) { undo.cancelGroup(); },
                                                          [](nbUndoService& undo) { undo.redo(); },
                                                          [](nbUndoService& undo) { undo.clear(); },
                                                          [](nbUndoService& undo) { undo.undo(); } };
    kCalls[bytes.next() % std::size(kCalls)](*nbUndoService::the());
}

void Stage::deleteOrAdd(Bytes& bytes)
{
    const std::uint8_t what = bytes.next();
    const std::size_t index = bytes.next();
    const bool isAdded = bytes.flag();
    const auto replace = [&](auto drop, auto add, std::size_t count) {
        (this->*drop)(index % count);
        if (isAdded) {
            (this->*add)(index % count);
        }
    };
    switch (what % 6) {
    case 0:
    case 1:
        return replace(&Stage::dropNode, &Stage::addNode, kNodes);
    case 2:
        return replace(&Stage::dropMaterial, &Stage::addMaterial, kMaterials);
    case 3:
        return replace(&Stage::dropPlate, &Stage::addPlate, kPlates);
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

/// Takes it from all that wears it, too.
void Stage::dropMaterial(std::size_t index)
{
    for (const auto& node : nodes) {
        if (node == osg::NullFC) {
            continue;
        }
        auto geometry = osg::GeometryPtr::dcast(node->getCore());
        if (geometry == osg::NullFC && node->getNChildren() > 0) {
            geometry = osg::GeometryPtr::dcast(node->getChild(0)->getCore());
        }
        if (geometry != osg::NullFC && geometry->getMaterial() == materials[index].get()) {
            const nbEdit edit(geometry, osg::Geometry::MaterialFieldMask);
            geometry->setMaterial(osg::MaterialPtr());
        }
    }
    materials[index] = osg::NullFC;
}

void Stage::addPlate(std::size_t index)
{
    const osg::NodePtr node = osg::makeCoredNode<osg::Sceneplate>();
    const osg::SceneplatePtr core = nbSceneplateList::plateOf(node);
    nbtest::edited(core)->setPosition(osg::Vec2f(0.2F * static_cast<float>(index), 0.1F));
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

}  // namespace nbec::manipulator::test
