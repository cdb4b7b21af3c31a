// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberCamera/nbCameraNavigation.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGPerspectiveCamera.h>
#include <OpenSG/OSGRefPtr.h>

#include <FieldContainerGlue.h>

namespace osg {

NB_CONTAINER_POINTER(UberCamera, PerspectiveCameraPtr);

#define UBER_CAMERA_FIELDS(VALUE, OWNED, LINK)                                                     \
    VALUE(From, from, Pnt3f, Pnt3f(0.0F, 0.0F, 0.0F))                                              \
    VALUE(At, at, Pnt3f, Pnt3f(0.0F, 0.0F, -1.0F))                                                 \
    VALUE(Up, up, Vec3f, Vec3f(0.0F, 1.0F, 0.0F))                                                  \
    VALUE(Pivot, pivot, Pnt3f, Pnt3f(0.0F, 0.0F, -1.0F))                                           \
    VALUE(Orthographic, orthographic, bool, false)                                                 \
    VALUE(ZUp, zUp, bool, false)                                                                   \
    VALUE(ViewAspect, viewAspect, Real32, 1.0F)                                                    \
    VALUE(HorizontalSizing, horizontalSizing, bool, false)

/// Camera of the host: perspective or orthographic, placed by eye, centre and up vector.
///
/// Fields, world space and world units: From (eye), At (a point on the view axis), Up, Pivot (what
/// the view turns about), Orthographic, ZUp (world up is z), ViewAspect (width / height of the
/// view), HorizontalSizing (a resized view shows the same part of the world across its width
/// instead of its height, see resizeView). Of the base: Fov is the vertical opening angle in
/// degrees, always (45 in a new camera); Near 0.1 and Far 1000.
///
/// The camera keeps a beacon of its own, a node without a parent whose core is a Transform, in step
/// with From, At and Up whenever an edit of them ends, so that getViewing() and calcViewRay() work.
/// It holds the beacon by a count and gives it back with its end. A copy gets its own.
///
/// An orthographic view is 2 |At - From| tan(Fov / 2) high: zooming moves the eye, and switching
/// the projection keeps the size at the distance of At. Whatever the fields hold, the projection is
/// finite: an unusable Fov counts as 45 degrees, From = At as looking to the front, an unusable Up
/// as the world axis farthest from the view axis, an empty depth range as the nearest usable one.
class NB_PLATFORM_API UberCamera : public PerspectiveCamera
{
    NB_CONTAINER(UberCamera, PerspectiveCamera, UBER_CAMERA_FIELDS);

public:
    /// Far is never more than this times Near in a perspective that setNearFarFromBounds() makes: a
    /// depth buffer of 24 bits then still parts what is a hundredth of its distance apart at the
    /// far end (2^-24 Far / Near = 0.006), and ever finer before it. Handles, which get a tenth of
    /// the range, are parted ten times as coarsely.
    static constexpr Real32 kMostDepthRatio = 1e5F;
    /// Part of their distance that handles reach towards the eye and away from it, at most: gizmos
    /// have a constant size on screen, so their extent grows with the distance.
    static constexpr Real32 kHandleReach = 0.5F;

    /// From, At, Up in world space, whatever the index: a camera shows one view.
    Pnt3f getFrom(Int32 index) const;
    Pnt3f getAt(Int32 index) const;
    Vec3f getUp(Int32 index) const;
    // The forms without an argument are the fields' own.

    /// Places the camera in one edit.
    /// @return false, and nothing changes, if a number is not finite
    bool setFromAtUp(const Pnt3f& newFrom, const Pnt3f& newAt, const Vec3f& newUp);

    /// The camera's placement and opening as values, and back in one edit.
    CameraPose getPose() const;
    /// @return false, and nothing changes, if a number is not finite
    bool setPose(const CameraPose& pose);

    /// The view got another shape: sets ViewAspect, and with HorizontalSizing also Fov, so that the
    /// horizontal opening angle stays. A ratio that is not finite or positive is ignored.
    /// @param aspect  width / height of the view
    void resizeView(Real32 aspect);

    bool isOrthographic() const { return getOrthographic(); }

    bool isZUp() const { return getZUp(); }

    /// Sides of the near plane (perspective) or of the view (orthographic) as seen from the view
    /// axis, world units, for ViewAspect: left < 0 < right, bottom < 0 < top.
    Real32 getLeft() const;
    Real32 getRight() const;
    Real32 getTop() const;
    Real32 getBottom() const;

    /// Diagonal of the rectangle that these sides make, world units.
    Real32 getNearPlaneDiagonal() const;

    /// The beacon: its to-world matrix is the camera's frame. Made on first use; the camera owns
    /// it.
    NodePtr getInternalParentNode();

    /// Sets Near and Far so that they enclose a box, the pivot, and handles around any point of
    /// both. With d0 .. d1 the depths of box and pivot, perspective: far = d1 (1 + kHandleReach),
    /// near = max(d0 (1 - kHandleReach), far / kMostDepthRatio). Orthographic: d0 and d1 extended
    /// by half the view's diagonal and a hundredth of the range; Near may be negative there. A box
    /// that is empty or not finite counts as the pivot alone; all of it behind a perspective eye
    /// counts as |At - From| before it.
    void setNearFarFromBounds(const Pnt3f& boundsMin, const Pnt3f& boundsMax);

    /// Projection for a view of width x height pixels; 0 pixels: for ViewAspect. Aspect, the field
    /// of the base, multiplies the ratio as in other cameras.
    void getProjection(Matrix& result, UInt32 width, UInt32 height) override;

    /// World to camera, from the beacon, which is made and put in step first.
    void getViewing(Matrix& result, UInt32 width, UInt32 height) override;

    /// Puts the beacon in step.
    void changed(BitVector whichField, UInt32 origin) override;

private:
    struct DepthRange
    {
        Real64 nearest;
        Real64 farthest;
    };

    /// Gives a camera whose base was never set its start values. Runs with construction; a copy has
    /// values already and keeps them.
    bool applyStartValues();
    void updateBeacon();
    DepthRange usableDepthRange() const;
    Real64 halfViewHeight() const;
    Real64 usableAspect(UInt32 width, UInt32 height) const;

    bool hasStartValues = applyStartValues();
    /// No field, so that a copy starts without one and makes its own.
    NodeRefPtr internalParentNode;
};

}  // namespace osg
