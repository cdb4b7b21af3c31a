// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/PlateScene.h"

#include "manipulator/plates/PlateFrame.h"

#include <nbKernel/nbScenegraph.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::test {

PlateScene::PlateScene(int widthPx, int heightPx)
{
    widget.resize(widthPx, heightPx);
    install(manipulator);
}

osg::NodePtr PlateScene::addPlate(const platetest::PlatePx& place)
{
    const osg::NodePtr plate =
        platetest::makePlate(place, widget.getHeight(), osg::Color4f(0.2F, 0.4F, 0.6F, 1.0F));
    addChild(nbScenegraph::getSceneplateRoot(), plate);
    return plate;
}

osg::Pnt2f PlateScene::handlePx(const std::string& name)
{
    osg::Pnt3f origin;
    findNode(manipulator.getVisualisation(), name)->getToWorld().multMatrixPnt(origin);
    return pixelOf(origin);
}

bool PlateScene::isHandleShown(const std::string& name)
{
    const osg::NodePtr handle = findNode(manipulator.getVisualisation(), name);
    return handle != osg::NullFC && isShown(handle);
}

bool PlateScene::drag(const osg::Pnt2f& fromPx, const osg::Vec2f& distancePx, bool isReleased)
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

bool PlateScene::drag(const std::string& handle, const osg::Vec2f& distancePx, bool isReleased)
{
    return drag(handlePx(handle), distancePx, isReleased);
}

nbSceneplateLayout::Corners PlateScene::corners(const osg::NodePtr& plate) const
{
    return nbSceneplateLayout::corners(platetest::plateOf(plate), widget.getWidth(),
                                       widget.getHeight());
}

osg::Pnt2f exactCorner(const osg::NodePtr& plate, const nbOSGWidget& widget, float alongX,
                       float alongY)
{
    return plates::pointOfFrame(nbSceneplateLayout::frame({ platetest::plateOf(plate) },
                                                          widget.getWidth(), widget.getHeight()),
                                alongX, alongY);
}

}  // namespace nbec::manipulator::test
