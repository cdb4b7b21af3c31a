// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

namespace nbec::manipulator {

/// The pause of the host's material preview while a texture gizmo works. Pausing sends
/// "setMatRenderEnabled" with "enabled" false; resuming sends the same with true, then
/// "updateMatRender" without a message.
///
/// A pause that nobody has ended is owed; it ends with the object. A copy owes nothing: the pause
/// stays with who began it.
class NB_MANIPULATOR_API PreviewPause
{
public:
    PreviewPause() = default;

    PreviewPause(const PreviewPause&) { }

    /// Keeps what is owed here.
    PreviewPause& operator=(const PreviewPause&) { return *this; }

    ~PreviewPause() { end(); }

    /// Pauses the preview, each time it is called.
    void begin();
    /// Resumes the preview in any case.
    void resume();
    /// Resumes the preview if a pause is owed.
    void end();

    bool isPausing() const { return isOwed; }

private:
    bool isOwed = false;
};

}  // namespace nbec::manipulator
