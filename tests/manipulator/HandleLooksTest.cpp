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

/// Machado, Oliveira and Fernandes 2009, in linear RGB: normal vision, and without red, green and
/// blue cones.
const osg::Matrix kVisions[] = {
    osg::Matrix::identity(),
    { { 0.152286F, 0.114503F, -0.003882F },
      { 1.052583F, 0.786281F, -0.048116F },
      { -0.204868F, 0.099216F, 1.051998F } },
    { { 0.367322F, 0.280085F, -0.011820F },
      { 0.860646F, 0.672501F, 0.042940F },
      { -0.227968F, 0.047413F, 0.968881F } },
    { { 1.255528F, -0.078411F, 0.004733F },
      { -0.076749F, 0.930809F, 0.691367F },
      { -0.178779F, 0.147602F, 0.303900F } },
};

/// CIE L*a*b* under D65 of an sRGB colour, as seen.
Vec3f labOf(const osg::Color3f& colour, const osg::Matrix& vision)
{
    // Divided by the white.
    const osg::Matrix xyz({ 0.4339531F, 0.2126729F, 0.0177566F },
                          { 0.3762098F, 0.7151522F, 0.1094680F },
                          { 0.1898407F, 0.0721750F, 0.8727755F });
    Vec3f linear;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const float c = colour[i];
        linear[i] = c <= 0.04045F ? c / 12.92F : std::pow((c + 0.055F) / 1.055F, 2.4F);
    }
    vision.multMatrixVec(linear);
    for (osg::UInt32 i = 0; i < 3; ++i) {
        linear[i] = std::clamp(linear[i], 0.0F, 1.0F);
    }
    xyz.multMatrixVec(linear);
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const float part = linear[i];
        linear[i] = part > 216.0F / 24389 ? std::cbrt(part) : (24389.0F / 27 * part + 16) / 116;
    }
    return { 116 * linear[1] - 16, 500 * (linear[0] - linear[1]), 200 * (linear[1] - linear[2]) };
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
    for (const osg::Matrix& vision : kVisions) {
        for (std::size_t i = 0; i < colours.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                EXPECT_GE((labOf(colours[i], vision) - labOf(colours[j], vision)).length(), 40.0F)
                    << &vision - kVisions << ": " << i << ' ' << j;
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

    /// The geometry of the overlay while it is shown.
    osg::GeometryPtr overlay()
    {
        for (const osg::NodePtr& part : partsOf(this->gizmo->getVisualisation())) {
            const auto core = osg::GeometryPtr::dcast(part->getCore());
            if (isShown(part) && osg::getName(part) == nullptr &&
                core->getMaterial()->getSortKey() == 64018) {
                return core;
            }
        }
        return osg::GeometryPtr();
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
    ASSERT_TRUE(this->drag());
    EXPECT_EQ(this->overlay(), osg::NullFC) << "off";
    setDragOverlayShown(true);
    ASSERT_TRUE(this->press() && this->step() && this->step());
    ASSERT_NE(this->overlay(), osg::NullFC);
    EXPECT_EQ(this->overlay()->getLengths()->getValue(0), 6U) << "a line and a mark";
    this->gizmo->cancelDrag();
    EXPECT_EQ(this->overlay(), osg::NullFC);
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
using TurnOverlay = HandleLooks<Gizmo>;

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
    ASSERT_TRUE(this->say("process") && this->step() && this->step() && this->step());
    ASSERT_NE(this->overlay(), osg::NullFC);
    const osg::GeoPositionsPtr legs = this->overlay()->getPositions();
    const Vec2f centre = view.project(legs->getValue(0));
    const Vec2f end = view.project(legs->getValue(3)) - centre;
    const Vec2f start = view.project(legs->getValue(1)) - centre;
    const Vec2f toPointer =
        Vec2f(this->pointer.x(), static_cast<float>(view.getHeight()) - this->pointer.y()) - centre;
    const auto angle = [](const Vec2f& of) { return std::atan2(of.y(), of.x()); };
    EXPECT_NEAR(std::remainder(angle(end) - angle(toPointer), 6.2831853F), 0.0F, 0.02F);
    EXPECT_GT(std::abs(std::remainder(angle(end) - angle(start), 6.2831853F)), 0.04F);
    this->say("stop");
}

}  // namespace nbec::manipulator::test
