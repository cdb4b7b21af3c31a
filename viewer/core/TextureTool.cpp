// SPDX-License-Identifier: MIT
#include "viewer/core/TextureTool.h"

#include "viewer/core/HandleCursor.h"
#include "viewer/core/PictureFile.h"
#include "viewer/core/SceneBuilder.h"
#include "viewer/core/Stage.h"
#include "viewer/core/ValueLine.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGSelection/nbSelection.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QJsonArray>
#include <QJsonObject>

#include <array>

#include <EditStamp.h>

namespace viewer {
namespace {

using nbec::interaction::InteractionEvent;
using nbec::interaction::InteractionManager;
using nbec::interaction::Picker;
using nbec::interaction::ToolInteractionContext;
using nbec::manipulator::PlanarTextureManipulator;
namespace names = nbec::interaction::names;

constexpr const char* kReceiver = "nbviewer::texture";
/// Size of a new picture, as a share of the side of its object.
constexpr float kChosenShare = 0.6F;
constexpr float kDroppedShare = 0.5F;

struct GroupRow
{
    const char* word;
    void (PlanarTextureManipulator::*activate)();
};

constexpr std::array<GroupRow, 4> kGroups { {
    { "translate", &PlanarTextureManipulator::activateTranslateManipulator },
    { "rotate", &PlanarTextureManipulator::activateRotateManipulator },
    { "scale", &PlanarTextureManipulator::activateScaleManipulator },
    { "universal", &PlanarTextureManipulator::activateUniversalManipulator },
} };

const GroupRow* findGroup(const std::string& word)
{
    for (const GroupRow& row : kGroups) {
        if (word == row.word) {
            return &row;
        }
    }
    return nullptr;
}

float aspectOf(const osg::ImagePtr& image)
{
    return static_cast<float>(image->getWidth()) / static_cast<float>(image->getHeight());
}

/// A direction of the world in the space of a node.
osg::Vec3f vectorIn(const osg::NodePtr& node, const osg::Vec3f& world)
{
    osg::Matrix nodeFromWorld;
    node->getToWorld().inverse(nodeFromWorld);
    osg::Vec3f vector;
    nodeFromWorld.multMatrixVec(world, vector);
    return vector;
}

/// A normal of the world in the space of a node, any length: it goes by the transposed matrix.
osg::Vec3f normalIn(const osg::NodePtr& node, const osg::Vec3f& world)
{
    const osg::Matrix worldFromNode = node->getToWorld();
    osg::Vec3f normal;
    for (osg::UInt32 axis = 0; axis < 3; ++axis) {
        for (osg::UInt32 row = 0; row < 3; ++row) {
            normal[axis] += worldFromNode[axis][row] * world[row];
        }
    }
    return normal;
}

/// Has the editor place the picture, as a click of the placing tool does.
void sendPlace(const Picker& picker)
{
    nbMessage message;
    message.set("hitNode", picker.getHitNode(), true);
    message.set("hitPoint", picker.getHitPoint(), true);
    message.set("hitNormal", picker.getHitNormal(), true);
    nbController::call((std::string(kReceiver) + "::placeTexture").c_str(), message, 0);
}

/// The gizmo pauses the preview as soon as it gets an object; here it pauses for drags alone.
void resumePreview()
{
    nbMessage message;
    message.set("enabled", true, true);
    nbController::call("setMatRenderEnabled", message, 0);
    nbController::call("updateMatRender", 0);
}

}  // namespace

TextureTool::TextureTool(Stage& targetStage)
    : stage(targetStage)
    , textureTarget(kReceiver, *this)
{
    handlePicker.setFilter(Picker::HandleFilter);
    probe.setFilter(Picker::HandleFilter);
    const osg::NodePtr helpers = nbScenegraph::getInternalRoot();
    {
        const nbEdit edit(helpers, osg::Node::ChildrenFieldMask);
        helpers->addChild(visualization.getRootNode());
    }
    visualization.setVisible(false);
    gizmo.setVisualisationRoot(helpers);
    gizmo.setMessageReceiver(kReceiver);
    handleContext.setPicker(&handlePicker);
    handleContext.setDragCallback([this] { stage.edited(); });
    placingTool.setMessageReceiver(kReceiver);
    placingContext.setPicker(&scenePicker);
    stage.addTool(*this);
}

TextureTool::~TextureTool()
{
    stage.removeTool(*this);
    gizmo.setNode({});
    handleContext.setManipulator(nullptr);
    handleContext.setPicker(nullptr);
    placingContext.setPicker(nullptr);
    const osg::NodePtr root = visualization.getRootNode();
    const osg::NodePtr parent = root->getParent();
    if (parent != osg::NullFC) {
        const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
        parent->subChild(root);
    }
}

// == What is edited

QString TextureTool::hindrance() const
{
    const osg::NodePtr object = textureTarget.object();
    if (object == osg::NullFC) {
        return QStringLiteral("Select an object to put a picture on it.");
    }
    if (textureTarget.surface() == osg::NullFC) {
        return QStringLiteral("\"%1\" has no surface of its own: select a part of it.")
            .arg(QString::fromStdString(nbNodeUtils::getName(object)));
    }
    return {};
}

ProjectionPose TextureTool::poseFacingTheEye(float aspect, float share) const
{
    const osg::NodePtr surface = textureTarget.surface();
    const nbCameraNavigation::Axes axes = nbCameraNavigation::axes(stage.pose());
    surface->updateVolume();
    osg::BoxVolume bounds;
    osg::Pnt3f low;
    osg::Pnt3f high;
    surface->getVolume().getBounds(low, high);
    bounds.setBounds(low, high);
    return poseOnFront(bounds, vectorIn(surface, axes.back), vectorIn(surface, axes.up), aspect,
                       share);
}

osg::Quaternion TextureTool::uprightOn(const osg::Vec3f& normal) const
{
    const osg::NodePtr surface = textureTarget.surface();
    const CameraPose eye = stage.pose();
    return uprightRotation(normalIn(surface, normal),
                           vectorIn(surface, nbCameraNavigation::worldUp(eye)),
                           vectorIn(surface, nbCameraNavigation::axes(eye).up));
}

bool TextureTool::setComponent(const std::string& component)
{
    const bool isShown = textureTarget.setComponent(component);
    refresh();
    return isShown;
}

bool TextureTool::setPicture(const QString& file, QString& error)
{
    error = hindrance();
    const osg::RefPtr<osg::ImagePtr> image =
        error.isEmpty() ? readPicture(file, error) : osg::RefPtr<osg::ImagePtr>();
    if (!image) {
        return false;
    }
    textureTarget.setImage(image.get(), poseFacingTheEye(aspectOf(image.get()), kChosenShare));
    refresh();
    return true;
}

bool TextureTool::dropPicture(const QString& file, const osg::Pnt2f& px, QString& error)
{
    const osg::NodePtr part = scenePicker.pickAt(px);
    if (objectOf(part) == osg::NullFC) {
        error = QStringLiteral("%1: there is no object to drop it on").arg(file);
        return false;
    }
    const osg::RefPtr<osg::ImagePtr> image = readPicture(file, error);
    if (!image) {
        return false;
    }
    stage.select(part);
    nbUndoService* const undo = nbUndoService::the();
    undo->beginGroup(QStringLiteral("Place picture"));
    ProjectionPose pose = poseFacingTheEye(aspectOf(image.get()), kDroppedShare);
    pose.rotation = uprightOn(scenePicker.getHitNormal());
    textureTarget.setImage(image.get(), pose);
    refresh();
    sendPlace(scenePicker);
    undo->endGroup();
    placing = false;
    stage.setActiveTool(this);
    return true;
}

bool TextureTool::takePicture(const QString& file, const osg::Pnt2f& px, QString& error)
{
    if (objectOf(scenePicker.pickAt(px)) == osg::NullFC) {
        return false;
    }
    const QJsonArray place { static_cast<double>(px[0]), static_cast<double>(px[1]) };
    return stage.commands().run(QStringLiteral("texture.drop"),
                                QJsonObject { { "file", file }, { "at", place } }, error);
}

// == Connection with gizmo, editor and placing tool

void TextureTool::connect()
{
    if (!textureTarget.connect()) {
        return;
    }
    const bool isThere = textureTarget.projection() != osg::NullFC;
    const osg::MaterialPtr material = textureTarget.material();
    placingTool.setMaterialComponent(material, textureTarget.component(), this);
    gizmo.setMaterialComponent(material, textureTarget.component(), this);
    gizmo.setNode(isThere ? textureTarget.object() : osg::NodePtr());
    if (isThere) {
        resumePreview();
    }
    applyGroup();
}

void TextureTool::refresh()
{
    connect();
    showInScene();
    materialPreview.refresh();
    stage.edited();
}

void TextureTool::componentChanged(const std::string& /*component*/)
{
    refresh();
}

// == The pointer

bool TextureTool::showGroup(const std::string& word)
{
    if (findGroup(word) == nullptr) {
        return false;
    }
    shownGroup = word;
    setPlacing(false);
    applyGroup();
    return true;
}

void TextureTool::applyGroup()
{
    const GroupRow* const row = findGroup(shownGroup);
    if (active && !placing && row != nullptr) {
        (gizmo.*row->activate)();
    }
}

void TextureTool::setPlacing(bool on)
{
    if (active && placing != on) {
        leavePointer();
        placing = on;
        takePointer();
    }
    placing = on;
    stage.setActiveTool(this);
    stage.edited();
}

void TextureTool::takePointer()
{
    InteractionManager& manager = stage.interaction();
    if (placing) {
        placingContext.setTool(&placingTool);
        manager.addContext(&placingContext);
        return;
    }
    handleContext.setManipulator(&gizmo);
    probe.setPickNode(gizmo.getCollider());
    manager.addContext(&handleContext);
    applyGroup();
    PlanarTextureManipulator::updateAllManipulators();
}

void TextureTool::leavePointer()
{
    InteractionManager& manager = stage.interaction();
    manager.removeContext(&handleContext);
    manager.removeContext(&placingContext);
    placingContext.setTool(nullptr);
}

void TextureTool::activate()
{
    active = true;
    takePointer();
    refresh();
}

void TextureTool::deactivate()
{
    leavePointer();
    active = false;
    placing = false;
    showInScene();
}

bool TextureTool::PlacingContext::triggerEvent(InteractionManager* manager,
                                               const InteractionEvent& event)
{
    const bool isTool = event.getTool() == names::kTool;
    const auto deliver = [&] { return ToolInteractionContext::triggerEvent(manager, event); };
    if (isTool && event.getEvent() == names::kStart) {
        return group.start(deliver);
    }
    if (isTool && event.getEvent() == names::kStop && group.isOpen()) {
        return group.stop(manager, deliver);
    }
    return deliver();
}

// == What happens on the stage

void TextureTool::sceneCleared()
{
    textureTarget.follow({}, {});
    connect();
    showInScene();
}

void TextureTool::selectionChanged()
{
    textureTarget.follow(stage.selectedObject(), nbSelection::getLast());
    connect();
    showInScene();
    materialPreview.refresh();
}

void TextureTool::viewChanged()
{
    if (active) {
        PlanarTextureManipulator::updateAllManipulators();
    }
}

void TextureTool::update()
{
    // Undo and edits of others reach the display, too.
    if (active && osg::glue::editStamp() != shownStamp) {
        connect();
        gizmo.update(false);
        showInScene();
        shownStamp = osg::glue::editStamp();
    }
}

void TextureTool::setPixelRatio(float ratio)
{
    handlePicker.setPixelRatio(ratio);
    probe.setPixelRatio(ratio);
    scenePicker.setPixelRatio(ratio);
}

osg::NodePtr TextureTool::handles()
{
    return isPlacing() ? osg::NodePtr() : gizmo.getCollider();
}

std::string TextureTool::hoveredHandle()
{
    if (!handleContext.grabbedHandle().empty()) {
        return handleContext.grabbedHandle();
    }
    const bool isPossible = active && !placing && stage.gizmo().isPointerInside();
    return isPossible ? nbNodeUtils::getName(probe.pick()) : std::string();
}

std::string TextureTool::handleAt(const osg::Pnt2f& px)
{
    return active && !placing ? nbNodeUtils::getName(probe.pickAt(px)) : std::string();
}

std::string TextureTool::draggedValues() const
{
    if (isPlacing()) {
        return placingTool.getDescription();
    }
    const osg::Transform3DPtr projection = textureTarget.projection();
    if (projection == osg::NullFC || handleContext.grabbedHandle().empty()) {
        return {};
    }
    switch (actionOfHandle(handleContext.grabbedHandle())) {
    case HandleAction::MoveAlong:
    case HandleAction::MoveInPlane:
        return valueLine("Picture at", projection->getTranslation());
    case HandleAction::Turn:
        return valueLine("Picture turned", projection->getRotation());
    default:
        return valueLine("Picture scale", projection->getScale());
    }
}

// == The projection in the scene

void TextureTool::showProjection(bool on)
{
    projectionShown = on;
    refresh();
}

void TextureTool::showDepth(bool on)
{
    depthShown = on;
    refresh();
}

float TextureTool::planeTransparency() const
{
    return visualization.getPlaneTransparency();
}

void TextureTool::setPlaneTransparency(float transparency)
{
    visualization.setPlaneTransparency(transparency);
    refresh();
}

void TextureTool::showInScene()
{
    const osg::ColorComponentSettingsPtr settings = textureTarget.settings();
    const osg::Transform3DPtr projection = textureTarget.projection();
    const bool isShown = active && projectionShown && projection != osg::NullFC;
    visualization.setVisible(isShown);
    if (!isShown) {
        return;
    }
    const bool ends = settings->hasPlanarProjectionFlag(TextureTarget::Settings::ClampZ);
    const osg::Vec3f scale = projection->getScale();
    visualization.attachToNode(textureTarget.surface());
    visualization.updateProjectionTransform(settings);
    visualization.setScale(scale[0], scale[1]);
    visualization.setZScaleVisible(ends && depthShown);
    visualization.setTexture(textureTarget.image(), settings->getAsMask(), settings->getInvert());
    gizmo.showZScaleValue(ends);
}

}  // namespace viewer
