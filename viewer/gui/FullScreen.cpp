// SPDX-License-Identifier: MIT
#include "viewer/gui/FullScreen.h"

#include "viewer/gui/WindowMemory.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

namespace viewer {
namespace {

/// Until the window manager has given the window its size.
constexpr int kSettlingMs = 60;

}  // namespace

bool FullScreen::set(bool on)
{
    if (on == isOn()) {
        return false;
    }
    // Nothing of the steps in between is drawn.
    window.setUpdatesEnabled(false);
    QTimer::singleShot(kSettlingMs, &window, [this] { window.setUpdatesEnabled(true); });
    if (on) {
        stateBefore = memory::stateOf(window);
        for (QToolBar* bar : window.findChildren<QToolBar*>()) {
            bar->hide();
        }
        for (QDockWidget* dock : window.findChildren<QDockWidget*>()) {
            dock->hide();
        }
        window.setWindowState(window.windowState() | Qt::WindowFullScreen);
    } else {
        window.setWindowState(window.windowState() & ~Qt::WindowFullScreen);
        memory::restoreState(window, stateBefore);
        stateBefore.clear();
    }
    window.menuBar()->setVisible(!on);
    window.statusBar()->setVisible(!on);
    return true;
}

}  // namespace viewer
