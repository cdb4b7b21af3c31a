// SPDX-License-Identifier: MIT
#include "viewer/textures/TextureAnchor.h"

#include "viewer/stage/Stage.h"

#include <nbInteraction/Picker.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

namespace viewer {

void TextureAnchor::set(const osg::NodePtr& surface, const osg::Pnt3f& point)
{
    surfaceId = containerId(surface);
    localPlace = point;
    osg::Matrix surfaceFromWorld;
    if (surface != osg::NullFC && surface->getToWorld().inverse(surfaceFromWorld)) {
        surfaceFromWorld.multMatrixPnt(localPlace);
    }
}

bool TextureAnchor::isOn(const osg::NodePtr& surface) const
{
    return surface != osg::NullFC && surface.getFieldContainerId() == surfaceId;
}

std::optional<osg::Pnt3f> TextureAnchor::worldPlace() const
{
    const auto surface = resolveContainer<osg::NodePtr>(surfaceId);
    if (surface == osg::NullFC) {
        return std::nullopt;
    }
    osg::Pnt3f place = localPlace;
    surface->getToWorld().multMatrixPnt(place);
    return place;
}

osg::Pnt3f visiblePointOf(const osg::NodePtr& surface, Stage& stage)
{
    osg::Pnt3f middle;
    nbNodeUtils::getWorldBounds(surface).getCenter(middle);
    osg::Pnt2f px;
    nbec::interaction::Picker picker;
    const bool isSeen = stage.project(middle, px) && picker.pickAt(px) == surface;
    return isSeen ? picker.getHitPoint() : middle;
}

}  // namespace viewer
