// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGSceneplate/Sceneplate.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGNode.h>

#include <functional>

/// Makers of scene plates for tests.
namespace platetest {

/// A node with a plate whose size and place are given in pixels of a view of that size, with its
/// lower left corner as anchor.
struct PlatePx
{
    float centreX = 0.f;
    float centreY = 0.f;  ///< from the top
    float width = 0.f;
    float height = 0.f;
    float rotation = 0.f;
};

inline osg::NodePtr makePlate(const PlatePx& place, int viewHeightPx, const osg::Color4f& color,
                              const std::function<void(const osg::SceneplatePtr&)>& change = {})
{
    osg::SceneplatePtr plate;
    const osg::NodePtr node = osg::makeCoredNode<osg::Sceneplate>(&plate);
    const nbEdit edit(plate, osg::FieldBits::AllFields);
    const auto unit = static_cast<float>(viewHeightPx);
    plate->setAnchor(osg::Sceneplate::BottomLeft);
    plate->setPosition(osg::Vec2f(place.centreX / unit, (unit - place.centreY) / unit));
    plate->setSize(osg::Vec2f(place.width / unit, place.height / unit));
    plate->setRotation(place.rotation);
    plate->setColor(color);
    if (change) {
        change(plate);
    }
    return node;
}

inline osg::SceneplatePtr plateOf(const osg::NodePtr& node)
{
    return nbSceneplateList::plateOf(node);
}

}  // namespace platetest
