// SPDX-License-Identifier: MIT
#include "manipulator/course/PlacementWatch.h"

#include <nbKernel/nbOSGWidget.h>

#include <EditStamp.h>

namespace nbec::manipulator {

namespace {

constexpr float kTolerance = 1e-6F;

/// Size of gizmos in an orthographic view; 0 in any other.
float orthographicSize(const View& view)
{
    const std::optional<float> diagonal = view.orthographicDiagonal();
    return diagonal ? orthographicScale(*diagonal) : 0.0F;
}

}  // namespace

bool PlacementWatch::mayHaveChanged(float own) const
{
    return !isKnown || osg::glue::editStamp() != editStamp || own != ownNumber ||
        nbOSGWidget::getMGLW(-1) != widget || View().arrowPart() != arrowPart;
}

bool PlacementWatch::isSizedOtherwise() const
{
    return View().arrowPart() != placedArrowPart;
}

bool PlacementWatch::isForOtherView() const
{
    return placedFor != nullptr && placedFor != nbOSGWidget::getMGLW(-1);
}

void PlacementWatch::placed()
{
    placedArrowPart = View().arrowPart();
    placedFor = nbOSGWidget::getMGLW(-1);
}

void PlacementWatch::note(float own)
{
    isKnown = true;
    editStamp = osg::glue::editStamp();
    ownNumber = own;
    widget = nbOSGWidget::getMGLW(-1);
    arrowPart = View().arrowPart();
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
    view.getFromAtUp(from, at, up);
    return !from.equals(cachedCameraFrom, kTolerance) || !at.equals(cachedCameraAt, kTolerance) ||
        !up.equals(cachedCameraUp, kTolerance) || view.getFov() != cachedFov ||
        orthographicSize(view) != cachedOrthoSize;
}

void PlacementWatch::remember(const osg::Matrix& target)
{
    isPlaceKnown = true;
    cachedAnchorMatrix = target;
}

void PlacementWatch::remember(const View& view)
{
    view.getFromAtUp(cachedCameraFrom, cachedCameraAt, cachedCameraUp);
    cachedFov = view.getFov();
    cachedOrthoSize = orthographicSize(view);
}

}  // namespace nbec::manipulator
