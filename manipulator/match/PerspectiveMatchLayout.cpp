// SPDX-License-Identifier: MIT
#include "manipulator/match/PerspectiveMatchLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace nbec::manipulator::match {

namespace {

constexpr double kDashPx = 8.0;
constexpr double kGapPx = 6.0;
constexpr double kHorizonDashPx = 18.0;
/// Arm of the cross that marks a vanishing point, logical pixels.
constexpr double kCrossArmPx = 7.0;
/// Sine of the angle below which two lines count as one direction whatever their distance.
constexpr double kParallelSine = 1e-9;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

bool isFinite(const osg::Pnt2f& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

osg::Vec2d toDouble(const osg::Pnt2f& point)
{
    return osg::Vec2d(point.x(), point.y());
}

/// Of a point that is not at infinity, or of a direction.
osg::Vec2d inPlane(const osg::Vec3d& vanishing)
{
    return osg::Vec2d(vanishing.x(), vanishing.y());
}

double cross(const osg::Vec2d& a, const osg::Vec2d& b)
{
    return a.x() * b.y() - a.y() * b.x();
}

// == Hits

/// A hit so far: smaller is better, first by distance, then lines that count before others.
struct Candidate
{
    float distancePx = std::numeric_limits<float>::max();
    bool counts = false;
    MatchPart hit;

    void offer(float otherPx, bool otherCounts, const MatchPart& other)
    {
        if (otherPx < distancePx || (otherPx == distancePx && otherCounts && !counts)) {
            *this = Candidate { otherPx, otherCounts, other };
        }
    }
};

float distanceToSegment(const osg::Pnt2f& a, const osg::Pnt2f& b, const osg::Pnt2f& point)
{
    const osg::Vec2f along = b - a;
    const float squareLength = along.squareLength();
    const float place =
        squareLength > 0.0F ? std::clamp((point - a).dot(along) / squareLength, 0.0F, 1.0F) : 0.0F;
    return (point - (a + along * place)).length();
}

// == Guides

/// A straight course in pixels, from a parameter to another; both may be infinite.
struct Course
{
    osg::Vec2d origin;
    osg::Vec2d direction;  ///< unit length
    double begin = 0.0;
    double end = 0.0;
};

/// Cuts a course to 0 .. size along one coordinate.
void cutTo(Course& course, double origin, double direction, double size)
{
    if (direction == 0.0) {
        if (origin < 0.0 || origin > size) {
            course.end = course.begin;
        }
        return;
    }
    const double atLow = -origin / direction;
    const double atHigh = (size - origin) / direction;
    course.begin = std::max(course.begin, std::min(atLow, atHigh));
    course.end = std::min(course.end, std::max(atLow, atHigh));
}

/// Collects the segments of one guide, which are given in pixels.
class SegmentWriter
{
public:
    SegmentWriter(const MatchView& matchView, MatchSegments& target)
        : view(matchView)
        , segments(target)
    { }

    /// Dashes along the part of a course that is in view. They keep their places along the course,
    /// wherever the view cuts it.
    void addDashes(const Course& course, double dashPx) const
    {
        Course seen = course;
        cutTo(seen, course.origin.x(), course.direction.x(), view.widthPx);
        cutTo(seen, course.origin.y(), course.direction.y(), view.heightPx);
        if (!(seen.begin < seen.end)) {
            return;
        }
        const double period = (dashPx + kGapPx) * view.pixelRatio;
        const double phase = std::isfinite(course.begin) ? course.begin : 0.0;
        const double firstDash = std::floor((seen.begin - phase) / period);
        const auto count = static_cast<int>(std::ceil((seen.end - phase) / period - firstDash));
        for (int i = 0; i < count; ++i) {
            const double dash = phase + (firstDash + i) * period;
            const double from = std::max(dash, seen.begin);
            const double to = std::min(dash + dashPx * view.pixelRatio, seen.end);
            if (from < to) {
                addSegment(course.origin + course.direction * from,
                           course.origin + course.direction * to);
            }
        }
    }

    void addCross(const osg::Vec2d& centre) const
    {
        const double arm = kCrossArmPx * view.pixelRatio;
        if (centre.x() < -arm || centre.x() > view.widthPx + arm || centre.y() < -arm ||
            centre.y() > view.heightPx + arm) {
            return;
        }
        addSegment(centre - osg::Vec2d(arm, arm), centre + osg::Vec2d(arm, arm));
        addSegment(centre - osg::Vec2d(arm, -arm), centre + osg::Vec2d(arm, -arm));
    }

private:
    void addSegment(const osg::Vec2d& fromPx, const osg::Vec2d& toPx) const
    {
        const double unit = 1.0 / view.referencePx;
        for (const osg::Vec2d& end : { fromPx * unit, toPx * unit }) {
            segments.emplace_back(static_cast<float>(end.x()), static_cast<float>(end.y()), 0.0F);
        }
    }

    const MatchView& view;
    MatchSegments& segments;
};

/// Extends a line from the end that is nearer to its vanishing point up to that; both ends, if it
/// vanishes at infinity.
void extend(const SegmentWriter& writer, const osg::Line2D& line, const osg::Vec3d& vanishing,
            double referencePx)
{
    const osg::Vec2d ends[] = { toDouble(line.getFirst()) * referencePx,
                                toDouble(line.getSecond()) * referencePx };
    osg::Vec2d along = ends[1] - ends[0];
    along *= 1.0 / along.length();
    for (const int end : { 0, 1 }) {
        const osg::Vec2d outwards = end == 0 ? along * -1.0 : along;
        const double length = vanishing.z() == 0.0
            ? kInfinity
            : (inPlane(vanishing) * referencePx - ends[end]).dot(outwards);
        writer.addDashes(Course { ends[end], outwards, 0.0, length }, kDashPx);
    }
}

void addHorizon(const SegmentWriter& writer, const osg::Vec3d& one, const osg::Vec3d& other,
                double referencePx)
{
    const osg::Vec3d& point = one.z() != 0.0 ? one : other;
    const osg::Vec3d& second = one.z() != 0.0 ? other : one;
    osg::Vec2d along = inPlane(second) - inPlane(point) * second.z();
    const double length = along.length();
    if (point.z() != 0.0 && length > 0.0) {
        along *= 1.0 / length;
        writer.addDashes(Course { inPlane(point) * referencePx, along, -kInfinity, kInfinity },
                         kHorizonDashPx);
    }
}

}  // namespace

bool isMatchLineShown(const osg::Line2D& line)
{
    return line != osg::Line2D() && isFinite(line.getFirst()) && isFinite(line.getSecond());
}

osg::Matrix clipFromLineUnits(const MatchView& view)
{
    osg::Matrix matrix;
    if (view.hasArea()) {
        matrix.setScale(2.0F * view.referencePx / static_cast<float>(view.widthPx),
                        2.0F * view.referencePx / static_cast<float>(view.heightPx), 1.0F);
        matrix.setTranslate(-1.0F, -1.0F, 0.0F);
    }
    return matrix;
}

MatchPart partUnderPointer(const MatchLines& lines, const MatchView& view,
                           const osg::Pnt2f& pointerPx)
{
    if (!view.hasArea()) {
        return MatchPart();
    }
    Candidate end;
    Candidate body;
    for (std::size_t i = 0; i < lines.lines.size(); ++i) {
        const osg::Line2D& line = lines.lines[i];
        if (!isMatchLineShown(line)) {
            continue;
        }
        const auto number = static_cast<PerspectiveMatchLine>(i + 1);
        const bool counts = lines.isAxisUsed[matchAxisOfLine(i)];
        const osg::Pnt2f first = line.getFirst() * view.referencePx;
        const osg::Pnt2f second = line.getSecond() * view.referencePx;
        end.offer((pointerPx - first).length(), counts, { number, kFirstEnd });
        end.offer((pointerPx - second).length(), counts, { number, kSecondEnd });
        body.offer(distanceToSegment(first, second, pointerPx), counts, { number, kLineBody });
    }
    if (end.distancePx <= (kEndRadiusPx + kHitTolerancePx) * view.pixelRatio) {
        return end.hit;
    }
    const bool isHit = body.distancePx <= (0.5F * kLineWidthPx + kHitTolerancePx) * view.pixelRatio;
    return isHit ? body.hit : MatchPart();
}

osg::Vec3d vanishingPointOf(const osg::Line2D& first, const osg::Line2D& second)
{
    if (!isMatchLineShown(first) || !isMatchLineShown(second)) {
        return {};
    }
    const osg::Vec2d start = toDouble(first.getFirst());
    osg::Vec2d along = toDouble(first.getSecond()) - start;
    const osg::Vec2d between = toDouble(second.getFirst()) - start;
    osg::Vec2d otherAlong = toDouble(second.getSecond()) - toDouble(second.getFirst());
    const double length = along.length();
    const double otherLength = otherAlong.length();
    if (!(length > 0.0) || !(otherLength > 0.0)) {
        return {};
    }
    along *= 1.0 / length;
    otherAlong *= 1.0 / otherLength;
    const double sine = cross(along, otherAlong);
    if (std::fabs(sine) < kParallelSine) {
        const bool isSameLine = std::fabs(cross(along, between)) < kParallelSine;
        return isSameLine ? osg::Vec3d() : osg::Vec3d(along.x(), along.y(), 0.0);
    }
    const osg::Vec2d meeting = start + along * (cross(between, otherAlong) / sine);
    if (meeting.length() > kFarthestVanishingPoint) {
        return { along.x(), along.y(), 0.0 };
    }
    return { meeting.x(), meeting.y(), 1.0 };
}

MatchGuides makeMatchGuides(const MatchLines& lines, const MatchView& view, std::size_t upAxis)
{
    MatchGuides guides;
    if (!view.hasArea()) {
        return guides;
    }
    const double referencePx = view.referencePx;
    std::array<osg::Vec3d, kMatchAxisCount> vanishing;
    for (std::size_t axis = 0; axis < kMatchAxisCount; ++axis) {
        const osg::Line2D& first = lines.lines[2 * axis];
        const osg::Line2D& second = lines.lines[2 * axis + 1];
        if (lines.isAxisUsed[axis]) {
            vanishing[axis] = vanishingPointOf(first, second);
        }
        if (vanishing[axis] == osg::Vec3d()) {
            continue;
        }
        const SegmentWriter writer(view, guides[axis]);
        extend(writer, first, vanishing[axis], referencePx);
        extend(writer, second, vanishing[axis], referencePx);
        if (vanishing[axis].z() != 0.0) {
            writer.addCross(inPlane(vanishing[axis]) * referencePx);
        }
    }
    addHorizon(SegmentWriter(view, guides[kMatchAxisCount]), vanishing[0], vanishing[3 - upAxis],
               referencePx);
    return guides;
}

}  // namespace nbec::manipulator::match
