// SPDX-License-Identifier: MIT
#include "viewer/gui/Panel.h"

#include "viewer/core/Stage.h"

namespace viewer {

bool Panel::run(const QString& command, const QJsonValue& value)
{
    QString error;
    const bool isDone = shownStage.commands().run(command, value, error);
    if (!isDone) {
        emit problem(error);
        refresh();
    }
    return isDone;
}

}  // namespace viewer
