// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGQuaternion.h>

#include <gtest/gtest.h>

#include <limits>
#include <random>

using namespace osg;

namespace {

constexpr Real32 kTolerance = 1e-4f;

Matrix fromParts(const Vec3f& t, const Quaternion& r, const Vec3f& s, const Quaternion& so)
{
    // M = T SO^-1 S SO R
    Matrix result, scale, step;
    result.setTransform(t);
    step.setTransform(so.inverse());
    result.mult(step);
    scale.setScale(s);
    result.mult(scale);
    step.setTransform(so);
    result.mult(step);
    step.setTransform(r);
    result.mult(step);
    return result;
}

}  // namespace

TEST(Matrix, AnyRegularMatrixIsTheProductOfItsParts)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<Real32> value(-2.f, 2.f);

    for (int i = 0; i < 200; ++i) {
        Matrix m;
        for (UInt32 column = 0; column < 4; ++column) {
            for (UInt32 row = 0; row < 3; ++row) {
                m[column][row] = value(random);
            }
        }
        Vec3f t, s;
        Quaternion r, so;
        m.getTransform(t, r, s, so);

        EXPECT_TRUE(fromParts(t, r, s, so).equals(m, kTolerance)) << i;
        EXPECT_NEAR(r.length(), 1.f, kTolerance);
        EXPECT_GT(s[0] * m.det3(), 0.f) << "the scales have the sign of the determinant";
    }
}

TEST(Matrix, SingularMatrixKeepsTheScaleAndGivesNoTurn)
{
    Matrix m;
    m.setTransform(Vec3f(1.f, 2.f, 3.f), Quaternion(Vec3f(0.f, 1.f, 0.f), 1.f),
                   Vec3f(1.f, 0.f, 2.f));
    Vec3f t, s(7.f, 8.f, 9.f);
    Quaternion r(Vec3f(1.f, 0.f, 0.f), 1.f), so;

    m.getTransform(t, r, s, so);

    EXPECT_EQ(t, Vec3f(1.f, 2.f, 3.f));
    EXPECT_EQ(s, Vec3f(7.f, 8.f, 9.f));
    EXPECT_EQ(r, Quaternion());
}

TEST(Matrix, VerySmallScalesAreRegular)
{
    Matrix m, inverse;
    m.setTransform(Vec3f(5.f, 0.f, 0.f), Quaternion(Vec3f(0.f, 0.f, 1.f), 1.f),
                   Vec3f(1e-5f, 1e-5f, 1e-5f));

    ASSERT_TRUE(m.inverse(inverse));
    m.mult(inverse);

    EXPECT_TRUE(m.equals(Matrix::identity(), kTolerance));
}

TEST(Line, BoxAroundTheStartIsEnteredAtOnceAndABoxBehindIsMissed)
{
    const BoxVolume box(-1.f, -1.f, -1.f, 1.f, 1.f, 1.f);
    Real32 enter = -7.f, leave = -7.f;

    EXPECT_TRUE(Line(Pnt3f(0.f, 0.f, 0.5f), Vec3f(0.f, 0.f, -1.f)).intersect(box, enter, leave));
    EXPECT_FLOAT_EQ(enter, 0.f);
    EXPECT_FLOAT_EQ(leave, 1.5f);
    EXPECT_FALSE(Line(Pnt3f(0.f, 0.f, 5.f), Vec3f(0.f, 0.f, 1.f)).intersect(box, enter, leave));
    EXPECT_FALSE(
        Line(Pnt3f(0.f, 0.f, 5.f), Vec3f(0.f, 0.f, -1.f)).intersect(BoxVolume(), enter, leave));
}

TEST(Line, TrianglesOfAnySizeAreMet)
{
    for (const Real32 size : { 1e-5f, 1.f, 1e5f }) {
        const Line line(Pnt3f(0.25f * size, 0.25f * size, size), Vec3f(0.f, 0.f, -1.f));
        Real32 t = 0.f;
        Vec3f normal;

        EXPECT_TRUE(
            line.intersect(Pnt3f(), Pnt3f(size, 0.f, 0.f), Pnt3f(0.f, size, 0.f), t, &normal))
            << size;
        EXPECT_NEAR(t / size, 1.f, kTolerance);
        EXPECT_EQ(normal, Vec3f(0.f, 0.f, 1.f));
    }
}

TEST(BoxVolume, OnlyRealPointsExtendAndTheEmptyStaysEmpty)
{
    BoxVolume box;
    box.transform(
        Matrix(2.f, 0.f, 0.f, 1.f, 0.f, 2.f, 0.f, 1.f, 0.f, 0.f, 2.f, 1.f, 0.f, 0.f, 0.f, 1.f));
    EXPECT_TRUE(box.isEmpty());
    box.extendBy(BoxVolume());
    EXPECT_TRUE(box.isEmpty());

    box.extendBy(Pnt3f(1.f, 2.f, 3.f));
    box.extendBy(Pnt3f(std::numeric_limits<Real32>::quiet_NaN(), 4.f, 3.f));
    EXPECT_EQ(box.getMin(), Pnt3f(1.f, 2.f, 3.f));
    EXPECT_EQ(box.getMax(), Pnt3f(1.f, 4.f, 3.f));

    BoxVolume everything;
    everything.setInfinite();
    everything.setEmpty(false);
    box.extendBy(everything);
    EXPECT_TRUE(box.isInfinite());
    EXPECT_TRUE(box.intersect(Pnt3f(1e9f, 0.f, 0.f)));
}
