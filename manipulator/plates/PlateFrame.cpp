// SPDX-License-Identifier: MIT
#include "manipulator/plates/PlateFrame.h"

#include "manipulator/drag/DragGeometry.h"

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::plates {

namespace {

constexpr double kRotationStep = 15.0;
/// Least longer side that scaling leaves, pixels.
constexpr double kLeastScaledSide = 4.0;
constexpr double kShortest = 1e-3;
/// Nearer to the centre than this a pointer has no direction, pixels.
constexpr double kLeastArm = 0.5;
constexpr double kWholeTurn = 360.0;
/// Of the arm against the frame, in the order of PlateArm, and the middles of sides where it
/// stands.
constexpr float kArmTurns[] = { 0.0F, 180.0F, -90.0F, 90.0F };
constexpr double kArmFeet[][2] = { { 0.0, 1.0 }, { 0.0, -1.0 }, { 1.0, 0.0 }, { -1.0, 0.0 } };
/// Room that a fitted frame leaves at the view's edges, and least side of an upright box around it.
constexpr float kFittedMargin = kPlateArmLength + kPlateKnobRadius;
constexpr float kFittedLeast = 1.5F * kPlateLeastSide;

/// Places of the boxes, in half sides from the centre, y up.
constexpr double kBoxPlaces[kPlateBoxCount][2] = { { -1.0, -1.0 }, { -1.0, 1.0 }, { 1.0, -1.0 },
                                                   { 1.0, 1.0 },   { -1.0, 0.0 }, { 0.0, 1.0 },
                                                   { 0.0, -1.0 },  { 1.0, 0.0 } };

/// What stays when a frame is scaled at a box.
osg::Pnt2f anchorOf(const PlateFrame& frame, std::size_t box, bool aboutCentre)
{
    const auto& [alongX, alongY] = kBoxPlaces[box];
    return aboutCentre ? frame.centre : pointOfFrame(frame, -alongX, -alongY);
}

/// Half sides of the upright box around a frame.
osg::Vec2f halfOfBox(const PlateFrame& frame)
{
    const double cosine = std::abs(std::cos(frame.rotation / kDegPerRad));
    const double sine = std::abs(std::sin(frame.rotation / kDegPerRad));
    return osg::Vec2f(static_cast<float>(0.5 * (frame.size.x() * cosine + frame.size.y() * sine)),
                      static_cast<float>(0.5 * (frame.size.x() * sine + frame.size.y() * cosine)));
}

double lengthOf(const PlateView& view, osg::UInt32 axis)
{
    return axis == 0 ? view.widthPx : view.heightPx;
}

/// Keeps the nearest of what a value could snap to; of several at one distance the first.
struct Nearest
{
    double distance;  ///< reach at first
    double from = 0.0;
    double value = 0.0;
    osg::UInt32 axis = 0;  ///< whose line it is
    double line = 0.0;
    bool found = false;

    void offer(double before, double candidate, osg::UInt32 lineAxis, double at)
    {
        const double needed = std::abs(candidate - before);
        if (needed < distance || (!found && needed == distance)) {
            *this = { needed, before, candidate, lineAxis, at, true };
        }
    }

    void show(PlateGuides& guides) const
    {
        if (found) {
            guides[axis] = static_cast<float>(line);
        }
    }
};

/// Snaps the moved box on one axis. @return the distance that is still to go
double snapBox(double centre, double half, const PlateView& view, osg::UInt32 axis,
               PlateGuides& guides)
{
    const double length = lengthOf(view, axis);
    Nearest nearest { kPlateSnapReach * view.unitPx };
    const auto offer = [&](double place, double line) { nearest.offer(place, line, axis, line); };
    offer(centre, 0.5 * length);
    offer(centre - half, 0.0);
    offer(centre + half, length);
    offer(centre - half, 0.5 * length);
    offer(centre + half, 0.5 * length);
    for (const float line : view.neighbours.centres[axis]) {
        offer(centre, line);
    }
    for (const float line : view.neighbours.edges[axis]) {
        offer(centre - half, line);
        offer(centre + half, line);
    }
    nearest.show(guides);
    return nearest.value - nearest.from;
}

/// Factor at which a box that goes along its way meets an edge or centre line of the view or
/// an edge of a neighbour, the nearest within reach; otherwise the given one.
double snapFactor(double factor, const osg::Pnt2f& anchor, const osg::Vec2f& way,
                  const PlateView& view, PlateGuides& guides)
{
    const double reachPx = kPlateSnapReach * view.unitPx;
    Nearest nearest { reachPx / way.length() };
    for (const osg::UInt32 axis : { 1U, 0U }) {
        const double along = way[axis];
        if (std::abs(along) < kShortest) {
            continue;
        }
        const auto offer = [&](double line) {
            nearest.offer(factor, (line - anchor[axis]) / along, axis, line);
        };
        for (const double part : { 1.0, 0.5, 0.0 }) {
            offer(part * lengthOf(view, axis));
        }
        const std::vector<float>& edges = view.neighbours.edges[axis];
        std::for_each(edges.begin(), edges.end(), offer);
    }
    nearest.show(guides);
    return nearest.found ? nearest.value : factor;
}

/// Rotation of the way from the frame to the knob.
float armRotation(const PlateFrame& frame, PlateArm arm)
{
    return frame.rotation + kArmTurns[static_cast<std::size_t>(arm)];
}

osg::Pnt2f armEnd(const PlateFrame& frame, PlateArm arm, const PlateView& view)
{
    const float lengthPx = kPlateArmLength * view.unitPx;
    const auto& [alongX, alongY] = kArmFeet[static_cast<std::size_t>(arm)];
    const osg::Pnt2f foot = pointOfFrame(frame, alongX, alongY);
    const double angle = armRotation(frame, arm) / kDegPerRad;
    return foot -
        lengthPx *
        osg::Vec2f(static_cast<float>(std::sin(angle)), static_cast<float>(std::cos(angle)));
}

bool isInView(const osg::Pnt2f& point, float margin, const PlateView& view)
{
    return point.x() >= margin && point.x() <= static_cast<float>(view.widthPx) - margin &&
        point.y() >= margin && point.y() <= static_cast<float>(view.heightPx) - margin;
}

/// The frame as it is drawn: at least large enough to grab its body.
PlateFrame grabbableFrame(const PlateFrame& frame, const PlateView& view)
{
    const float least = kPlateLeastSide * view.unitPx;
    PlateFrame result = frame;
    result.size = osg::Vec2f(std::max(frame.size.x(), least), std::max(frame.size.y(), least));
    return result;
}

/// Whether a frame reaches beyond opposite edges of the view, or so near that its boxes do.
bool isBeyondView(const PlateFrame& frame, const PlateView& view)
{
    const osg::Vec2f half = halfOfBox(frame);
    const float inset = 0.5F * kPlateBoxSize * view.unitPx;
    const auto reaches = [&](osg::UInt32 axis) {
        const auto last = static_cast<float>(lengthOf(view, axis)) - inset;
        return frame.centre[axis] - half[axis] < inset && frame.centre[axis] + half[axis] > last;
    };
    return reaches(0) || reaches(1);
}

/// The part of a frame in the view, less the margin; of a turned one what fits in there.
PlateFrame fittedFrame(const PlateFrame& frame, const PlateView& view)
{
    const float margin = kFittedMargin * view.unitPx;
    const float least = kFittedLeast * view.unitPx;
    PlateFrame result = grabbableFrame(frame, view);
    const osg::Vec2f half = halfOfBox(result);
    osg::Vec2f room;  // halves, as all here
    osg::Vec2f part;
    for (const osg::UInt32 axis : { 0U, 1U }) {
        const float last = static_cast<float>(lengthOf(view, axis)) - margin;
        const float centre = frame.centre[axis];
        const float low = std::clamp(centre - half[axis], margin, last - least);
        const float high = std::clamp(centre + half[axis], margin + least, last);
        result.centre[axis] = 0.5F * (low + high);
        room[axis] = 0.5F * (high - low);
        part[axis] = std::min(1.0F, room[axis] / half[axis]);
    }
    // Sides along the view's edges are cut on their own.
    const auto cosine = static_cast<float>(std::cos(frame.rotation / kDegPerRad));
    const float upright = cosine * cosine;
    result.size[0] *= upright * part.x() + (1.0F - upright) * part.y();
    result.size[1] *= upright * part.y() + (1.0F - upright) * part.x();
    result = grabbableFrame(result, view);
    PlateFrame smallest = result;
    smallest.size = osg::Vec2f(0.0F, 0.0F);
    smallest = grabbableFrame(smallest, view);
    const osg::Vec2f reach = halfOfBox(result);
    const osg::Vec2f leastReach = halfOfBox(smallest);
    float grown = 1.0F;
    for (const osg::UInt32 axis : { 0U, 1U }) {
        const float spare = reach[axis] - leastReach[axis];
        if (reach[axis] > room[axis] && spare > 0.0F) {
            grown = std::min(grown, std::max(room[axis] - leastReach[axis], 0.0F) / spare);
        }
    }
    result.size = smallest.size + (result.size - smallest.size) * grown;
    return result;
}

}  // namespace

osg::Pnt2f pointOfFrame(const PlateFrame& frame, double alongX, double alongY)
{
    const double x = 0.5 * alongX * frame.size.x();
    const double y = 0.5 * alongY * frame.size.y();
    const double cosine = std::cos(frame.rotation / kDegPerRad);
    const double sine = std::sin(frame.rotation / kDegPerRad);
    return osg::Pnt2f(static_cast<float>(frame.centre.x() + cosine * x - sine * y),
                      static_cast<float>(frame.centre.y() - sine * x - cosine * y));
}

osg::Pnt2f boxOfFrame(const PlateFrame& frame, std::size_t box)
{
    const auto& [alongX, alongY] = kBoxPlaces[box];
    return pointOfFrame(frame, alongX, alongY);
}

PlateStance chooseStance(const PlateFrame& frame, const PlateView& view)
{
    const PlateFrame drawn = grabbableFrame(frame, view);
    if (!isBeyondView(drawn, view)) {
        for (const PlateArm arm :
             { PlateArm::Above, PlateArm::Below, PlateArm::Right, PlateArm::Left }) {
            if (isInView(armEnd(drawn, arm, view), kPlateKnobRadius * view.unitPx, view)) {
                return { arm, false };
            }
        }
    }
    return { PlateArm::Above, true };
}

PlateHandles layOutHandles(const PlateFrame& frame, const PlateStance& stance, PlateView view)
{
    if (stance.isFitted) {
        const int shorter = std::min(view.widthPx, view.heightPx);
        view.unitPx = std::min(view.unitPx,
                               static_cast<float>(shorter) / (2.0F * kFittedMargin + kFittedLeast));
    }
    PlateHandles handles;
    handles.unitPx = view.unitPx;
    handles.frame = stance.isFitted ? fittedFrame(frame, view) : grabbableFrame(frame, view);
    for (std::size_t i = 0; i < kPlateBoxCount; ++i) {
        handles.boxes[i] = boxOfFrame(handles.frame, i);
    }
    handles.knob = armEnd(handles.frame, stance.arm, view);
    handles.armRotation = armRotation(handles.frame, stance.arm);
    return handles;
}

PlateFrame changedFrame(const PlateFrame& frame, const PlateChange& change)
{
    PlateFrame result = frame;
    result.centre += change.offsetPx;
    for (const osg::UInt32 axis : { 0U, 1U }) {
        result.size[axis] *= change.scaleFactor * change.sizeFactors[axis];
    }
    result.rotation += change.rotation;
    return result;
}

PlateChange moveFrame(const PlateFrame& start, const osg::Vec2f& distancePx, const PlateView& view,
                      PlateGuides* guides)
{
    PlateChange change;
    change.offsetPx = distancePx;
    if (guides == nullptr) {
        return change;
    }
    const osg::Vec2f half = halfOfBox(start);
    for (const osg::UInt32 axis : { 0U, 1U }) {
        const double centre = static_cast<double>(start.centre[axis]) + distancePx[axis];
        change.offsetPx[axis] +=
            static_cast<float>(snapBox(centre, half[axis], view, axis, *guides));
    }
    return change;
}

double boxFactor(const PlateFrame& start, std::size_t box, bool aboutCentre,
                 const osg::Vec2f& distancePx)
{
    const osg::Vec2f way = boxOfFrame(start, box) - anchorOf(start, box, aboutCentre);
    const double square = way.dot(way);
    return square > kShortest * kShortest ? 1.0 + distancePx.dot(way) / square : 1.0;
}

PlateChange scaleFrame(const PlateFrame& start, std::size_t box, bool aboutCentre, double factor,
                       const PlateView& view, PlateGuides* guides)
{
    const osg::Pnt2f anchor = anchorOf(start, box, aboutCentre);
    const osg::Vec2f way = boxOfFrame(start, box) - anchor;
    PlateChange change;
    if (!(way.dot(way) > kShortest * kShortest)) {
        return change;
    }
    const bool isCorner = box < kPlateCornerCount;
    const osg::UInt32 axis = kBoxPlaces[box][0] == 0.0 ? 1 : 0;
    const double side = isCorner ? std::max(start.size.x(), start.size.y()) : start.size[axis];
    const double wanted =
        guides != nullptr ? snapFactor(factor, anchor, way, view, *guides) : factor;
    const double reached = std::max(wanted, std::min(kLeastScaledSide / side, 1.0));
    (isCorner ? change.scaleFactor : change.sizeFactors[axis]) = static_cast<float>(reached);
    change.offsetPx = (start.centre - anchor) * static_cast<float>(reached - 1.0);
    return change;
}

bool turnBetween(const osg::Pnt2f& centre, const osg::Pnt2f& from, const osg::Pnt2f& to,
                 double& angle)
{
    const osg::Vec2f first = from - centre;
    const osg::Vec2f second = to - centre;
    if (first.length() < kLeastArm || second.length() < kLeastArm) {
        return false;
    }
    const osg::Vec2d a(first.x(), first.y());
    const osg::Vec2d b(second.x(), second.y());
    // y points down, so a positive cross product turns clockwise.
    const double cross = a.x() * b.y() - a.y() * b.x();
    const double within = std::atan2(-cross, a.dot(b)) * kDegPerRad;
    angle = within + kWholeTurn * std::round((angle - within) / kWholeTurn);
    return true;
}

PlateChange turnFrame(const PlateFrame& start, double angle, bool snaps)
{
    PlateChange change;
    const double resulting = start.rotation + angle;
    change.rotation =
        static_cast<float>(snaps ? snapped(resulting, kRotationStep) - start.rotation : angle);
    return change;
}

}  // namespace nbec::manipulator::plates
