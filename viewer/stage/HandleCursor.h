// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

namespace viewer {

class Stage;

/// What a handle does, as a cursor shows it.
enum class HandleAction
{
    None,
    MoveAlong,
    MoveInPlane,
    Turn,
    ScaleAlong,
    ScaleAll
};

/// A cursor over a handle.
struct HandleCursor
{
    HandleAction action = HandleAction::None;
    /// Direction of the handle's axis on the screen: degrees from the right, counterclockwise, from
    /// 0 and below 180. 0 for actions without a direction.
    double angleDeg = 0.0;

    bool operator==(const HandleCursor& other) const
    {
        return action == other.action && angleDeg == other.angleDeg;
    }

    bool operator!=(const HandleCursor& other) const { return !(*this == other); }
};

/// What the handle of a name does; None for an unknown one.
HandleAction actionOfHandle(const std::string& handle);

/// What the handle of a name does, such as "Move along x"; its name for an unknown one.
QString textOfHandle(const std::string& handle);

/// Cursor for a handle of the gizmo shown. An axis that points at the eye has no direction; its
/// handle counts as one that acts in a plane or on all axes.
/// @param handle  name, "" for none
HandleCursor cursorOfHandle(Stage& stage, const std::string& handle);

}  // namespace viewer
