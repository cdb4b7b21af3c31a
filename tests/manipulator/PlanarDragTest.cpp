// SPDX-License-Identifier: MIT
// What drags of the planar gizmo compute, with numbers worked out by hand.
#include "manipulator/texture/PlanarDrag.h"

#include "manipulator/texture/PlanarHandles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::texture::test {

namespace {

using osg::Pnt3f;
using osg::Vec3f;
using Active = PlanarActiveMode;

constexpr float kHalfPi = 1.57079633F;
const Vec3f kSight(0, 0, -1);

/// A projection of half sides (2, 3, 0.5) around (10, 0, 0), its x axis along the world's y, on an
/// object twice as big as the world.
ProjectionFrame turnedFrame()
{
    ProjectionFrame frame;
    frame.worldFromObject.setScale(2, 2, 2);
    frame.translation = Vec3f(5, 0, 0);
    frame.rotation = osg::Quaternion(Vec3f(0, 0, 1), kHalfPi);
    frame.scale = frame.projectionScale = Vec3f(2, 3, 0.5F);
    return frame;
}

/// World of a place along the projection's axes, object units.
Pnt3f at(float x, float y, float z = 0)
{
    return Pnt3f(10 - 2 * y, 2 * x, 2 * z);
}

ProjectionDrag beginDrag(const ProjectionFrame& frame, Active handle)
{
    const std::vector<HandleRow> rows = makePlanarTable().rows;
    const auto row = std::find_if(rows.begin(), rows.end(), [handle](const HandleRow& each) {
        return each.handle == static_cast<int>(handle);
    });
    return texture::beginDrag(frame, *row, kSight);
}

::testing::AssertionResult isNear(const Vec3f& found, const Vec3f& expected)
{
    return found.equals(expected, 1e-4F) ? ::testing::AssertionSuccess()
                                         : ::testing::AssertionFailure() << found;
}

}  // namespace

TEST(PlanarDrag, AnglesAndFactorsRunInTheObjectsUnits)
{
    const Pnt3f from = at(1, 1, 0.5F);
    const Pnt3f to = at(3, -1, 2);

    const ProjectionDrag ring = beginDrag(turnedFrame(), Active::Rotate);
    const ProjectionDrag plain = beginDrag(ProjectionFrame(), Active::Rotate);
    EXPECT_EQ(angleBetween(plain, Pnt3f(0, 0, 1), Pnt3f(1, 0, 0)), std::nullopt);
    EXPECT_EQ(angleBetween(plain, Pnt3f(1, 0, 0), Pnt3f(0, 0, 1)), std::nullopt);
    EXPECT_NEAR(angleBetween(ring, at(3, 0), at(0, 2)).value(), kHalfPi, 1e-5F);
    EXPECT_NEAR(angleBetween(ring, at(1, 1), at(1, -1)).value(), -kHalfPi, 1e-5F);
    EXPECT_NEAR(turnAboutZ(Vec3f(1e25F, 0, 0), Vec3f(1, 1e25F, 0)), kHalfPi, 1e-5F)
        << "tiny object";

    const auto factor = [](Active handle, const Pnt3f& first, const Pnt3f& second) {
        return factorBetween(beginDrag(turnedFrame(), handle), first, second);
    };
    EXPECT_NEAR(factor(Active::ScaleX, from, to), 3, 1e-5F);
    EXPECT_NEAR(factor(Active::ScaleY, at(0, 2), at(0, 3)), 1.5F, 1e-5F);
    EXPECT_NEAR(factor(Active::ScaleZ, from, to), 4, 1e-5F);
    // Past the centre nothing is mirrored. Deliberate: z does not accept 0.
    for (const Active handle : { Active::ScaleX, Active::ScaleY }) {
        EXPECT_FLOAT_EQ(factor(handle, at(1, 1, 1), at(-1, -1, -1)), 0.01F);
        const ProjectionDrag unturned = beginDrag(ProjectionFrame(), handle);
        EXPECT_EQ(factorBetween(unturned, Pnt3f(1, 1, 1), Pnt3f()), 0);
    }
    EXPECT_FLOAT_EQ(factor(Active::ScaleZ, at(1, 1, 1), at(0, 0, 0)), 0.01F);
    EXPECT_EQ(factor(Active::ScaleX, at(0, 0), at(1, 1)), 1) << "from the centre";
    // The greater motion by its side.
    EXPECT_NEAR(factor(Active::ScaleUniform, at(0, 0), at(1, 0)), 1.5F, 1e-5F);
    EXPECT_NEAR(factor(Active::ScaleUniform, at(0, 0), at(1, 3)), 2, 1e-5F);
    EXPECT_NEAR(factor(Active::ScaleUniform, at(0, 0), at(-1, 0)), 1, 1e-5F);
    EXPECT_FLOAT_EQ(factor(Active::ScaleUniform, at(0, 0), at(-9, -9)), 0.001F);
}

TEST(PlanarDrag, AFactorScalesItsAxisOrAlsoTheOther)
{
    const std::tuple<Active, bool, Vec3f> rows[] = {
        { Active::ScaleX, false, { 4, 3, 0.5F } },      { Active::ScaleX, true, { 4, 6, 0.5F } },
        { Active::ScaleY, false, { 2, 6, 0.5F } },      { Active::ScaleY, true, { 4, 6, 0.5F } },
        { Active::ScaleZ, false, { 2, 3, 1 } },         { Active::ScaleZ, true, { 2, 3, 1 } },
        { Active::ScaleUniform, false, { 4, 6, 0.5F } }
    };

    for (const auto& [handle, keepsRatio, scale] : rows) {
        const ProjectionDrag drag = beginDrag(turnedFrame(), handle);
        EXPECT_TRUE(isNear(scaledProjection(drag, 2, keepsRatio), scale));
    }
}

TEST(PlanarDrag, TabsMoveOneEndOfASideAndTheCentreHalfAsFar)
{
    const Sights sights = { kSight, kSight, kSight };

    // clang-format off
    const struct
    {
        const char* name;
        Active handle;
        bool keepsRatio;
        Vec3f motion, halfSizes, shift;
    } rows[] = {
        { "right", Active::ScaleRight, false, { 1, 9, 0 }, { 2.5F, 3, 0.5F }, { 0.5F, 0, 0 } },
        { "left", Active::ScaleLeft, false, { 1, 9, 0 }, { 1.5F, 3, 0.5F }, { 0.5F, 0, 0 } },
        { "upper", Active::ScaleUpper, false, { 9, 2, 0 }, { 2, 4, 0.5F }, { 0, 1, 0 } },
        { "lower", Active::ScaleLower, false, { 9, -2, 0 }, { 2, 4, 0.5F }, { 0, -1, 0 } },
        { "corner", Active::ScaleUpperRight, false, { 1, 2, 0 }, { 2.5F, 4, 0.5F }, { 0.5F, 1, 0 } },
        { "other corner", Active::ScaleUpperLeft, false, { 1, 2, 0 }, { 1.5F, 4, 0.5F }, { 0.5F, 1, 0 } },
        { "edge with ratio", Active::ScaleRight, true, { 2, 0, 0 }, { 3, 4.5F, 0.5F }, { 1, 0, 0 } },
        // (1.5 * 4 + 1 * 9) / 13 of the sides, by the squares of their lengths.
        { "corner with ratio", Active::ScaleUpperRight, true, { 2, 0, 0 }, { 2 * 15.0F / 13, 3 * 15.0F / 13, 0.5F }, { 4.0F / 13, 6.0F / 13, 0 } },
        { "never over", Active::ScaleRight, false, { -99, 0, 0 }, { 0.02F, 3, 0.5F }, { -1.98F, 0, 0 } },
    };

    // clang-format on

    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const ProjectionDrag drag = beginDrag(turnedFrame(), row.handle);
        const Vec3f halfSizes = halfSizesBetween(
            drag, at(1, 1), at(1 + row.motion.x(), 1 + row.motion.y()), sights, row.keepsRatio);
        EXPECT_TRUE(isNear(halfSizes, row.halfSizes));
        EXPECT_TRUE(isNear(scaleOfHalfSizes(drag, halfSizes), row.halfSizes));
        EXPECT_TRUE(isNear(shiftOfHalfSizes(drag, halfSizes), row.shift));
    }

    // A camera without a place.
    const Sights blind = { Vec3f(NAN, 0, 0), kSight, kSight };
    const ProjectionDrag depth = beginDrag(turnedFrame(), Active::ScaleZPlane);
    EXPECT_EQ(halfSizesBetween(depth, at(0, 0), at(0, 0), blind, false).z(), 0.5F);

    // A side without length grows whichever way its end goes; a picture has its own extents.
    ProjectionFrame flat = turnedFrame();
    flat.scale = Vec3f(0, 3, 0.5F);
    flat.extentPerScale = Vec3f(1, 2, 1);
    const ProjectionDrag drag = beginDrag(flat, Active::ScaleLowerLeft);
    const Vec3f halfSizes = halfSizesBetween(drag, at(1, 1), at(3, -1), sights, true);
    EXPECT_TRUE(isNear(halfSizes, Vec3f(-1, 7, 0.5F)));
    EXPECT_TRUE(isNear(scaleOfHalfSizes(drag, halfSizes), Vec3f(1, 3.5F, 0.5F)));
    flat.projectionScale[0] = 0;
    EXPECT_NEAR(factorBetween(beginDrag(flat, Active::ScaleUniform), at(0, 0), at(2, 0)), 3, 1e-5F);
}

}  // namespace nbec::manipulator::texture::test
