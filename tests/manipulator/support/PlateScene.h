// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/nbSceneplateManipulator.h"
#include "tests/platform/support/Plates.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGSceneplate/nbSceneplateLayout.h>

#include <string>
#include <vector>

namespace nbec::manipulator::test {

/// A view without a window in which a scene-plate manipulator is dragged by its handles: pointer
/// and events go through the interaction manager, as the input translator sends them.
class PlateScene
{
public:
    PlateScene(int widthPx, int heightPx);
    PlateScene(const PlateScene&) = delete;
    PlateScene& operator=(const PlateScene&) = delete;
    ~PlateScene();

    /// Adds a plate, see platetest::PlatePx; the manipulator is not told.
    osg::NodePtr addPlate(const platetest::PlatePx& place);

    /// Where a handle is grabbed: the origin of the first node of that name on screen, device
    /// pixels, y from the top.
    osg::Pnt2f handlePx(const std::string& name);
    /// Whether it is shown.
    bool isHandleShown(const std::string& name);

    bool send(const std::string& event, const osg::Pnt2f& positionPx,
              const std::string& hint = "select");
    /// Presses at a position, goes by a distance in steps of at most 5 pixels and, unless told
    /// otherwise, releases. @return whether all events were handled
    bool drag(const osg::Pnt2f& fromPx, const osg::Vec2f& distancePx, bool isReleased = true);
    bool drag(const std::string& handle, const osg::Vec2f& distancePx, bool isReleased = true);

    nbSceneplateLayout::Corners corners(const osg::NodePtr& plate) const;

    nbSceneplateManipulator manipulator;  // outlives the context, which deactivates it
    nbOSGWidget widget;
    interaction::Picker picker;
    interaction::InteractionManager manager;
    ManipulatorInteractionContext context;
};

/// A corner that is none of those drawn but exactly where the fields put it.
osg::Pnt2f exactCorner(const osg::NodePtr& plate, const nbOSGWidget& widget, float alongX,
                       float alongY);

}  // namespace nbec::manipulator::test
