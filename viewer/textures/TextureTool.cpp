// SPDX-License-Identifier: MIT
#include "viewer/textures/TextureTool.h"

#include "viewer/loading/BuiltModel.h"
#include "viewer/loading/NodeChildren.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/stage/HandleCursor.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"
#include "viewer/textures/ArrangeCommands.h"
#include "viewer/textures/TextureCommands.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGSelection/nbSelection.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QJsonArray>
#include <QJsonObject>

#include <EditStamp.h>

namespace viewer {
namespace {

using nbec::interaction::InteractionManager;
using nbec::interaction::Picker;

constexpr const char* kReceiver = "nbviewer::texture";
/// Size of a new picture, as a share of the side of its object.
constexpr float kChosenShare = 0.6F;
constexpr float kDroppedShare = 0.5F;
constexpr const char* kAllHandles = "universal";

float aspectOf(const osg::ImagePtr& image)
{
    return static_cast<float>(image->getWidth()) / static_cast<float>(image->getHeight());
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
    , gizmos(kReceiver, nbScenegraph::getInternalRoot())
    , textureTarget(kReceiver, *this)
    , placingContext(*this)
{
    handlePicker.setFilter(Picker::HandleFilter);
    probe.setFilter(Picker::HandleFilter);
    addChild(nbScenegraph::getInternalRoot(), visualization.getRootNode());
    visualization.setVisible(false);
    handleContext.setPicker(&handlePicker);
    handleContext.setDragCallback([this] { stage.edited(); });
    placingTool.setMessageReceiver(kReceiver);
    placingContext.setPicker(&scenePicker);
    stage.addTool(*this);
    addTextureCommands(stage, *this);
    addArrangeCommands(stage, *this);
}

TextureTool::~TextureTool()
{
    stage.commands().remove("texture.");
    stage.removeTool(*this);
    handleContext.setManipulator(nullptr);
    handleContext.setPicker(nullptr);
    placingContext.setPicker(nullptr);
    takeFromParent(visualization.getRootNode());
}

// == What is edited

QString TextureTool::hindrance() const
{
    const osg::NodePtr object = textureTarget.object();
    if (object == osg::NullFC) {
        return Text::tr("Select an object to put a picture on it.");
    }
    if (textureTarget.surface() == osg::NullFC) {
        return Text::tr("\"%1\" has no surface of its own: select a part of it.")
            .arg(QString::fromStdString(nbNodeUtils::getName(object)));
    }
    return {};
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
    textureTarget.setImage(image.get(),
                           poseFacingTheEye(textureTarget.surface(), stage.pose(),
                                            aspectOf(image.get()), kChosenShare));
    refresh();
    return true;
}

bool TextureTool::setProjectionType(TextureTarget::Settings::TextureProjection type)
{
    const bool isDone = textureTarget.setProjectionType(type);
    refresh();
    return isDone;
}

bool TextureTool::dropPicture(const QString& file, const osg::Pnt2f& px, QString& error)
{
    const osg::NodePtr part = scenePicker.pickAt(px);
    if (objectOf(part) == osg::NullFC) {
        error = Text::tr("%1: there is no object to drop it on").arg(file);
        return false;
    }
    const osg::RefPtr<osg::ImagePtr> image = readPicture(file, error);
    if (!image) {
        return false;
    }
    stage.select(part);
    nbUndoService* const undo = nbUndoService::the();
    undo->beginGroup(Text::tr("Place picture"));
    const osg::NodePtr surface = textureTarget.surface();
    textureTarget.setImage(
        image.get(), poseFacingTheEye(surface, stage.pose(), aspectOf(image.get()), kDroppedShare));
    alignTo(scenePicker.getHitNormal());
    refresh();
    sendPlace(scenePicker);
    undo->endGroup();
    placing = false;
    stage.setActiveTool(this);
    return true;
}

bool TextureTool::alignTo(const std::optional<osg::Vec3f>& normal)
{
    const CameraPose& eye = stage.pose();
    return textureTarget.placing().alignTo(normal, nbCameraNavigation::worldUp(eye),
                                           nbCameraNavigation::axes(eye).up);
}

bool TextureTool::takePicture(const QString& file, const osg::Pnt2f& px, QString& error)
{
    if (objectOf(scenePicker.pickAt(px)) == osg::NullFC) {
        return false;
    }
    const QJsonArray place { px[0], px[1] };
    return stage.commands().run("texture.drop", QJsonObject { { "file", file }, { "at", place } },
                                error);
}

// == Connection with gizmo, editor and placing tool

void TextureTool::connect()
{
    const bool isOther = gizmos.follow(textureTarget);
    if (!textureTarget.connect() && !isOther) {
        return;
    }
    placingTool.setMaterialComponent(textureTarget.material(), textureTarget.component(), this);
    gizmos.connect(textureTarget, *this);
    if (textureTarget.projection() != osg::NullFC) {
        resumePreview();
    }
    followAnchor();
    if (isOther && active) {
        leavePointer();
        takePointer();
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
    if (!gizmos.hasGroup(word)) {
        return false;
    }
    shownGroup = word;
    setPlacing(false);
    applyGroup();
    return true;
}

void TextureTool::applyGroup()
{
    if (!gizmos.hasGroup(shownGroup)) {
        shownGroup = kAllHandles;
    }
    if (active && !placing) {
        gizmos.showGroup(shownGroup);
        gizmos.place();
    }
}

void TextureTool::setHandleSize(float size)
{
    gizmos.setSize(size);
    stage.edited();
}

// == The place of the handles

/// Hands the gizmos the anchor, which moves to the surface that is edited.
void TextureTool::followAnchor()
{
    const osg::NodePtr surface = textureTarget.surface();
    const bool isWanted = textureTarget.settings() != osg::NullFC &&
        textureTarget.projectionType() != TextureTarget::Settings::PlanarProjection;
    if (isWanted && !handlePlace.isOn(surface)) {
        handlePlace.set(surface, visiblePointOf(surface, stage));
    }
    if (handlePlace.isOn(surface)) {
        gizmos.setAnchor(surface, handlePlace.place());
    }
}

std::optional<osg::Pnt3f> TextureTool::anchor() const
{
    const bool isHere =
        textureTarget.settings() != osg::NullFC && handlePlace.isOn(textureTarget.surface());
    return isHere ? handlePlace.worldPlace() : std::nullopt;
}

bool TextureTool::setAnchor(const osg::Pnt2f& px)
{
    const osg::NodePtr surface = textureTarget.surface();
    const bool isHit = surface != osg::NullFC && textureTarget.settings() != osg::NullFC &&
        scenePicker.pickAt(px) == surface;
    if (isHit) {
        handlePlace.set(surface, scenePicker.getHitPoint());
        followAnchor();
        gizmos.place();
        stage.edited();
    }
    return isHit;
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
        const bool isPicture =
            textureTarget.projectionType() == TextureTarget::Settings::PlanarProjection;
        placingContext.setTool(isPicture ? &placingTool : nullptr);
        stage.view().setCursor(Qt::CrossCursor);
        manager.addContext(&placingContext);
        return;
    }
    handleContext.setManipulator(&gizmos.current());
    probe.setPickNode(gizmos.current().getCollider());
    manager.addContext(&handleContext);
    applyGroup();
}

void TextureTool::leavePointer()
{
    InteractionManager& manager = stage.interaction();
    manager.removeContext(&handleContext);
    manager.removeContext(&placingContext);
    placingContext.setTool(nullptr);
    if (placing) {
        stage.view().setCursor(Qt::ArrowCursor);
    }
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
        gizmos.place();
    }
}

void TextureTool::update()
{
    // Undo and edits of others reach the display, too.
    if (active && osg::glue::editStamp() != shownStamp) {
        connect();
        gizmos.update();
        if (placing) {
            placingContext.showAgain();
        }
        showInScene();
        shownStamp = osg::glue::editStamp();
    }
}

osg::NodePtr TextureTool::handles()
{
    return isPlacing() ? osg::NodePtr() : gizmos.current().getCollider();
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

void TextureTool::setPlaneTransparency(float transparency)
{
    visualization.setPlaneTransparency(transparency);
    refresh();
}

void TextureTool::showInScene()
{
    const osg::ColorComponentSettingsPtr settings = textureTarget.settings();
    const osg::Transform3DPtr projection = textureTarget.projection();
    const bool isShown = active && projectionShown && projection != osg::NullFC &&
        textureTarget.projectionType() == TextureTarget::Settings::PlanarProjection;
    visualization.setVisible(isShown);
    if (!isShown) {
        return;
    }
    const bool ends = settings->hasPlanarProjectionFlag(TextureTarget::Settings::ClampZ);
    // The display takes what it shows from settings.
    const osg::ColorComponentSettingsRefPtr shown(TextureTarget::Settings::create());
    shown->setPlanarProjection(settings->getShownProjection());
    const osg::Vec3f scale = shown->getPlanarProjection()->getScale();
    visualization.attachToNode(textureTarget.surface());
    visualization.updateProjectionTransform(shown.get());
    visualization.setScale(scale[0], scale[1]);
    visualization.setZScaleVisible(ends && depthShown);
    visualization.setTexture(textureTarget.image(), settings->getAsMask(), settings->getInvert());
    gizmos.planarGizmo().showZScaleValue(ends);
}

}  // namespace viewer
