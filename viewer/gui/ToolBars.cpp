// SPDX-License-Identifier: MIT
#include "viewer/gui/ToolBars.h"

#include <QAction>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

namespace viewer {
namespace {

constexpr int kIconSize = 20;  ///< logical pixels

struct ToolBarRow
{
    const char* name;
    const char* title;
    Qt::ToolBarArea area;
    const char* actions;  ///< their names; | between groups of buttons
};

constexpr ToolBarRow kToolBars[] = {
    { "fileTools", QT_TRANSLATE_NOOP("viewer::ToolBars", "Files and steps"), Qt::TopToolBarArea,
      "fileOpen fileAdd sceneSave filePicture | undo redo" },
    { "settingTools", QT_TRANSLATE_NOOP("viewer::ToolBars", "Handles"), Qt::TopToolBarArea,
      "localSpace snapping centerPivots settings" },
    { "cameraTools", QT_TRANSLATE_NOOP("viewer::ToolBars", "Camera"), Qt::TopToolBarArea,
      "frameAll frameSelection | viewFront viewBack viewLeft viewRight viewTop viewBottom "
      "viewThreeQuarter | orthographic zUp fullScreen" },
    { "sessionTools", QT_TRANSLATE_NOOP("viewer::ToolBars", "Session"), Qt::TopToolBarArea,
      "replay stopReplay" },
    { "tools", QT_TRANSLATE_NOOP("viewer::ToolBars", "Manipulators"), Qt::LeftToolBarArea,
      "gizmoNone gizmoTranslate gizmoRotate gizmoScale gizmoUniversal gizmoTranslateRotate "
      "gizmoTranslateRotateScale gizmoTranslateRotateYZ | gizmoRotatePivot gizmoScalePivot "
      "gizmoCamera | gizmoClipping scene.addClipPlane | texture.edit match.setActive view.setHeld "
      "plates.edit" },
};

void addButton(QToolBar& bar, QAction* action)
{
    bar.addAction(action);
    auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
    if (button == nullptr) {
        return;
    }
    button->setObjectName(bar.objectName() + '.' + action->objectName());
    button->setAccessibleName(action->toolTip());
    if (action->objectName() == "localSpace") {
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
    for (const ToolBarRow& row : kToolBars) {
        auto* bar =
            new QToolBar(QCoreApplication::translate("viewer::ToolBars", row.title), &window);
        window.addToolBar(row.area, bar);
        bar->setObjectName(QLatin1String(row.name));
        bar->setIconSize({ kIconSize, kIconSize });
        for (const QString& name : QString(row.actions).split(' ')) {
            if (name == "|") {
                bar->addSeparator();
            } else if (auto* action = window.findChild<QAction*>(name)) {
                addButton(*bar, action);
            }
        }
    }
}

}  // namespace viewer
