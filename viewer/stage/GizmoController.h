// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/DragContext.h"

#include <nbInteraction/Picker.h>

#include <OpenSG/OSGNode.h>

#include <functional>
#include <string>
#include <vector>

#include <manipulator/CameraManipulator.h>
#include <manipulator/UniversalTransformManipulator2.h>

namespace nbec::interaction {
class InteractionManager;
}  // namespace nbec::interaction

namespace viewer {

/// Which manipulator is shown.
enum class Gizmo
{
    None,
    Universal,
    Translate,
    Rotate,
    Scale,
    TranslateRotate,
    TranslateRotateScale,
    TranslateRotateYZ,
    RotatePivot,
    ScalePivot,
    Clipping,
    CameraPivot
};

/// Word for a gizmo in session files and command names, such as "universal".
const char* gizmoName(Gizmo gizmo);

/// @return false, target untouched, for an unknown word
bool gizmoFromName(const std::string& name, Gizmo& gizmo);

/// Owns the manipulators, their picker and their interaction context; shows one manipulator at a
/// time on one node.
class GizmoController
{
public:
    using FurtherHandles = nbec::manipulator::transform::FurtherHandles;

    /// @param interactionManager  not owned, outlives this
    explicit GizmoController(nbec::interaction::InteractionManager& interactionManager);
    GizmoController(const GizmoController&) = delete;
    GizmoController& operator=(const GizmoController&) = delete;
    ~GizmoController();

    void show(Gizmo gizmo);

    Gizmo shown() const { return current; }

    /// Puts the manipulators on a node, null for none, and on further ones that go along. A running
    /// drag ends first. Not owned.
    /// @param all  every node to be transformed, with or without the first
    void setTarget(const osg::NodePtr& node, const std::vector<osg::NodePtr>& all = {});

    // == Settings of the transform gizmo

    /// Aligns the handles with the axes of the target instead of the world's.
    void setLocalSpace(bool on);

    bool isLocalSpace() const { return axes() == Axes::Own; }

    using Axes = nbec::manipulator::transform::GizmoAxes;
    using Pivot = nbec::manipulator::transform::GizmoPivot;

    /// Along what the handles stand: World, Own (as setLocalSpace()), Parent or View.
    void setAxes(Axes which);
    Axes axes() const;

    /// About what several objects are turned and scaled: Own, First or Common.
    void setPivot(Pivot which);

    Pivot pivot() const { return turnedAbout; }

    /// Lets drags advance in the steps of the transform model.
    void setSnapping(bool on);

    bool isSnapping() const { return snapping; }

    /// Shows handles beyond the usual ones.
    void setFurtherHandles(const FurtherHandles& handles);

    const FurtherHandles& furtherHandles() const { return further; }

    /// Brings what is moved to corners, edges, faces and centres of objects near the pointer.
    void setSnapToScene(bool on);

    bool snapsToScene() const { return snapToScene; }

    /// Size on screen. @param size  above 0, below 200
    void setSize(float size);

    float size() const { return transform.getManipulatorSize(); }

    /// World space, pivots of their own, no snapping of either kind, usual size and steps: what the
    /// program starts with.
    void resetSettings();

    /// Puts the pivots of all targets to the centres of their volumes, as one undo step. The
    /// objects stay where they are. @return false if there is no target that can be edited
    bool centerPivots();

    /// Sets what is called when a drag of a handle begins and when it has ended.
    void setDragCallback(std::function<void()> callback)
    {
        context.setDragCallback(std::move(callback));
    }

    /// Follows the target: call before each picture.
    void update();

    /// Follows the camera: call when it moved or the view was resized.
    void followCamera();

    /// Tells whether the pointer is over the view; it is at the start.
    void setPointerInside(bool inside) { pointerInside = inside; }

    bool isPointerInside() const { return pointerInside; }

    /// Name of the handle that is dragged, otherwise of that under the main widget's pointer; "" if
    /// there is none, nothing is shown or the pointer is outside.
    std::string hoveredHandle();

    /// Tree of the handles shown; null if there are none.
    osg::NodePtr handles();

    /// Name of the handle at a pixel, "" for none. @param px  device pixels, y from the top
    std::string handleAt(const osg::Pnt2f& px);

private:
    nbec::manipulator::Manipulator* manipulatorOf(Gizmo gizmo);
    void applyMode(Gizmo gizmo);
    std::vector<osg::NodePtr> targets() const;

    nbec::interaction::InteractionManager& manager;
    nbec::interaction::Picker picker;
    nbec::interaction::Picker probe;  ///< for questions, so that the context's last hit stays
    nbec::manipulator::UniversalTransformManipulator2 transform;
    nbec::manipulator::CameraManipulator camera;
    DragContext context;
    std::vector<osg::UInt32> targetIds;  ///< the main one first
    Gizmo current = Gizmo::None;
    bool snapping = false;
    bool snapToScene = false;
    FurtherHandles further;
    Axes ownAxes = Axes::Shared;
    Pivot turnedAbout = Pivot::Own;
    bool pointerInside = true;
};

}  // namespace viewer
