// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace viewer {

/// Shows a page with what pointer and keys do in a window: every action that has a shortcut. Stays
/// until it is closed.
void showShortcuts(QWidget& window);

}  // namespace viewer
