// SPDX-License-Identifier: MIT
#include "tests/fuzz/GizmoPlay.h"

#include "manipulator/UniversalTransformManipulator2.h"

#include <OpenSG/OSGSimpleGeometry.h>

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace nbec::manipulator::test {

TEST(GizmoPlay, NoSequenceOfHostCallsBreaksAnInvariant)
{
    // What is made once per process and kept: shared handle geometry, the default material.
    {
        const UniversalTransformManipulator2 first;
    }
    osg::getDefaultMaterial();
    constexpr int kPlays = 300;
    constexpr std::size_t kBytes = 900;
    for (unsigned seed = 0; seed < kPlays; ++seed) {
        std::mt19937 random(seed);
        std::vector<std::uint8_t> bytes(kBytes);
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(random());
        }
        ASSERT_EQ(playGizmo(bytes.data(), bytes.size()), "") << "seed " << seed;
    }
}

}  // namespace nbec::manipulator::test
