// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/HandleDrag.h"

#include <nbOpenSGUberCamera/UberCamera.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::test {

void HandleDrag::look(Camera from, bool orthographic)
{
    scene.setOrthographic(orthographic);
    static const osg::Pnt3f kEyes[] = {
        { 0, 0, 10 }, { 10, 0, 0 }, { 0, 10, 0 }, { 20.0F / 7, 30.0F / 7, 60.0F / 7 }
    };
    const osg::Pnt3f& eye = kEyes[static_cast<std::size_t>(from)];
    const osg::Vec3f up = from == Camera::Top ? osg::Vec3f(0, 0, -1) : osg::Vec3f(0, 1, 0);
    scene.widget.getUberCamera()->setFromAtUp(eye, osg::Pnt3f(0, 0, 0), up);
}

osg::Pnt2f HandleDrag::rayPixelOf(const osg::Pnt3f& world) const
{
    const osg::Pnt2f middle(400.0F, 300.0F);
    osg::Line ray;
    scene.widget.getCamera()->calcViewRay(ray, 400, 300, *scene.widget.getViewport());
    const osg::Pnt3f onRay = ray.getPosition() + ray.getDirection() * 10.0F;
    return scene.pixelOf(world) + (middle - scene.pixelOf(onRay));
}

bool HandleDrag::press(const osg::Pnt3f& world)
{
    const osg::Pnt2f pixel = rayPixelOf(world);
    pressed = osg::Pnt2f(std::round(pixel.x()), std::round(pixel.y()));
    reached = osg::Vec2f();
    return scene.send("start", pressed);
}

bool HandleDrag::stepTo(const osg::Vec2f& offsetPx)
{
    reached = offsetPx;
    return scene.send(
        "process",
        osg::Pnt2f(std::round(pressed.x() + offsetPx.x()), std::round(pressed.y() + offsetPx.y())));
}

bool HandleDrag::dragBy(const osg::Vec2f& offsetPx)
{
    const osg::Vec2f from = reached;
    const osg::Vec2f way = offsetPx - from;
    const int steps = std::max(1, static_cast<int>(std::ceil(way.length())));
    bool isHandled = true;
    for (int i = 1; i <= steps; ++i) {
        isHandled =
            stepTo(from + way * (static_cast<float>(i) / static_cast<float>(steps))) && isHandled;
    }
    return isHandled;
}

bool HandleDrag::release()
{
    return scene.send("stop", osg::Pnt2f(pressed.x() + reached.x(), pressed.y() + reached.y()));
}

}  // namespace nbec::manipulator::test
