// SPDX-License-Identifier: MIT
// Dragging and undoing in the window, as a person does it.
#include "tests/viewer/support/GuiTest.h"
#include "viewer/core/SceneBuilder.h"
#include "viewer/core/StartScene.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/ViewWidget.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>

#include <QAction>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMouseEvent>
#include <QUndoView>

#include <gtest/gtest.h>

#include <cmath>

namespace viewer {
namespace {

using Type = SessionStep::Type;

SessionStep step(Type type, SessionTarget::Kind kind, const char* name, QPointF offset = {})
{
    SessionStep made;
    made.type = type;
    made.at.kind = kind;
    made.at.name = QLatin1String(name);
    made.at.offsetPx = offset;
    return made;
}

SessionStep key(const char* name)
{
    SessionStep made;
    made.type = Type::Key;
    made.key = QLatin1String(name);
    return made;
}

/// A shown window on the start scene, its knot selected, nobody at it.
class TransformTools : public GuiTest
{
protected:
    TransformTools()
        : window(MainWindow::Attendance::Unattended)
    {
        window.show();
        Session session;
        session.sizePx = { 900, 600 };
        bool done = false;
        const auto connection =
            QObject::connect(&window, &MainWindow::replayFinished, [&done] { done = true; });
        window.replay(session, std::nullopt);
        waitUntil([&done] { return done; });
        QObject::disconnect(connection);
    }

    /// Plays steps on what there is, without setting the stage again.
    void play(const std::vector<SessionStep>& steps)
    {
        Session session;
        session.steps = steps;
        SessionPlayer player(window.view(), window);
        bool done = false;
        QObject::connect(&player, &SessionPlayer::finished, [&done] { done = true; });
        player.start(session, SessionPlayer::Pace::AsFastAsPossible, std::nullopt);
        waitUntil([&done] { return done; });
        EXPECT_EQ(player.getFailures(), QStringList());
    }

    /// Grabs a handle and drags it in four steps, without letting go.
    void drag(const char* handle, double x, double y)
    {
        play({ step(Type::Move, SessionTarget::Kind::Handle, handle) });
        position = window.view().toLogical(stage().view().getMousePosition());
        send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        for (int i = 0; i < 4; ++i) {
            moveBy(x, y);
        }
        EXPECT_NE(stage().gizmo().draggedValues(), "") << handle << " is not grabbed";
    }

    void moveBy(double x, double y)
    {
        position += QPointF(x, y);
        send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
    }

    void release() { send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton); }

    void send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent event(type, position, button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&window.view(), &event);
    }

    QAction* action(const char* name) { return window.findChild<QAction*>(QLatin1String(name)); }

    Stage& stage() { return window.view().stage(); }

    static osg::NodePtr object(const char* name)
    {
        return findObject(nbScenegraph::getRootNode(), name);
    }

    static osg::Vec3f placeOf(const char* name)
    {
        return nbNodeUtils::getTransformNodeTranslation(object(name));
    }

    float heightOfGizmo()
    {
        const osg::NodePtr handles = stage().gizmo().handles()->getChild(3)->getChild(0);
        return handles->getToWorld()[3][1];
    }

    QPointF position;  ///< of the pointer in the view
    MainWindow window;
};

TEST_F(TransformTools, ADragIsOneStepThatCanBeTakenBackOnceItIsOver)
{
    const osg::Vec3f before = placeOf("Knot");
    drag("yaShape", 0.0, -10.0);
    auto* list = window.findChild<QUndoView*>(QStringLiteral("undoList"));
    ASSERT_NE(list, nullptr);

    EXPECT_FALSE(action("undo")->isEnabled());
    EXPECT_FALSE(list->isEnabled()) << "a click into the list would take a step back";
    EXPECT_FALSE(stage().undo());
    release();
    const osg::Vec3f after = placeOf("Knot");
    EXPECT_GT(after[1], before[1] + 0.1F);
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(list->isEnabled());
    EXPECT_EQ(list->model()->rowCount(), 2);

    play({ key("Ctrl+Z") });
    EXPECT_EQ(placeOf("Knot"), before);
    EXPECT_FALSE(window.isWindowModified());
    play({ key("Ctrl+Shift+Z") });
    EXPECT_EQ(placeOf("Knot"), after);

    play({ step(Type::Move, SessionTarget::Kind::Handle, "yaShape") });
    EXPECT_EQ(stage().gizmo().hoveredHandle(), "yaShape") << "the gizmo has not followed";
    window.showStartScene();
    EXPECT_FALSE(action("undo")->isEnabled()) << "steps of a scene that is gone";
}

TEST_F(TransformTools, EscAndTheRightButtonTakeADragBack)
{
    const osg::Vec3f before = placeOf("Knot");
    drag("yaShape", 0.0, -10.0);
    play({ key("Esc") });
    moveBy(0.0, -10.0);
    release();
    EXPECT_EQ(placeOf("Knot"), before);
    EXPECT_FALSE(action("undo")->isEnabled());
    EXPECT_FALSE(action("redo")->isEnabled());

    drag("yaShape", 0.0, -10.0);
    send(QEvent::MouseButtonPress, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    send(QEvent::MouseButtonRelease, Qt::RightButton, Qt::LeftButton);
    release();
    EXPECT_EQ(placeOf("Knot"), before);

    // At once again, before a picture was drawn.
    drag("yaShape", 0.0, -10.0);
    EXPECT_NE(placeOf("Knot"), before);
    release();
}

TEST_F(TransformTools, TheGizmoGoesBackWithAPivot)
{
    action("gizmoRotatePivot")->trigger();
    drag("yaShape", 0.0, -10.0);
    release();
    const float moved = heightOfGizmo();
    play({ key("Ctrl+Z") });
    EXPECT_LT(heightOfGizmo(), moved - 0.1F);
}

TEST_F(TransformTools, AnInterruptedDragKeepsWhatItDidAsAStep)
{
    const osg::Vec3f before = placeOf("Knot");
    drag("yaShape", 0.0, -10.0);
    stage().showGizmo(Gizmo::Rotate);
    EXPECT_GT(placeOf("Knot")[1], before[1] + 0.1F);
    EXPECT_TRUE(action("undo")->isEnabled());
    release();
}

TEST_F(TransformTools, ValuesAreShownOverTheViewAndInTheStatusLine)
{
    action("gizmoTranslate")->trigger();
    auto* values = window.findChild<QLabel*>(QStringLiteral("values"));
    const QRect corner(30, 40, 150, 80);
    const QImage empty = window.view().grabFramebuffer().copy(corner);
    drag("xaShape", 8.0, 2.0);

    EXPECT_TRUE(values->text().startsWith("Translation (")) << values->text().toStdString();
    const QImage text = window.view().grabFramebuffer().copy(corner);
    int bright = 0;
    for (int y = 0; y < text.height(); ++y) {
        for (int x = 0; x < text.width(); ++x) {
            bright += qGray(text.pixel(x, y)) > 220 ? 1 : 0;
        }
    }
    EXPECT_GT(bright, 50);
    QString error;
    EXPECT_NE(window.view().takePicture(error).copy(corner).convertToFormat(empty.format()), empty);

    release();
    EXPECT_EQ(values->text(), "");
    EXPECT_EQ(window.view().grabFramebuffer().copy(corner), empty);
}

TEST_F(TransformTools, TheCursorTellsWhatAHandleDoes)
{
    play({ step(Type::Move, SessionTarget::Kind::Handle, "xaShape") });
    EXPECT_EQ(window.view().cursor().shape(), Qt::BitmapCursor);
    play({ step(Type::Move, SessionTarget::Kind::Pixel, "", { 5.0, 5.0 }) });
    EXPECT_EQ(window.view().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(TransformTools, AllSelectedObjectsGoAlongInOneStep)
{
    SessionStep vase = step(Type::Click, SessionTarget::Kind::Node, "Vase");
    vase.modifiers = Qt::ControlModifier;
    SessionStep pawn = step(Type::Click, SessionTarget::Kind::Node, "Pawn");
    pawn.modifiers = Qt::ShiftModifier;
    play({ vase, pawn });
    ASSERT_EQ(stage().selectedObjects().size(), 3U);
    play({ pawn, vase });
    ASSERT_EQ(stage().selectedObjects().size(), 2U) << "one toggles, the other only adds";
    const osg::Vec3f knot = placeOf("Knot");
    const osg::Vec3f pawnPlace = placeOf("Pawn");

    drag("yaShape", 0.0, -10.0);
    release();
    const osg::Vec3f way = placeOf("Pawn") - pawnPlace;
    EXPECT_GT(way[1], 0.1F);
    EXPECT_LT((placeOf("Knot") - knot - way).length(), 1e-4F);
    play({ key("Ctrl+Z") });
    EXPECT_EQ(placeOf("Knot"), knot);
    EXPECT_EQ(placeOf("Pawn"), pawnPlace);

    play({ key("Ctrl+A") });
    EXPECT_GT(stage().selectedObjects().size(), 8U);
    play({ key("D") });
    EXPECT_TRUE(stage().selectedObjects().empty());
}

TEST_F(TransformTools, SettingsReachTheGizmo)
{
    struct Row
    {
        const char* keys;
        Gizmo gizmo;
    };

    for (const Row& row :
         { Row { "W", Gizmo::Translate }, Row { "E", Gizmo::Rotate }, Row { "R", Gizmo::Scale },
           Row { "T", Gizmo::Universal }, Row { "Shift+E", Gizmo::RotatePivot },
           Row { "Shift+R", Gizmo::ScalePivot }, Row { "Q", Gizmo::None } }) {
        play({ key(row.keys) });
        EXPECT_EQ(stage().gizmo().shown(), row.gizmo) << row.keys;
    }
    EXPECT_FALSE(action("gizmoClipping")->isEnabled()) << "no clip plane is selected";

    window.findChild<QDoubleSpinBox*>(QStringLiteral("translationStep"))->setValue(0.25);
    EXPECT_EQ(nbTransformModel::the()->getTranslationPrecision(), 0.25);
    const osg::Vec3f before = placeOf("Knot");
    play({ key("X"), key("W") });
    drag("yaShape", 0.0, -13.0);
    release();
    const double steps = static_cast<double>(placeOf("Knot")[1] - before[1]) / 0.25;
    EXPECT_GE(steps, 1.0);
    EXPECT_NEAR(steps, std::round(steps), 1e-4);

    window.findChild<QDoubleSpinBox*>(QStringLiteral("gizmoSize"))->setValue(60.0);
    EXPECT_EQ(stage().gizmo().size(), 60.0F);
    play({ key("L") });
    EXPECT_TRUE(stage().gizmo().isLocalSpace());
    stage().gizmo().resetSettings();
    EXPECT_FALSE(stage().gizmo().isLocalSpace());
    EXPECT_FALSE(stage().gizmo().isSnapping());
}

TEST_F(TransformTools, PivotsGoToTheCentresAsOneStepAndObjectsStay)
{
    play({ key("Ctrl+A") });
    const osg::BoxVolume before = nbNodeUtils::getWorldBounds(object("Vase"));

    play({ key("Shift+C") });

    const osg::BoxVolume after = nbNodeUtils::getWorldBounds(object("Vase"));
    EXPECT_LT(before.getMin().dist(after.getMin()), 1e-4F);
    const osg::Pnt3f centre = after.getMin() + (after.getMax() - after.getMin()) * 0.5F;
    const osg::Vec3f pivot = nbTransformModel::getRotationPivot(object("Vase"), true);
    EXPECT_LT((pivot - centre.subZero()).length(), 1e-3F);
}

}  // namespace
}  // namespace viewer
