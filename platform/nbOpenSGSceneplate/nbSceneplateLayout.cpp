// SPDX-License-Identifier: MIT
#include "nbSceneplateLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;
constexpr float kQuarterDeg = 90.0F;

struct Point
{
    double x = 0.0;
    double y = 0.0;
};

/// A turned rectangle in pixels.
struct Rectangle
{
    Point centre;
    Point half;  ///< along its own axes
    Point axis { 1.0, 0.0 };  ///< cosine and sine of the turn
};

osg::Pnt2f toPnt(const Point& point)
{
    return osg::Pnt2f(static_cast<float>(point.x), static_cast<float>(point.y));
}

bool isQuarterTurn(float degrees)
{
    return std::fmod(degrees, kQuarterDeg) == 0.0F;
}

/// Cosine and sine; exact for quarter turns.
Point direction(float degrees)
{
    if (!isQuarterTurn(degrees)) {
        return { std::cos(degrees * kDegree), std::sin(degrees * kDegree) };
    }
    constexpr Point kQuarters[] = { { 1.0, 0.0 }, { 0.0, 1.0 }, { -1.0, 0.0 }, { 0.0, -1.0 } };
    constexpr float kWhole = 360.0F;
    const float rest = std::fmod(degrees, kWhole);
    return kQuarters[static_cast<int>((rest < 0.0F ? rest + kWhole : rest) / kQuarterDeg) % 4];
}

Point anchorPoint(osg::Int32 anchor, int widthPx, int heightPx)
{
    const bool isKnown =
        anchor >= osg::Sceneplate::BottomLeft && anchor <= osg::Sceneplate::TopRight;
    const int place = isKnown ? anchor : osg::Sceneplate::Centre;
    const int column = place % 3;
    const int row = place / 3;
    return { 0.5 * column * widthPx, (1.0 - 0.5 * row) * heightPx };
}

bool hasArea(const osg::SceneplatePtr& plate, int widthPx, int heightPx)
{
    return plate != osg::NullFC && widthPx > 0 && heightPx > 0;
}

/// As the fields have it.
Rectangle exactPlace(const osg::SceneplatePtr& plate, int widthPx, int heightPx)
{
    Rectangle result;
    if (!hasArea(plate, widthPx, heightPx)) {
        return result;
    }
    const double unit = heightPx;
    const osg::Vec2f& position = plate->getPosition();
    const osg::Vec2f& size = plate->getSize();
    const Point anchor = anchorPoint(plate->getAnchor(), widthPx, heightPx);
    result.centre = { anchor.x + unit * position.x(), anchor.y - unit * position.y() };
    const double factor = 0.5 * unit * plate->getScale();
    result.half = { factor * size.x(), factor * size.y() };
    result.axis = direction(plate->getRotation());
    return result;
}

double roundHalfUp(double value)
{
    return std::floor(value + 0.5);
}

/// Whole pixels along one side of the view.
void roundSide(double& centre, double& half)
{
    const double whole = std::max(roundHalfUp(2.0 * half), 1.0);
    half = 0.5 * whole;
    centre = roundHalfUp(centre - half) + half;
}

/// As drawn.
Rectangle drawnPlace(const osg::SceneplatePtr& plate, int widthPx, int heightPx)
{
    Rectangle result = exactPlace(plate, widthPx, heightPx);
    if (!hasArea(plate, widthPx, heightPx) || !isQuarterTurn(plate->getRotation())) {
        return result;
    }
    const bool isUpright = result.axis.y == 0.0;
    roundSide(result.centre.x, isUpright ? result.half.x : result.half.y);
    roundSide(result.centre.y, isUpright ? result.half.y : result.half.x);
    return result;
}

/// Pixel position of a place given in half sides from the centre, y up.
Point pointOf(const Rectangle& rectangle, double alongX, double alongY)
{
    const double x = alongX * rectangle.half.x;
    const double y = alongY * rectangle.half.y;
    return { rectangle.centre.x + rectangle.axis.x * x - rectangle.axis.y * y,
             rectangle.centre.y - rectangle.axis.y * x - rectangle.axis.x * y };
}

std::array<Point, 4> cornersOf(const Rectangle& rectangle)
{
    return { pointOf(rectangle, -1.0, -1.0), pointOf(rectangle, 1.0, -1.0),
             pointOf(rectangle, 1.0, 1.0), pointOf(rectangle, -1.0, 1.0) };
}

}  // namespace

osg::Pnt2f nbSceneplateLayout::anchorPosition(osg::Int32 anchor, int widthPx, int heightPx)
{
    return widthPx > 0 && heightPx > 0 ? toPnt(anchorPoint(anchor, widthPx, heightPx))
                                       : osg::Pnt2f(0.0F, 0.0F);
}

bool nbSceneplateLayout::isShown(const osg::SceneplatePtr& plate)
{
    if (plate == osg::NullFC || !plate->getVisible()) {
        return false;
    }
    const osg::Vec2f& position = plate->getPosition();
    const osg::Vec2f size = plate->getSize() * plate->getScale();
    const float numbers[] = { position.x(), position.y(), size.x(), size.y(),
                              plate->getRotation() };
    // Not finite: also false in the comparisons.
    return std::all_of(std::begin(numbers), std::end(numbers),
                       [](float number) { return std::isfinite(number); }) &&
        plate->getScale() > 0.0F && size.x() > 0.0F && size.y() > 0.0F &&
        plate->getOpacity() > 0.0F;
}

bool nbSceneplateLayout::isOnPixels(const osg::SceneplatePtr& plate)
{
    return plate != osg::NullFC && isQuarterTurn(plate->getRotation());
}

osg::Pnt2f nbSceneplateLayout::centre(const osg::SceneplatePtr& plate, int widthPx, int heightPx)
{
    return toPnt(exactPlace(plate, widthPx, heightPx).centre);
}

nbSceneplateLayout::Corners nbSceneplateLayout::corners(const osg::SceneplatePtr& plate,
                                                        int widthPx, int heightPx)
{
    const std::array<Point, 4> exact = cornersOf(drawnPlace(plate, widthPx, heightPx));
    return { toPnt(exact[0]), toPnt(exact[1]), toPnt(exact[2]), toPnt(exact[3]) };
}

nbSceneplateLayout::Frame nbSceneplateLayout::frame(const std::vector<osg::SceneplatePtr>& plates,
                                                    int widthPx, int heightPx)
{
    std::vector<osg::SceneplatePtr> present;
    std::copy_if(plates.begin(), plates.end(), std::back_inserter(present),
                 [](const osg::SceneplatePtr& plate) { return plate != osg::NullFC; });
    if (present.empty() || widthPx <= 0 || heightPx <= 0) {
        return {};
    }
    Frame result;
    if (present.size() == 1) {
        const Rectangle own = exactPlace(present.front(), widthPx, heightPx);
        result.centre = toPnt(own.centre);
        result.size =
            osg::Vec2f(static_cast<float>(2.0 * own.half.x), static_cast<float>(2.0 * own.half.y));
        result.rotation = present.front()->getRotation();
        return result;
    }
    constexpr double kMost = std::numeric_limits<double>::max();
    Point low { kMost, kMost };
    Point high { -kMost, -kMost };
    for (const osg::SceneplatePtr& plate : present) {
        for (const Point& corner : cornersOf(exactPlace(plate, widthPx, heightPx))) {
            low = { std::min(low.x, corner.x), std::min(low.y, corner.y) };
            high = { std::max(high.x, corner.x), std::max(high.y, corner.y) };
        }
    }
    result.centre = toPnt({ 0.5 * (low.x + high.x), 0.5 * (low.y + high.y) });
    result.size =
        osg::Vec2f(static_cast<float>(high.x - low.x), static_cast<float>(high.y - low.y));
    return result;
}

bool nbSceneplateLayout::contains(const osg::SceneplatePtr& plate, const osg::Pnt2f& px,
                                  int widthPx, int heightPx, osg::Pnt2f* position)
{
    if (!hasArea(plate, widthPx, heightPx)) {
        return false;
    }
    const Rectangle place = drawnPlace(plate, widthPx, heightPx);
    const double right = px.x() - place.centre.x;
    const double up = place.centre.y - px.y();
    const double x = 0.5 + 0.5 * (place.axis.x * right + place.axis.y * up) / place.half.x;
    const double y = 0.5 + 0.5 * (place.axis.x * up - place.axis.y * right) / place.half.y;
    // Not numbers fail as well.
    if (!(x >= 0.0 && x < 1.0 && y >= 0.0 && y < 1.0)) {
        return false;
    }
    if (position != nullptr) {
        *position = toPnt({ x, y });
    }
    return true;
}

osg::Vec2f nbSceneplateLayout::toOffset(const osg::Vec2f& px, int heightPx)
{
    if (heightPx <= 0) {
        return osg::Vec2f(0.0F, 0.0F);
    }
    const auto unit = static_cast<float>(heightPx);
    return osg::Vec2f(px.x() / unit, -px.y() / unit);
}

osg::Vec2f nbSceneplateLayout::positionAt(osg::Int32 anchor, const osg::Pnt2f& centrePx,
                                          int widthPx, int heightPx)
{
    return toOffset(centrePx - anchorPosition(anchor, widthPx, heightPx), heightPx);
}
