// SPDX-License-Identifier: MIT
#include "viewer/stage/Stage.h"

#include "viewer/loading/BuiltModel.h"
#include "viewer/stage/ClipPlanes.h"
#include "viewer/stage/ObjectCommands.h"
#include "viewer/stage/StageTool.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbOpenSGSelection/nbSelection.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace viewer {
namespace {

const osg::Color3f kSelectionColor { 0.95F, 0.96F, 0.98F };
const osg::Color3f kPreselectionColor { 0.62F, 0.66F, 0.72F };
constexpr float kMarkerWidthPx = 1.5F;

}  // namespace

Stage::Stage(nbOSGWidget& view)
    : renderWidget(view)
    , selectionContext(nbec::interaction::Selection)
    , cameraContext(*this)
    , gizmoController(manager)
    , selectionMarker(kSelectionColor, kMarkerWidthPx)
    , preselectionMarker(kPreselectionColor, kMarkerWidthPx)
{
    renderWidget.setMain();
    scenePicker.setFilter(nbec::interaction::Picker::SceneFilter);
    selectionContext.setPicker(&scenePicker);
    selectionContext.setTool(&selectionTool);
    cameraContext.setPicker(&scenePicker);
    cameraContext.setChangedCallback([this] {
        viewChanged();
        changed();
    });
    manager.setCancelHandler([this] { edited(); });
    commandTable.setBusy([this] { return isDragging(); });
    nbec::manipulator::ManipulatorInteractionContext::connectDragKeys(manager);
    gizmoController.setDragCallback([this] {
        QString error;
        const bool isEdit = isDragging() && gizmoController.shown() != Gizmo::CameraPivot;
        if (isEdit && refusalCallback && !mayEdit(selectedObjects(), error)) {
            refusalCallback(error);
        }
        changed();
    });
    nbec::notification::NotificationManager::getInstance()->setChangeListener(
        [this] { renderWidget.update(); });
    manager.addContext(&selectionContext);
    manager.addContext(&cameraContext);
    selectionCallback = nbSelection::addChangedCallback([this] { selectionChanged(); });
    commandTable.addSwitch(
        "view.setHeld", [this](bool on) { holdView(on); }, [this] { return viewHeld; });
    commandTable.addValue("view.held", [this] { return viewHeld; });
    addClipPlaneCommands(*this);
    addObjectCommands(*this);
}

Stage::~Stage()
{
    nbSelection::removeChangedCallback(selectionCallback);
    changedCallback = nullptr;
    nbec::notification::NotificationManager::getInstance()->setChangeListener(nullptr);
    endActiveTool();
    gizmoController.show(Gizmo::None);
    manager.removeContext(&selectionContext);
    manager.removeContext(&cameraContext);
    selectionContext.setTool(nullptr);
    clear();
}

void Stage::showGizmo(Gizmo gizmo)
{
    endActiveTool();
    gizmoController.show(gizmo);
    changed();
}

// == Tools beside the gizmos

void Stage::addTool(StageTool& tool)
{
    tools.push_back(&tool);
}

void Stage::removeTool(StageTool& tool)
{
    if (toolInUse == &tool) {
        setActiveTool(nullptr);
    }
    tools.erase(std::remove(tools.begin(), tools.end(), &tool), tools.end());
}

void Stage::endActiveTool()
{
    if (toolInUse == nullptr) {
        return;
    }
    manager.endDrag();
    StageTool* former = toolInUse;
    toolInUse = nullptr;
    former->deactivate();
}

void Stage::setActiveTool(StageTool* tool)
{
    if (tool == toolInUse) {
        return;
    }
    if (toolInUse == nullptr) {
        gizmoBefore = gizmoController.shown();
    }
    endActiveTool();
    if (tool == nullptr) {
        gizmoController.show(gizmoBefore);
    } else {
        gizmoController.show(Gizmo::None);
        toolInUse = tool;
        tool->activate();
    }
    changed();
}

StageTool* Stage::toolByName(const std::string& name) const
{
    for (StageTool* tool : tools) {
        if (name == tool->name()) {
            return tool;
        }
    }
    return nullptr;
}

std::string Stage::manipulatorName() const
{
    return toolInUse != nullptr ? toolInUse->name() : gizmoName(gizmoController.shown());
}

bool Stage::showManipulator(const std::string& name)
{
    Gizmo gizmo = Gizmo::None;
    if (gizmoFromName(name, gizmo)) {
        showGizmo(gizmo);
        return true;
    }
    StageTool* tool = toolByName(name);
    if (tool != nullptr) {
        setActiveTool(tool);
    }
    return tool != nullptr;
}

osg::NodePtr Stage::handles()
{
    return toolInUse != nullptr ? toolInUse->handles() : gizmoController.handles();
}

std::string Stage::hoveredHandle()
{
    return toolInUse != nullptr ? toolInUse->hoveredHandle() : gizmoController.hoveredHandle();
}

std::string Stage::handleAt(const osg::Pnt2f& px)
{
    return toolInUse != nullptr ? toolInUse->handleAt(px) : gizmoController.handleAt(px);
}

std::string Stage::draggedValues() const
{
    if (!isDragging()) {
        return {};
    }
    QStringList lines;
    for (const auto& text : nbec::notification::NotificationManager::getInstance()->getVisibleTexts(
             renderWidget.getWidth(), renderWidget.getHeight())) {
        lines.append(text.text);
    }
    return lines.join("; ").toStdString();
}

bool Stage::takePicture(const QString& file, const osg::Pnt2f& px, QString& error)
{
    std::vector<StageTool*> asked = tools;
    std::stable_partition(asked.begin(), asked.end(),
                          [this](const StageTool* tool) { return tool == toolInUse; });
    for (StageTool* tool : asked) {
        if (tool->takePicture(file, px, error)) {
            return true;
        }
        if (!error.isEmpty()) {
            return false;
        }
    }
    return false;
}

// == Selection

bool Stage::selectByName(const std::string& name)
{
    const osg::NodePtr node =
        name.empty() ? osg::NodePtr() : findObject(nbScenegraph::getRootNode(), name);
    if (node == osg::NullFC && !name.empty()) {
        return false;
    }
    select(node);
    return true;
}

osg::NodePtr Stage::selectedObject() const
{
    return objectOf(nbSelection::getLast());
}

std::string Stage::selectedName() const
{
    return nbNodeUtils::getName(selectedObject());
}

std::vector<osg::NodePtr> Stage::selectedObjects() const
{
    std::vector<osg::NodePtr> objects;
    for (const osg::NodePtr& node : nbSelection::getNodes()) {
        const osg::NodePtr object = objectOf(node);
        if (object != osg::NullFC &&
            std::find(objects.begin(), objects.end(), object) == objects.end()) {
            objects.push_back(object);
        }
    }
    return objects;
}

bool Stage::isClipPlaneSelected() const
{
    return isClipPlaneOrFrame(selectedObject()) || isClipPlaneOrFrame(nbSelection::getLast());
}

void Stage::selectAll()
{
    nbSelection::set(objectsWithSurface(nbScenegraph::getRootNode()));
}

void Stage::showGrid(bool on)
{
    gridShown = on;
    changed();
}

void Stage::resize(int widthPx, int heightPx)
{
    renderWidget.resize(widthPx, heightPx);
    viewChanged();
    renderWidget.update();
}

void Stage::viewChanged()
{
    gizmoController.followCamera();
    for (StageTool* tool : tools) {
        tool->viewChanged();
    }
}

void Stage::update()
{
    gizmoController.update();
    for (StageTool* tool : tools) {
        tool->update();
    }
    const std::vector<osg::NodePtr> selected = selectedObjects();
    const osg::NodePtr preselected = selectionTool.getPreselected();
    const bool isNew = preselected != osg::NullFC &&
        std::find(selected.begin(), selected.end(), preselected) == selected.end();
    if (!gridShown) {
        grid.hide();
    } else if (!isDragging()) {
        grid.lay(nbNodeUtils::getWorldBounds(nbScenegraph::getRootNode()), pose().zUp ? 2 : 1);
    }
    selectionMarker.mark(selected);
    preselectionMarker.mark(isNew ? std::vector<osg::NodePtr> { preselected }
                                  : std::vector<osg::NodePtr> {});
}

// == Undo

bool Stage::undo()
{
    const bool isDone = !isDragging() && nbUndoService::the()->undo();
    edited();
    return isDone;
}

bool Stage::redo()
{
    const bool isDone = !isDragging() && nbUndoService::the()->redo();
    edited();
    return isDone;
}

bool Stage::canUndo() const
{
    return !isDragging() && nbUndoService::the()->getStack()->canUndo();
}

bool Stage::canRedo() const
{
    return !isDragging() && nbUndoService::the()->getStack()->canRedo();
}

void Stage::edited()
{
    letGoOfWhatIsGone();
    if (gizmoController.shown() == Gizmo::Clipping && !isClipPlaneSelected()) {
        // Its plane was taken back.
        gizmoController.show(Gizmo::Universal);
    }
    // Not update(): a pivot that goes back leaves the object, and so its matrix, as it is.
    gizmoController.followCamera();
    changed();
}

/// A step that was taken back may have taken selected objects out of the scene.
void Stage::letGoOfWhatIsGone()
{
    std::vector<osg::NodePtr> kept = nbSelection::getNodes();
    const std::size_t count = kept.size();
    kept.erase(std::remove_if(kept.begin(), kept.end(),
                              [](const osg::NodePtr& node) {
                                  return !nbNodeUtils::hasParent(node, nbScenegraph::getRootNode());
                              }),
               kept.end());
    if (kept.size() < count) {
        nbSelection::set(kept);
    }
}

void Stage::tellEverybody()
{
    if (changedCallback) {
        changedCallback();
    }
}

void Stage::selectionChanged()
{
    gizmoController.setTarget(selectedObject(), selectedObjects());
    for (StageTool* tool : tools) {
        tool->selectionChanged();
    }
    changed();
}

void Stage::changed()
{
    renderWidget.update();
    tellEverybody();
}

}  // namespace viewer
