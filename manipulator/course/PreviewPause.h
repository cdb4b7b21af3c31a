// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernel/nbController.h>
#include <nbUtils/nbMessage.h>

namespace nbec::manipulator {

/// The pause of the host's material preview while a texture gizmo works. Pausing sends
/// "setMatRenderEnabled" with "enabled" false; resuming sends the same with true, then
/// "updateMatRender" without a message.
///
/// A pause that nobody has ended is owed; it ends with the object. A copy owes nothing: the pause
/// stays with who began it.
class PreviewPause
{
public:
    PreviewPause() = default;

    PreviewPause(const PreviewPause&) { }

    /// Keeps what is owed here.
    PreviewPause& operator=(const PreviewPause&) { return *this; }

    ~PreviewPause() { end(); }

    /// Pauses the preview, each time it is called.
    void begin()
    {
        setEnabled(false);
        isOwed = true;
    }

    /// Resumes the preview in any case.
    void resume()
    {
        setEnabled(true);
        nbController::call("updateMatRender", 0);
        isOwed = false;
    }

    /// Resumes the preview if a pause is owed.
    void end()
    {
        if (isOwed) {
            resume();
        }
    }

    bool isPausing() const { return isOwed; }

private:
    static void setEnabled(bool on)
    {
        nbMessage message;
        message.set("enabled", on, true);
        nbController::call("setMatRenderEnabled", message, 0);
    }

    bool isOwed = false;
};

}  // namespace nbec::manipulator
