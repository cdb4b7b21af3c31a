// SPDX-License-Identifier: MIT
#include "tests/platform/nbInteraction/Recording.h"
#include "tests/platform/support/Edited.h"

#include <nbInteraction/InputTranslator.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <gmock/gmock.h>

#include <EditStamp.h>

namespace nbec::interaction {
namespace {

using nbtest::CallLog;
using nbtest::RecordingContext;
using nbtest::takeLog;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Qt::KeyboardModifiers kNone = Qt::NoModifier;

class InputTranslatorTest : public testing::Test
{
protected:
    InputTranslatorTest()
    {
        widget.resize(400, 300);
        manager.addContext(&context);
        manager.setCancelHandler([this] { log.push_back("taken back"); });
        log.clear();
    }

    ~InputTranslatorTest() override { nbScenegraph::clear(); }

    bool mouse(QEvent::Type type, int x, int y, Qt::MouseButton button, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers modifiers = kNone)
    {
        QMouseEvent event(type, QPointF(x, y), QPointF(x, y), button, buttons, modifiers);
        return translator.handleEvent(event);
    }

    bool press(Qt::MouseButton button, Qt::KeyboardModifiers modifiers = kNone)
    {
        return mouse(QEvent::MouseButtonPress, 10, 20, button, button, modifiers);
    }

    bool release(Qt::MouseButton button, Qt::MouseButtons still = Qt::NoButton)
    {
        return mouse(QEvent::MouseButtonRelease, 10, 20, button, still);
    }

    bool move(int x, int y, Qt::MouseButtons buttons = Qt::NoButton)
    {
        return mouse(QEvent::MouseMove, x, y, Qt::NoButton, buttons);
    }

    bool key(QEvent::Type type, Qt::Key code)
    {
        QKeyEvent event(type, code, kNone);
        return translator.handleEvent(event);
    }

    void plain(QEvent::Type type)
    {
        QEvent event(type);
        translator.handleEvent(event);
    }

    /// The log without the pointer's positions.
    CallLog takeEvents()
    {
        CallLog events;
        for (const std::string& line : takeLog(log)) {
            if (line.find(" pointer ") == std::string::npos) {
                events.push_back(line);
            }
        }
        return events;
    }

    CallLog log;
    nbOSGWidget widget;
    InteractionManager manager;
    RecordingContext context { log, "a", Tool, { "start", "process", "stop", "trigger" } };
    InputTranslator translator { manager };
};

TEST_F(InputTranslatorTest, PointerGoesOutInDevicePixelsBeforeTheEvent)
{
    translator.setDevicePixelRatio(1.5);
    translator.setDevicePixelRatio(0.0);

    EXPECT_FALSE(move(20, 10));
    EXPECT_TRUE(press(Qt::LeftButton));
    EXPECT_TRUE(move(400, 10, Qt::LeftButton));

    EXPECT_THAT(log,
                ElementsAre("a pointer 30 15", "a hover tool/select", "a pointer 15 30",
                            "a start tool/select", "a pointer 600 15", "a process tool/select"));
    EXPECT_EQ(osg::Pnt2f(600, 15), widget.getMousePosition());
    EXPECT_EQ(QRect(QPoint(15, 15), QPoint(600, 30)), widget.getMouseRect());
}

TEST_F(InputTranslatorTest, PressesMeanToolOrCameraByButtonAndModifiers)
{
    const std::tuple<Qt::MouseButton, Qt::KeyboardModifiers, const char*> rows[] = {
        { Qt::LeftButton, kNone, "a start tool/select" },
        { Qt::LeftButton, Qt::ControlModifier, "a start tool/toggle" },
        { Qt::LeftButton, Qt::ShiftModifier, "a start tool/add" },
        { Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier, "a start tool/selectThrough" },
        { Qt::LeftButton, Qt::AltModifier, "a start camera/orbit" },
        { Qt::RightButton, kNone, "a start camera/orbit" },
        { Qt::RightButton, Qt::ShiftModifier, "a start camera/pan" },
        { Qt::RightButton, Qt::AltModifier, "a start camera/zoom" },
        { Qt::MiddleButton, kNone, "a start camera/pan" },
        { Qt::MiddleButton, Qt::AltModifier, "a start camera/pan" },
    };
    for (const auto& [button, modifiers, start] : rows) {
        SCOPED_TRACE(start);
        press(button, modifiers);
        const CallLog pressed = takeEvents();
        release(button);
        const CallLog released = takeEvents();

        EXPECT_THAT(pressed, testing::Contains(start));
        // Drag events keep tool and hint although the modifiers are up again.
        std::string stop = start;
        stop.replace(stop.find("start"), 5, "stop");
        EXPECT_THAT(released, testing::Contains(stop));
        EXPECT_EQ("a hover tool/select", released.back());
        const bool isCamera = std::string(start).find("camera") != std::string::npos;
        EXPECT_EQ(isCamera, pressed.front() == "a stopHover tool/select");
    }
    EXPECT_FALSE(press(Qt::BackButton));
    EXPECT_THAT(takeEvents(), IsEmpty());
}

TEST_F(InputTranslatorTest, WhateverComesBetweenEndsTheDragOnce)
{
    using Calls = std::vector<std::string>;
    const auto second = [this](Qt::MouseButton button) {
        mouse(QEvent::MouseButtonPress, 10, 20, button, Qt::LeftButton | button);
    };

    const std::tuple<const char*, std::function<void()>, bool> rows[] = {
        { "Esc", [&] { EXPECT_TRUE(key(QEvent::KeyPress, Qt::Key_Escape)); }, true },
        { "right button", [&] { second(Qt::RightButton); }, true },
        { "middle button", [&] { second(Qt::MiddleButton); }, false },
        { "side button", [&] { second(Qt::BackButton); }, false },
        { "focus", [&] { plain(QEvent::FocusOut); }, false },
        { "window", [&] { plain(QEvent::WindowDeactivate); }, false },
        { "grab", [&] { plain(QEvent::UngrabMouse); }, false },
        { "call", [&] { translator.interruptDrag(); }, false },
    };
    for (const auto& [name, input, isTakenBack] : rows) {
        SCOPED_TRACE(name);
        press(Qt::LeftButton, Qt::ShiftModifier);
        takeEvents();

        input();

        Calls expected { "a stop tool/add" };
        if (isTakenBack) {
            expected.push_back("taken back");
        }
        EXPECT_EQ(expected, takeEvents());
        // Nothing begins before all buttons are up, not even with one more press.
        second(Qt::RightButton);
        move(50, 60, Qt::LeftButton | Qt::RightButton);
        release(Qt::RightButton, Qt::LeftButton);
        EXPECT_THAT(takeEvents(), IsEmpty());
        release(Qt::LeftButton);
        EXPECT_THAT(takeEvents(), ElementsAre("a hover tool/select"));
    }
}

TEST_F(InputTranslatorTest, ViewThatGoesEndsDragAndHover)
{
    for (const QEvent::Type type : { QEvent::Close, QEvent::Hide }) {
        press(Qt::LeftButton);
        takeEvents();
        plain(type);
        EXPECT_THAT(takeEvents(), ElementsAre("a stop tool/select", "a stopHover tool/select"));
        translator.refreshHover();
        EXPECT_THAT(takeEvents(), IsEmpty());
    }
}

TEST_F(InputTranslatorTest, LostReleaseEndsTheDragWithTheNextMoveOrPress)
{
    press(Qt::LeftButton);
    takeEvents();
    move(30, 30);
    EXPECT_THAT(takeEvents(), ElementsAre("a stop tool/select", "a hover tool/select"));

    press(Qt::LeftButton);
    takeEvents();
    press(Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_THAT(takeEvents(), ElementsAre("a stop tool/select", "a start tool/add"));
}

TEST_F(InputTranslatorTest, DragGoesOnOutsideOfTheViewAndEndsTheHoverThere)
{
    press(Qt::LeftButton);
    plain(QEvent::Leave);
    takeEvents();

    EXPECT_TRUE(move(-50, 900, Qt::LeftButton));
    mouse(QEvent::MouseButtonRelease, 400, 20, Qt::LeftButton, Qt::NoButton);

    EXPECT_THAT(takeEvents(),
                ElementsAre("a process tool/select", "a process tool/select", "a stop tool/select",
                            "a stopHover tool/select"))
        << "the release is a motion, too, if it is elsewhere";
}

TEST_F(InputTranslatorTest, HeldCtrlIsThePrecisionMode)
{
    EXPECT_FALSE(key(QEvent::KeyPress, Qt::Key_Control));
    key(QEvent::KeyPress, Qt::Key_Control);
    key(QEvent::KeyRelease, Qt::Key_Control);
    EXPECT_THAT(takeEvents(), ElementsAre("a mode precisionTool", "a mode tool"));

    key(QEvent::KeyPress, Qt::Key_Control);
    plain(QEvent::FocusOut);
    EXPECT_THAT(takeEvents(), ElementsAre("a mode precisionTool", "a mode tool"));

    // Pressed and released while another window had the focus.
    press(Qt::LeftButton, Qt::ControlModifier);
    move(30, 30, Qt::LeftButton);
    EXPECT_THAT(takeEvents(),
                ElementsAre("a mode precisionTool", "a start tool/toggle", "a mode tool",
                            "a process tool/toggle"));
}

TEST_F(InputTranslatorTest, EscIsTakenFromShortcutsOnlyDuringADrag)
{
    EXPECT_FALSE(key(QEvent::ShortcutOverride, Qt::Key_Escape));
    EXPECT_FALSE(key(QEvent::KeyPress, Qt::Key_Escape));
    press(Qt::LeftButton);
    EXPECT_TRUE(key(QEvent::ShortcutOverride, Qt::Key_Escape));
    EXPECT_FALSE(key(QEvent::ShortcutOverride, Qt::Key_Delete));
}

TEST_F(InputTranslatorTest, WheelAndTouchpadZoomInSteps)
{
    const std::tuple<const char*, QPoint, QPoint, double> rows[] = {
        { "one step", QPoint(), QPoint(0, 120), 1.0 },
        { "fine wheel", QPoint(), QPoint(0, -30), -0.25 },
        { "Alt exchanges the axes", QPoint(), QPoint(240, 0), 2.0 },
        { "touchpad", QPoint(0, 30), QPoint(), 0.5 },
        { "angles win over pixels", QPoint(0, 999), QPoint(0, 60), 0.5 },
        { "broken device", QPoint(), QPoint(0, -1000000), -20.0 },
    };
    double steps = 0.0;
    context.onEvent = [&steps](const InteractionEvent& event) {
        steps = event.getEvent() == "trigger" ? event.getAmount() : steps;
    };
    for (const auto& [name, pixels, angle, expected] : rows) {
        SCOPED_TRACE(name);
        QWheelEvent event(QPointF(7, 8), QPointF(7, 8), pixels, angle, Qt::NoButton, kNone,
                          Qt::NoScrollPhase, false);
        EXPECT_TRUE(translator.handleEvent(event));
        EXPECT_THAT(takeLog(log),
                    ElementsAre("a pointer 7 8", "a trigger camera/zoom", "a hover tool/select"));
        EXPECT_DOUBLE_EQ(expected, steps);
    }
    QWheelEvent empty(QPointF(7, 8), QPointF(7, 8), QPoint(), QPoint(), Qt::NoButton, kNone,
                      Qt::ScrollBegin, false);
    EXPECT_FALSE(translator.handleEvent(empty));
    EXPECT_THAT(takeEvents(), IsEmpty());
}

TEST_F(InputTranslatorTest, ViewUnderThePointerBecomesTheMainOne)
{
    nbOSGWidget second;
    InputTranslator ofSecond(manager, &second);
    ASSERT_EQ(nbOSGWidget::getMGLW(-1), &widget);

    QMouseEvent event(QEvent::MouseMove, QPointF(5, 6), QPointF(5, 6), Qt::NoButton, Qt::NoButton,
                      kNone);
    ofSecond.handleEvent(event);

    EXPECT_EQ(nbOSGWidget::getMGLW(-1), &second);
    EXPECT_EQ(osg::Pnt2f(5, 6), second.getMousePosition());
    EXPECT_NE(osg::Pnt2f(5, 6), widget.getMousePosition());

    // Both show what an event has edited, but not where handles were placed for one of them.
    for (const bool isForOne : { true, false }) {
        nbOSGWidget* const views[] = { &widget, &second };
        for (nbOSGWidget* const view : views) {
            view->redrawDone();
        }
        context.onEvent = [isForOne](const InteractionEvent&) {
            const osg::glue::EditsForOneView placing(isForOne);
            nbtest::edited(nbScenegraph::getRootNode());
        };
        ofSecond.handleEvent(event);
        for (nbOSGWidget* const view : views) {
            EXPECT_EQ(view->isRedrawPending(), !isForOne);
        }
    }
}

}  // namespace
}  // namespace nbec::interaction
