// SPDX-License-Identifier: MIT
#pragma once

#include "tests/manipulator/support/GizmoScene.h"

#include <algorithm>

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
    void look(Camera from, bool orthographic)
    {
        scene.setOrthographic(orthographic);
        static const osg::Pnt3f kEyes[] = {
            { 0, 0, 10 }, { 10, 0, 0 }, { 0, 10, 0 }, { 20.0F / 7, 30.0F / 7, 60.0F / 7 }
        };
        const osg::Pnt3f& eye = kEyes[static_cast<std::size_t>(from)];
        const osg::Vec3f up = from == Camera::Top ? osg::Vec3f(0, 0, -1) : osg::Vec3f(0, 1, 0);
        scene.widget.getUberCamera()->setFromAtUp(eye, osg::Pnt3f(0, 0, 0), up);
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

    osg::Pnt2f pressed;  ///< pixel of the last press
    osg::Vec2f reached;  ///< offset of the last step

private:
    GizmoScene& scene;
};

}  // namespace nbec::manipulator::test
