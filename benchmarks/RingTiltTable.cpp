// SPDX-License-Identifier: MIT
// Prints what drags on a ring turn by at each tilt of the ring against the line of sight, by three
// rules: a bead on a wire from 70 degrees on (RingDrag), the ring's own plane, and that plane
// turned towards the viewer about the ring's tangent from 40 degrees on, as it once was.
#include "manipulator/drag/DragGeometry.h"
#include "manipulator/drag/RingDrag.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

namespace {

using nbec::manipulator::DragTrack;
using nbec::manipulator::RingDrag;
using nbec::manipulator::Sight;
using osg::Pnt3f;
using osg::Vec3f;

constexpr double kPi = 3.14159265358979323846;
constexpr double kDegree = kPi / 180.0;
constexpr float kEyeDistance = 10.0F;
/// Pixels of a tangent of 1: 600 pixels high under 45 degrees.
const double kPixels = 300.0 / std::tan(22.5 * kDegree);
constexpr int kDrags = 400;
constexpr double kWobblePx = 4.0;
constexpr double kRightWithinDeg = 10.0;
constexpr std::array<double, 11> kTilts = { 0, 20, 40, 50, 60, 69, 71, 75, 80, 85, 88 };

struct Pixel
{
    double x;
    double y;
};

Pixel pixelOf(const Pnt3f& point)
{
    const double scale = kPixels / (kEyeDistance - point.z());
    return { point.x() * scale, point.y() * scale };
}

/// A pointer is at whole pixels.
osg::Line rayOf(const Pixel& pixel)
{
    Vec3f direction(static_cast<float>(std::round(pixel.x) / kPixels),
                    static_cast<float>(std::round(pixel.y) / kPixels), -1.0F);
    direction.normalize();
    return osg::Line(Pnt3f(0, 0, kEyeDistance), direction);
}

enum Rule
{
    Bead,
    OwnPlane,
    TurnedPlane
};

/// Turns two axes in their plane: first towards second.
void turn(Vec3f& first, Vec3f& second, double angle)
{
    const auto cosine = static_cast<float>(std::cos(angle));
    const auto sine = static_cast<float>(std::sin(angle));
    const Vec3f turned = first * cosine + second * sine;
    second = second * cosine - first * sine;
    first = turned;
}

/// The ring turned about its tangent until it is tilted by 40 degrees, then about its radius.
void faceViewer(RingDrag& ring, Vec3f sight)
{
    const double greatest = 40.0 * kDegree;
    sight *= ring.normal.dot(sight) < 0.0F ? -1.0F : 1.0F;
    const double alongNormal = ring.normal.dot(sight);
    const double alongRadial = ring.radial.dot(sight);
    const double across = std::hypot(alongNormal, alongRadial);
    if (alongNormal >= std::cos(greatest)) {
        return;
    }
    const Pnt3f held = ring.center + ring.radial * ring.radius;
    const double angle =
        std::acos(alongNormal / across) - std::acos(std::min(1.0, std::cos(greatest) / across));
    turn(ring.normal, ring.radial, alongRadial < 0.0 ? -angle : angle);
    if (across < std::cos(greatest)) {
        const double rest = std::acos(across) - greatest;
        turn(ring.normal, ring.tangent, ring.tangent.dot(sight) < 0.0F ? -rest : rest);
    }
    ring.center = held - ring.radial * ring.radius;
}

/// A drag on a ring of radius 1 around the origin.
class Drag
{
public:
    Drag(Rule rule, const Vec3f& axis, const Pnt3f& grabbed)
        : ring(RingDrag::begin(Pnt3f(), axis, grabbed,
                               { Vec3f(0, 0, -1), Pnt3f(0, 0, kEyeDistance) }))
    {
        ring.isWire = ring.isWire && rule == Bead;
        if (rule == TurnedPlane) {
            Vec3f sight = grabbed - Pnt3f(0, 0, kEyeDistance);
            sight.normalize();
            faceViewer(ring, sight);
        }
        goTo(pixelOf(grabbed));
        gathered = 0.0;
    }

    void goTo(const Pixel& pixel)
    {
        const std::optional<Pnt3f> hit = ring.follow(rayOf(pixel), track);
        if (!hit) {
            return;
        }
        const Vec3f arm = *hit - ring.center;
        const double angle = std::atan2(arm.dot(ring.tangent), arm.dot(ring.radial));
        gathered += std::remainder(angle - last, 2.0 * kPi);
        last = angle;
    }

    double turnedDeg() const { return gathered / kDegree; }

private:
    RingDrag ring;
    DragTrack track;
    double last = 0.0;
    double gathered = 0.0;
};

/// A tilted ring, rolled at random, and where it is grabbed.
struct Ring
{
    Ring(double tilt, double roll, double grab)
        : grabbedAt(grab)
        , first(static_cast<float>(std::cos(roll)), static_cast<float>(std::sin(roll)), 0)
        , axis(static_cast<float>(-std::sin(roll) * std::sin(tilt)),
               static_cast<float>(std::cos(roll) * std::sin(tilt)),
               static_cast<float>(std::cos(tilt)))
        , second(axis.cross(first))
    { }

    Pnt3f at(double angle) const
    {
        return Pnt3f(first * static_cast<float>(std::cos(grabbedAt + angle)) +
                     second * static_cast<float>(std::sin(grabbedAt + angle)));
    }

    double grabbedAt;
    Vec3f first;
    Vec3f axis;
    Vec3f second;
};

// == Ways of a pointer; each answers what the drag has turned by, less what it should have

/// @param wobblePx  across the drawn ring, to either side by turns
double alongBy(Drag& drag, const Ring& ring, int fromDeg, int toDeg, double wobblePx)
{
    const int way = toDeg > fromDeg ? 1 : -1;
    for (int i = fromDeg + way; i != toDeg + way; i += way) {
        const Pixel pixel = pixelOf(ring.at(i * kDegree));
        const Pixel ahead = pixelOf(ring.at((i + 0.1) * kDegree));
        const double length = std::hypot(ahead.x - pixel.x, ahead.y - pixel.y);
        const double across = (i % 2 == 0 ? wobblePx : -wobblePx) / length;
        drag.goTo(
            { pixel.x - across * (ahead.y - pixel.y), pixel.y + across * (ahead.x - pixel.x) });
    }
    return drag.turnedDeg() - toDeg;
}

double quarter(Drag& drag, const Ring& ring)
{
    return alongBy(drag, ring, 0, 90, 0.0);
}

double wobblingQuarter(Drag& drag, const Ring& ring)
{
    return alongBy(drag, ring, 0, 90, kWobblePx);
}

double onceRound(Drag& drag, const Ring& ring)
{
    return alongBy(drag, ring, 0, 360, 0.0);
}

double retraced(Drag& drag, const Ring& ring)
{
    alongBy(drag, ring, 0, 90, 0.0);
    return alongBy(drag, ring, 90, 0, 0.0);
}

/// Once round on a circle outside the ring.
double outside(Drag& drag, const Ring& ring)
{
    const Pixel start = pixelOf(ring.at(0.0));
    const double radius = kPixels / kEyeDistance * (1.2 + 2.8 * ring.grabbedAt / (2.0 * kPi));
    const double from = std::atan2(start.y, start.x);
    for (int i = 0; i <= 360; ++i) {
        const double angle = from + i * kDegree;
        drag.goTo({ radius * std::cos(angle), radius * std::sin(angle) });
    }
    drag.goTo(start);
    return drag.turnedDeg() - 360.0;
}

using Way = double (*)(Drag&, const Ring&);

/// Absolute errors of many drags, sorted.
std::vector<double> errorsOf(Rule rule, double tiltDeg, Way way)
{
    std::mt19937 random(static_cast<unsigned>(tiltDeg));
    std::uniform_real_distribution<double> angles(0.0, 2.0 * kPi);
    std::vector<double> errors;
    for (int i = 0; i < kDrags; ++i) {
        const double roll = angles(random);
        const Ring ring(tiltDeg * kDegree, roll, angles(random));
        Drag drag(rule, ring.axis, ring.at(0.0));
        errors.push_back(std::abs(way(drag, ring)));
    }
    std::sort(errors.begin(), errors.end());
    return errors;
}

void printErrors(const char* title, Way way)
{
    std::printf("\n%s: median, 95 %%, worst\n\n| tilt | bead | own plane | turned plane |\n"
                "|---|---|---|---|\n",
                title);
    for (const double tilt : kTilts) {
        std::printf("| %.0f |", tilt);
        for (const Rule rule : { Bead, OwnPlane, TurnedPlane }) {
            const std::vector<double> errors = errorsOf(rule, tilt, way);
            std::printf(" %.1f, %.1f, %.1f |", errors[kDrags / 2], errors[kDrags * 95 / 100],
                        errors.back());
        }
        std::puts("");
    }
}

void printRight(const char* title, Way way)
{
    std::printf("\n%s: how many of 100 are right within 10 degrees\n\n"
                "| tilt | bead | own plane | turned plane |\n|---|---|---|---|\n",
                title);
    for (const double tilt : kTilts) {
        std::printf("| %.0f |", tilt);
        for (const Rule rule : { Bead, OwnPlane, TurnedPlane }) {
            const std::vector<double> errors = errorsOf(rule, tilt, way);
            const auto right =
                std::lower_bound(errors.begin(), errors.end(), kRightWithinDeg) - errors.begin();
            std::printf(" %.1f |", 100.0 * static_cast<double>(right) / kDrags);
        }
        std::puts("");
    }
}

}  // namespace

int main()
{
    printErrors("A quarter turn along the drawn ring, degrees off", quarter);
    printErrors("The same with 4 pixels of wobble across", wobblingQuarter);
    printErrors("The same and back, degrees left", retraced);
    printRight("Once round along the drawn ring", onceRound);
    printRight("Once round on a circle outside, 1.2 to 4 radii", outside);
    return 0;
}
