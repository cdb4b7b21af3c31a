// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbSceneplateManipulator.h"
#include "tests/manipulator/support/GizmoScene.h"
#include "tests/platform/support/Plates.h"

#include <nbOpenSGSceneplate/nbSceneplateLayout.h>

#include <string>
#include <vector>

namespace nbec::manipulator::test {

/// For scenes whose manipulator has to outlive them.
struct PlateOwner
{
    nbSceneplateManipulator manipulator;
};

/// A view in which a scene-plate manipulator is dragged by its handles.
class PlateScene : public PlateOwner, public GizmoScene
{
public:
    PlateScene(int widthPx, int heightPx);

    /// Adds a plate, see platetest::PlatePx; the manipulator is not told.
    osg::NodePtr addPlate(const platetest::PlatePx& place);

    /// Where a handle is grabbed: the origin of the first node of that name on screen, device
    /// pixels, y from the top.
    osg::Pnt2f handlePx(const std::string& name);
    /// Whether it is shown.
    bool isHandleShown(const std::string& name);

    /// Presses at a position, goes by a distance in steps of at most 5 pixels and, unless told
    /// otherwise, releases. @return whether all events were handled
    bool drag(const osg::Pnt2f& fromPx, const osg::Vec2f& distancePx, bool isReleased = true);
    bool drag(const std::string& handle, const osg::Vec2f& distancePx, bool isReleased = true);

    nbSceneplateLayout::Corners corners(const osg::NodePtr& plate) const;
};

/// A corner that is none of those drawn but exactly where the fields put it.
osg::Pnt2f exactCorner(const osg::NodePtr& plate, const nbOSGWidget& widget, float alongX,
                       float alongY);

}  // namespace nbec::manipulator::test
