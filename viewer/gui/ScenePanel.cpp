// SPDX-License-Identifier: MIT
#include "viewer/gui/ScenePanel.h"

#include "viewer/gui/ThemeIcon.h"
#include "viewer/loading/BuiltModel.h"
#include "viewer/stage/Stage.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QJsonArray>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <ChangeCount.h>

namespace viewer {
namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kIdRole = Qt::UserRole + 1;
constexpr int kNameRole = Qt::UserRole + 2;
constexpr unsigned kIdBits = 32;

void collectShape(const osg::NodePtr& parent, quint64 depth, QList<quint64>& shape)
{
    for (const osg::NodePtr& object : childObjects(parent)) {
        shape.append((depth << kIdBits) | object.getFieldContainerId());
        collectShape(object, depth + 1, shape);
    }
}

}  // namespace

ScenePanel::ScenePanel(Stage& stage)
    : Panel(stage)
    , tree(new QTreeWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tree);
    tree->setObjectName("sceneTree");
    tree->setAccessibleName(tr("Objects of the scene"));
    tree->setHeaderHidden(true);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->setUniformRowHeights(true);
    tree->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(tree, &QTreeWidget::itemChanged, this,
            [this](const QTreeWidgetItem* item) { change(*item); });
    connect(tree, &QTreeWidget::itemSelectionChanged, this, &ScenePanel::select);
    refresh();
}

void ScenePanel::refresh()
{
    const osg::UInt64 changes = osg::getSubtreeChangeCount(nbScenegraph::getRootNode());
    if (changes != shownChanges && !stage().isDragging()) {
        shownChanges = changes;
        QList<quint64> shape;
        collectShape({}, 0, shape);
        if (shape != shown) {
            shown = shape;
            const QSignalBlocker blocker(tree);
            tree->clear();
            addObjects({}, {}, tree->invisibleRootItem());
            tree->expandToDepth(1);
        }
        showStates();
    }
    showSelection();
}

void ScenePanel::addObjects(const osg::NodePtr& parent, const QString& parentPath,
                            QTreeWidgetItem* item)
{
    int number = 0;
    for (const osg::NodePtr& object : childObjects(parent)) {
        const QString path = parentPath + QString::number(number++);
        auto* child = new QTreeWidgetItem(item);
        child->setFlags(child->flags() | Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
        child->setData(0, kPathRole, path);
        child->setData(0, kIdRole, object.getFieldContainerId());
        addObjects(object, path + '/', child);
    }
}

void ScenePanel::showStates()
{
    const QSignalBlocker blocker(tree);
    for (QTreeWidgetItemIterator item(tree); *item != nullptr; ++item) {
        const auto node = resolveContainer<osg::NodePtr>((*item)->data(0, kIdRole).toUInt());
        const QString name = QString::fromStdString(nbNodeUtils::getName(node));
        const bool isLocked = !nbNodePermission::allows(node, nbNodePermission::Transform);
        (*item)->setText(0, name.isEmpty() ? shownName(name) : name);
        (*item)->setData(0, kNameRole, (*item)->text(0));
        (*item)->setCheckState(0, node->getActive() ? Qt::Checked : Qt::Unchecked);
        (*item)->setToolTip(0, isLocked ? tr("Locked") : QString());
        (*item)->setIcon(0, isLocked ? themeIcon("view.setHeld") : QIcon());
    }
}

void ScenePanel::change(const QTreeWidgetItem& item)
{
    if (!run("scene.select", QJsonArray { item.data(0, kPathRole).toString() })) {
        return;
    }
    if (item.text(0) != item.data(0, kNameRole).toString()) {
        run("object.name", item.text(0));
    } else {
        run("object.visible", item.checkState(0) == Qt::Checked);
    }
    // What was typed may be refused or have become another name.
    showStates();
}

void ScenePanel::renameSelected()
{
    refresh();
    const QList<QTreeWidgetItem*> items = tree->selectedItems();
    if (!items.isEmpty()) {
        tree->setFocus();
        tree->setCurrentItem(items.last(), 0, QItemSelectionModel::NoUpdate);
        tree->editItem(items.last());
    }
}

void ScenePanel::addObjectActions(const QList<QAction*>& actions)
{
    tree->addActions(actions);
}

void ScenePanel::showSelection()
{
    const QSignalBlocker blocker(tree);
    QList<quint64> ids;
    for (const osg::NodePtr& object : stage().selectedObjects()) {
        ids.append(object.getFieldContainerId());
    }
    const quint64 last = ids.isEmpty() ? 0 : ids.last();
    for (QTreeWidgetItemIterator item(tree); *item != nullptr; ++item) {
        const quint64 id = (*item)->data(0, kIdRole).toULongLong();
        const bool isSelected = ids.contains(id);
        if ((*item)->isSelected() != isSelected) {
            (*item)->setSelected(isSelected);
            if (id == last) {
                tree->scrollToItem(*item);
            }
        }
    }
}

void ScenePanel::select()
{
    QJsonArray paths;
    for (const QTreeWidgetItem* item : tree->selectedItems()) {
        paths.append(item->data(0, kPathRole).toString());
    }
    run("scene.select", paths);
}

}  // namespace viewer
