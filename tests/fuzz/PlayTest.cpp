// SPDX-License-Identifier: MIT
// Replays what the fuzzers have found worth keeping, and plays at random beside it.
#include "tests/fuzz/Play.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <random>

namespace nbec::manipulator::test {

/// How tests name a target.
void PrintTo(const PlayTarget& target, std::ostream* out)
{
    *out << target.name;
}

namespace {

using Input = std::vector<std::uint8_t>;

class Plays : public testing::TestWithParam<PlayTarget>
{
protected:
    Plays() { preparePlays(); }

    static void expectNoFault(const Input& input)
    {
        ASSERT_EQ(play(GetParam(), input.data(), input.size()), "");
    }
};

INSTANTIATE_TEST_SUITE_P(Targets, Plays, testing::ValuesIn(playTargets()),
                         [](const auto& row) { return row.param.name; });

}  // namespace

TEST_P(Plays, NoKeptSequenceBreaksAnInvariant)
{
    const std::filesystem::path corpus = std::filesystem::path(NB_FUZZ_CORPUS) / GetParam().name;
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
        SCOPED_TRACE(entry.path());
        std::ifstream file(entry.path(), std::ios::binary);
        expectNoFault(Input(std::istreambuf_iterator<char>(file), {}));
        ++count;
    }
    EXPECT_GT(count, 0U);
}

TEST_P(Plays, NoRandomSequenceBreaksAnInvariant)
{
    constexpr unsigned kPlays = 300;
    constexpr std::size_t kBytes = 900;
    for (unsigned seed = 0; seed < kPlays; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        Input input(kBytes);
        for (std::uint8_t& byte : input) {
            byte = static_cast<std::uint8_t>(random());
        }
        expectNoFault(input);
    }
}

}  // namespace nbec::manipulator::test
