// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/replay/SessionStage.h"
#include "viewer/stage/Stage.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbKernelServices/nbUndoService.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QUndoStack>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace viewer {

/// Pixel of what is named in a stage; fails the test where there is none.
inline osg::Pnt2f placeIn(Stage& stage, SessionTarget::Kind kind, const char* name)
{
    SessionTarget target;
    target.kind = kind;
    target.name = QLatin1String(name);
    osg::Pnt2f px(-1.0F, -1.0F);
    QString error;
    EXPECT_TRUE(resolveTarget(target, stage, px, error)) << error.toStdString();
    return px;
}

/// The start scene in a view without a window, worked by commands and pointer events.
class StageTest : public testing::Test
{
protected:
    explicit StageTest(int width = 1200, int height = 800)
        : stage(view)
    {
        stage.resize(width, height);
        stage.showStartScene();
        stage.update();
    }

    /// Runs a command, which is done or says in one line why it is not.
    bool run(const char* name, const QJsonValue& value = {})
    {
        error.clear();
        const bool isDone = stage.commands().run(QLatin1String(name), value, error);
        EXPECT_EQ(isDone, error.isEmpty()) << name << ": " << error.toStdString();
        EXPECT_FALSE(error.contains(QLatin1Char('\n')));
        return isDone;
    }

    QJsonValue value(const char* name)
    {
        return stage.commands().value(QLatin1String(name)).value_or(QJsonValue("no value"));
    }

    osg::Pnt2f placeOf(SessionTarget::Kind kind, const char* name)
    {
        return placeIn(stage, kind, name);
    }

    /// An event with the pointer at a pixel, as the window delivers it.
    bool send(const char* event, const osg::Pnt2f& px)
    {
        view.setMousePosition(px);
        stage.interaction().pointerMoved(px);
        return stage.interaction().triggerEvent(nbec::interaction::InteractionEvent(
            event, nbec::interaction::names::kTool, nbec::interaction::names::kSelect));
    }

    /// Commands with what they are given.
    using Rows = std::vector<std::pair<const char*, QJsonValue>>;

    /// That each edit is read back as it was typed and is one step.
    void expectSteps(const Rows& rows, double tolerance)
    {
        for (const auto& [name, typed] : rows) {
            const QJsonValue before = value(name);
            const int stepsBefore = steps();
            EXPECT_TRUE(run(name, typed)) << name;
            EXPECT_TRUE(isNear(value(name), typed, tolerance)) << name;
            EXPECT_EQ(steps(), stepsBefore + 1) << name;
            ASSERT_TRUE(stage.undo()) << name;
            EXPECT_TRUE(isNear(value(name), before, tolerance)) << name;
        }
    }

    void expectRefusals(const Rows& rows)
    {
        const int stepsBefore = steps();
        for (const auto& [name, typed] : rows) {
            EXPECT_FALSE(run(name, typed)) << name << textOf(typed).toStdString();
        }
        EXPECT_EQ(steps(), stepsBefore);
    }

    /// Steps that can be taken back.
    static int steps() { return nbUndoService::the()->getStack()->index(); }

    nbOSGWidget view;
    Stage stage;
    QString error;
};

}  // namespace viewer
