// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/Picker.h>

#include <OpenSG/OSGNode.h>

#include <string>

#include <manipulator/CameraManipulator.h>
#include <manipulator/ManipulatorInteractionContext.h>
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
    /// @param interactionManager  not owned, outlives this
    explicit GizmoController(nbec::interaction::InteractionManager& interactionManager);
    GizmoController(const GizmoController&) = delete;
    GizmoController& operator=(const GizmoController&) = delete;
    ~GizmoController();

    void show(Gizmo gizmo);

    Gizmo shown() const { return current; }

    /// Puts the manipulators on a node, null for none. Not owned.
    void setTarget(const osg::NodePtr& node);

    /// Follows the target: call before each picture.
    void update();

    /// Follows the camera: call when it moved or the view was resized.
    void followCamera();

    /// Tells whether the pointer is over the view; it is at the start.
    void setPointerInside(bool inside) { pointerInside = inside; }

    /// Name of the handle under the main widget's pointer; "" if there is none, nothing is shown or
    /// the pointer is outside.
    std::string hoveredHandle();

    /// Tree of the handles shown; null if there are none.
    osg::NodePtr handles();

    /// Name of the handle at a pixel, "" for none. @param px  device pixels, y from the top
    std::string handleAt(const osg::Pnt2f& px);

    /// Device pixels per logical pixel, for the tolerance of picking.
    void setPixelRatio(float ratio);

private:
    nbec::manipulator::Manipulator* manipulatorOf(Gizmo gizmo);
    void applyMode(Gizmo gizmo);

    nbec::interaction::InteractionManager& manager;
    nbec::interaction::Picker picker;
    nbec::interaction::Picker probe;  ///< for questions, so that the context's last hit stays
    nbec::manipulator::UniversalTransformManipulator2 transform;
    nbec::manipulator::CameraManipulator camera;
    nbec::manipulator::ManipulatorInteractionContext context;
    Gizmo current = Gizmo::None;
    bool pointerInside = true;
};

}  // namespace viewer
