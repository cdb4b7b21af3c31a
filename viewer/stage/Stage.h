// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/commands/Commands.h"
#include "viewer/loading/BuiltModel.h"
#include "viewer/loading/ModelData.h"
#include "viewer/loading/ModelSources.h"
#include "viewer/stage/GizmoController.h"
#include "viewer/stage/PreselectionTool.h"

#include <nbInteraction/CameraInteractionContext.h>
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGSelection/nbSelection.h>
#include <nbOpenSGUberCamera/nbCameraNavigation.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbView/nbSceneLines.h>

#include <functional>
#include <string>
#include <vector>

namespace viewer {

class StageTool;

/// Everything that happens in the view without being a window: scene, selection, camera,
/// manipulator and how input reaches them. Works without any widget, window or OpenGL; lives
/// between osgInit and osgExit.
class Stage
{
public:
    /// @param view  made the main widget; not owned, outlives this
    explicit Stage(nbOSGWidget& view);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    /// Empties the scene.
    ~Stage();

    nbec::interaction::InteractionManager& interaction() { return manager; }

    GizmoController& gizmo() { return gizmoController; }

    /// Changes the manipulator shown; an active tool ends.
    void showGizmo(Gizmo gizmo);

    Commands& commands() { return commandTable; }

    // == Tools beside the gizmos

    /// Makes a tool known. @param tool  not owned; removed before it dies
    void addTool(StageTool& tool);
    void removeTool(StageTool& tool);
    /// Gives the pointer to a tool; the gizmo shown, or the tool before, goes.
    /// @param tool  one that was added; null: the gizmo shown before the first tool comes back
    void setActiveTool(StageTool* tool);

    /// Makes a tool the active one, or ends it if it is.
    void useTool(StageTool& tool, bool on)
    {
        if (on != (toolInUse == &tool)) {
            setActiveTool(on ? &tool : nullptr);
        }
    }

    StageTool* activeTool() const { return toolInUse; }

    /// The tool of that name; null for none.
    StageTool* toolByName(const std::string& name) const;

    /// Word of the gizmo or tool that has the pointer, such as "universal".
    std::string manipulatorName() const;
    /// Shows the gizmo, or makes the tool active, of that name. @return false for an unknown one
    bool showManipulator(const std::string& name);

    // == Handles of the gizmo or of the active tool

    /// Tree of the handles shown; null if there are none in the scene.
    osg::NodePtr handles();
    /// Name of the handle that is dragged, otherwise of that under the pointer; "" for none.
    std::string hoveredHandle();
    /// Name of the handle at a pixel, "" for none. @param px  device pixels, y from the top
    std::string handleAt(const osg::Pnt2f& px);
    /// What a running drag says over the view, such as "Rotation (0, 45, 0)"; "" while nothing is
    /// dragged.
    std::string draggedValues() const;

    // == Files

    /// Offers a picture file to the tools, the active one first. @param px  where it was dropped
    /// @return whether one took it; false with a text in `error`: it was meant but could not be
    /// done
    bool takePicture(const QString& file, const osg::Pnt2f& px, QString& error);

    nbOSGWidget& view() { return renderWidget; }

    // == Scene

    /// Removes all models.
    void clear();
    /// Hangs a model into the scene. @return its root
    osg::NodePtr add(const ModelData& model);
    /// The same for one whose nodes are there. Search trees that are still missing are built now.
    osg::NodePtr add(const BuiltModel& model);
    /// Hangs a copy of an object beside it, see ModelSources::addCopy().
    void addCopy(const osg::NodePtr& object, const osg::NodePtr& copy, const osg::NodePtr& parent);
    /// Replaces all models by what was built before.
    /// @param top      what comes right below the scene's root, without parents
    /// @param sources  of the models among and below it
    void replace(const std::vector<osg::RefPtr<osg::NodePtr>>& top, ModelSources sources);

    /// Where the models in the scene came from.
    const ModelSources& sources() const { return modelSources; }

    /// Replaces everything by the start scene, seen as composed, with its main object selected and
    /// the universal gizmo on it.
    void showStartScene();

    bool isEmpty() const { return nbScenegraph::getRootNode()->getNChildren() == 0; }

    /// Of what is in the scene, each time that it is shown there; counted anew when nothing is
    /// dragged.
    std::size_t triangleCount();

    // == Selection

    /// Selects an object or a part of one; null for none.
    void select(const osg::NodePtr& node) { nbSelection::set(node); }

    /// Selects the object of that name, "" for none. @return false, selection untouched, if there
    /// is no such object
    bool selectByName(const std::string& name);
    /// The object selected last; null if there is none.
    osg::NodePtr selectedObject() const;
    std::string selectedName() const;
    /// The objects selected, each once, in the order of selecting.
    std::vector<osg::NodePtr> selectedObjects() const;
    /// Whether the object selected last is, or carries, a clip plane or the frame of one.
    bool isClipPlaneSelected() const;
    /// Selects every object that has a surface of its own.
    void selectAll();

    /// The object at a pixel; null for none. @param px  device pixels, y from the top
    osg::NodePtr objectAt(const osg::Pnt2f& px) { return objectOf(scenePicker.pickAt(px)); }

    /// Name of the object under the pointer that a click would select; "" for none.
    std::string preselectedName() const
    {
        return nbNodeUtils::getName(selectionTool.getPreselected());
    }

    // == Camera

    CameraPose pose() const { return renderWidget.getUberCamera()->getPose(); }

    /// Pixel at which a place of the world is seen. @return false if it lies behind the eye
    bool project(const osg::Pnt3f& world, osg::Pnt2f& px) const
    {
        return nbCameraNavigation::project(pose(), world, renderWidget.getWidth(),
                                           renderWidget.getHeight(), px);
    }

    /// Nothing while the view is held.
    void setPose(const CameraPose& wanted);

    /// Holds the view, so that a camera which was matched to a photograph is not moved by chance;
    /// whoever tries to is told.
    void holdView(bool on);

    bool isViewHeld() const { return viewHeld; }

    /// Sets what is told when somebody drags what is held or locked, one line.
    void setRefusalCallback(std::function<void(const QString& text)> callback)
    {
        refusalCallback = std::move(callback);
    }

    /// Shows all models from where the camera looks; the start view with the default direction if
    /// `reset` is set.
    void frameAll(bool reset = false);
    /// Shows the selected object, or all if nothing is selected.
    void frameSelection();
    void setStandardView(nbCameraNavigation::StandardView standardView);
    void setOrthographic(bool on);
    void setZUp(bool on);

    /// A grid on the ground; off at the start.
    void showGrid(bool on);

    bool isGridShown() const { return gridShown; }

    // == Undo

    /// Takes the last step back. False if there is none, or while anything is dragged.
    bool undo();
    /// Does the step again that was taken back last. False as undo.
    bool redo();
    bool canUndo() const;
    bool canRedo() const;

    /// Whether something is being dragged, so that steps must not be taken back now.
    bool isDragging() const { return manager.isDragging(); }

    // == Keeping in step

    /// Tells everybody of what is not seen in the picture, such as the end of a drag.
    void tellEverybody();

    /// Redraws and tells everybody, as after an edit that did not come from the view.
    void edited();

    /// Tells everybody that the camera was placed by other means than this, as by its match.
    void cameraMoved()
    {
        manager.cameraMoved(renderWidget.getUberCamera()->getInternalParentNode()->getToWorld());
        viewChanged();
        changed();
    }

    /// Tells the size of the view, device pixels.
    void resize(int widthPx, int heightPx);
    /// Brings gizmo and markers up to date; call before each picture.
    void update();

    /// Sets what is called when selection, camera or scene changed; empty for nothing.
    void setChangedCallback(std::function<void()> callback)
    {
        changedCallback = std::move(callback);
    }

private:
    void selectionChanged();
    void letGoOfWhatIsGone();
    void viewChanged();
    void endActiveTool();
    void changed();
    void frame(const osg::NodePtr& node, const CameraPose& from);

    nbOSGWidget& renderWidget;
    nbec::interaction::InteractionManager manager;
    nbec::interaction::Picker scenePicker;
    PreselectionTool selectionTool;
    nbec::interaction::ToolInteractionContext selectionContext;

    /// Takes what would move the camera while the view is held.
    class HeldCamera : public nbec::interaction::CameraInteractionContext
    {
    public:
        explicit HeldCamera(const Stage& owner)
            : stage(owner)
        { }

        bool triggerEvent(nbec::interaction::InteractionManager* manager,
                          const nbec::interaction::InteractionEvent& event) override;

    private:
        const Stage& stage;
    };

    bool refuseMove() const;

    bool viewHeld = false;
    std::function<void(const QString&)> refusalCallback;
    HeldCamera cameraContext;
    GizmoController gizmoController;
    nbBoundsMarker selectionMarker;
    nbBoundsMarker preselectionMarker;
    nbGroundGrid grid;
    bool gridShown = false;
    std::function<void()> changedCallback;
    Commands commandTable;
    std::vector<StageTool*> tools;
    StageTool* toolInUse = nullptr;
    Gizmo gizmoBefore = Gizmo::None;  ///< the first tool
    int selectionCallback = 0;
    ModelSources modelSources;
    std::size_t triangles = 0;
    osg::UInt64 countedChanges = 0;  ///< of the scene, with which they were counted
};

}  // namespace viewer
