// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/nbSameBits.h>
#include <nbOpenSGSceneplate/nbSceneplateLayout.h>

#include <OpenSG/OSGVector.h>

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

/// Arithmetic of the scene-plate manipulator in pixels, without widget and nodes. Positions are
/// device pixels, y from the top; angles are degrees, counter-clockwise on screen.
namespace nbec::manipulator::plates {

using PlateFrame = nbSceneplateLayout::Frame;

/// Where boxes stand on a frame in its own axes: at the corners lower left, upper left, lower
/// right, upper right; then on the middles of the sides left, upper, lower, right.
constexpr std::size_t kPlateCornerCount = 4;
constexpr std::size_t kPlateBoxCount = 8;

/// Places that other plates offer to snap to, by axis: edges and centres of the upright boxes
/// around them, pixels.
struct PlateNeighbours
{
    std::array<std::vector<float>, 2> edges;
    std::array<std::vector<float>, 2> centres;
};

/// The view and how large handles are in it.
struct PlateView
{
    int widthPx = 0;
    int heightPx = 0;
    float unitPx = 1.0F;  ///< pixels per unit of the handle sizes below
    PlateNeighbours neighbours {};  ///< to snap to
};

/// Sizes of handles; a unit is a logical pixel at the default size of manipulators.
constexpr float kPlateBoxSize = 10.0F;
constexpr float kPlateKnobRadius = 6.0F;
/// From the frame's edge to the knob's centre.
constexpr float kPlateArmLength = 32.0F;
/// A frame with less than this for a side is drawn larger, so that its body can be grabbed.
constexpr float kPlateLeastSide = 28.0F;
/// Reach of snapping.
constexpr float kPlateSnapReach = 8.0F;

/// Where the arm of rotation stands, as the frame is turned.
enum class PlateArm : std::size_t
{
    Above,
    Below,
    Right,
    Left
};

/// How handles stand around a frame; it stays while one of them is held.
struct PlateStance
{
    PlateArm arm = PlateArm::Above;
    /// There is no room around the frame: it is drawn cut or moved so that there is.
    bool isFitted = false;
};

/// Where handles are drawn.
struct PlateHandles
{
    PlateFrame frame;
    std::array<osg::Pnt2f, kPlateBoxCount> boxes;
    osg::Pnt2f knob;
    float armRotation = 0.0F;  ///< of the way from the frame to the knob; 0 is up
    float unitPx = 1.0F;  ///< as of the view; less where that is too small for handles
};

/// What a drag does to the plates since its start.
struct PlateChange
{
    float scaleFactor = 1.0F;  ///< about the centre of the frame
    osg::Vec2f sizeFactors { 1.0F, 1.0F };  ///< of width and height alone, about the centre
    osg::Vec2f offsetPx { 0.0F, 0.0F };  ///< of the centre
    float rotation = 0.0F;

    bool operator==(const PlateChange& other) const
    {
        return scaleFactor == other.scaleFactor && nbSameValues(sizeFactors, other.sizeFactors) &&
            nbSameValues(offsetPx, other.offsetPx) && rotation == other.rotation;
    }
};

/// The lines that a drag has snapped to: a vertical one at a place of x, a horizontal one of y.
using PlateGuides = std::array<std::optional<float>, 2>;

/// Pixel position of a place of a frame. @param alongX, alongY  in half sides from the centre, y up
osg::Pnt2f pointOfFrame(const PlateFrame& frame, double alongX, double alongY);

/// Where a box stands.
osg::Pnt2f boxOfFrame(const PlateFrame& frame, std::size_t box);

/// The first place of the arm, in the order of PlateArm, at which the whole knob is in the view.
/// Fitted if there is none, or if the frame reaches beyond opposite edges of the view.
PlateStance chooseStance(const PlateFrame& frame, const PlateView& view);

/// Places the handles of a frame. Of a fitted one all of each is in the view, the arm outside of
/// the frame, and none lies over another; in a view that is too small for that handles shrink.
PlateHandles layOutHandles(const PlateFrame& frame, const PlateStance& stance, PlateView view);

/// A frame after a change: scaled and turned about its centre, which moves by the offset.
PlateFrame changedFrame(const PlateFrame& frame, const PlateChange& change);

/// Moves a frame by a distance. Edges of the upright box around it snap to the same edges of the
/// view, to its centre lines and to edges of neighbours, its centre to the centre lines and to
/// centres of neighbours; per axis the nearest within reach, the view and the centre first. @param
/// guides  receives the lines that were snapped to; null: no snapping
PlateChange moveFrame(const PlateFrame& start, const osg::Vec2f& distancePx, const PlateView& view,
                      PlateGuides* guides);

/// Factor by which a frame is scaled when a box follows the pointer along its way:
/// 1 + distance . way / |way|^2, where the way goes from the opposite corner or side, which stays,
/// or from the centre. 1 for a frame without size.
double boxFactor(const PlateFrame& start, std::size_t box, bool aboutCentre,
                 const osg::Vec2f& distancePx);

/// Scales a frame by a factor at a box, see boxFactor(): at a corner as a whole, at a side its
/// width or height alone. With guides the box snaps to edges and centre lines of the view and edges
/// of neighbours where its way meets them. The longer side, or the only one that changes, never
/// gets less than 4 pixels by it. A frame without size does not change.
PlateChange scaleFrame(const PlateFrame& start, std::size_t box, bool aboutCentre, double factor,
                       const PlateView& view, PlateGuides* guides);

/// Angle by which the way from a centre to a point turns when the point moves.
/// @param angle  receives, of all angles that differ by whole turns, the nearest to what it holds,
///               so that a drag may go round more than once
/// @return false, and the angle untouched, if a point is within half a pixel of the centre
bool turnBetween(const osg::Pnt2f& centre, const osg::Pnt2f& from, const osg::Pnt2f& to,
                 double& angle);

/// Turns a frame by an angle. @param snaps  the frame's resulting rotation is the nearest multiple
/// of 15 degrees
PlateChange turnFrame(const PlateFrame& start, double angle, bool snaps);

}  // namespace nbec::manipulator::plates
