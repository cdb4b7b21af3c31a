// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/UniversalTransformManipulator2.h"
#include "tests/manipulator/support/GizmoScene.h"

#include <nbOpenSGExt/Transform3D.h>

#include <functional>
#include <string>

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

/// A scene with a transform gizmo that is dragged by its handles: the pointer goes in steps through
/// the interaction manager, pixels are whole as those of a mouse. The node of the GizmoScene stands
/// below a parent with a Transform3D.
class DragScene
{
public:
    DragScene();
    DragScene(const DragScene&) = delete;
    DragScene& operator=(const DragScene&) = delete;
    ~DragScene();

    void look(Camera from, bool orthographic);
    void activate(UniversalTransformManipulator2::ManipulatorMode mode);

    /// Pixel of the ray that meets a world point: as GizmoScene::pixelOf, with the constant pixel
    /// by which view rays are displaced.
    osg::Pnt2f rayPixelOf(const osg::Pnt3f& world) const;
    /// World position of a point in the gizmo's unit frame.
    osg::Pnt3f onGizmo(const osg::Vec3f& unit);

    /// Presses on a point of the gizmo and sends the first step, which prepares. @return whether
    /// both were handled
    bool grab(const osg::Vec3f& unit);
    /// Goes by an offset from the pressed pixel, in steps of at most one pixel. @return whether all
    /// steps were handled
    bool dragBy(const osg::Vec2f& offsetPx);
    /// One step to an offset from the pressed pixel.
    bool stepTo(const osg::Vec2f& offsetPx);
    bool release();

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
    osg::Pnt2f pressed;  ///< pixel of the last grab

private:
    osg::Vec2f reached;
};

/// Greatest difference of two matrices' elements.
float greatestDifference(const osg::Matrix& left, const osg::Matrix& right);

/// Whether all elements are finite.
bool isFinite(const osg::Matrix& matrix);

}  // namespace nbec::manipulator::test
