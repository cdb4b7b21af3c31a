// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGVector.h>

/// Where a camera stands and how it looks, as values. World space, world units, degrees.
/// The distance of from and at is also the measure of an orthographic view, see viewHeight().
struct CameraPose
{
    /// Field of view of a new camera and of one whose own is not usable, degrees.
    static constexpr osg::Real32 kDefaultFovDeg = 45.0F;

    osg::Pnt3f from { 0.0F, 0.0F, 0.0F };  ///< the eye
    osg::Pnt3f at { 0.0F, 0.0F, -1.0F };  ///< a point on the view axis
    osg::Vec3f up { 0.0F, 1.0F, 0.0F };  ///< any length, need not be perpendicular to the axis
    osg::Pnt3f pivot { 0.0F, 0.0F, -1.0F };  ///< what the view turns about
    osg::Real32 fovDeg = kDefaultFovDeg;  ///< vertical opening angle
    bool orthographic = false;
    bool zUp = false;  ///< world up is z instead of y
};

/// Arithmetic of camera movements: takes a pose, returns the moved pose, knows no camera.
///
/// Pixels are device pixels with y down from the top. A drag is computed from the pose at its start
/// and the whole way of the pointer, so that nothing adds up. Input that makes no movement (not
/// finite, a view without area) returns the pose as it was. All results are finite if the pose is.
class NB_PLATFORM_API nbCameraNavigation
{
public:
    /// Directions of the view that lie still; the names are those of the side that is seen.
    enum class StandardView : int
    {
        Front,
        Back,
        Left,
        Right,
        Top,
        Bottom,
        ThreeQuarter
    };

    /// Axes of the camera in the world: orthonormal, back points from at to the eye.
    struct Axes
    {
        osg::Vec3f right;
        osg::Vec3f up;
        osg::Vec3f back;
    };

    /// Field of view that a camera gets when its own is not usable, degrees.
    static constexpr osg::Real32 kDefaultFovDeg = CameraPose::kDefaultFovDeg;
    /// Range in which a field of view is used, degrees.
    static constexpr osg::Real32 kSmallestFovDeg = 0.01F;
    static constexpr osg::Real32 kLargestFovDeg = 175.0F;
    /// The view never comes nearer to the pole than this when it orbits, degrees of elevation.
    static constexpr osg::Real32 kSteepestElevationDeg = 89.9F;
    /// Bounds within which zooming keeps the distance of from and at, world units.
    static constexpr osg::Real32 kNearestDistance = 1e-5F;
    static constexpr osg::Real32 kFarthestDistance = 1e8F;
    /// Room that frame() leaves around the bounds: distance over the tightest distance.
    static constexpr osg::Real32 kFrameMargin = 1.1F;

    /// World up of a pose: y, or z.
    static osg::Vec3f worldUp(const CameraPose& pose);

    /// Axes of the pose's camera. back = (from - at) / |from - at|, right = up x back, normalised,
    /// up = back x right. from = at gives the front view's direction. An up vector of length 0 or
    /// along the axis is replaced by world up; is that along the axis too, by the up vector of the
    /// standard view from above or below.
    static Axes axes(const CameraPose& pose);

    /// Field of view that is used for one that is given: limited to what lies from kSmallestFovDeg
    /// to kLargestFovDeg; 0, negative or not finite: kDefaultFovDeg.
    static osg::Real32 usableFovDeg(osg::Real32 fovDeg);

    /// Depth of a point: way along the view axis from the eye, negative behind it.
    static osg::Real32 depth(const CameraPose& pose, const osg::Pnt3f& point);

    /// Height of what the view shows, world units. Perspective: at a depth, 2 depth tan(fov / 2).
    /// Orthographic: 2 |at - from| tan(fov / 2) at every depth.
    static osg::Real32 viewHeight(const CameraPose& pose, osg::Real32 atDepth);

    /// Turns the camera about the pivot as a turntable: horizontally about world up, vertically
    /// about the horizontal axis across the view. A drag over the height of the view is half a
    /// turn. The scene follows the pointer: a drag to the right moves the eye to the left, a drag
    /// down moves it up. The elevation of the eye's side of the view axis stays within
    /// kSteepestElevationDeg (a pose that is steeper already can only get flatter), so that the
    /// view never turns over. Distances to the pivot are kept. A rolled camera keeps its roll.
    static CameraPose orbit(const CameraPose& start, osg::Real32 dxPx, osg::Real32 dyPx,
                            osg::Int32 viewHeightPx);

    /// The same by angles, radians: turn counter-clockwise about world up, rise of the elevation.
    static CameraPose orbitByAngles(const CameraPose& start, osg::Real64 turnRad,
                                    osg::Real64 riseRad);

    /// Moves the camera in the view plane so that the point under the pointer at the pivot's depth
    /// stays under it: from, at and pivot move by
    /// (-dx right + dy up) viewHeight(pivot's depth) / viewHeightPx, all in world space. With the
    /// pivot not in front of the eye the depth of at is taken. Pixels are square.
    static CameraPose pan(const CameraPose& start, osg::Real32 dxPx, osg::Real32 dyPx,
                          osg::Int32 viewHeightPx);

    /// Moves the camera so that distances to a target become factor times what they were; the
    /// target stays where it is in the view. from' = T + factor (from - T), at likewise; the pivot
    /// stays. T is the target if it lies between the eye and the pivot's depth; otherwise the point
    /// at the pivot's depth that is seen at the same place, so that the eye comes ever nearer to
    /// the pivot's depth but never passes it. An orthographic view always takes T at the pivot's
    /// depth, and its height follows from |at - from|.
    /// @param factor  > 0; below 1 nearer, above 1 farther; limited so that |at - from| stays
    /// within
    ///                kNearestDistance .. kFarthestDistance and what a float resolves at the pivot
    /// @param target  world point, such as the one under the pointer
    static CameraPose zoom(const CameraPose& start, osg::Real32 factor, const osg::Pnt3f& target);

    /// zoom() towards the pivot.
    static CameraPose zoom(const CameraPose& start, osg::Real32 factor);

    /// Moves the camera along its view direction so that a box fills the view; at and pivot become
    /// the box's centre. The tightest distance puts the outermost corner on the side of the view:
    /// perspective max over corners of z + max(|y| / tan(fov / 2), |x| / (aspect tan(fov / 2)))
    /// with the corner (x, y, z) relative to the centre in camera axes, z towards the eye;
    /// orthographic the same without z. It is taken kFrameMargin times. A box that is a point keeps
    /// the distance.
    /// @param aspect  width / height of the view, > 0; others are taken as 1
    static CameraPose frame(const CameraPose& start, const osg::Pnt3f& boundsMin,
                            const osg::Pnt3f& boundsMax, osg::Real32 aspect);

    /// Looks at the pivot from a standard direction, from the distance that the eye had to it
    /// (orthographic: |at - from|, so that the size stays).
    /// Y-up: front looks along -z, right along -x, top along -y with -z up, bottom along y with z
    /// up. Z-up: front looks along y, right along -x, top along -z with y up, bottom along z with
    /// -y up. Three-quarter: from 45 degrees to the right of front, 30 degrees above.
    static CameraPose standardView(const CameraPose& start, StandardView view);

    /// Switches the projection so that things at the pivot's depth keep their size. To orthographic
    /// the eye stays and at moves on the view axis to the pivot's depth; to perspective eye and at
    /// move along the axis until the pivot's depth is |at - from|.
    static CameraPose withProjection(const CameraPose& start, bool orthographic);

    /// Where a world point is seen, device pixels with y down from the top edge (0 is the left or
    /// top edge, viewWidthPx or viewHeightPx the other), for a view of that size.
    /// @return false, pixel untouched, if the point is not in front of a perspective eye or the
    /// view
    ///         has no area
    static bool project(const CameraPose& pose, const osg::Pnt3f& point, osg::Int32 viewWidthPx,
                        osg::Int32 viewHeightPx, osg::Pnt2f& pixel);

    /// World point that is seen at a pixel at a depth; the inverse of project().
    static osg::Pnt3f unproject(const CameraPose& pose, const osg::Pnt2f& pixel,
                                osg::Real32 atDepth, osg::Int32 viewWidthPx,
                                osg::Int32 viewHeightPx);

    /// Whether all numbers of a pose are finite.
    static bool isFinite(const CameraPose& pose);
};
