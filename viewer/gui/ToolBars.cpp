// SPDX-License-Identifier: MIT
#include "viewer/gui/ToolBars.h"

#include <QAction>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <vector>

namespace viewer {
namespace {

constexpr int kIconSize = 20;  ///< logical pixels

/// Between groups of buttons.
const char* const kGap = "";

struct ToolBarRow
{
    const char* name;
    const char* title;
    Qt::ToolBarArea area;
    std::vector<const char*> actions;
};

const std::vector<ToolBarRow>& toolBars()
{
    static const std::vector<ToolBarRow> rows {
        { "fileTools",
          QT_TRANSLATE_NOOP("viewer::ToolBars", "Files and steps"),
          Qt::TopToolBarArea,
          { "fileOpen", "fileAdd", "sceneSave", "filePicture", kGap, "undo", "redo" } },
        { "settingTools",
          QT_TRANSLATE_NOOP("viewer::ToolBars", "Handles"),
          Qt::TopToolBarArea,
          { "localSpace", "snapping", "centerPivots", "settings" } },
        { "cameraTools",
          QT_TRANSLATE_NOOP("viewer::ToolBars", "Camera"),
          Qt::TopToolBarArea,
          { "frameAll", "frameSelection", kGap, "viewFront", "viewBack", "viewLeft", "viewRight",
            "viewTop", "viewBottom", "viewThreeQuarter", kGap, "orthographic", "zUp",
            "fullScreen" } },
        { "sessionTools",
          QT_TRANSLATE_NOOP("viewer::ToolBars", "Session"),
          Qt::TopToolBarArea,
          { "replay", "stopReplay" } },
        { "tools",
          QT_TRANSLATE_NOOP("viewer::ToolBars", "Manipulators"),
          Qt::LeftToolBarArea,
          { "gizmoNone",
            "gizmoTranslate",
            "gizmoRotate",
            "gizmoScale",
            "gizmoUniversal",
            "gizmoTranslateRotate",
            "gizmoTranslateRotateScale",
            "gizmoTranslateRotateYZ",
            kGap,
            "gizmoRotatePivot",
            "gizmoScalePivot",
            "gizmoCamera",
            kGap,
            "gizmoClipping",
            "scene.addClipPlane",
            kGap,
            "texture.edit",
            "match.setActive",
            "view.setHeld",
            "plates.edit" } },
    };
    return rows;
}

void addButton(QToolBar& bar, QAction* action)
{
    bar.addAction(action);
    auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
    if (button == nullptr) {
        return;
    }
    button->setObjectName(bar.objectName() + QLatin1Char('.') + action->objectName());
    button->setAccessibleName(action->toolTip());
    if (action->objectName() == QLatin1String("localSpace")) {
        // Which axes they are is a word.
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
    if (action->menu() != nullptr) {
        button->setPopupMode(QToolButton::InstantPopup);
    }
}

}  // namespace

void addToolBars(QMainWindow& window)
{
    for (const ToolBarRow& row : toolBars()) {
        auto* bar =
            new QToolBar(QCoreApplication::translate("viewer::ToolBars", row.title), &window);
        window.addToolBar(row.area, bar);
        bar->setObjectName(QLatin1String(row.name));
        bar->setIconSize({ kIconSize, kIconSize });
        for (const char* name : row.actions) {
            if (name == kGap) {
                bar->addSeparator();
            } else if (auto* action = window.findChild<QAction*>(QLatin1String(name))) {
                addButton(*bar, action);
            }
        }
    }
}

}  // namespace viewer
