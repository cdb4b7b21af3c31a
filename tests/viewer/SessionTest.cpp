// SPDX-License-Identifier: MIT
#include "viewer/replay/Session.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

namespace viewer {
namespace {

QByteArray withSteps(const char* steps)
{
    return QByteArray(R"({"session": 1, "size": [640, 480], "steps": [)") + steps + "]}";
}

TEST(Session, IsReadAsItWasWritten)
{
    const QByteArray text = R"({
    "session": 1,
    "size": [801, 603],
    "camera": {"from": [1.5, -2.25, 3], "at": [0, 0, 0], "up": [0, 1, 0], "pivot": [0.5, 0, 0], "fov": 45, "orthographic": true},
    "selection": "Knot",
    "manipulator": "universal",
    "steps": [
        {"type": "press", "at": {"handle": "xaShape", "offset": [2.5, -1]}, "button": "right", "modifiers": ["ctrl", "shift"]},
        {"type": "wheel", "at": {"world": [1, 2, 3]}, "delta": -240, "after": 40},
        {"type": "checkpoint", "name": "over x", "screenshot": true, "expect": {"hover": "xaShape", "nodes": {"Knot": {"rotation": [0, 45, -1.5]}}, "orthographic": false, "tolerance": 0.5, "undoSteps": 2, "values": {"plates.count": 1}}},
        {"type": "move", "at": {"by": [3, -4.5]}},
        {"type": "command", "command": "plates.addText", "value": {"size": 0.25, "text": "Title"}}
    ]
}
)";
    QString error;
    const std::optional<Session> read = parseSession(text, error);

    ASSERT_TRUE(read) << error.toStdString();
    ASSERT_EQ(read->steps.size(), 5U);
    EXPECT_EQ(read->steps[0].modifiers, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(read->steps[0].at.offsetPx, QPointF(2.5, -1.0));
    EXPECT_EQ(read->steps[1].at.world[2], 3.0F);
    EXPECT_FALSE(read->steps[2].expectation.selection);
    EXPECT_EQ((*read->steps[2].expectation.nodes[0].rotationDeg)[2], -1.5);
    EXPECT_EQ(read->steps[3].at.kind, SessionTarget::Kind::Pointer);
}

TEST(Session, SaysWhatIsWrongAndWhere)
{
    const std::pair<QByteArray, const char*> rows[] = {
        { "{\n  \"session\": 1,\n  oops\n}", "line 3, column" },
        { R"({"session": 2, "size": [640, 480], "steps": []})", "session: expected 1" },
        { R"({"session": 1, "size": [15, 480], "steps": []})",
          "size: expected two whole numbers from 16 to 8192" },
        { R"({"session": 1, "size": [640, 480], "setps": [], "steps": []})",
          "unknown entry \"setps\"" },
        { R"({"session": 1, "size": [640, 480], "camera": {"from": [0,0,0], "at": [0,0,0], "up": [0,1,0]}, "steps": []})",
          "camera: from and at are the same point" },
        { withSteps(R"({"type": "two\nlines"})"), "steps[0].type: unknown type \"two lines\"" },
        { withSteps(R"({"type": "move", "at": [1, "2"]})"),
          "steps[0].at: expected an array of 2 numbers" },
        { withSteps(R"({"type": "move", "at": [1e300, 2]})"),
          "steps[0].at: expected an array of 2 numbers" },
        { withSteps(R"({"type": "move", "at": {"offset": [1, 2]}})"),
          "steps[0].at: expected \"handle\"" },
        { withSteps(R"({"type": "leave"}, {"type": "wheel", "at": [1, 2]})"),
          "steps[1]: \"delta\" is missing or 0" },
        { withSteps(R"({"type": "press", "at": [1, 2], "button": "fourth"})"), "steps[0].button" },
        { withSteps(R"({"type": "press", "at": [1, 2], "modifiers": ["hyper"]})"),
          "unknown modifier \"hyper\"" },
        { withSteps(R"({"type": "key", "key": "Nonsense"})"), "unknown key \"Nonsense\"" },
        { withSteps(R"({"type": "checkpoint", "name": "../../etc/x", "screenshot": true})"),
          "may not be a path" },
        { withSteps(R"({"type": "checkpoint", "name": "a", "expect": {"colour": 1}})"),
          "unknown entry \"colour\"" },
        { withSteps(
              R"({"type": "checkpoint", "name": "a", "expect": {"nodes": {"Knot": {"scale": [1]}}}})"),
          "steps[0].expect.nodes.Knot.scale: expected an array of 3 numbers" },
        { withSteps(R"({"type": "checkpoint", "name": "a", "expect": {"nodes": {"Knot": {}}}})"),
          "expected \"translation\", \"rotation\" or \"scale\"" },
        { R"({"session": 1, "size": [640, 480], "files": "a.obj", "steps": []})",
          "files: expected an array" },
        { R"({"session": 1, "size": [640, 480], "camera": {"from": [0,0,1], "at": [0,0,0], "up": [0,1,0], "fov": "wide"}, "steps": []})",
          "camera.fov: expected a number from 1 to 179" },
        { withSteps(R"({"type": "move", "at": {"handle": "xaShape", "world": [0,0,0]}})"),
          "steps[0].at: names more than one place" },
        { withSteps(R"({"type": "checkpoint", "name": "a", "expect": {"tolerance": "0.1"}})"),
          "steps[0].expect.tolerance: expected a number from 0" },
        { withSteps(
              R"({"type": "checkpoint", "name": "a", "expect": {"nodes": {"Knot": {"scale": [1,1,1], "tolerance": -1}}}})"),
          "steps[0].expect.nodes.Knot.tolerance: expected a number from 0" },
    };
    for (const auto& [text, message] : rows) {
        QString error;

        EXPECT_FALSE(parseSession(text, error)) << message;

        EXPECT_TRUE(error.contains(message)) << error.toStdString() << " instead of " << message;
    }
}

}  // namespace
}  // namespace viewer
