// SPDX-License-Identifier: MIT
// Prints what the same drag on a ring gives at each tilt of the ring against the line of sight.
// With the argument "brief": every tenth tilt, as in the README.
#include "benchmarks/RingTilt.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

using nbec::manipulator::test::RingTilt;

constexpr std::array<double, 3> kBeside = { 20.0, 60.0, 90.0 };
constexpr std::size_t kBriefStep = 10;

void printSummary(double besideDeg, const std::vector<RingTilt>& rows)
{
    double least = rows.front().cleanDeg;
    double most = least;
    double jump = 0.0;
    double wobble = 0.0;
    double back = 0.0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        least = std::min(least, rows[i].cleanDeg);
        most = std::max(most, rows[i].cleanDeg);
        wobble = std::max(wobble, rows[i].wobbleDeg);
        back = std::max(back, std::abs(rows[i].backDeg));
        jump = i == 0 ? jump : std::max(jump, std::abs(rows[i].cleanDeg - rows[i - 1].cleanDeg));
    }
    std::printf("grabbed %.0f beside: clean %.2f to %.2f, from one tilt to the next at most %.2f, "
                "wobble at most %.2f, back at most %.4f\n",
                besideDeg, least, most, jump, wobble, back);
}

}  // namespace

int main(int argc, char** argv)
{
    const std::size_t step = argc > 1 && std::strcmp(argv[1], "brief") == 0 ? kBriefStep : 1;
    std::array<std::vector<RingTilt>, kBeside.size()> tables;
    std::transform(kBeside.begin(), kBeside.end(), tables.begin(),
                   nbec::manipulator::test::measureRingTilts);
    std::puts("| tilt | 20 beside: clean, wobble | 60 beside | 90 beside |\n|---|---|---|---|");
    for (std::size_t i = 0; i < tables[0].size(); i += step) {
        std::printf("| %.0f |", tables[0][i].tiltDeg);
        for (const auto& table : tables) {
            std::printf(" %.2f, %.2f |", table[i].cleanDeg, table[i].wobbleDeg);
        }
        std::puts("");
    }
    std::puts("");
    for (std::size_t i = 0; i < kBeside.size(); ++i) {
        printSummary(kBeside[i], tables[i]);
    }
    std::printf("circling a facing ring: %.3f\n", nbec::manipulator::test::measureFullCircle());
    return 0;
}
