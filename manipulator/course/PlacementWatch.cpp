// SPDX-License-Identifier: MIT
#include "manipulator/course/PlacementWatch.h"

#include <nbKernel/nbOSGWidget.h>

#include <EditStamp.h>

namespace nbec::manipulator {

namespace {

constexpr float kTolerance = 1e-6F;

/// Length of an arrow by the height of the main view, for a size in pixels; 0 for the classic rule.
float arrowPart()
{
    const SizePolicy& policy = getSizePolicy();
    const int height = policy.arrowPx > 0.0F ? View().getHeight() : 0;
    return height > 0 ? policy.arrowPx * nbOSGWidget::getPixelRatio(-1, policy.pixelRatio) /
            static_cast<float>(height)
                      : 0.0F;
}

}  // namespace

bool PlacementWatch::mayHaveChanged(float own) const
{
    return !isKnown || osg::glue::editStamp() != editStamp || own != ownNumber ||
        nbOSGWidget::getMGLW(-1) != placedFor || isSizedOtherwise();
}

bool PlacementWatch::isSizedOtherwise() const
{
    return arrowPart() != placedArrowPart;
}

bool PlacementWatch::isForOtherView() const
{
    const nbOSGWidget* const view = nbOSGWidget::getMGLW(-1);
    return view != nullptr && placedFor != nullptr && view != placedFor;
}

void PlacementWatch::placed()
{
    placedArrowPart = arrowPart();
    placedFor = nbOSGWidget::getMGLW(-1);
}

void PlacementWatch::note(float own)
{
    isKnown = true;
    editStamp = osg::glue::editStamp();
    ownNumber = own;
}

bool PlacementWatch::isElsewhere(const osg::Matrix& target) const
{
    return !isPlaceKnown || !target.equals(cachedAnchorMatrix, kTolerance);
}

bool PlacementWatch::isSeenOtherwise(const View& view) const
{
    osg::Pnt3f from;
    osg::Pnt3f at;
    osg::Vec3f up;
    nbOSGWidget::getFromAtUp(-1, from, at, up);
    return !from.equals(cachedCameraFrom, kTolerance) || !at.equals(cachedCameraAt, kTolerance) ||
        !up.equals(cachedCameraUp, kTolerance) || view.getFov() != cachedFov ||
        view.orthographicDiagonal() != cachedOrthoSize;
}

void PlacementWatch::remember(const osg::Matrix& target)
{
    isPlaceKnown = true;
    cachedAnchorMatrix = target;
}

void PlacementWatch::remember(const View& view)
{
    nbOSGWidget::getFromAtUp(-1, cachedCameraFrom, cachedCameraAt, cachedCameraUp);
    cachedFov = view.getFov();
    cachedOrthoSize = view.orthographicDiagonal();
}

}  // namespace nbec::manipulator
