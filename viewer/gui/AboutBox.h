// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

namespace viewer {

/// Version of the program, such as "0.1.0".
const char* programVersion();

/// Tells what the program is and the versions of the parts it stands on, with a button that copies
/// them.
class AboutBox : public QDialog
{
    Q_OBJECT

public:
    /// @param graphics  what draws, such as "4.5, llvmpipe"; empty if nothing was drawn yet
    AboutBox(const QString& graphics, QWidget* parent);

    /// One line for each part, such as "Qt 5.15.8", as they are at run time.
    static QString versions(const QString& graphics);
};

}  // namespace viewer
