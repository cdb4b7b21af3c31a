// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/GizmoFace.h"
#include "manipulator/course/Instances.h"
#include "manipulator/plates/PlateModes.h"

#include <functional>
#include <string>
#include <vector>

namespace nbec::manipulator::plates {
class PlateGizmo;
}  // namespace nbec::manipulator::plates

/// Moves, turns and scales the selected scene plates in the plane of the screen.
///
/// The manipulator edits no plate itself. Each change of a drag goes out as the kernel message
/// "sceneplateChanged" with, in this order, "scaleFactor" (float), "offset" (QVector2D) and
/// "rotation" (float): all three absolute from the drag's start. Plates scale by the factor and
/// turn by the angle (degrees, counter-clockwise) about the centre of the selection's frame as it
/// was at the start, and that centre moves by the offset (heights of the view, y up). While a
/// handle is held the preview of materials is paused ("setMatRenderEnabled", "updateMatRender").
///
/// - Frame: of one plate its own, turned with it; of several the upright rectangle around all. It
///   is drawn at least 28 pixels wide and high, so that small plates can be grabbed.
/// - Handles, by the names that the picker reports: the body "grid" (the frame and its inside)
///   moves; the corner boxes "scaleXYLLShape", "scaleXYULShape", "scaleXYLRShape" and
///   "scaleXYURShape" (lower left, upper left, lower right, upper right of the frame's own axes)
///   scale; the arm "rotateShape" with its knob turns. The origin of a handle's node is where it is
///   grabbed: centre of the frame, of the box, of the knob. Boxes win over arm and body.
/// - Colours: frame and boxes yellow, arm blue (it turns about the view axis), guide lines purple,
///   orange highlights, all with a dark edge, so that they are seen on every plate. During a drag
///   only the grabbed handle and the frame are shown.
/// - Handles lie in a plane before the eye whose unit is a pixel, over plates and scene. Sizes in
///   logical pixels at the default manipulator size: boxes 10, knob 12 across, arm 32.
/// - The arm stands above the frame, where the knob would not be in view below it, right or left
///   of it. A frame that leaves no room for that, or reaches beyond opposite edges of the view, is
///   drawn cut so that it does; in a view that is too small for handles they shrink.
/// - Scaling keeps the proportions and the opposite corner; in mode "precisionTool" (Ctrl) the
///   centre. The mode may change within a drag. The longer side keeps at least 4 pixels.
/// - Snapping (enableSnapping(), for body and arm also while the mode is "precisionTool"): the
///   frame's edges and centre lines to the view's, a scaled corner to the view's edges and centre
///   lines, within 8 logical pixels, with guide lines; the resulting rotation of the frame to
///   multiples of 15 degrees.
/// - A drag sends nothing until something changes. When other plates are set or the view's size
///   changes, its further steps answer false and send nothing. Hovering changes nothing until it
///   stops.
///
/// Plates are held by the ids of their nodes; one that is deleted drops out. Without plates, widget
/// or area nothing is shown and every event answers false. All instances share the size. Everything
/// runs on the user-interface thread.
class NB_MANIPULATOR_API nbSceneplateManipulator
    : public nbec::manipulator::Instanced<
          nbSceneplateManipulator,
          nbec::manipulator::GizmoFace<nbec::manipulator::AbstractManipulator>>
{
public:
    using ManipulatorInteractionContext = nbec::manipulator::ManipulatorInteractionContext;
    using ActiveMode = nbec::manipulator::plates::ActiveMode;

    /// Builds the handles, hidden, and appends the instance to the list of live ones.
    nbSceneplateManipulator();
    nbSceneplateManipulator(const nbSceneplateManipulator&) = delete;
    nbSceneplateManipulator& operator=(const nbSceneplateManipulator&) = delete;

    /// Also shows the handles if there are plates.
    void activate(ManipulatorInteractionContext* ctx) override;
    /// Also lets go of a grabbed handle.
    void deactivate(ManipulatorInteractionContext* ctx) override;

    /// "precisionTool": see scaling and snapping above; every other mode ends it. As of the
    /// transform gizmo, "precisionTool" and "" answer true and all others false.
    bool setManipulatorMode(const std::string& mode) override;

    /// Unregisters the instance and releases the handles.
    ~nbSceneplateManipulator() override;

    /// Sets the selected plates. @param nodes  held by id; null, double ones and nodes that are no
    /// plates are left out
    void setNodes(const std::vector<osg::NodePtr>& nodes);
    /// The selected plates that still exist, in the given order.
    std::vector<osg::NodePtr> getNodes() const;

    /// The handle that is hovered or grabbed.
    ActiveMode getActiveMode() const { return static_cast<ActiveMode>(gizmo->getArmed()); }

    /// Switches snapping of this manipulator; off at first.
    void enableSnapping(bool on);

    /// Whether snapping also goes to edges and centres of the other plates that are seen; off at
    /// first. With 2,000 plates a step costs about 20 us more.
    void setSnapToPlates(bool on);

    /// A person's wish for a plate's width or height alone.
    /// @param factors  of width and height along the plate's own axes; one of them is 1
    /// @param offset   of the plate's centre, heights of the view, y up
    using Resize = std::function<void(const osg::Vec2f& factors, const osg::Vec2f& offset)>;

    /// Shows boxes on the middles of the sides as well, while one plate is set: "scaleXLShape",
    /// "scaleYUShape", "scaleYLShape" and "scaleXRShape" (left, upper, lower, right) drag a side,
    /// the opposite one stays (mode "precisionTool": the centre). "sceneplateChanged" has one
    /// factor for both directions, so that these drags go to a function of the host's instead.
    /// Snapping, typed values and cancel as for corners; cancel calls with factors 1 and offset 0.
    /// @code
    /// manipulator.setSideHandles([&module](const osg::Vec2f& factors, const osg::Vec2f& offset) {
    ///     nbSceneplateChange change;
    ///     change.sizeFactors = factors;
    ///     change.offset = offset;
    ///     module.change(change);
    /// });
    /// @endcode
    /// @param resize  called with values that are absolute from the drag's start; what it throws is
    /// logged; empty, as at first: no such boxes
    void setSideHandles(Resize resize);

    /// Switches the on-screen text of this manipulator; on at first.
    void setDescriptionEnabled(bool on);

    /// Size of all handles, default 32. The shared instance is placed at once, others at their next
    /// update. @param size  above 0, others are ignored
    static void setManipulatorSize(float size);

private:
    nbec::manipulator::plates::PlateGizmo& course() const;
};
