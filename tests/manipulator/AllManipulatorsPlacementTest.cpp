// SPDX-License-Identifier: MIT
// Where all manipulators stand, what their copies and instances share, and what they leave.
#include "manipulator/CameraManipulator.h"
#include "tests/manipulator/support/AnyManipulator.h"
#include "tests/platform/support/Edited.h"

#include <nbOpenSGExt/NodeFlags.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <ChangeCount.h>

namespace nbec::manipulator::test {

template <class Gizmo>
using Copied = AnyManipulator<Gizmo>;

TYPED_TEST_SUITE(Copied, KindsToCopy, );

TYPED_TEST(Gizmos, AnUpdateAfterNoChangeEditsNothingAndFollowsWhatMoved)
{
    const osg::NodePtr root = this->gizmo->getVisualisation();
    this->gizmo->update(false);
    const osg::UInt64 edits = osg::getTreeChangeCount(root);
    this->gizmo->update(false);
    EXPECT_EQ(osg::getTreeChangeCount(root), edits);

    if (!std::is_same_v<TypeParam, Plate>) {
        const Pnt3f before = this->place();
        nbtest::edited(transformOf(this->stage.firstNode()))->setTranslation(Vec3f(1, 0, 0));
        this->gizmo->update(false);
        EXPECT_NEAR(this->place().x(), before.x() + 1, 0.02F);
    }
    const osg::Matrix placed = this->node(this->kTraits.handle)->getToWorld();
    this->look(Pnt3f(2, 4, 16));
    this->gizmo->update(false);
    EXPECT_EQ(!(this->node(this->kTraits.handle)->getToWorld() == placed),
              this->kTraits.followsCamera);
    this->gizmo->update(true);
    EXPECT_FALSE(this->node(this->kTraits.handle)->getToWorld() == placed);

    // A mere turn, another field of view, and another projection.
    for (int i = 0; i < 3 && this->kTraits.followsCamera; ++i) {
        const osg::UberCameraPtr camera = this->stage.view->getUberCamera();
        camera->setFromAtUp(Pnt3f(2, 4, 16), Pnt3f(1, 0, 0), Vec3f(0, 1, 0));
        nbtest::edited(camera)->setFov(i > 0 ? 60 : 45);
        nbtest::edited(camera)->setOrthographic(i > 1);
        this->gizmo->update(false);
        const osg::Matrix found = this->node(this->kTraits.handle)->getToWorld();
        this->gizmo->update(true);
        EXPECT_EQ(found, this->node(this->kTraits.handle)->getToWorld()) << i;
    }

    const Pnt3f last = this->place();
    this->drop();
    this->equipNew();
    this->stage.manager.removeContext(&this->context);
    const osg::UInt64 atRest = osg::getTreeChangeCount(this->gizmo->getVisualisation());
    this->look(last + Vec3f(0, 0, 9));
    this->gizmo->update(true);
    EXPECT_EQ(osg::getTreeChangeCount(this->gizmo->getVisualisation()), atRest) << "not in use";
}

TYPED_TEST(Gizmos, HandlesKeepTheirSizeOnScreen)
{
    if (std::is_same_v<TypeParam, Plate>) {
        return;  // in pixels, see nbSceneplateManipulatorTest
    }
    this->look(Pnt3f(0, 0, 10));
    this->gizmo->update(true);
    EXPECT_NEAR(this->size(), kUnit, 1e-4F);
    this->look(Pnt3f(0, 0, 20));
    this->gizmo->update(true);
    EXPECT_NEAR(this->size(), 2 * kUnit, 1e-4F);
    this->look(Pnt3f(0, 0, 20), true);
    this->gizmo->update(true);
    // 2 * 20 * tan(22.5) high, 4 : 3, so the diagonal is 5/3 of that.
    EXPECT_NEAR(this->size(), 2 * 20 * 0.41421356F * 5 / 3 / 20, 1e-4F);
    nbtest::edited(transformOf(this->stage.firstNode()))->setTranslation(Vec3f(0, 0, -9));
    this->gizmo->update(true);
    EXPECT_NEAR(this->size(), 2 * 20 * 0.41421356F * 5 / 3 / 20, 1e-4F) << "at any distance";
}

TYPED_TEST(Gizmos, TheSizeSettingIsTakenAtTheNextPlacement)
{
    const auto reach = [this] {
        const osg::Matrix place = this->node(this->kTraits.handle)->getToWorld();
        return place[1].length();
    };
    constexpr bool kIsUV = std::is_same_v<TypeParam, UV>;
    const float usual = TypeParam::getManipulatorSize();
    EXPECT_EQ(usual, kIsUV ? 0.03F : 32.0F);
    const float before = reach();
    // Twice what the usual one gives: 200 - 116 is half of 200 - 32.
    TypeParam::setManipulatorSize(std::is_same_v<TypeParam, Plate> || kIsUV ? 2 * usual : 116.0F);
    EXPECT_EQ(reach(), before);
    TypeParam::updateAllManipulators();
    EXPECT_NEAR(reach(), 2 * before, 1e-3F);
    TypeParam::setManipulatorSize(usual);
    EXPECT_NEAR(reach(), 2 * before, 1e-3F);
}

// == Copies, instances, lifetime

TYPED_TEST(Copied, ShareTheHandlesAndAnotherOnesMoveIsNoticed)
{
    ASSERT_TRUE(this->hover(this->kTraits.handle));
    this->say("stopHover");
    const Pnt3f place = this->place();
    {
        TypeParam copy(*this->gizmo);
        EXPECT_EQ(copy.getVisualisation(), this->gizmo->getVisualisation());
        EXPECT_EQ(copy.getMode(), this->gizmo->getMode());
        EXPECT_EQ(copy.getComponentType(), "diffuse");
        const osg::NodePtr other = osg::makeCoredNode<osg::Transform3D>();
        addChild(nbScenegraph::getRootNode(), other);
        nbtest::edited(transformOf(other))->setTranslation(Vec3f(0, 0, -5));
        if constexpr (std::is_same_v<TypeParam, Planar>) {
            copy.setNode(other);
        } else {
            copy.setAnchor(other, Pnt3f());
        }
        copy.updateManipulator();
        EXPECT_FALSE(this->place().equals(place, 0.1F));
        this->gizmo->update(false);
        EXPECT_TRUE(this->place().equals(place, 1e-4F));
        TypeParam assigned;
        assigned = copy;
        EXPECT_EQ(assigned.getVisualisation(), this->gizmo->getVisualisation());
        EXPECT_EQ(assigned.getMaterial(), this->gizmo->getMaterial());
    }
    EXPECT_TRUE(this->drag());
}

TYPED_TEST(Gizmos, OfSeveralInstancesTheRestIsPlacedWhenOneIsGone)
{
    auto first = std::make_unique<TypeParam>();
    equip(*first, this->stage);
    first->activate(nullptr);
    auto second = std::make_unique<TypeParam>();
    first.reset();
    this->look(Pnt3f(2, 4, 16));
    const osg::Matrix before = this->node(this->kTraits.handle)->getToWorld();
    TypeParam::updateAllManipulators();
    EXPECT_FALSE(this->node(this->kTraits.handle)->getToWorld() == before);
}

template <class Gizmo>
using Shared = AnyManipulator<Gizmo>;

using KindsWithAnInstance = testing::Types<Planar, Triplanar, Tire>;
TYPED_TEST_SUITE(Shared, KindsWithAnInstance, );

TYPED_TEST(Shared, TheSharedInstanceTakesANewSizeAtOnce)
{
    constexpr bool kIsPlanar = std::is_same_v<TypeParam, Planar>;
    for (int i = 0; i < 2; ++i) {  // the second takes the first one's place
        if constexpr (kIsPlanar) {
            TypeParam::createInstance(false);
        } else {
            TypeParam::createInstance();
        }
    }
    std::unique_ptr<TypeParam> shared(TypeParam::getInstance());
    EXPECT_EQ(shared->getVisualisation()->getNChildren(), kIsPlanar ? 1U : 2U) << "depth pass";
    equip(*shared, this->stage);
    shared->updateManipulator();
    const auto sizeOf = [this](TypeParam& of) {
        return findNode(of.getVisualisation(), this->kTraits.handle)->getToWorld()[1].length();
    };
    const float before = sizeOf(*shared);
    TypeParam::setManipulatorSize(116);
    EXPECT_NEAR(sizeOf(*shared), 2 * before, 1e-4F);
    EXPECT_NEAR(sizeOf(*this->gizmo), before, 1e-4F);
    TypeParam::setManipulatorSize(32);
    if constexpr (kIsPlanar) {
        shared.release();
        TypeParam::createInstance(true);
    }
    shared.reset();
    EXPECT_EQ(TypeParam::getInstance(), nullptr);
}

template <class Gizmo>
using Constructed = testing::Test;

using All = testing::Types<CameraManipulator, Transform, Planar, Triplanar, UV, Tire, Plate, Match>;
TYPED_TEST_SUITE(Constructed, All, );

TYPED_TEST(Constructed, TheyAreManipulatorsAndDestroyedTheyAreCalledByNobody)
{
    {
        TypeParam one;
        EXPECT_EQ(nbNodeUtils::getName(one.getVisualisation()), "Manipulatorgroup");
        using osg::NodeFlags;
        EXPECT_EQ(nbNodeUtils::getNodeFlags(one.getVisualisation()),
                  NodeFlags::Auxiliary | NodeFlags::SelectableAuxiliary |
                      NodeFlags::ManipulatorNode);
        EXPECT_EQ(one.getCollider(), one.getVisualisation());
        static_cast<AbstractManipulator&>(one) = TypeParam();
        EXPECT_NE(one.addDragListener({}) != 0, (std::is_same_v<TypeParam, CameraManipulator>));
    }
    nbOSGWidget widget;
    widget.resize(100, 100);
}

template <class Gizmo>
using ManipulatorsWithModes = testing::Test;

using WithModes = testing::Types<CameraManipulator, Transform, Plate>;
TYPED_TEST_SUITE(ManipulatorsWithModes, WithModes, );

TYPED_TEST(ManipulatorsWithModes, CompareThemExactly)
{
    TypeParam gizmo;
    EXPECT_TRUE(gizmo.setManipulatorMode("precisionTool"));
    // Deliberate: it takes effect all the same.
    EXPECT_FALSE(gizmo.setManipulatorMode("tool"));
    EXPECT_TRUE(gizmo.setManipulatorMode(""));
    EXPECT_FALSE(gizmo.setManipulatorMode("Tool"));
}

}  // namespace nbec::manipulator::test
