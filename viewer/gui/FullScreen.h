// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QMainWindow;

namespace viewer {

/// Lets the middle of a window alone fill the screen, and brings everything back as it was.
class FullScreen
{
public:
    /// @param targetWindow  outlives this
    explicit FullScreen(QMainWindow& targetWindow)
        : window(targetWindow)
    { }

    bool isOn() const { return !stateBefore.isEmpty(); }

    /// @return whether anything was to be done
    bool set(bool on);

private:
    QMainWindow& window;
    QByteArray stateBefore;  ///< of toolbars and docks; empty while it is off
};

}  // namespace viewer
