// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

namespace viewer {

/// Version of the program, such as "0.1.0".
const char* programVersion();

/// Tells what the program is and the versions of the parts it stands on, which can be copied.
class AboutBox
{
    Q_DECLARE_TR_FUNCTIONS(viewer::AboutBox)

public:
    /// @param graphics  what draws, such as "4.5, llvmpipe"; empty if nothing was drawn yet
    static void open(const QString& graphics, QWidget* parent);
};

/// Shows a page with what pointer and keys do in a window: every action that has a shortcut. Stays
/// until it is closed.
void showShortcuts(QWidget& window);

}  // namespace viewer
