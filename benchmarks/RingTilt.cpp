// SPDX-License-Identifier: MIT
#include "benchmarks/RingTilt.h"

#include "manipulator/drag/DragGeometry.h"

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::test {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kDegree = kPi / 180.0;
constexpr double kEyeDistance = 10.0;
constexpr double kHalfHeightPx = 300.0;
constexpr double kWayPx = 40.0;
constexpr double kWobblePx = 4.0;
constexpr double kLargestStepDeg = 45.0;
constexpr int kWaySteps = 40;
constexpr int kCircleSteps = 360;
constexpr int kTilts = 91;
constexpr int kWobblePhases = 8;
constexpr double kWobblesPerWay = 3.25;

double pixelsPerTangent()
{
    return kHalfHeightPx / std::tan(22.5 * kDegree);
}

/// A place on screen, pixels from the middle, y up.
struct Pixel
{
    double x;
    double y;
};

Pixel pixelOf(const osg::Pnt3f& point)
{
    const double scale = pixelsPerTangent() / (kEyeDistance - point.z());
    return { point.x() * scale, point.y() * scale };
}

osg::Line rayOf(const Pixel& pixel)
{
    osg::Vec3f direction(static_cast<float>(pixel.x / pixelsPerTangent()),
                         static_cast<float>(pixel.y / pixelsPerTangent()), -1.0F);
    direction.normalize();
    return osg::Line(osg::Pnt3f(0, 0, kEyeDistance), direction);
}

/// One drag on a ring around the origin.
class RingDrag
{
public:
    RingDrag(const osg::Vec3f& axis, const osg::Pnt3f& grabbed)
        : frame(ringDragFrame(osg::Pnt3f(0, 0, 0), axis, grabbed, sightOf(grabbed)))
        , last(frame.angleOf(grabbed))
    { }

    void stepTo(const Pixel& pixel)
    {
        osg::Pnt3f point;
        if (!intersectPlane(osg::Plane(frame.normal, frame.center), rayOf(pixel), point)) {
            finite = false;
            return;
        }
        const double angle = frame.angleOf(point);
        const double step = std::remainder(angle - last, 2.0 * kPi);
        finite = finite && std::abs(step) < kLargestStepDeg * kDegree;
        gathered += step;
        last = angle;
    }

    double gatheredDeg() const { return gathered / kDegree; }

    bool isFinite() const { return finite; }

private:
    static osg::Vec3f sightOf(const osg::Pnt3f& point)
    {
        osg::Vec3f sight = point - osg::Pnt3f(0, 0, kEyeDistance);
        sight.normalize();
        return sight;
    }

    RingFrame frame;
    double last;
    double gathered = 0.0;
    bool finite = true;
};

osg::Vec3f axisOf(double tilt)
{
    return osg::Vec3f(0, static_cast<float>(std::sin(tilt)), static_cast<float>(std::cos(tilt)));
}

/// The nearest point is below the centre on screen.
osg::Pnt3f pointOf(double tilt, double beside)
{
    return osg::Pnt3f(static_cast<float>(std::sin(beside)),
                      static_cast<float>(-std::cos(beside) * std::cos(tilt)),
                      static_cast<float>(std::cos(beside) * std::sin(tilt)));
}

/// Offset across at a part of the way; none at the start.
double wobbleAt(double part, int phase)
{
    const double shift = 2.0 * kPi * phase / kWobblePhases;
    return kWobblePx * std::sin(2.0 * kPi * kWobblesPerWay * part + shift);
}

double dragSideways(RingDrag& drag, const Pixel& start, int phase)
{
    for (int i = 1; i <= kWaySteps; ++i) {
        const double part = static_cast<double>(i) / kWaySteps;
        drag.stepTo(
            { start.x + kWayPx * part, start.y + (phase < 0 ? 0.0 : wobbleAt(part, phase)) });
    }
    return drag.gatheredDeg();
}

}  // namespace

RingTilt measureRingTilt(double tiltDeg, double besideDeg)
{
    const osg::Vec3f axis = axisOf(tiltDeg * kDegree);
    const osg::Pnt3f grabbed = pointOf(tiltDeg * kDegree, besideDeg * kDegree);
    const Pixel start = pixelOf(grabbed);
    RingTilt result {};
    result.tiltDeg = tiltDeg;
    RingDrag straight(axis, grabbed);
    result.cleanDeg = dragSideways(straight, start, -1);
    for (int i = kWaySteps - 1; i >= 0; --i) {
        straight.stepTo({ start.x + kWayPx * i / kWaySteps, start.y });
    }
    result.backDeg = straight.gatheredDeg();
    result.isFinite = straight.isFinite();
    for (int phase = 0; phase < kWobblePhases; ++phase) {
        RingDrag wobbling(axis, grabbed);
        const double wobbled = dragSideways(wobbling, start, phase);
        result.wobbleDeg = std::max(result.wobbleDeg, std::abs(wobbled - result.cleanDeg));
        result.isFinite = result.isFinite && wobbling.isFinite();
    }
    return result;
}

std::vector<RingTilt> measureRingTilts(double besideDeg)
{
    std::vector<RingTilt> rows;
    for (int tilt = 0; tilt < kTilts; ++tilt) {
        rows.push_back(measureRingTilt(tilt, besideDeg));
    }
    return rows;
}

double measureFullCircle()
{
    const osg::Pnt3f grabbed = pointOf(0.0, 0.0);
    const Pixel start = pixelOf(grabbed);
    RingDrag drag(axisOf(0.0), grabbed);
    for (int i = 1; i <= kCircleSteps; ++i) {
        const double angle = 2.0 * kPi * i / kCircleSteps;
        drag.stepTo({ start.x * std::cos(angle) - start.y * std::sin(angle),
                      start.x * std::sin(angle) + start.y * std::cos(angle) });
    }
    return drag.gatheredDeg();
}

}  // namespace nbec::manipulator::test
