// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/UniversalTransformManipulator2.h"
#include "tests/manipulator/support/DragTest.h"

#include <nbOpenSGExt/Transform3D.h>

#include <functional>
#include <string>

namespace nbec::manipulator::test {

// Where handles are grabbed, in the gizmo's units.
inline constexpr float kDiagonal = 1.5F * 0.70710678F;  ///< both coordinates of a ring's point
inline const Vec3f kArrow(1.9F, 0, 0);
inline const Vec3f kScaleHandle(1.5F, 0, 0);
inline const Vec3f kRing(kDiagonal, kDiagonal, 0);

/// A scene with a transform gizmo that is dragged by its handles as by HandleDrag. The node of the
/// GizmoScene stands below a parent with a Transform3D.
class DragScene
{
public:
    DragScene();
    DragScene(const DragScene&) = delete;
    DragScene& operator=(const DragScene&) = delete;
    ~DragScene();

    void look(Camera from, bool orthographic);
    void activate(UniversalTransformManipulator2::ManipulatorMode mode);

    osg::Pnt2f rayPixelOf(const osg::Pnt3f& world) const { return drag.rayPixelOf(world); }

    /// World position of a point in the gizmo's unit frame.
    osg::Pnt3f onGizmo(const osg::Vec3f& unit);

    /// Presses on a point of the gizmo and sends the first step, which prepares. @return whether
    /// both were handled
    bool grab(const osg::Vec3f& unit);

    bool dragBy(const osg::Vec2f& offsetPx) { return drag.dragBy(offsetPx); }

    bool stepTo(const osg::Vec2f& offsetPx) { return drag.stepTo(offsetPx); }

    bool release() { return drag.release(); }

    osg::Transform3DPtr core() const;
    osg::Transform3DPtr parentCore() const;
    /// Edits a core and places the gizmo anew.
    void edit(const osg::Transform3DPtr& transform,
              const std::function<void(const osg::Transform3DPtr&)>& change);
    /// A further 2 x 2 x 2 box with a Transform3D, below the scene's root.
    osg::NodePtr addFurther(const osg::Vec3f& translation);

    UniversalTransformManipulator2 gizmo;  // outlives the scene, which deactivates it
    GizmoScene scene;
    osg::NodePtr parent;
    HandleDrag drag { scene };
};

/// Greatest difference of two matrices' elements.
float greatestDifference(const osg::Matrix& left, const osg::Matrix& right);

/// Whether all elements are finite.
bool isFinite(const osg::Matrix& matrix);

}  // namespace nbec::manipulator::test
