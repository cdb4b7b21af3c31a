// SPDX-License-Identifier: MIT
#include "viewer/replay/SessionNames.h"

namespace viewer {
namespace {

template <class Value>
struct Word
{
    const char* name;
    Value value;
};

using Type = SessionStep::Type;

constexpr Word<Type> kTypes[] = { { "move", Type::Move },
                                  { "press", Type::Press },
                                  { "release", Type::Release },
                                  { "click", Type::Click },
                                  { "doubleClick", Type::DoubleClick },
                                  { "wheel", Type::Wheel },
                                  { "leave", Type::Leave },
                                  { "key", Type::Key },
                                  { "keyPress", Type::KeyPress },
                                  { "keyRelease", Type::KeyRelease },
                                  { "command", Type::Command },
                                  { "caption", Type::Caption },
                                  { "checkpoint", Type::Checkpoint } };

constexpr Word<Qt::MouseButton> kButtons[] = { { "left", Qt::LeftButton },
                                               { "middle", Qt::MiddleButton },
                                               { "right", Qt::RightButton } };

constexpr Word<Qt::KeyboardModifier> kModifiers[] = { { "ctrl", Qt::ControlModifier },
                                                      { "shift", Qt::ShiftModifier },
                                                      { "alt", Qt::AltModifier } };

template <class Value, std::size_t Count>
std::optional<Value> find(const Word<Value> (&words)[Count], const QString& name)
{
    for (const Word<Value>& word : words) {
        if (name == QLatin1String(word.name)) {
            return word.value;
        }
    }
    return std::nullopt;
}

}  // namespace

QStringList sessionKeys(SessionPart part)
{
    switch (part) {
    case SessionPart::Session:
        return { "session", "size", "files", "camera", "selection", "manipulator", "steps" };
    case SessionPart::Camera:
        return { "from", "at", "up", "pivot", "fov", "orthographic", "zUp" };
    case SessionPart::Step:
        return { "type", "at",         "button", "modifiers", "delta", "key",   "after",
                 "name", "screenshot", "expect", "command",   "value", "title", "text" };
    case SessionPart::Target:
        return { "handle", "node", "world", "offset", "by" };
    case SessionPart::Expectation:
        return {
            "hover", "selection", "orthographic", "undoSteps", "nodes", "values", "tolerance"
        };
    case SessionPart::NodeExpectation:
        return { "translation", "rotation", "scale", "tolerance" };
    }
    return {};
}

QStringList stepTypeNames()
{
    QStringList names;
    for (const Word<Type>& word : kTypes) {
        names.append(QLatin1String(word.name));
    }
    return names;
}

std::optional<SessionStep::Type> stepTypeFromName(const QString& name)
{
    return find(kTypes, name);
}

std::optional<Qt::MouseButton> buttonFromName(const QString& name)
{
    return find(kButtons, name);
}

std::optional<Qt::KeyboardModifier> modifierFromName(const QString& name)
{
    return find(kModifiers, name);
}

}  // namespace viewer
