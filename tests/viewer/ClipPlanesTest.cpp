// SPDX-License-Identifier: MIT
#include "viewer/stage/ClipPlanes.h"

#include "tests/viewer/support/StageTest.h"
#include "viewer/loading/BuiltModel.h"
#include "viewer/loading/StartScene.h"

#include <nbKernel/nbScenegraph.h>

namespace viewer {
namespace {

class ClipPlanes : public StageTest
{
protected:
    ClipPlanes()
        : StageTest(800, 600)
    {
        picker.setFilter(nbec::interaction::Picker::SceneFilter);
    }

    /// Distance from the eye of what is seen in the middle of the view; 0 for nothing.
    float depthInTheMiddle()
    {
        return picker.pickAt({ 400.0F, 300.0F }) == osg::NullFC
            ? 0.0F
            : (picker.getHitPoint() - stage.pose().from).length();
    }

    osg::Vec3f originOf(const std::string& name)
    {
        osg::Vec3f translation;
        const osg::NodePtr node = findObject(nbScenegraph::getRootNode(), name);
        if (node != osg::NullFC) {
            osg::Pnt3f place;
            node->getToWorld().multMatrixPnt(osg::Pnt3f(0.0F, 0.0F, 0.0F), place);
            translation = place.subZero();
        }
        return translation;
    }

    nbec::interaction::Picker picker;
};

TEST_F(ClipPlanes, TheHalfTowardsTheEyeGoesAndEachStepCanBeTakenBack)
{
    const osg::Vec3f place = originOf(kStartSceneMainObject);
    const float whole = depthInTheMiddle();
    ASSERT_GT(whole, 0.0F);
    ASSERT_TRUE(run("scene.addClipPlane"));
    const float cut = depthInTheMiddle();
    EXPECT_GT(cut, whole + 0.1F);
    EXPECT_EQ(stage.selectedName(), "Clip plane");
    EXPECT_EQ(stage.gizmo().shown(), Gizmo::Clipping);
    EXPECT_EQ(originOf(kStartSceneMainObject), place);

    EXPECT_TRUE(stage.undo());
    EXPECT_EQ(depthInTheMiddle(), whole);
    EXPECT_EQ(stage.selectedObject(), osg::NodePtr()) << "what is gone is not selected";
    EXPECT_TRUE(nbSelection::isEmpty());
    EXPECT_EQ(stage.gizmo().shown(), Gizmo::Universal);
    EXPECT_TRUE(stage.redo());
    EXPECT_EQ(depthInTheMiddle(), cut);
    ASSERT_TRUE(stage.selectByName("Clip plane"));
    ASSERT_TRUE(run("scene.removeClipPlane"));
    EXPECT_EQ(depthInTheMiddle(), whole);
    EXPECT_TRUE(stage.undo());
    EXPECT_EQ(depthInTheMiddle(), cut);
    EXPECT_EQ(nbUndoService::the()->getStack()->count(), 2);
}

TEST_F(ClipPlanes, NothingCanBeTakenAwayWhileItIsDraggedOrGrabbedAfterItIsGone)
{
    ASSERT_TRUE(run("scene.addClipPlane"));
    const osg::Pnt2f arrow = placeOf(SessionTarget::Kind::Handle, "yaShape");
    send(nbec::interaction::names::kHover, arrow);
    send(nbec::interaction::names::kStart, arrow);
    ASSERT_TRUE(stage.isDragging());
    EXPECT_FALSE(run("scene.removeClipPlane"));
    EXPECT_EQ(error, "scene.removeClipPlane: not while something is being dragged");
    send(nbec::interaction::names::kStop, arrow);

    ASSERT_TRUE(stage.undo());
    send(nbec::interaction::names::kHover, arrow);
    EXPECT_EQ(stage.hoveredHandle(), "");
    ASSERT_TRUE(stage.selectByName(kStartSceneMainObject));
    ASSERT_TRUE(run("object.visible", false)) << "the plane's step, and with it the node, is gone";
    EXPECT_FALSE(stage.gizmo().centerPivots() && stage.selectedName() != kStartSceneMainObject);
}

TEST_F(ClipPlanes, WithoutASceneOrASelectedPlaneOneLineSaysSo)
{
    EXPECT_FALSE(run("scene.removeClipPlane"));
    EXPECT_EQ(error, "select a clip plane first");
    EXPECT_EQ(stage.selectedName(), kStartSceneMainObject);
    stage.clear();
    EXPECT_FALSE(run("scene.addClipPlane"));
    EXPECT_EQ(error, "there is nothing to be cut");
}

}  // namespace
}  // namespace viewer
