// SPDX-License-Identifier: MIT
// What the gizmos at an anchor point do where the host lacks something.
#include "tests/manipulator/support/AnchorScene.h"

#include <nbKernel/nbController.h>
#include <nbOpenSGExt/Transform3D.h>

#include <memory>

namespace nbec::manipulator::test {

namespace {

template <class Gizmo>
class AnchoredGizmos : public testing::Test
{ };

using AllGizmos =
    testing::Types<TriplanarTextureManipulator, UVTextureManipulator, TireProjectionManipulator>;
TYPED_TEST_SUITE(AnchoredGizmos, AllGizmos, );

/// Handles that nothing lies in front of, seen from the front.
const Vec3f kArrowHead(0, 1.9F, 0);

}  // namespace

TYPED_TEST(AnchoredGizmos, WithoutAViewNothingIsFoundAndNothingIsSent)
{
    TypeParam gizmo;
    interaction::Picker picker;
    ManipulatorInteractionContext context;
    context.setPicker(&picker);
    const osg::RefPtr<osg::NodePtr> node(osg::makeCoredNode<osg::Transform3D>());
    const osg::UberMaterialRefPtr material(osg::UberMaterial::create());
    gizmo.setAnchor(node.get(), Pnt3f(1, 2, 3));
    gizmo.setMaterialComponent(material.get(), "diffuse", nullptr);
    gizmo.activate(&context);
    gizmo.update(true);

    EXPECT_TRUE(gizmo.isActive());
    EXPECT_EQ(gizmo.getAnchorPosition(), Pnt3f(1, 2, 3));
    EXPECT_FALSE(gizmo.hover(&context, "select"));
    EXPECT_FALSE(gizmo.startManipulator(&context, "select"));
    EXPECT_FALSE(gizmo.processManipulator(&context, "select"));
    EXPECT_FALSE(gizmo.stopManipulator(&context, "select"));
    gizmo.deactivate(&context);
}

TYPED_TEST(AnchoredGizmos, AViewThatIsLostDuringADragLosesNothing)
{
    TypeParam gizmo;
    AnchorScene at(gizmo);
    gizmo.activateUniversalManipulator();
    at.look(Camera::Oblique, false);
    ASSERT_TRUE(at.grab("yaShape", kArrowHead));
    {
        nbOSGWidget other;  // without area
        other.setMain();
        at.drag.stepTo(Vec2f(5, 5));
        gizmo.update(true);
    }
    at.scene.widget.setMain();
    gizmo.update(true);
    EXPECT_TRUE(at.drag.stepTo(Vec2f(5, -5)));
    EXPECT_EQ(at.last().name, std::string("label") + kAnchoredTraits<TypeParam>.changed);
    EXPECT_TRUE(at.drag.release());
    EXPECT_TRUE(at.scene.hover(at.onHandle("yaShape", kArrowHead)));
}

TYPED_TEST(AnchoredGizmos, AnAnchorThatIsDeletedDuringADragLeavesTheHandlesWhereTheyAre)
{
    TypeParam gizmo;
    AnchorScene at(gizmo);
    gizmo.activateUniversalManipulator();
    osg::RefPtr<osg::NodePtr> passing(osg::makeCoredNode<osg::Transform3D>());
    gizmo.setAnchor(passing.get(), Pnt3f(0.5F, 0, 0));
    at.look(Camera::Oblique, true);
    ASSERT_TRUE(at.grab("yaShape", kArrowHead));
    const Pnt3f place = at.onHandle("yaShape", Vec3f());
    passing = osg::NullFC;
    EXPECT_EQ(gizmo.getAnchorNode(), osg::NullFC);
    EXPECT_TRUE(at.drag.stepTo(Vec2f(0, -9)));
    EXPECT_EQ(at.last().name, std::string("label") + kAnchoredTraits<TypeParam>.changed);
    gizmo.update(true);
    EXPECT_EQ(at.onHandle("yaShape", Vec3f()), place);
    EXPECT_TRUE(at.drag.release());
}

TYPED_TEST(AnchoredGizmos, DeactivatingOnlyTakesTheHandlesAway)
{
    TypeParam gizmo;
    AnchorScene at(gizmo);
    gizmo.activateUniversalManipulator();
    at.look(Camera::Oblique, false);
    ASSERT_TRUE(at.grab("yaShape", kArrowHead));
    at.takeNames();
    // Deliberate: the drag goes on and no message is sent.
    gizmo.deactivate(&at.scene.context);
    EXPECT_TRUE(at.log.empty());
    EXPECT_EQ(gizmo.getVisualisation()->getParent(), osg::NullFC);
    gizmo.activate(&at.scene.context);
    EXPECT_TRUE(at.drag.stepTo(Vec2f(3, 3)));
    EXPECT_TRUE(at.drag.release());
}

TYPED_TEST(AnchoredGizmos, AGizmoThatDiesDuringADragResumesThePreview)
{
    auto gizmo = std::make_unique<TypeParam>();
    AnchorScene at(*gizmo);
    gizmo->activateUniversalManipulator();
    at.look(Camera::Oblique, false);
    ASSERT_TRUE(at.grab("yaShape", kArrowHead));
    at.takeNames();
    at.scene.manager.removeContext(&at.scene.context);
    at.scene.context.setManipulator(nullptr);
    gizmo.reset();
    TypeParam::updateAllManipulators();
    EXPECT_EQ(at.takeNames(), kResume);
}

template <class Gizmo>
class SharedGizmos : public testing::Test
{ };

using GizmosWithAnInstance = testing::Types<TriplanarTextureManipulator, TireProjectionManipulator>;
TYPED_TEST_SUITE(SharedGizmos, GizmosWithAnInstance, );

TYPED_TEST(SharedGizmos, ANewSizeReachesTheSharedInstanceAtOnceAndOthersLater)
{
    Anchored<TypeParam> other;
    other.at.look(Camera::Front, false);
    TypeParam::createInstance();
    TypeParam::createInstance();
    const std::unique_ptr<TypeParam> shared(TypeParam::getInstance());
    shared->setAnchor(other.at.scene.node, Pnt3f(0, 0, 0));
    shared->setMaterialComponent(other.at.material.get(), "diffuse", nullptr);
    const auto sizeOf = [](TypeParam& gizmo) {
        return findNode(gizmo.getVisualisation(), "xaShape")->getParent()->getToWorld()[0][0];
    };
    const float before = sizeOf(other.gizmo);

    TypeParam::setManipulatorSize(116);  // half of the divisor that 32 gives

    EXPECT_NEAR(sizeOf(*shared), 2 * before, 1e-4F);
    EXPECT_EQ(sizeOf(other.gizmo), before);
    TypeParam::updateAllManipulators();
    EXPECT_NEAR(sizeOf(other.gizmo), 2 * before, 1e-4F);
    TypeParam::setManipulatorSize(32);
    EXPECT_EQ(TypeParam::getManipulatorSize(), 32.0F);
}

}  // namespace nbec::manipulator::test
