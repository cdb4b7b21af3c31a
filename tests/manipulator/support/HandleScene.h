// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/UniversalTransformManipulator2.h"
#include "tests/manipulator/support/DragTest.h"
#include "tests/manipulator/support/MessageLog.h"

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::test {

/// Side from which the scene is seen, 10 units from the origin. On screen, right and up are x and y
/// (front), -z and y (side, from +x), x and -z (top, from +y); oblique is from
/// (2, 3, 6) / 7.
enum class Camera
{
    Front,
    Side,
    Top,
    Oblique
};

/// A scene with a manipulator that is dragged by its handles: the pointer goes in steps through the
/// interaction manager, pixels are whole as those of a mouse. The node of the GizmoScene stands
/// below a parent with a Transform3D.
class HandleScene : public MessageLog
{
public:
    /// @param installed  installed by who derives; outlives the scene, which deactivates it
    explicit HandleScene(AbstractManipulator& installed);
    ~HandleScene();

    /// Places camera and handles.
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

    /// Pixel of the ray that meets a world point: as GizmoScene::pixelOf, with the constant pixel
    /// by which view rays are displaced.
    osg::Pnt2f rayPixelOf(const osg::Pnt3f& world) const
    {
        const osg::Pnt2f middle(400.0F, 300.0F);
        osg::Line ray;
        scene.widget.getCamera()->calcViewRay(ray, 400, 300, *scene.widget.getViewport());
        const osg::Pnt3f onRay = ray.getPosition() + ray.getDirection() * 10.0F;
        return scene.pixelOf(world) + (middle - scene.pixelOf(onRay));
    }

    /// Presses on a world point. @return whether a handle was there
    bool press(const osg::Pnt3f& world)
    {
        const osg::Pnt2f pixel = rayPixelOf(world);
        pressed = osg::Pnt2f(std::round(pixel.x()), std::round(pixel.y()));
        reached = osg::Vec2f();
        return scene.send("start", pressed);
    }

    /// Goes by an offset from the pressed pixel, in steps of at most one pixel. @return whether all
    /// steps were handled
    bool dragBy(const osg::Vec2f& offsetPx)
    {
        const osg::Vec2f from = reached;
        const osg::Vec2f way = offsetPx - from;
        const int steps = std::max(1, static_cast<int>(std::ceil(way.length())));
        bool isHandled = true;
        for (int i = 1; i <= steps; ++i) {
            isHandled = stepTo(from + way * (static_cast<float>(i) / static_cast<float>(steps))) &&
                isHandled;
        }
        return isHandled;
    }

    /// One step to an offset from the pressed pixel.
    bool stepTo(const osg::Vec2f& offsetPx)
    {
        reached = offsetPx;
        return scene.send("process",
                          osg::Pnt2f(std::round(pressed.x() + offsetPx.x()),
                                     std::round(pressed.y() + offsetPx.y())));
    }

    bool release()
    {
        return scene.send("stop", osg::Pnt2f(pressed.x() + reached.x(), pressed.y() + reached.y()));
    }

    AbstractManipulator& manipulator;
    GizmoScene scene;
    osg::NodePtr parent;
    osg::Pnt2f pressed;  ///< pixel of the last press
    osg::Vec2f reached;  ///< offset of the last step
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

    /// World position of a point in the gizmo's unit frame.
    osg::Pnt3f onGizmo(const osg::Vec3f& unit);

    /// Presses on a point of the gizmo and sends the first step, which prepares. @return whether
    /// both were handled
    bool grab(const osg::Vec3f& unit);

    /// Grabs a point of the gizmo and goes by an offset from there, without letting go.
    bool drag(const osg::Vec3f& unit, const osg::Vec2f& offsetPx)
    {
        return grab(unit) && dragBy(offsetPx);
    }

    /// A further 2 x 2 x 2 box with a Transform3D, below the scene's root.
    osg::NodePtr addFurther(const osg::Vec3f& translation);
};

/// Greatest difference of two matrices' elements.
float greatestDifference(const osg::Matrix& left, const osg::Matrix& right);

}  // namespace nbec::manipulator::test
