// SPDX-License-Identifier: MIT
#include "manipulator/match/PerspectiveMatchLayout.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace nbec::manipulator::match {

namespace {

osg::Line2D line(float x1, float y1, float x2, float y2)
{
    return osg::Line2D(osg::Pnt2f(x1, y1), osg::Pnt2f(x2, y2));
}

/// All lines empty but the given ones.
MatchLines linesWith(std::initializer_list<std::pair<PerspectiveMatchLine, osg::Line2D>> given)
{
    MatchLines lines;
    for (const auto& [number, value] : given) {
        lines.lines[matchLineIndex(number)] = value;
    }
    return lines;
}

}  // namespace

TEST(PerspectiveMatchLayout, EndsComeBeforeLinesAndTheNearestWins)
{
    using Line = PerspectiveMatchLine;
    // X1 runs along y = 500 px from x = 200 to 800, Z1 crosses it at x = 400.
    const MatchLines lines = linesWith({ { Line::XLine1, line(0.2F, 0.5F, 0.8F, 0.5F) },
                                         { Line::ZLine1, line(0.4F, 0.1F, 0.4F, 0.9F) },
                                         { Line::YLine2, line(0.812F, 0.5F, 0.9F, 0.9F) } });

    const std::tuple<const char*, float, float, MatchPart> rows[] = {
        { "first end", 200, 500, { Line::XLine1, kFirstEnd } },
        { "an end nearly 10 px away, the line under the pointer",
          209,
          500,
          { Line::XLine1, kFirstEnd } },
        { "beyond the end's reach", 211, 500, { Line::XLine1, kLineBody } },
        { "5 px beside the line", 600, 505, { Line::XLine1, kLineBody } },
        { "more than 5 px beside it", 600, 505.5F, {} },
        { "the nearer line at a crossing", 401, 502, { Line::ZLine1, kLineBody } },
        { "between two ends, nearer to the first one", 805, 500, { Line::XLine1, kSecondEnd } },
        { "between two ends, nearer to the other one", 808, 500, { Line::YLine2, kFirstEnd } },
        { "on the course of the line, but beyond its end", 180, 500, {} },
        { "nothing near", 100, 900, {} }
    };
    for (const auto& [name, x, y, expected] : rows) {
        EXPECT_EQ(partUnderPointer(lines, MatchView { 1600, 1000, 1000 }, osg::Pnt2f(x, y)),
                  expected)
            << name;
    }
    EXPECT_EQ(partUnderPointer(lines, MatchView { 1600, 1000, 1000, 2 }, osg::Pnt2f(600, 510)),
              (MatchPart { Line::XLine1, kLineBody }))
        << "two device pixels per logical pixel";
    EXPECT_FALSE(partUnderPointer(lines, MatchView(), osg::Pnt2f(0, 0)).isSet()) << "no view";
}

TEST(PerspectiveMatchLayout, OfPartsAtOneDistanceThatOfAUsedAxisWins)
{
    using Line = PerspectiveMatchLine;
    const osg::Line2D same = line(0.2F, 0.2F, 0.6F, 0.6F);
    MatchLines lines = linesWith({ { Line::XLine2, same }, { Line::YLine1, same } });
    const MatchView view { 1000, 1000, 1000 };

    EXPECT_EQ(partUnderPointer(lines, view, osg::Pnt2f(200, 200)).line, Line::XLine2);
    lines.isAxisUsed = { false, true, true };
    EXPECT_EQ(partUnderPointer(lines, view, osg::Pnt2f(200, 200)).line, Line::YLine1);
    EXPECT_EQ(partUnderPointer(lines, view, osg::Pnt2f(400, 400)),
              (MatchPart { Line::YLine1, kLineBody }));
}

TEST(PerspectiveMatchLayout, OnlyLinesThatCanBeDrawnAreHit)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_FALSE(isMatchLineShown(osg::Line2D()));
    EXPECT_FALSE(isMatchLineShown(line(0.1F, nan, 0.2F, 0.3F)));
    EXPECT_FALSE(isMatchLineShown(line(0.1F, 0.1F, std::numeric_limits<float>::infinity(), 0.3F)));
    EXPECT_TRUE(isMatchLineShown(line(0.0F, 0.0F, 0.3F, 0.0F)));
    const osg::Line2D collapsed = line(0.3F, 0.3F, 0.3F, 0.3F);
    EXPECT_TRUE(isMatchLineShown(collapsed)) << "its ends can be pulled apart";

    const MatchView view { 1000, 1000, 1000 };
    const MatchLines lines = linesWith({ { PerspectiveMatchLine::ZLine2, collapsed } });
    EXPECT_EQ(partUnderPointer(lines, view, osg::Pnt2f(303, 300)),
              (MatchPart { PerspectiveMatchLine::ZLine2, kFirstEnd }));
    EXPECT_FALSE(partUnderPointer(lines, view, osg::Pnt2f(0, 0)).isSet()) << "of an empty line";
}

TEST(PerspectiveMatchLayout, VanishingPoints)
{
    const std::tuple<const char*, osg::Line2D, osg::Line2D, osg::Vec3d> rows[] = {
        { "they meet at (2, 0.5)", line(0, 0, 1, 0.25F), line(0, 1, 1, 0.75F), { 2, 0.5, 1 } },
        { "between their ends", line(0, 0, 1, 1), line(0, 1, 1, 0), { 0.5, 0.5, 1 } },
        { "parallel", line(0, 0, 1, 0), line(0.5F, 1, 3, 1), { 1, 0, 0 } },
        { "beyond what counts", line(0, 0, 1, 0), line(0, 1, 1, 0.999F), { 1, 0, 0 } },
        { "one line twice", line(0, 0, 1, 0.5F), line(2, 1, 4, 2), {} },
        { "no length", line(0.5F, 0.5F, 0.5F, 0.5F), line(0, 1, 1, 0), {} },
        { "empty", osg::Line2D(), line(0, 1, 1, 0), {} },
    };
    for (const auto& [name, first, second, place] : rows) {
        EXPECT_LT((vanishingPointOf(first, second) - place).length(), 1e-6) << name;
    }
}

TEST(PerspectiveMatchLayout, GuidesStayInTheViewHoweverFarTheLinesReach)
{
    using Line = PerspectiveMatchLine;

    const std::tuple<const char*, osg::Line2D, osg::Line2D, bool> rows[] = {
        { "a far point", line(0.1F, 0.1F, 0.3F, 0.1F), line(0.1F, 0.5F, 0.3F, 0.499F), true },
        { "parallel", line(0.4F, 0.4F, 0.5F, 0.4F), line(0.4F, 0.6F, 0.5F, 0.6F), true },
        { "ends far outside", line(-9e3F, 0.5F, -8e3F, 0.5F), line(-9e3F, 9, -8e3F, 8), true },
        { "away from the view", line(5, 5, 6, 6), line(5, 6, 6, 6.5F), false },
        { "meeting between their ends", line(0, 0, 1, 1), line(0, 1, 1, 0), true },
    };
    const MatchView view { 900, 600, 600 };
    for (const auto& [name, first, second, isSeen] : rows) {
        const MatchLines lines = linesWith({ { Line::ZLine1, first }, { Line::ZLine2, second } });
        const MatchSegments dashes = makeMatchGuides(lines, view, 1)[2];
        EXPECT_EQ(!dashes.empty(), isSeen) << name;
        EXPECT_LT(dashes.size(), 1000U) << name;
        for (const osg::Pnt3f& point : dashes) {
            EXPECT_GE(point.x(), -0.02F) << name;
            EXPECT_LE(point.x(), 1.52F) << name;
            EXPECT_GE(point.y(), -0.02F) << name;
            EXPECT_LE(point.y(), 1.02F) << name;
        }
    }
}

}  // namespace nbec::manipulator::match
