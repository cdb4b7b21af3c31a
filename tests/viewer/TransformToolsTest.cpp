// SPDX-License-Identifier: MIT
// Dragging and undoing in the window, as a person does it.
#include "tests/viewer/support/ShownWindow.h"
#include "viewer/loading/BuiltModel.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QLabel>
#include <QUndoView>

#include <cmath>

namespace viewer {
namespace {

using Type = SessionStep::Type;

SessionStep key(const char* name)
{
    SessionStep made;
    made.type = Type::Key;
    made.key = QLatin1String(name);
    return made;
}

class TransformTools : public ShownWindow
{
protected:
    TransformTools()
    {
        Session session;
        session.sizePx = { 900, 600 };
        replay(session);
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
        play({ stepAt(Type::Move, SessionTarget::Kind::Handle, handle) });
        position = window.view().toLogical(stage().view().getMousePosition());
        send(QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
        for (int i = 0; i < 4; ++i) {
            move(position += QPointF(x, y));
        }
        EXPECT_TRUE(stage().isDragging()) << handle << " is not grabbed";
    }

    void letGo() { release(position); }

    static osg::Vec3f placeOfKnot()
    {
        return nbNodeUtils::getTransformNodeTranslation(
            findObject(nbScenegraph::getRootNode(), "Knot"));
    }

    QPointF position;  ///< of the pointer in the view
};

TEST_F(TransformTools, ADragIsOneStepThatCanBeTakenBackOnceItIsOver)
{
    drag("yaShape", 0.0, -10.0);
    auto* list = find<QUndoView>("undoList");

    EXPECT_FALSE(action("undo")->isEnabled());
    EXPECT_FALSE(list->isEnabled()) << "a click into the list would take a step back";
    EXPECT_FALSE(stage().undo());
    letGo();
    EXPECT_TRUE(window.isWindowModified());

    send(QEvent::MouseButtonPress, position, Qt::RightButton, Qt::RightButton);
    send(QEvent::MouseMove, position + QPointF(20, 0), Qt::NoButton, Qt::RightButton);
    EXPECT_FALSE(action("undo")->isEnabled());
    send(QEvent::MouseButtonRelease, position, Qt::RightButton, Qt::NoButton);
    EXPECT_TRUE(action("undo")->isEnabled()) << "the view was turned";

    play({ key("Ctrl+Z") });
    EXPECT_FALSE(window.isWindowModified());
    play({ key("Ctrl+Shift+Z"), stepAt(Type::Move, SessionTarget::Kind::Handle, "yaShape") });
    EXPECT_EQ(stage().gizmo().hoveredHandle(), "yaShape") << "the gizmo has not followed";
    window.showStartScene();
    EXPECT_FALSE(action("undo")->isEnabled()) << "steps of a scene that is gone";
}

TEST_F(TransformTools, ValuesAreShownOverTheViewAndInTheStatusLine)
{
    action("gizmoTranslate")->trigger();
    auto* values = find<QLabel>("values");
    const QRect corner(30, 40, 150, 80);
    const QImage empty = window.view().grabFramebuffer().copy(corner);
    drag("xaShape", 8.0, 2.0);

    EXPECT_TRUE(values->text().contains("Translation (")) << values->text().toStdString();
    const QImage text = window.view().grabFramebuffer().copy(corner);
    int bright = 0;
    for (int y = 0; y < text.height(); ++y) {
        for (int x = 0; x < text.width(); ++x) {
            bright += qGray(text.pixel(x, y)) > 220 ? 1 : 0;
        }
    }
    EXPECT_GT(bright, 50);
    EXPECT_NE(picture().copy(corner).convertToFormat(empty.format()), empty);

    letGo();
    EXPECT_EQ(values->text(), "");
    EXPECT_EQ(window.view().grabFramebuffer().copy(corner), empty);
}

TEST_F(TransformTools, ClicksToggleOrAddKeysSelectAllOrNothingAndALockedObjectIsToldOf)
{
    SessionStep vase = stepAt(Type::Click, SessionTarget::Kind::Node, "Vase");
    vase.modifiers = Qt::ControlModifier;
    SessionStep pawn = stepAt(Type::Click, SessionTarget::Kind::Node, "Pawn");
    pawn.modifiers = Qt::ShiftModifier;
    play({ vase, pawn });
    ASSERT_EQ(stage().selectedObjects().size(), 3U);
    play({ pawn, vase });
    ASSERT_EQ(stage().selectedObjects().size(), 2U) << "one toggles, the other only adds";
    run("object.locked", true);
    drag("yaShape", 0.0, -10.0);
    letGo();
    EXPECT_EQ(problems.size(), 1) << "nobody sees why nothing moves";

    play({ key("Ctrl+A") });
    EXPECT_GT(stage().selectedObjects().size(), 8U);
    play({ key("D") });
    EXPECT_TRUE(stage().selectedObjects().empty());
}

TEST_F(TransformTools, SettingsReachTheGizmo)
{
    for (const auto& [keys, gizmo] :
         { std::pair("W", Gizmo::Translate), std::pair("Shift+E", Gizmo::RotatePivot),
           std::pair("Q", Gizmo::None) }) {
        play({ key(keys) });
        EXPECT_EQ(stage().gizmo().shown(), gizmo) << keys;
    }
    EXPECT_FALSE(action("gizmoClipping")->isEnabled()) << "no clip plane is selected";

    EXPECT_TRUE(run("settings.translationStep", 0.25));
    const osg::Vec3f before = placeOfKnot();
    play({ key("X"), key("W") });
    drag("yaShape", 0.0, -13.0);
    letGo();
    const double steps = static_cast<double>(placeOfKnot()[1] - before[1]) / 0.25;
    EXPECT_GE(steps, 1.0);
    EXPECT_NEAR(steps, std::round(steps), 1e-4);

    EXPECT_TRUE(run("settings.gizmoSize", 60));
    EXPECT_EQ(stage().gizmo().size(), 60.0F);
    play({ key("L") });
    EXPECT_TRUE(stage().gizmo().isLocalSpace());
    stage().gizmo().resetSettings();
    EXPECT_FALSE(stage().gizmo().isLocalSpace());
}

}  // namespace
}  // namespace viewer
