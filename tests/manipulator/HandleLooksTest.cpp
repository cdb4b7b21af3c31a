// SPDX-License-Identifier: MIT
// What hosts may change of how handles look: fading, palettes, the overlay of drags.
#include "manipulator/course/HandleFading.h"
#include "manipulator/handles/HandlePalette.h"
#include "tests/manipulator/support/AllocationCount.h"
#include "tests/manipulator/support/AnyManipulator.h"
#include "tests/manipulator/support/HandleScene.h"

#include <OpenSG/OSGSimpleAttachments.h>

namespace nbec::manipulator::test {

namespace {

using Triple = std::array<double, 3>;
using Rows = std::array<Triple, 3>;

Triple times(const Rows& matrix, const Triple& vector)
{
    Triple result {};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            result[i] += matrix[i][j] * vector[j];
        }
    }
    return result;
}

/// Machado, Oliveira and Fernandes 2009, in linear RGB: normal vision, and without red, green and
/// blue cones.
constexpr std::array<Rows, 4> kVisions = { { { { { 1, 0, 0 }, { 0, 1, 0 }, { 0, 0, 1 } } },
                                             { { { 0.152286, 1.052583, -0.204868 },
                                                 { 0.114503, 0.786281, 0.099216 },
                                                 { -0.003882, -0.048116, 1.051998 } } },
                                             { { { 0.367322, 0.860646, -0.227968 },
                                                 { 0.280085, 0.672501, 0.047413 },
                                                 { -0.011820, 0.042940, 0.968881 } } },
                                             { { { 1.255528, -0.076749, -0.178779 },
                                                 { -0.078411, 0.930809, 0.147602 },
                                                 { 0.004733, 0.691367, 0.303900 } } } } };

/// CIE L*a*b* under D65 of an sRGB colour, as seen.
Triple labOf(const osg::Color3f& colour, const Rows& vision)
{
    constexpr Rows kXyz = { { { 0.4124564, 0.3575761, 0.1804375 },
                              { 0.2126729, 0.7151522, 0.0721750 },
                              { 0.0193339, 0.1191920, 0.9503041 } } };
    constexpr Triple kWhite = { 0.95047, 1, 1.08883 };
    Triple linear {};
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const double c = colour[i];
        linear[i] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    }
    linear = times(vision, linear);
    for (double& each : linear) {
        each = std::min(std::max(each, 0.0), 1.0);
    }
    Triple f = times(kXyz, linear);
    for (std::size_t i = 0; i < 3; ++i) {
        const double part = f[i] / kWhite[i];
        f[i] = part > 216.0 / 24389 ? std::cbrt(part) : (24389.0 / 27 * part + 16) / 116;
    }
    return { 116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2]) };
}

float transparency(const osg::NodePtr& node)
{
    const auto core = osg::GeometryPtr::dcast(node->getCore());
    return osg::SimpleMaterialPtr::dcast(core->getMaterial())->getTransparency();
}

}  // namespace

TEST(HandlePalettes, ThatForColourBlindTellsAnyTwoColoursApartForEveryEye)
{
    const HandlePalette& safe = builtInPalette(BuiltInPalette::ForColourBlind);
    const std::array<osg::Color3f, 6> colours = { safe.x,   safe.y,         safe.z,
                                                  safe.all, safe.highlight, safe.pivot };
    for (std::size_t vision = 0; vision < kVisions.size(); ++vision) {
        for (std::size_t i = 0; i < colours.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                const Triple a = labOf(colours[i], kVisions[vision]);
                const Triple b = labOf(colours[j], kVisions[vision]);
                EXPECT_GE(std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]), 40.0)
                    << vision << ": " << i << ' ' << j;
            }
        }
    }
}

template <class Gizmo>
class HandleLooks : public AnyManipulator<Gizmo>
{
protected:
    ~HandleLooks() override
    {
        setHandlePalette(HandlePalette());
        setHandleFading(HandleFading());
        setDragOverlayShown(false);
    }
};

using KindsOfAxes = testing::Types<Transform, Planar, Triplanar, UV, Tire>;
TYPED_TEST_SUITE(HandleLooks, KindsOfAxes, );

TYPED_TEST(HandleLooks, APaletteRecoloursAndTheClassicOneRestores)
{
    const osg::NodePtr arrow = this->node(this->kTraits.handle);
    const Names classic = partColors(arrow);
    HandlePalette own;
    own.x = own.y = osg::Color3f(0.2F, 0.4F, 0.6F);
    own.highlight = osg::Color3f(0.0F, 1.0F, 1.0F);
    EXPECT_TRUE(setHandlePalette(own));
    this->gizmo->update(false);
    EXPECT_EQ(partColors(arrow), Names(classic.size(), "0.2 0.4 0.6"));
    ASSERT_TRUE(this->hover(this->kTraits.handle));
    EXPECT_EQ(partColor(arrow, 0), "0 1 1");
    own.z = osg::Color3f(0.0F, 1.5F, 0.0F);
    EXPECT_FALSE(setHandlePalette(own));
    setHandlePalette(builtInPalette(BuiltInPalette::Classic));
    this->hoverNothing();
    EXPECT_EQ(partColors(arrow), classic);
}

TYPED_TEST(HandleLooks, EdgesAndLettersAreNeverHitAndGoWithTheirPalette)
{
    const auto shown = [this] {
        std::size_t named = 0;
        std::size_t unnamed = 0;
        for (const osg::NodePtr& part : partsOf(this->node(this->kTraits.handle))) {
            ++(osg::getName(part) != nullptr ? named : unnamed) -= isShown(part) ? 0 : 1;
        }
        return std::pair(named, unnamed);
    };
    const auto before = shown();
    ASSERT_EQ(before.second, 0U);
    HandlePalette rich = builtInPalette(BuiltInPalette::HighContrast);
    rich.hasLetters = true;
    rich.lineWidth = 0.0F;
    EXPECT_FALSE(setHandlePalette(rich));
    rich.lineWidth = 2.0F;
    ASSERT_TRUE(setHandlePalette(rich));
    this->gizmo->update(false);
    EXPECT_EQ(shown(), std::pair(before.first, before.first + 1)) << "an edge each, and a letter";
    EXPECT_TRUE(this->drag());
    setHandlePalette(HandlePalette());
    this->gizmo->update(false);
    EXPECT_EQ(shown(), before);
}

TEST(HandleFades, OfARingTheHalfBehindIsDim)
{
    DragScene at;
    HandleFading fading;
    fading.ringBack = 0.0F;
    EXPECT_FALSE(setHandleFading(fading));
    fading.ringBack = 0.3F;
    ASSERT_TRUE(setHandleFading(fading));
    at.activate(Transform::ManipulatorMode::Rotate);
    const osg::NodePtr ring = partsOf(at.handle("rxShape"))[0];
    for (const Pnt3f& eye : { Pnt3f(3, 4, 8), Pnt3f(-3, 4, -8), Pnt3f(0, -9, 3) }) {
        at.scene.lookFrom(eye);
        Transform::updateAllManipulators();
        EXPECT_NEAR(transparency(ring), 0.7F, 1e-4F);
        ASSERT_EQ(partsOf(ring).size(), 2U);
        const osg::NodePtr front = partsOf(ring)[1];
        EXPECT_EQ(transparency(front), 0.0F);
        const auto positions = osg::GeometryPtr::dcast(front->getCore())->getPositions();
        for (osg::UInt32 i = 0; i < positions->getSize(); ++i) {
            Pnt3f place = positions->getValue(i);
            front->getToWorld().multMatrixPnt(place);
            EXPECT_GE((place - at.onGizmo({})).dot(eye.subZero()), -0.1F);
        }
    }
    at.scene.lookFrom(Pnt3f(10, 0.1F, 0));
    Transform::updateAllManipulators();
    EXPECT_EQ(transparency(ring), 0.0F) << "seen from above nothing is behind";
    EXPECT_FALSE(isShown(partsOf(ring)[1]));
    setHandleFading(HandleFading());
}

TEST(HandleFades, HandlesSeenEndOnFadeAndCannotBeGrabbed)
{
    DragScene at;
    HandleFading fading;
    fading.isOn = true;
    fading.axisGone = 0.2F;
    EXPECT_FALSE(setHandleFading(fading)) << "the range is empty";
    fading.axisGone = 0.02F;
    ASSERT_TRUE(setHandleFading(fading));
    at.activate(Transform::ManipulatorMode::TranslateRotate);
    const auto transparencyOf = [&at](const char* name) {
        return transparency(partsOf(at.handle(name))[0]);
    };
    const auto lookAlongZ = [&at](float sine) {
        at.scene.lookFrom(Pnt3f(10 * sine, 0, 10 * std::sqrt(1 - sine * sine)));
        Transform::updateAllManipulators();
    };
    lookAlongZ(0.06F);  // half way for the axis
    EXPECT_NEAR(transparencyOf("zaShape"), 0.5F, 1e-3F);
    EXPECT_EQ(transparencyOf("xaShape"), 0.0F);
    EXPECT_FALSE(isShown(at.handle("yzaShape")));
    lookAlongZ(0.0F);
    EXPECT_FALSE(isShown(at.handle("zaShape")));
    EXPECT_TRUE(isShown(at.handle("rxShape"))) << "rings stay";
    at.scene.hover(at.onGizmo({ -0.08F, -0.08F, 2 }));
    EXPECT_NE(nbNodeUtils::getName(at.scene.picker.getHitNode()), "zaShape");
    lookAlongZ(0.21F);  // half way for a plane
    EXPECT_EQ(transparencyOf("zaShape"), 0.0F);
    EXPECT_NEAR(transparencyOf("yzaShape"), 1 - (0.21F - 0.175F) / 0.075F, 1e-3F);
    setHandleFading(HandleFading());
    lookAlongZ(0.0F);
    EXPECT_TRUE(isShown(at.handle("zaShape")));
    EXPECT_EQ(transparencyOf("zaShape"), 0.0F);
}

TYPED_TEST(HandleLooks, TheOverlayIsThereWhileSomethingIsDragged)
{
    const auto points = [this] {
        osg::UInt32 count = 0;
        for (const osg::NodePtr& part : partsOf(this->gizmo->getVisualisation())) {
            const auto core = osg::GeometryPtr::dcast(part->getCore());
            if (isShown(part) && osg::getName(part) == nullptr &&
                core->getMaterial()->getSortKey() == 64018) {
                count += core->getLengths()->getValue(0);
            }
        }
        return count;
    };
    ASSERT_TRUE(this->drag());
    EXPECT_EQ(points(), 0U) << "off";
    setDragOverlayShown(true);
    ASSERT_TRUE(this->press() && this->step() && this->step());
    EXPECT_EQ(points(), 6U) << "a line and a mark";
    this->gizmo->cancelDrag();
    EXPECT_EQ(points(), 0U);
}

TYPED_TEST(HandleLooks, TheOverlayAllocatesNothingInAStep)
{
    const auto allocationsOfSteps = [this] {
        EXPECT_TRUE(this->press() && this->step() && this->step() && this->step());
        const std::size_t before = allocationCount();
        for (int i = 0; i < 20; ++i) {
            this->step();
        }
        const std::size_t made = allocationCount() - before;
        this->gizmo->cancelDrag();
        return made;
    };
    ASSERT_TRUE(this->drag());
    allocationsOfSteps();
    const std::size_t without = allocationsOfSteps();
    setDragOverlayShown(true);
    allocationsOfSteps();
    EXPECT_EQ(allocationsOfSteps(), without);
}

template <class Gizmo>
class TurnOverlay : public HandleLooks<Gizmo>
{ };

using KindsThatTurn = testing::Types<Transform, Planar, Triplanar, UV>;
TYPED_TEST_SUITE(TurnOverlay, KindsThatTurn, );

TYPED_TEST(TurnOverlay, ThePresentLegOfASectorPointsToThePointer)
{
    constexpr bool kHasThree =
        std::is_same_v<TypeParam, Transform> || std::is_same_v<TypeParam, Triplanar>;
    if constexpr (std::is_same_v<TypeParam, Transform>) {
        this->gizmo->activateRotateManipulator();
    }
    setDragOverlayShown(true);
    ASSERT_TRUE(this->press(kHasThree ? "rzShape" : "rotateShape"));
    const View view;
    const auto legs = [this] {
        for (const osg::NodePtr& part : partsOf(this->gizmo->getVisualisation())) {
            const auto core = osg::GeometryPtr::dcast(part->getCore());
            if (core->getMaterial()->getSortKey() == 64018) {
                return core->getPositions();
            }
        }
        return osg::GeoPositionsPtr();
    };
    ASSERT_TRUE(this->say("process") && this->step() && this->step() && this->step());
    ASSERT_NE(legs(), osg::NullFC);
    const Vec2f centre = view.project(legs()->getValue(0));
    const Vec2f end = view.project(legs()->getValue(3)) - centre;
    const Vec2f start = view.project(legs()->getValue(1)) - centre;
    const Vec2f toPointer =
        Vec2f(this->pointer.x(), static_cast<float>(view.getHeight()) - this->pointer.y()) - centre;
    const auto angle = [](const Vec2f& of) { return std::atan2(of.y(), of.x()); };
    EXPECT_NEAR(std::remainder(angle(end) - angle(toPointer), 6.2831853F), 0.0F, 0.02F);
    EXPECT_GT(std::abs(std::remainder(angle(end) - angle(start), 6.2831853F)), 0.04F);
    this->say("stop");
}

}  // namespace nbec::manipulator::test
