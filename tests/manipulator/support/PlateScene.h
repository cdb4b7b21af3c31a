// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbSceneplateManipulator.h"
#include "manipulator/plates/PlateFrame.h"
#include "tests/manipulator/support/GizmoScene.h"
#include "tests/platform/support/Plates.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGSceneplate/nbSceneplateLayout.h>

namespace nbec::manipulator::test {

/// A view in which a scene-plate manipulator is dragged by its handles.
class PlateScene : public Owned<nbSceneplateManipulator>, public GizmoScene
{
public:
    PlateScene(int widthPx, int heightPx)
    {
        widget.resize(widthPx, heightPx);
        install(gizmo);
    }

    /// Adds a plate, see platetest::PlatePx; the manipulator is not told.
    osg::NodePtr addPlate(const platetest::PlatePx& place)
    {
        const osg::NodePtr plate =
            platetest::makePlate(place, widget.getHeight(), osg::Color4f(0.2F, 0.4F, 0.6F, 1.0F));
        addChild(nbScenegraph::getSceneplateRoot(), plate);
        return plate;
    }

    /// Where a handle is grabbed: the origin of the first node of that name on screen, device
    /// pixels, y from the top.
    osg::Pnt2f handlePx(const std::string& name)
    {
        osg::Pnt3f origin;
        findNode(gizmo.getVisualisation(), name)->getToWorld().multMatrixPnt(origin);
        return pixelOf(origin);
    }

    /// Whether it is shown.
    bool isHandleShown(const std::string& name)
    {
        const osg::NodePtr handle = findNode(gizmo.getVisualisation(), name);
        return handle != osg::NullFC && isShown(handle);
    }

    /// Presses at a position, goes by a distance in steps of at most 5 pixels and, unless told
    /// otherwise, releases. @return whether all events were handled
    bool drag(const osg::Pnt2f& fromPx, const osg::Vec2f& distancePx, bool isReleased = true)
    {
        constexpr float kStepPx = 5.0F;
        bool handled = send("start", fromPx);
        const int steps = std::max(1, static_cast<int>(std::ceil(distancePx.length() / kStepPx)));
        for (int i = 1; i <= steps; ++i) {
            const float part = static_cast<float>(i) / static_cast<float>(steps);
            handled = send("process", fromPx + distancePx * part) && handled;
        }
        return isReleased ? send("stop", fromPx + distancePx) && handled : handled;
    }

    bool drag(const std::string& handle, const osg::Vec2f& distancePx, bool isReleased = true)
    {
        return drag(handlePx(handle), distancePx, isReleased);
    }
};

/// A corner that is none of those drawn but exactly where the fields put it.
inline osg::Pnt2f exactCorner(const osg::NodePtr& plate, const nbOSGWidget& widget, float alongX,
                              float alongY)
{
    return plates::pointOfFrame(nbSceneplateLayout::frame({ platetest::plateOf(plate) },
                                                          widget.getWidth(), widget.getHeight()),
                                alongX, alongY);
}

}  // namespace nbec::manipulator::test
