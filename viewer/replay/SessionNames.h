// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/replay/Session.h"

namespace viewer {

/// The objects that a session file consists of.
enum class SessionPart
{
    Session,
    Camera,
    Step,
    Target,
    Expectation,
    NodeExpectation
};

/// Keys that such an object may have.
QStringList sessionKeys(SessionPart part);

/// Words of a session file for the types of steps.
QStringList stepTypeNames();

/// @return nothing for an unknown word
std::optional<SessionStep::Type> stepTypeFromName(const QString& name);

/// @return nothing for an unknown word
std::optional<Qt::MouseButton> buttonFromName(const QString& name);

/// @return nothing for an unknown word
std::optional<Qt::KeyboardModifier> modifierFromName(const QString& name);

/// A key that is a modifier, by the name that it has in a session file.
struct ModifierKey
{
    const char* name;
    int key;
    Qt::KeyboardModifier flag;
};

constexpr ModifierKey kModifierKeys[] = { { "Ctrl", Qt::Key_Control, Qt::ControlModifier },
                                          { "Shift", Qt::Key_Shift, Qt::ShiftModifier },
                                          { "Alt", Qt::Key_Alt, Qt::AltModifier } };

}  // namespace viewer
