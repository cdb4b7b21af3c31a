// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/Panel.h"

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>

#include <QList>

class QAction;
class QTreeWidget;
class QTreeWidgetItem;

namespace viewer {

/// The tree of the scene's objects, in which a person selects, renames, hides and shows.
class ScenePanel : public Panel
{
    Q_OBJECT

public:
    explicit ScenePanel(Stage& stage);

    void refresh() final;

    bool needsScrolling() const override { return false; }

    /// Lets a person type another name for the object selected last.
    void renameSelected();

    /// Puts actions into the menu of the tree.
    void addObjectActions(const QList<QAction*>& actions);

private:
    void addObjects(const osg::NodePtr& parent, const QString& parentPath, QTreeWidgetItem* item);
    void showStates();
    void showSelection();
    void change(const QTreeWidgetItem& item);
    void select();

    QTreeWidget* tree;
    /// What the tree shows: number of ancestors and container id of each object.
    QList<quint64> shown;
    osg::UInt64 shownChanges = 0;
};

}  // namespace viewer
