// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/UniversalTransformManipulator2.h"
#include "tests/manipulator/support/DragTest.h"
#include "tests/manipulator/support/MessageLog.h"

namespace nbec::manipulator::test {

/// A scene with a manipulator that is dragged by its handles as by HandleDrag. The node of the
/// GizmoScene stands below a parent with a Transform3D.
class HandleScene : public MessageLog
{
public:
    /// @param installed  installed by who derives; outlives the scene, which deactivates it
    explicit HandleScene(AbstractManipulator& installed);
    ~HandleScene();

    void look(Camera from, bool orthographic);
    /// Edits a transform and places the handles anew.
    void edit(const osg::Transform3DPtr& transform,
              const std::function<void(const osg::Transform3DPtr&)>& change);

    osg::Transform3DPtr core() const { return transformOf(scene.node); }

    osg::Transform3DPtr parentCore() const { return transformOf(parent); }

    /// The named node of a handle; its children are its parts, or the nodes that place them.
    osg::NodePtr handle(const std::string& name) const;
    /// World position of a point in the frame of a handle's group, or of its own if it is a tab.
    osg::Pnt3f onHandle(const std::string& name, const osg::Vec3f& unit) const;
    /// World position of a handle's own origin.
    osg::Pnt3f originOf(const std::string& name) const;
    /// Names of the handles that are shown, of some.
    Names shownOf(const Names& names) const;

    /// Texts on the screen.
    static Names texts();

    /// Presses on a world point and sends the first step. @return whether a handle of that name
    /// was grabbed
    bool grabAt(const std::string& name, const osg::Pnt3f& world);

    bool grab(const std::string& name, const osg::Vec3f& unit)
    {
        return grabAt(name, onHandle(name, unit));
    }

    AbstractManipulator& manipulator;
    GizmoScene scene;
    HandleDrag drag { scene };
    osg::NodePtr parent;
};

/// For scenes whose manipulator has to outlive them.
template <class Gizmo>
struct Owned
{
    Gizmo gizmo;
};

// Where handles of a transform gizmo are grabbed, in its units.
inline constexpr float kDiagonal = 1.5F * 0.70710678F;  ///< both coordinates of a ring's point
inline const Vec3f kArrow(1.9F, 0, 0);
inline const Vec3f kScaleHandle(1.5F, 0, 0);
inline const Vec3f kRing(kDiagonal, kDiagonal, 0);

/// A scene with a transform gizmo.
class DragScene : public Owned<UniversalTransformManipulator2>, public HandleScene
{
public:
    DragScene();
    ~DragScene();

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

    /// A further 2 x 2 x 2 box with a Transform3D, below the scene's root.
    osg::NodePtr addFurther(const osg::Vec3f& translation);
};

/// Greatest difference of two matrices' elements.
float greatestDifference(const osg::Matrix& left, const osg::Matrix& right);

/// Whether all elements are finite.
bool isFinite(const osg::Matrix& matrix);

}  // namespace nbec::manipulator::test
