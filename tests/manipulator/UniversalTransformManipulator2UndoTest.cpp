// SPDX-License-Identifier: MIT
// What is left of drags that end where they began, and of drags that are taken back.
#include "tests/manipulator/support/HandleScene.h"
#include "tests/platform/support/Edited.h"

#include <nbInteraction/InputTranslator.h>
#include <nbKernelServices/nbUndoService.h>

#include <OpenSG/OSGGroup.h>

#include <QMouseEvent>

namespace nbec::manipulator::test {

namespace {

using Mode = UniversalTransformManipulator2::ManipulatorMode;

/// The scene's node with a core that is no transform yet.
void makeGroup(const osg::NodePtr& node)
{
    nbtest::edited(node, osg::Node::CoreFieldMask)->setCore(osg::Group::create());
}

/// Mouse input of a view, whose drags are groups of the undo service.
class MouseDrags
{
public:
    explicit MouseDrags(DragScene& scene)
        : drags(scene)
        , translator(scene.scene.manager, &scene.scene.widget)
    {
        scene.scene.manager.setCancelHandler([] { nbUndoService::the()->cancelGroup(); });
    }

    /// Presses the left button on a point of the gizmo and goes on. @return whether the gizmo took
    /// the press
    bool drag(const Vec3f& unit, const Vec2f& wayPx)
    {
        const Pnt2f start = drags.rayPixelOf(drags.onGizmo(unit));
        pointer = QPointF(std::round(start.x()), std::round(start.y()));
        nbUndoService::the()->beginGroup();
        const bool isGrabbed = send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        for (int i = 0; i < 4; ++i) {
            send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
            pointer += QPointF(wayPx.x() / 4, wayPx.y() / 4);
        }
        send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
        return isGrabbed;
    }

    /// The right button, as a person presses it meanwhile, then all buttons up.
    void cancel()
    {
        send(QEvent::MouseButtonPress, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
        send(QEvent::MouseButtonRelease, Qt::RightButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    }

private:
    bool send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent event(type, pointer, button, held, Qt::NoModifier);
        return translator.handleEvent(event);
    }

    DragScene& drags;
    interaction::InputTranslator translator;
    QPointF pointer;
};

}  // namespace

TEST(DragUndo, ConversionAloneIsNoStepAndJoinsTheNextOne)
{
    DragScene drags;
    makeGroup(drags.scene.node);
    const osg::NodeCorePtr group = drags.scene.node->getCore();
    const osg::RefPtr<osg::NodeCorePtr> held(group);
    // The object's centre, where the new pivots will be, is not the node's origin.
    const osg::NodePtr beside = drags.addFurther(Vec3f(2, 0, 0));
    addChild(drags.scene.node, beside);
    drags.gizmo.update(true);
    const osg::Matrix before = drags.scene.node->getToWorld();
    nbUndoService* const undo = nbUndoService::the();

    undo->beginGroup();
    ASSERT_TRUE(drags.grab(kArrow));
    EXPECT_TRUE(drags.dragBy(Vec2f(40, 0)));
    EXPECT_GT(greatestDifference(drags.scene.node->getToWorld(), before), 0.1F);
    EXPECT_TRUE(drags.dragBy(Vec2f(0, 0)));
    EXPECT_TRUE(drags.release());
    undo->endGroup();
    EXPECT_FALSE(undo->undo());
    EXPECT_EQ(drags.scene.node->getToWorld(), before);
    EXPECT_NE(drags.core(), osg::NullFC) << "the node stays converted";

    undo->beginGroup();
    ASSERT_TRUE(drags.grab(kArrow));
    EXPECT_TRUE(drags.dragBy(Vec2f(40, 0)));
    EXPECT_TRUE(drags.release());
    undo->endGroup();
    const osg::Matrix after = drags.scene.node->getToWorld();
    EXPECT_TRUE(undo->undo());
    EXPECT_FALSE(undo->undo()) << "one step";
    EXPECT_EQ(drags.scene.node->getCore(), group);
    EXPECT_EQ(drags.scene.node->getToWorld(), before);
    EXPECT_TRUE(undo->redo());
    EXPECT_EQ(drags.scene.node->getToWorld(), after);
}

TEST(DragUndo, AfterACancelTheHandleIsGrabbedAgainAtOnce)
{
    for (const bool isConverted : { false, true }) {
        DragScene drags;
        if (isConverted) {
            makeGroup(drags.scene.node);
            drags.gizmo.update(true);
        }
        drags.activate(Mode::Translate);
        MouseDrags mouse(drags);
        const osg::Matrix before = drags.scene.node->getToWorld();
        const Pnt3f place = drags.onGizmo(kArrow);
        for (int i = 0; i < 4; ++i) {
            ASSERT_TRUE(mouse.drag(kArrow, Vec2f(60, 0))) << "drag " << i;
            EXPECT_GT(greatestDifference(drags.scene.node->getToWorld(), before), 0.1F);
            mouse.cancel();
            EXPECT_EQ(drags.scene.node->getToWorld(), before);
            EXPECT_LT((drags.onGizmo(kArrow) - place).length(), 1e-5F) << "the gizmo goes back";
        }
        EXPECT_FALSE(nbUndoService::the()->undo());
    }
}

}  // namespace nbec::manipulator::test
