// SPDX-License-Identifier: MIT
#pragma once

#include "tests/manipulator/support/GizmoScene.h"

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

/// Drags of a gizmo's handles: the pointer goes in steps through the interaction manager, pixels
/// are whole as those of a mouse.
class HandleDrag
{
public:
    explicit HandleDrag(GizmoScene& gizmoScene)
        : scene(gizmoScene)
    { }

    /// Places the camera; gizmos are updated by the caller.
    void look(Camera from, bool orthographic);

    /// Pixel of the ray that meets a world point: as GizmoScene::pixelOf, with the constant pixel
    /// by which view rays are displaced.
    osg::Pnt2f rayPixelOf(const osg::Pnt3f& world) const;

    /// Presses on a world point. @return whether a handle was there
    bool press(const osg::Pnt3f& world);
    /// Goes by an offset from the pressed pixel, in steps of at most one pixel. @return whether all
    /// steps were handled
    bool dragBy(const osg::Vec2f& offsetPx);
    /// One step to an offset from the pressed pixel.
    bool stepTo(const osg::Vec2f& offsetPx);
    bool release();

    osg::Pnt2f pressed;  ///< pixel of the last press
    osg::Vec2f reached;  ///< offset of the last step

private:
    GizmoScene& scene;
};

}  // namespace nbec::manipulator::test
