// SPDX-License-Identifier: MIT
#include "SceneOutline.h"

#include <nbOpenSGExt/NodeFlags.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include "TreeWalk.h"

namespace nbec::interaction::detail {

bool SceneOutline::isPassedBy(const osg::NodePtr& node)
{
    return node->getTravMask() == 0 ||
        (nbNodeUtils::getNodeFlags(node) & osg::NodeFlags::Auxiliary) != 0;
}

SceneOutline::Record SceneOutline::recordOf(const osg::NodePtr& node, osg::UInt32 item)
{
    const osg::NodeCorePtr core = node->getCore();
    Record record {};
    record.nodeId = node.getFieldContainerId();
    record.nodeChanges = node->getChangeCount();
    record.subtreeChanges = node->getSubtreeChangeCount();
    record.item = item;
    record.passedBy = isPassedBy(node);
    if (core != osg::NullFC) {
        record.coreId = core.getFieldContainerId();
        record.coreChanges = item == kNoItem ? core->getChangeCount() : 0;
    }
    return record;
}

std::size_t SceneOutline::openNode(const osg::NodePtr& node, osg::UInt32 item)
{
    records.push_back(recordOf(node, item));
    return records.size() - 1;
}

bool SceneOutline::isCurrent(const osg::NodePtr& root, std::vector<osg::UInt32>& touchedItems)
{
    return !records.empty() && isCurrentFrom(0, root, touchedItems);
}

bool SceneOutline::isCurrentFrom(std::size_t index, const osg::NodePtr& node,
                                 std::vector<osg::UInt32>& touchedItems)
{
    const Record& noted = records[index];
    if (node.getFieldContainerId() != noted.nodeId) {
        return false;
    }
    if (node->getSubtreeChangeCount() == noted.subtreeChanges) {
        return true;
    }
    const Record now = recordOf(node, noted.item);
    if (now.passedBy != noted.passedBy) {
        return false;
    }
    if (!now.passedBy) {
        if (now.nodeChanges != noted.nodeChanges || now.coreId != noted.coreId ||
            now.coreChanges != noted.coreChanges ||
            !areChildrenCurrent(index, node, touchedItems)) {
            return false;
        }
        if (now.item != kNoItem) {
            touchedItems.push_back(now.item);
        }
    }
    records[index].subtreeChanges = now.subtreeChanges;
    return true;
}

bool SceneOutline::areChildrenCurrent(std::size_t index, const osg::NodePtr& node,
                                      std::vector<osg::UInt32>& touchedItems)
{
    const std::size_t end = records[index].end;
    std::size_t next = index + 1;
    const bool same = forEachEnteredChild(node, [&](const osg::NodePtr& child) {
        if (next >= end || !isCurrentFrom(next, child, touchedItems)) {
            return false;
        }
        next = records[next].end;
        return true;
    });
    return same && next == end;
}

}  // namespace nbec::interaction::detail
