// SPDX-License-Identifier: MIT
#include "SceneOutline.h"

#include <nbOpenSGUtils/nbEnteredChildren.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <ChangeCount.h>

namespace nbec::interaction::detail {

bool SceneOutline::isPassedBy(const osg::NodePtr& node)
{
    return node->getTravMask() == 0 || nbNodeUtils::isAuxiliaryNode(node);
}

SceneOutline::Record SceneOutline::recordOf(const osg::NodePtr& node, osg::UInt32 item)
{
    const osg::NodeCorePtr core = node->getCore();
    Record record {};
    record.nodeId = node.getFieldContainerId();
    record.nodeChanges = osg::getChangeCount(node);
    record.subtreeChanges = osg::getSubtreeChangeCount(node);
    record.item = item;
    record.passedBy = isPassedBy(node);
    if (core != osg::NullFC) {
        record.coreId = core.getFieldContainerId();
        record.coreChanges = item == kNoItem ? osg::getChangeCount(core) : 0;
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
    if (records.empty()) {
        return false;
    }
    std::vector<Open> open { { root, 0 } };
    while (!open.empty()) {
        const Open one = open.back();
        open.pop_back();
        if (!isNodeCurrent(one, touchedItems, open)) {
            return false;
        }
    }
    return true;
}

bool SceneOutline::isNodeCurrent(const Open& one, std::vector<osg::UInt32>& touchedItems,
                                 std::vector<Open>& open)
{
    Record& noted = records[one.record];
    if (one.node.getFieldContainerId() != noted.nodeId) {
        return false;
    }
    if (osg::getSubtreeChangeCount(one.node) == noted.subtreeChanges) {
        return true;
    }
    const Record now = recordOf(one.node, noted.item);
    if (now.passedBy != noted.passedBy) {
        return false;
    }
    if (!now.passedBy) {
        if (now.nodeChanges != noted.nodeChanges || now.coreId != noted.coreId ||
            now.coreChanges != noted.coreChanges || !openChildren(one, open)) {
            return false;
        }
        if (now.item != kNoItem) {
            touchedItems.push_back(now.item);
        }
    }
    noted.subtreeChanges = now.subtreeChanges;
    return true;
}

bool SceneOutline::openChildren(const Open& one, std::vector<Open>& open) const
{
    const std::size_t end = records[one.record].end;
    std::size_t next = one.record + 1;
    const bool fits = nbForEachEnteredChild(one.node, [&](const osg::NodePtr& child) {
        if (next >= end) {
            return false;
        }
        open.push_back({ child, next });
        next = records[next].end;
        return true;
    });
    return fits && next == end;
}

}  // namespace nbec::interaction::detail
