// SPDX-License-Identifier: MIT
#include "viewer/core/Stage.h"

#include "tests/viewer/support/StageTest.h"
#include "viewer/core/BuiltModel.h"
#include "viewer/core/HandleCursor.h"
#include "viewer/core/StartScene.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGTransform.h>

namespace viewer {
namespace {

namespace names = nbec::interaction::names;

class StageWithStartScene : public StageTest
{
protected:
    void hover(const osg::Pnt2f& px) { send(names::kHover, px); }

    void click(const osg::Pnt2f& px)
    {
        hover(px);
        send(names::kStart, px);
        send(names::kStop, px);
    }
};

TEST_F(StageWithStartScene, EveryNamedHandleCanBeAimedAtAndIsHovered)
{
    for (const char* handle :
         { "xaShape", "yaShape", "zaShape", "xsShape", "rxShape", "ryShape", "rzShape" }) {
        hover(placeOf(SessionTarget::Kind::Handle, handle));

        EXPECT_EQ(stage.gizmo().hoveredHandle(), handle);
        EXPECT_FALSE(nbScenegraph::isPreselectionEnabled()) << "objects light up behind a handle";
    }
}

TEST_F(StageWithStartScene, AClickSelectsTheObjectUnderThePointerAndBesideAllNone)
{
    const osg::Pnt2f vase = placeOf(SessionTarget::Kind::Node, "Vase");

    hover(vase);
    EXPECT_EQ(stage.preselectedName(), "Vase");
    click(vase);
    EXPECT_EQ(stage.selectedName(), "Vase");

    click(osg::Pnt2f(3.0F, 3.0F));
    EXPECT_EQ(stage.selectedName(), "");
}

TEST_F(StageWithStartScene, TheGizmoFollowsTheSelectionAndGoesWithIt)
{
    ASSERT_TRUE(stage.selectByName("Vase"));
    const osg::Pnt2f onVase = placeOf(SessionTarget::Kind::Handle, "yaShape");
    ASSERT_TRUE(stage.selectByName("Pebble"));
    const osg::Pnt2f onPebble = placeOf(SessionTarget::Kind::Handle, "yaShape");

    EXPECT_LT(onVase[0] + 100.0F, onPebble[0]);

    ASSERT_TRUE(stage.selectByName(""));
    EXPECT_EQ(stage.gizmo().handleAt(onPebble), "");
    EXPECT_FALSE(stage.selectByName("No such thing"));
}

TEST_F(StageWithStartScene, ChangingTheManipulatorLeavesOneOfThem)
{
    const auto gizmoCount = [] {
        const osg::NodePtr root = nbScenegraph::getInternalRoot();
        int count = 0;
        for (osg::UInt32 i = 0; i < root->getNChildren(); ++i) {
            count += nbNodeUtils::getName(root->getChild(i)) == "Manipulatorgroup" ? 1 : 0;
        }
        return count;
    };
    for (const Gizmo gizmo :
         { Gizmo::Translate, Gizmo::CameraPivot, Gizmo::Universal, Gizmo::Translate }) {
        stage.gizmo().show(gizmo);

        EXPECT_EQ(gizmoCount(), 1) << gizmoName(gizmo);
    }
    SessionTarget ring;
    ring.kind = SessionTarget::Kind::Handle;
    ring.name = "rxShape";
    osg::Pnt2f px;
    EXPECT_FALSE(resolveTarget(ring, stage, px, error)) << "the translate gizmo has no rings";
    EXPECT_TRUE(error.contains("rxShape"));

    stage.gizmo().show(Gizmo::None);
    EXPECT_EQ(gizmoCount(), 0);
    EXPECT_EQ(stage.gizmo().hoveredHandle(), "");
}

TEST_F(StageWithStartScene, CameraCommandsKeepTheSceneInView)
{
    const auto isKnotInView = [this] {
        const osg::Pnt2f px = placeOf(SessionTarget::Kind::Node, kStartSceneMainObject);
        return px[0] > 0.0F && px[0] < 1200.0F && px[1] > 0.0F && px[1] < 800.0F;
    };

    stage.setOrthographic(true);
    EXPECT_TRUE(stage.pose().orthographic);
    EXPECT_TRUE(isKnotInView());
    stage.setStandardView(nbCameraNavigation::StandardView::Top);
    EXPECT_TRUE(isKnotInView());
    stage.frameSelection();
    const osg::Pnt2f px = placeOf(SessionTarget::Kind::Node, kStartSceneMainObject);
    EXPECT_NEAR(px[0], 600.0, 2.0);
    EXPECT_NEAR(px[1], 400.0, 2.0);
    stage.setZUp(true);
    EXPECT_TRUE(stage.pose().zUp);
    stage.frameAll(true);
    EXPECT_TRUE(isKnotInView());
}

TEST_F(StageWithStartScene, CursorsPointAlongTheAxesOnTheScreen)
{
    stage.setOrthographic(true);
    stage.setStandardView(nbCameraNavigation::StandardView::Front);
    stage.frameSelection();
    stage.update();

    EXPECT_EQ(cursorOfHandle(stage, "xaShape").action, HandleAction::MoveAlong);
    EXPECT_NEAR(cursorOfHandle(stage, "xaShape").angleDeg, 0.0, 0.5);
    EXPECT_NEAR(cursorOfHandle(stage, "ysShape").angleDeg, 90.0, 0.5);
    EXPECT_EQ(cursorOfHandle(stage, "ysShape").action, HandleAction::ScaleAlong);
    EXPECT_EQ(cursorOfHandle(stage, "zaShape").action, HandleAction::MoveInPlane)
        << "the axis points at the eye";
    EXPECT_EQ(cursorOfHandle(stage, "rxShape").action, HandleAction::Turn);
    EXPECT_EQ(cursorOfHandle(stage, "").action, HandleAction::None);
}

TEST(SceneBuilder, NodesStandWhereTheModelPutsThem)
{
    ModelData model;
    model.materials.resize(1);
    MeshData mesh;
    mesh.name = "Leaf";
    mesh.positions = { { 0, 0, 0 }, { 1, 0, 0 }, { 0, 1, 0 } };
    mesh.triangles = { 0, 1, 2 };
    model.meshes = { mesh };
    NodeData branch;
    branch.name = "Branch";
    branch.meshes = { 0 };
    branch.matrix[12] = 5.0F;
    model.root.name = "Tree";
    model.root.matrix[13] = 2.0F;
    model.root.children = { branch };

    const osg::NodeRefPtr root(buildScene(model));

    const osg::NodePtr node = root->getChild(0);
    EXPECT_EQ(nbNodeUtils::getName(node), "Branch");
    EXPECT_EQ(nbNodeUtils::getName(node->getChild(0)), "Leaf");
    const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(node);
    EXPECT_EQ(bounds.getMin(), osg::Pnt3f(5.0F, 2.0F, 0.0F));
    EXPECT_EQ(bounds.getMax(), osg::Pnt3f(6.0F, 3.0F, 0.0F));
}

}  // namespace
}  // namespace viewer
