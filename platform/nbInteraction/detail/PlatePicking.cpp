// SPDX-License-Identifier: MIT
#include "PlatePicking.h"

#include <nbInteraction/Picker.h>
#include <nbOpenSGSceneplate/nbSceneplateLayout.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGSceneplate/nbSceneplatePicture.h>

#include <algorithm>

namespace nbec::interaction::detail {

namespace {

bool isHit(const osg::SceneplatePtr& plate, const PickView& view, const osg::Pnt2f& px)
{
    osg::Pnt2f position;
    return nbSceneplateLayout::contains(plate, px, view.widthPx, view.heightPx, &position) &&
        nbSceneplatePicture::alphaAt(plate, position) >= Picker::kPlateAlphaThreshold;
}

/// What of a plate's bounds on screen is in view.
ScreenBox visibleBounds(const osg::SceneplatePtr& plate, const PickView& view)
{
    ScreenBox bounds;
    for (const osg::Pnt2f& corner :
         nbSceneplateLayout::corners(plate, view.widthPx, view.heightPx)) {
        bounds.extend(ScreenPoint { corner.x(), corner.y() });
    }
    bounds.minX = std::max(bounds.minX, 0.0F);
    bounds.minY = std::max(bounds.minY, 0.0F);
    bounds.maxX = std::min(bounds.maxX, static_cast<float>(view.widthPx));
    bounds.maxY = std::min(bounds.maxY, static_cast<float>(view.heightPx));
    return bounds;
}

bool liesInside(const ScreenBox& bounds, const ScreenBox& box)
{
    return bounds.minX < bounds.maxX && bounds.minY < bounds.maxY &&
        box.isNear({ bounds.minX, bounds.minY }, 0.0F) &&
        box.isNear({ bounds.maxX, bounds.maxY }, 0.0F);
}

}  // namespace

osg::NodePtr pickPlate(const osg::NodePtr& root, const PickView& view, const osg::Pnt2f& px)
{
    ScreenPoint centre;
    if (!view.pixelCentre(px, centre)) {
        return {};
    }
    const std::vector<nbSceneplateList::Entry> plates = nbSceneplateList::collectShown(root);
    const auto hit = std::find_if(plates.rbegin(), plates.rend(), [&](const auto& entry) {
        return isHit(entry.plate, view, osg::Pnt2f(centre.x, centre.y));
    });
    return hit == plates.rend() ? osg::NodePtr() : hit->node;
}

std::vector<osg::NodePtr> pickPlatesInside(const osg::NodePtr& root, const PickView& view,
                                           const ScreenBox& box)
{
    std::vector<osg::NodePtr> nodes;
    if (view.widthPx <= 0 || view.heightPx <= 0) {
        return nodes;
    }
    for (const nbSceneplateList::Entry& entry : nbSceneplateList::collectShown(root)) {
        if (liesInside(visibleBounds(entry.plate, view), box)) {
            nodes.push_back(entry.node);
        }
    }
    return nodes;
}

}  // namespace nbec::interaction::detail
