// SPDX-License-Identifier: MIT
#include "viewer/gui/FullScreen.h"

#include "viewer/gui/WindowMemory.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

namespace viewer {

bool FullScreen::set(bool on)
{
    if (on == isOn()) {
        return false;
    }
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
