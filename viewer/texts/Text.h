// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

namespace viewer {

/// Texts of what is no QObject, such as Text::tr("holds no surface"): context "viewer". What only
/// the author of a session or of a call from the command line reads stays as it is: unknown
/// commands, values of the wrong kind, places in files. Any thread.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(viewer)
};

}  // namespace viewer
