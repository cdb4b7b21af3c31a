// SPDX-License-Identifier: MIT
// The whole loop: drag, message, the host's editor, material, and the gizmo that reads it again.
// What was grabbed stays under the pointer, and the opposite edge or corner stays in the world.
#include "manipulator/course/View.h"
#include "manipulator/drag/DragGeometry.h"
#include "tests/manipulator/support/TextureScene.h"

#include <nbKernel/nbController.h>

#include <algorithm>
#include <random>

namespace nbec::manipulator::test {

namespace {

using osg::Matrix;

constexpr float kUnderPointerPx = 0.6F;
/// Of the size of the projection.
constexpr float kFixed = 1e-4F;
constexpr int kRounds = 12;

/// Along what a grabbed texel follows the pointer.
enum class Way
{
    Plane,  ///< everywhere
    AxisX,
    AxisY,
    AxisZ
};

struct LoopRow
{
    const char* handle;
    Way way;
    Vec3f grab;
    Vec3f opposite;  ///< of a tab: what stays, in projection space
};

void PrintTo(const LoopRow& row, std::ostream* out)
{
    *out << row.handle;
}

// clang-format off
const LoopRow kLoops[] = {
    { "xyaShape", Way::Plane, { 0.3F, 0.3F, 0 }, {} },
    { "xaShape", Way::AxisX, { 1.3F, 0, 0 }, {} },
    { "yaShape", Way::AxisY, { 0, 1.3F, 0 }, {} },
    { "zaShape", Way::AxisZ, { 0, 0, -1.3F }, {} },
    { "xsShape", Way::AxisX, { 2.5F, 0, 0 }, {} },
    { "ysShape", Way::AxisY, { 0, 2.5F, 0 }, {} },
    { "scaleXYLLShape", Way::Plane, {}, { 1, 1, 0 } },
    { "scaleXYULShape", Way::Plane, {}, { 1, -1, 0 } },
    { "scaleXYLRShape", Way::Plane, {}, { -1, 1, 0 } },
    { "scaleXYURShape", Way::Plane, {}, { -1, -1, 0 } },
    { "scaleXLShape", Way::AxisX, {}, { 1, 0, 0 } },
    { "scaleXRShape", Way::AxisX, {}, { -1, 0, 0 } },
    { "scaleYLShape", Way::AxisY, {}, { 0, 1, 0 } },
    { "scaleYUShape", Way::AxisY, {}, { 0, -1, 0 } },
    { "scaleZPlaneShape", Way::AxisZ, {}, { 0, 0, 0 } },
};

// clang-format on

bool isTab(const LoopRow& row)
{
    return std::string(row.handle).compare(0, 5, "scale") == 0;
}

Vec3f randomVector(std::mt19937& random, float least, float most)
{
    std::uniform_real_distribution<float> value(least, most);
    const float x = value(random);
    const float y = value(random);
    return Vec3f(x, y, value(random));
}

/// Turns, shears and scales everything between world and projection, a little.
void arrange(PlanarScene& planar, std::mt19937& random, bool skewed)
{
    planar.edit(planar.parentCore(), [&](const auto& parent) {
        parent->setScale(skewed ? randomVector(random, 0.7F, 1.4F) : Vec3f(1.3F, 1.3F, 1.3F));
        parent->setRotation(randomVector(random, -15, 15));
    });
    planar.edit(planar.core(), [&](const auto& node) {
        node->setTranslation(randomVector(random, -0.5F, 0.5F));
        node->setRotation(randomVector(random, -15, 15));
    });
    planar.edit(planar.projection, [&](const auto& projection) {
        projection->setTranslation(randomVector(random, -0.5F, 0.5F));
        projection->setRotation(randomVector(random, -15, 15));
        projection->setRotationOrientation(osg::Quaternion(Vec3f(0, 1, 0), 0.2F));
        projection->setScale(randomVector(random, 1.0F, 2.0F));
    });
}

/// A place that moves with the picture.
struct Held
{
    const PlanarScene& planar;
    Vec3f texel;  ///< projection space

    Pnt3f world() const { return planar.inWorld(texel); }
};

Vec3f axisOf(const PlanarScene& planar, int axis)
{
    Vec3f direction = column(planar.worldFromProjection(), axis);
    direction.normalize();
    return direction;
}

/// Point of the plane of the handle's motion that the pointer covers.
Pnt3f underPointer(const PlanarScene& planar, Way way)
{
    const Pnt3f center = planar.inWorld(Vec3f());
    Vec3f normal = axisOf(planar, 0).cross(axisOf(planar, 1));
    if (way != Way::Plane) {
        const int axis = static_cast<int>(way) - static_cast<int>(Way::AxisX);
        normal = axisPlaneNormal(axisOf(planar, axis), View().sight());
    }
    osg::Line ray;
    Pnt3f point;
    ray = View().pointerRay().value();
    EXPECT_TRUE(intersectPlane(osg::Plane(normal, center), ray, point));
    return point;
}

Held hold(const PlanarScene& planar, Way way)
{
    Matrix projectionFromWorld;
    planar.worldFromProjection().inverse(projectionFromWorld);
    Pnt3f texel = underPointer(planar, way);
    projectionFromWorld.multMatrixPnt(texel);
    return { planar, texel.subZero() };
}

/// Direction on screen along which a held place follows the pointer; zero for all directions.
Vec2f followed(const PlanarScene& planar, const Held& held, Way way)
{
    if (way == Way::Plane) {
        return Vec2f();
    }
    const Vec3f along = axisOf(planar, static_cast<int>(way) - static_cast<int>(Way::AxisX));
    const Pnt3f place = held.world();
    Vec2f direction = planar.drag.rayPixelOf(place + along * 0.01F) -
        planar.drag.rayPixelOf(place - along * 0.01F);
    direction.normalize();
    return direction;
}

/// Pixels between a held place and the pointer, along what it follows.
float gap(const PlanarScene& planar, const Held& held, Way way)
{
    const Vec2f between =
        planar.drag.rayPixelOf(held.world()) - (planar.drag.pressed + planar.drag.reached);
    const Vec2f direction = followed(planar, held, way);
    return direction.length() < 0.5F ? between.length() : std::abs(between.dot(direction));
}

/// Offsets along the way of a handle, on whole pixels.
std::vector<Vec2f> stepsAlong(const PlanarScene& planar, const Held& held, Way way)
{
    const Vec2f direction = followed(planar, held, way);
    if (way == Way::Plane) {
        return { Vec2f(25, -10), Vec2f(-30, 20), Vec2f(40, 35) };
    }
    std::vector<Vec2f> steps;
    for (const float lengthPx : { 12.0F, -25.0F, 30.0F }) {
        steps.emplace_back(std::round(direction.x() * lengthPx),
                           std::round(direction.y() * lengthPx));
    }
    return steps;
}

class Loops : public testing::TestWithParam<LoopRow>
{ };

}  // namespace

TEST_P(Loops, LeaveWhatWasGrabbedUnderThePointer)
{
    const LoopRow& row = GetParam();
    std::mt19937 random(7);
    int grabbed = 0;
    for (int round = 0; round < kRounds; ++round) {
        PlanarScene planar(PlanarScene::Receiver::Editor);
        arrange(planar, random, round % 3 == 2);
        planar.look(Camera::Oblique, round % 2 == 1);
        if (!planar.grab(row.handle, row.grab)) {
            continue;  // another handle lies before it
        }
        ++grabbed;
        const Held held = hold(planar, row.way);
        const Pnt3f tab = planar.onHandle(row.handle, Vec3f());
        const Pnt3f opposite = planar.inWorld(row.opposite);
        const float size =
            (planar.inWorld(Vec3f(1, 1, 0)) - planar.inWorld(Vec3f(-1, -1, 0))).length();
        const Vec2f tabGap = planar.drag.rayPixelOf(tab) - planar.drag.pressed;
        const Vec2f direction = followed(planar, held, row.way);

        for (const Vec2f& offset : stepsAlong(planar, held, row.way)) {
            EXPECT_TRUE(planar.drag.dragBy(offset));
            if (!isTab(row)) {
                EXPECT_LT(gap(planar, held, row.way), kUnderPointerPx) << "round " << round;
                continue;
            }
            const Vec2f moved = planar.drag.rayPixelOf(planar.onHandle(row.handle, Vec3f())) -
                (planar.drag.pressed + planar.drag.reached) - tabGap;
            EXPECT_LT(row.way == Way::Plane ? moved.length() : std::abs(moved.dot(direction)),
                      kUnderPointerPx)
                << "round " << round;
            EXPECT_LT((planar.inWorld(row.opposite) - opposite).length(), kFixed * size)
                << "round " << round;
        }
        EXPECT_TRUE(planar.drag.release());
        EXPECT_EQ(nbController::getModified(), 1);
    }
    EXPECT_GE(grabbed, kRounds / 3);
}

INSTANTIATE_TEST_SUITE_P(PlanarTextureManipulator, Loops, testing::ValuesIn(kLoops));

TEST(PlanarTextureManipulatorLoop, DepthIsClampedAndShownOnceItIsScaled)
{
    for (const char* const handle : { "zsShape", "scaleZPlaneShape" }) {
        PlanarScene planar(PlanarScene::Receiver::Editor);
        planar.look(Camera::Oblique, true);
        const bool isPlane = std::string(handle) == "scaleZPlaneShape";
        planar.gizmo.showZScaleValue(isPlane);
        ASSERT_TRUE(planar.grab(handle, isPlane ? Vec3f(-0.17F, 0.17F, 0) : Vec3f(0, 0, -2.5F)));
        const Pnt2f center = planar.drag.rayPixelOf(Pnt3f(0, 0, 0));
        const Vec2f outwards = planar.drag.rayPixelOf(Pnt3f(0, 0, -1)) - center;

        EXPECT_TRUE(planar.drag.dragBy(outwards * 0.5F));
        EXPECT_TRUE(planar.settings->hasPlanarProjectionFlag(osg::ColorComponentSettings::ClampZ))
            << handle;
        EXPECT_TRUE(isShown(planar.handle("scaleZPlaneShape"))) << handle;
        EXPECT_GT(planar.projection->getScale().z(), 1.1F) << handle;
        EXPECT_EQ(planar.projection->getScale().x(), 1.0F) << handle;
        EXPECT_EQ(planar.projection->getTranslation(), Vec3f()) << handle;
        EXPECT_TRUE(planar.drag.dragBy(outwards * -10.0F));
        EXPECT_FLOAT_EQ(planar.projection->getScale().z(), 0.01F) << handle;
    }
}

}  // namespace nbec::manipulator::test
