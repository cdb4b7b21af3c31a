// SPDX-License-Identifier: MIT
// Handles and drags of the UV gizmo. The eye is 10 units away under 45 degrees and 600 pixels high,
// so the anchor at the origin is at pixel (400, 300) from the bottom and a unit of the gizmo is
// 10 * 45 / 672 world units, 48.5 pixels.
#include "manipulator/UVTextureManipulator.h"

#include "tests/manipulator/support/AnchorScene.h"

#include <nbKernel/nbController.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

namespace nbec::manipulator::test {

namespace {

using Gizmo = UVTextureManipulator;
using Mode = Gizmo::ManipulatorMode;
using Names = std::vector<std::string>;
using osg::Pnt2f;
using osg::Pnt3f;
using osg::Vec2f;
using osg::Vec3f;

constexpr float kTolerance = 1e-4F;
constexpr float kUnit = 10.0F * 45.0F / 672.0F;
const char* const kChanged = "label::changedUVManipulator";
/// Where the anchor is in the view, y from the bottom.
const Vec2f kAnchorPx(400, 300);

struct UV
{
    UV()
    {
        at.editSettings([](const auto& settings) {
            settings->setRotate(30);
            settings->setOffset(Vec2f(0.25F, 0.5F));
            settings->setRepeat(Vec2f(2, 4));
        });
    }

    /// Presses at a pixel from the left and bottom, as the anchor's, and sends the first step.
    bool grabPixel(const Vec2f& px)
    {
        return at.scene.send("start", fromBottom(px)) && at.scene.send("process", fromBottom(px));
    }

    bool stepPixel(const Vec2f& px) { return at.scene.send("process", fromBottom(px)); }

    static Pnt2f fromBottom(const Vec2f& px) { return Pnt2f(px.x(), 599 - px.y()); }

    Gizmo gizmo;
    AnchorScene at { gizmo, "::changedUVManipulator", osg::ColorComponentSettings::UVProjection };
};

struct HandleCase
{
    const char* name;
    unsigned mode;
    Vec3f unit;
    Names idle;  ///< of its parts
    Names special;  ///< in the scale set
    Names sets;  ///< sets that show it
};

void PrintTo(const HandleCase& row, std::ostream* out)
{
    *out << row.name;
}

// clang-format off
const std::vector<HandleCase> kHandles = {
    { "rotateShape", 1, { -0.70710678F, 0.70710678F, 0 }, { "0 0 1" }, { "0 0 1" }, { "universal", "rotate", "rotateScale" } },
    { "xaShape", 2, { 1.9F, 0, 0 }, { "1 0 0", "1 0 0" }, { "1 0 0", "1 0 0" }, { "universal", "translate" } },
    { "yaShape", 3, { 0, 1.9F, 0 }, { "0 1 0", "0 1 0" }, { "0 1 0", "0 1 0" }, { "universal", "translate" } },
    { "xyaShape", 4, { 0.2F, 0.2F, 0 }, { "1 1 0", "1 0 0", "0 1 0" }, { "1 1 0", "1 0 0", "0 1 0" }, { "universal", "translate" } },
    { "xsShape", 5, { 2.5F, 0, 0 }, { "1 0.5 0.5", "1 0.5 0.5" }, { "1 0 0", "1 0 0" }, { "universal", "scale", "rotateScale" } },
    { "ysShape", 6, { 0, 2.5F, 0 }, { "0.5 1 0.5", "0.5 1 0.5" }, { "0 1 0", "0 1 0" }, { "universal", "scale", "rotateScale" } },
    { "grid", 7, { 2.5F, 2.5F, 0 }, { "1 1 0.5" }, { "1 1 0" }, { "universal", "scale", "rotateScale" } },
};

// clang-format on

Names partColors(const osg::NodePtr& handle)
{
    Names colors;
    for (osg::UInt32 i = 0; i < handle->getNChildren(); ++i) {
        colors.push_back(colorOf(handle->getChild(i)));
    }
    return colors;
}

void expectPair(const SentMessage& sent, const std::string& name, const Vec2f& expected)
{
    const Vec2f found = attribute<Vec2f>(sent, name);
    EXPECT_NEAR(found.x(), expected.x(), kTolerance) << name << ".u";
    EXPECT_NEAR(found.y(), expected.y(), kTolerance) << name << ".v";
}

class UVHandles : public testing::TestWithParam<HandleCase>
{ };

/// Editor object of a host with values of its own.
class Panel : public nbStateChunkBase
{
public:
    bool hasComponent(const std::string& component) const override { return component == "mine"; }

    osg::Real32 getRotate(const std::string& /*component*/) const override { return 7; }

    Vec2f getOffset(const std::string& /*component*/) const override { return Vec2f(3, 4); }

    Vec2f getRepeat(const std::string& /*component*/) const override { return Vec2f(8, 0.5F); }
};

}  // namespace

TEST_P(UVHandles, HaveTheirModeColoursHighlightAndSets)
{
    const HandleCase& row = GetParam();
    for (const bool orthographic : { false, true }) {
        UV uv;
        AnchorScene& at = uv.at;
        at.look(Camera::Oblique, orthographic);
        const osg::NodePtr handle = at.handle(row.name);
        EXPECT_EQ(partColors(handle), row.idle);
        const Pnt2f pixel = at.drag.rayPixelOf(at.onHandle(row.name, row.unit));
        EXPECT_TRUE(at.scene.send("hover", pixel));
        EXPECT_EQ(static_cast<unsigned>(uv.gizmo.getActiveMode()), row.mode);
        for (const HandleCase& other : kHandles) {
            // The box at the corner takes the scale handles along.
            const bool isHighlighted = other.mode == row.mode || (row.mode == 7 && other.mode >= 5);
            EXPECT_EQ(partColors(at.handle(other.name)),
                      isHighlighted ? Names(other.idle.size(), "1 0.5 0") : other.idle)
                << other.name;
        }
        EXPECT_TRUE(at.scene.send("start", pixel));
        for (const HandleCase& other : kHandles) {
            EXPECT_EQ(isShown(at.handle(other.name)), other.mode == row.mode) << other.name;
        }
        EXPECT_TRUE(at.scene.send("stop", pixel));

        const auto isIn = [&](const std::string& set) {
            return std::find(row.sets.begin(), row.sets.end(), set) != row.sets.end();
        };
        EXPECT_TRUE(isShown(handle));
        uv.gizmo.activateTranslateManipulator();
        EXPECT_EQ(isShown(handle), isIn("translate"));
        uv.gizmo.activateScaleManipulator();
        EXPECT_EQ(isShown(handle), isIn("scale"));
        EXPECT_EQ(partColors(handle), row.special);
        uv.gizmo.activateRotateManipulator();
        EXPECT_EQ(isShown(handle), isIn("rotate"));
        EXPECT_EQ(partColors(handle), row.idle);
        uv.gizmo.activateRotateScaleManipulator();
        EXPECT_EQ(isShown(handle), isIn("rotateScale"));
        EXPECT_EQ(uv.gizmo.getMode(), Mode::RotateScale);
    }
}

INSTANTIATE_TEST_SUITE_P(UVTextureManipulator, UVHandles, testing::ValuesIn(kHandles));

TEST(UVTextureManipulator, TheGroupsHoldTheirHandlesInTheOrderOfTheAxes)
{
    const UV uv;
    const osg::NodePtr tree = uv.at.gizmo.getVisualisation()->getChild(0);
    const Names groups[] = { { "xaShape", "yaShape", "xyaShape" },
                             { "rotateShape" },
                             { "xsShape", "ysShape", "grid" } };
    ASSERT_EQ(tree->getNChildren(), std::size(groups));
    for (osg::UInt32 i = 0; i < tree->getNChildren(); ++i) {
        Names names;
        for (osg::UInt32 k = 0; k < tree->getChild(i)->getNChildren(); ++k) {
            names.push_back(nbNodeUtils::getName(tree->getChild(i)->getChild(k)));
        }
        EXPECT_EQ(names, groups[i]);
    }
}

TEST(UVTextureManipulator, TheHandlesFaceTheViewerAndKeepTheirSizeOnScreen)
{
    UV uv;
    AnchorScene& at = uv.at;
    at.edit(at.core(), [](const auto& node) {
        node->setTranslation(Vec3f(1, 0.5F, -3));
        node->setRotation(Vec3f(20, 30, 40));
        node->setScale(Vec3f(2, 1, 3));
    });
    const auto rootScale = [&at] {
        return osg::Transform3DPtr::dcast(at.gizmo.getVisualisation()->getChild(0)->getCore())
            ->getScale()
            .x();
    };
    for (const Camera camera : { Camera::Front, Camera::Oblique, Camera::Top }) {
        for (const bool orthographic : { false, true }) {
            at.look(camera, orthographic);
            EXPECT_FLOAT_EQ(rootScale(), orthographic ? 1.25F : 45 * 0.03F);
            const Pnt3f anchor = at.gizmo.getAnchorPosition();
            EXPECT_TRUE(at.onHandle("xaShape", Vec3f()).equals(anchor, kTolerance));
            const osg::UberCameraPtr eye = at.scene.widget.getUberCamera();
            const float unit = orthographic ? eye->getNearPlaneDiagonal() / 20
                                            : anchor.dist(eye->getFrom()) * 45 / 672;
            const Vec3f right = at.onHandle("xaShape", Vec3f(1, 0, 0)) - anchor;
            const Vec3f up = at.onHandle("xaShape", Vec3f(0, 1, 0)) - anchor;
            EXPECT_NEAR(right.length(), unit, kTolerance);
            EXPECT_NEAR(up.length(), unit, kTolerance);
            const Vec3f sight = eye->getAt() - eye->getFrom();
            EXPECT_NEAR(right.dot(sight), 0, 1e-3F);
            EXPECT_NEAR(up.dot(sight), 0, 1e-3F);
            EXPECT_NEAR(at.scene.pixelOf(anchor + right).y(), at.scene.pixelOf(anchor).y(), 0.6F);
        }
    }
    // The field of view does not matter to an orthographic view's root.
    at.look(Camera::Front, true);
    at.scene.widget.getUberCamera()->setFov(20);
    at.gizmo.update(false);
    EXPECT_FLOAT_EQ(rootScale(), 1.25F);
}

TEST(UVTextureManipulator, ACameraThatOnlyTurnsIsFollowed)
{
    UV uv;
    AnchorScene& at = uv.at;
    uv.gizmo.update(true);
    at.scene.widget.getUberCamera()->setFromAtUp(Pnt3f(0, 0, 10), Pnt3f(3, 0, 0), Vec3f(0, 1, 0));
    uv.gizmo.update(false);
    const Vec3f right = at.onHandle("xaShape", Vec3f(1, 0, 0)) - at.onHandle("xaShape", Vec3f());
    EXPECT_NEAR(right.dot(Vec3f(3, 0, -10)), 0, 1e-4F);
}

TEST(UVTextureManipulator, TheSizeIsTakenAtTheNextPlacement)
{
    UV uv;
    uv.gizmo.update(true);
    const auto unit = [&uv] {
        return (uv.at.onHandle("xaShape", Vec3f(1, 0, 0)) - uv.at.onHandle("xaShape", Vec3f()))
            .length();
    };
    EXPECT_FLOAT_EQ(Gizmo::getManipulatorSize(), 0.03F);
    Gizmo::setManipulatorSize(0.06F);
    EXPECT_NEAR(unit(), kUnit, kTolerance);
    Gizmo::updateAllManipulators();
    EXPECT_NEAR(unit(), 2 * kUnit, kTolerance);
    Gizmo::setManipulatorSize(0.03F);
}

TEST(UVTextureManipulator, ArrowsMoveByPixels)
{
    const struct
    {
        const char* handle;
        Vec3f unit;
        Vec2f moves;
    } rows[] = { { "xaShape", { 1.9F, 0, 0 }, { 1, 0 } },
                 { "yaShape", { 0, 1.9F, 0 }, { 0, 1 } },
                 { "xyaShape", { 0.2F, 0.2F, 0 }, { 1, 1 } } };

    for (const auto& row : rows) {
        for (const bool orthographic : { false, true }) {
            UV uv;
            uv.at.look(Camera::Oblique, orthographic);
            ASSERT_TRUE(uv.at.grab(row.handle, row.unit)) << row.handle;
            EXPECT_EQ(uv.at.takeNames(), Names { "setMatRenderEnabled" });
            EXPECT_TRUE(uv.at.drag.stepTo(Vec2f(512, -256)));
            EXPECT_EQ(uv.at.last().name, kChanged);
            EXPECT_EQ(uv.at.last().message.names(), Names { "offset" });
            expectPair(uv.at.last(), "offset",
                       Vec2f(0.25F + row.moves.x(), 0.5F + 0.5F * row.moves.y()));
            EXPECT_EQ(nbController::getModified(), 0) << "marking is the editor's";
            EXPECT_TRUE(uv.at.drag.release());
            EXPECT_EQ(uv.at.takeNames(),
                      (Names { kChanged, "setMatRenderEnabled", "updateMatRender" }));
        }
    }
}

TEST(UVTextureManipulator, TheRingTurnsInDegreesAgainstThePointer)
{
    UV uv;
    uv.gizmo.activateRotateManipulator();
    // A radius of the ring is 48.5 pixels.
    ASSERT_TRUE(uv.grabPixel(kAnchorPx + Vec2f(48, 0)));

    const struct
    {
        Vec2f fromAnchor;
        float rotate;
    } steps[] = { { { 0, 100 }, -60 },    { { 0, -70 }, 120 }, { { 48, 48 }, -15 },
                  { { -7, 0.0F }, -150 }, { { 0, 0 }, -150 },  { { 90, 0 }, 30 } };

    for (const auto& step : steps) {
        EXPECT_TRUE(uv.stepPixel(kAnchorPx + step.fromAnchor));
        EXPECT_EQ(uv.at.last().message.names(), Names { "rotate" });
        EXPECT_NEAR(attribute<float>(uv.at.last(), "rotate"), step.rotate, 1e-3F)
            << step.fromAnchor.x() << ' ' << step.fromAnchor.y();
    }
}

TEST(UVTextureManipulator, ScaleHandlesGoByTheRatioOfPixels)
{
    const struct
    {
        const char* name;
        Vec2f grab;  ///< from the anchor
        bool keepAspect;
        Vec2f to;
        Vec2f scale;  ///< of (0.5, 0.25)
    } steps[] = {
        { "u", { 121, 0 }, false, { 242, 60 }, { 1, 0.25F } },
        { "u with aspect", { 121, 0 }, true, { 242, 60 }, { 1, 0.5F } },
        { "u mirrored", { 121, 0 }, false, { -121, 0 }, { -0.5F, 0.25F } },
        { "v", { 0, 121 }, false, { 9, 242 }, { 0.5F, 0.5F } },
        { "v with aspect", { 0, 121 }, true, { 9, 0 }, { 0, 0 } },
        { "both", { 121, 120 }, false, { 242, 120 }, { 1, 0.5F } },
        { "both, the greater", { 121, 120 }, false, { 0, 60 }, { 0.25F, 0.125F } },
    };

    for (const auto& step : steps) {
        UV uv;
        uv.gizmo.setKeepAspectRatio(step.keepAspect);
        uv.gizmo.activateScaleManipulator();
        ASSERT_TRUE(uv.grabPixel(kAnchorPx + step.grab)) << step.name;
        EXPECT_TRUE(uv.stepPixel(kAnchorPx + step.to));
        EXPECT_EQ(uv.at.last().message.names(), Names { "scale" });
        expectPair(uv.at.last(), "scale", step.scale);
    }
}

TEST(UVTextureManipulator, ADistanceOfZeroIsSentAsItIs)
{
    UV uv;
    uv.gizmo.activateScaleManipulator();
    // The shaft near the anchor, right above it.
    ASSERT_TRUE(uv.grabPixel(kAnchorPx + Vec2f(0, 2)));
    ASSERT_EQ(uv.gizmo.getActiveMode(), Gizmo::ActiveMode::ScaleV);
    uv.gizmo.setKeepAspectRatio(true);
    EXPECT_TRUE(uv.stepPixel(kAnchorPx + Vec2f(0, 4)));
    expectPair(uv.at.last(), "scale", Vec2f(1, 0.5F));
    EXPECT_TRUE(uv.at.scene.send("stop", UV::fromBottom(kAnchorPx)));

    ASSERT_TRUE(uv.grabPixel(kAnchorPx + Vec2f(2, 0)));
    ASSERT_EQ(uv.gizmo.getActiveMode(), Gizmo::ActiveMode::ScaleU);
    EXPECT_TRUE(uv.at.scene.send("stop", UV::fromBottom(kAnchorPx)));
    uv.gizmo.setAnchor(osg::NullFC, uv.gizmo.getAnchorPosition());
    ASSERT_TRUE(uv.grabPixel(kAnchorPx));
    EXPECT_TRUE(uv.stepPixel(kAnchorPx + Vec2f(5, 5)));
    EXPECT_TRUE(std::isinf(attribute<Vec2f>(uv.at.last(), "scale").x()));
}

TEST(UVTextureManipulator, ValuesComeFromTheMaterialThenTheEditorObject)
{
    UV uv;
    Panel panel;
    const osg::UberMaterialPtr material = uv.at.material.get();
    uv.gizmo.setGUI(&panel);
    ASSERT_TRUE(uv.at.grab("xaShape", Vec3f(1.9F, 0, 0)));
    EXPECT_TRUE(uv.at.drag.stepTo(Vec2f()));
    expectPair(uv.at.last(), "offset", Vec2f(0.25F, 0.5F));
    EXPECT_TRUE(uv.at.drag.release());

    uv.gizmo.setMaterialComponent(material, "mine", &panel);
    ASSERT_TRUE(uv.at.grab("xaShape", Vec3f(1.9F, 0, 0)));
    EXPECT_TRUE(uv.at.drag.stepTo(Vec2f()));
    expectPair(uv.at.last(), "offset", Vec2f(3, 4));
    EXPECT_TRUE(uv.at.drag.release());

    uv.gizmo.setMaterialComponent(material, "nobody's", &panel);
    uv.gizmo.activateScaleManipulator();
    ASSERT_TRUE(uv.grabPixel(kAnchorPx + Vec2f(121, 0)));
    EXPECT_TRUE(uv.stepPixel(kAnchorPx + Vec2f(121, 0)));
    expectPair(uv.at.last(), "scale", Vec2f(1, 1));
}

TEST(UVTextureManipulator, ADragGoesOnWithoutItsMaterialAndStopsWithoutAMessage)
{
    UV uv;
    osg::UberMaterialRefPtr other(osg::UberMaterial::create());
    uv.gizmo.setMaterialComponent(other.get(), "diffuse", nullptr);
    ASSERT_TRUE(uv.at.grab("xaShape", Vec3f(1.9F, 0, 0)));
    other = osg::NullFC;
    EXPECT_TRUE(uv.at.drag.stepTo(Vec2f(512, 0)));
    expectPair(uv.at.last(), "offset", Vec2f(1, 0));
    uv.at.takeNames();
    EXPECT_FALSE(uv.at.drag.release());
    EXPECT_TRUE(uv.at.log.empty());
    EXPECT_FALSE(uv.at.scene.send("hover", Pnt2f(400, 300)));
}

}  // namespace nbec::manipulator::test
