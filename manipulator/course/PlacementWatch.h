// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/View.h"
#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGMatrix.h>

namespace nbec::manipulator {

/// Remembers what a gizmo's place depended on when it was placed last, and answers whether it is to
/// be placed again. Matrices and points count as the same within 1e-6 in each element.
class NB_MANIPULATOR_API PlacementWatch
{
public:
    /// Whether anything may have changed since note(): an edit anywhere, another main widget, or a
    /// number that the gizmo adds. A quick question; on a scene graph that does not count its edits
    /// the answer is always yes.
    bool mayHaveChanged(float own) const;

    /// From now on mayHaveChanged() counts. @param own  as there
    void note(float own);

    /// Has the next questions answered with yes, until the place is remembered anew.
    void forget()
    {
        isKnown = false;
        isPlaceKnown = false;
    }

    /// Whether gizmos have another size than at the last placed(), see SizePolicy.
    bool isSizedOtherwise() const;
    /// Whether the last placed() was for another view, which has its own size and camera.
    bool isForOtherView() const;
    void placed();

    /// Whether a gizmo's target stands elsewhere than at the last remember().
    bool isElsewhere(const osg::Matrix& target) const;
    /// Whether the view has another eye, point looked at, upward direction, field of view, or
    /// orthographic size than at the last remember().
    bool isSeenOtherwise(const View& view) const;

    void remember(const osg::Matrix& target);
    void remember(const View& view);

private:
    bool isKnown = false;
    bool isPlaceKnown = false;
    osg::UInt64 editStamp = 0;  ///< see EditStamp.h
    float ownNumber = 0.0F;

    osg::Matrix cachedAnchorMatrix;
    osg::Pnt3f cachedCameraFrom;
    osg::Pnt3f cachedCameraAt;
    osg::Vec3f cachedCameraUp;
    float cachedFov = 0.0F;
    float placedArrowPart = 0.0F;
    const nbOSGWidget* placedFor = nullptr;  ///< for comparison only
    std::optional<float> cachedOrthoSize;  ///< near-plane diagonal; none under a perspective camera
};

}  // namespace nbec::manipulator
