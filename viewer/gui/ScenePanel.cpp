// SPDX-License-Identifier: MIT
#include "viewer/gui/ScenePanel.h"

#include "viewer/stage/ObjectCommands.h"
#include "viewer/stage/Stage.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QJsonArray>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace viewer {
namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kIdRole = Qt::UserRole + 1;
constexpr unsigned kIdBits = 32;

void collectShape(const osg::NodePtr& parent, quint64 depth, QList<quint64>& shape)
{
    for (const osg::NodePtr& object : childObjects(parent)) {
        shape.append((depth << kIdBits) | object.getFieldContainerId());
        collectShape(object, depth + 1, shape);
    }
}

}  // namespace

ScenePanel::ScenePanel(Stage& stage, QWidget* parent)
    : Panel(stage, parent)
    , tree(new QTreeWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tree);
    tree->setObjectName(QStringLiteral("sceneTree"));
    tree->setAccessibleName(tr("Objects of the scene"));
    tree->setHeaderHidden(true);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->setUniformRowHeights(true);
    connect(tree, &QTreeWidget::itemSelectionChanged, this, &ScenePanel::select);
    refresh();
}

void ScenePanel::refresh()
{
    const osg::UInt64 changes = nbScenegraph::getRootNode()->getSubtreeChangeCount();
    if (changes != shownChanges && !stage().isDragging()) {
        shownChanges = changes;
        QList<quint64> shape;
        collectShape({}, 0, shape);
        if (shape != shown) {
            shown = shape;
            rebuild();
        }
    }
    showSelection();
}

void ScenePanel::rebuild()
{
    const QSignalBlocker blocker(tree);
    tree->clear();
    addObjects({}, {}, tree->invisibleRootItem());
    tree->expandToDepth(1);
}

void ScenePanel::addObjects(const osg::NodePtr& parent, const QString& parentPath,
                            QTreeWidgetItem* item)
{
    int number = 0;
    for (const osg::NodePtr& object : childObjects(parent)) {
        const QString path = parentPath + QString::number(number++);
        const QString name = QString::fromStdString(nbNodeUtils::getName(object));
        auto* child = new QTreeWidgetItem(item, { name.isEmpty() ? tr("(no name)") : name });
        child->setData(0, kPathRole, path);
        child->setData(0, kIdRole, object.getFieldContainerId());
        addObjects(object, path + QLatin1Char('/'), child);
    }
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
    run(QStringLiteral("scene.select"), paths);
}

}  // namespace viewer
