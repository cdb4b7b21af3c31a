// SPDX-License-Identifier: MIT
#include "viewer/replay/Session.h"

#include <gtest/gtest.h>

namespace viewer {
namespace {

QByteArray withSteps(const char* steps)
{
    return QByteArray(R"({"session": 1, "size": [640, 480], "steps": [)") + steps + "]}";
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
