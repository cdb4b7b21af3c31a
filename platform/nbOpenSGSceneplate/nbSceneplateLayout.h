// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGSceneplate/Sceneplate.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGVector.h>

#include <array>
#include <vector>

/// Where scene plates lie in the pixels of a view: the one place of that arithmetic.
///
/// Pixels are device pixels, y from the top; pixel n covers n .. n + 1. Offsets are in heights of
/// the view, y up. Everything takes the view's width and height in device pixels; in a view without
/// area all positions are 0 and nothing is contained.
///
/// A plate that is turned by a multiple of 90 degrees lies on whole pixels, so that titles and
/// logos stay sharp: its sides are rounded to whole pixels, at least one, and then its edges. Any
/// other plate lies exactly where its fields put it.
class NB_PLATFORM_API nbSceneplateLayout
{
public:
    nbSceneplateLayout() = delete;

    /// Corners of a plate in its own frame: lower left, lower right, upper right, upper left.
    using Corners = std::array<osg::Pnt2f, 4>;

    /// An upright rectangle turned about its centre.
    struct Frame
    {
        osg::Pnt2f centre { 0.0F, 0.0F };  ///< device pixels
        osg::Vec2f size { 0.0F, 0.0F };  ///< width and height in its own frame, device pixels
        osg::Real32 rotation = 0.0F;  ///< degrees, counter-clockwise on screen
    };

    /// The place of the view that positions count from.
    /// @param anchor  one of Sceneplate::AnchorPlace, others count as Centre
    static osg::Pnt2f anchorPosition(osg::Int32 anchor, int widthPx, int heightPx);

    /// Whether there is anything to see of a plate: it is visible, its opacity is above 0, its
    /// numbers are finite, size and scale above 0. False for null.
    static bool isShown(const osg::SceneplatePtr& plate);

    /// Whether a plate's edges run along the pixels, because it is turned by a multiple of 90
    /// degrees.
    static bool isOnPixels(const osg::SceneplatePtr& plate);

    /// A plate's centre as its fields have it, before any rounding. (0, 0) for null.
    static osg::Pnt2f centre(const osg::SceneplatePtr& plate, int widthPx, int heightPx);

    /// A plate's corners as drawn and hit. All (0, 0) for null.
    static Corners corners(const osg::SceneplatePtr& plate, int widthPx, int heightPx);

    /// The frame around plates, before any rounding: of one plate its own, turned with it; of
    /// several the upright rectangle around all. Its centre is what sceneplateChanged turns and
    /// scales about. Nulls are passed over; zeros without any plate.
    static Frame frame(const std::vector<osg::SceneplatePtr>& plates, int widthPx, int heightPx);

    /// Whether a position lies on a plate as drawn. Alpha, visibility and order play no role.
    /// @param position   receives where on the plate, 0 .. 1 from its lower left corner; may be
    /// null
    static bool contains(const osg::SceneplatePtr& plate, const osg::Pnt2f& px, int widthPx,
                         int heightPx, osg::Pnt2f* position = nullptr);

    /// A distance in pixels as an offset in heights of the view. (0, 0) without height.
    static osg::Vec2f toOffset(const osg::Vec2f& px, int heightPx);

    /// The Position that puts the centre of a plate with this anchor at a pixel position.
    static osg::Vec2f positionAt(osg::Int32 anchor, const osg::Pnt2f& centrePx, int widthPx,
                                 int heightPx);
};
