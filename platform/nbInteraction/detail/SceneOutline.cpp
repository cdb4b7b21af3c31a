// SPDX-License-Identifier: MIT
#include "SceneOutline.h"

#include <OpenSG/OSGChangeCount.h>

#include "TreeWalk.h"

namespace nbec::interaction::detail {

SceneOutline::Record SceneOutline::recordOf(const osg::NodePtr& node, bool isPassedBy,
                                            osg::UInt32 item)
{
    const osg::NodeCorePtr core = node->getCore();
    Record record {};
    record.nodeId = node.getFieldContainerId();
    record.nodeChanges = node->getChangeCount();
    record.subtreeChanges = node->getSubtreeChangeCount();
    record.item = item;
    record.isPassedBy = isPassedBy;
    if (core != osg::NullFC) {
        record.coreId = core.getFieldContainerId();
        record.coreChanges = item == kNoItem ? core->getChangeCount() : 0;
    }
    return record;
}

std::size_t SceneOutline::openNode(const osg::NodePtr& node, bool isPassedBy, osg::UInt32 item)
{
    records.push_back(recordOf(node, isPassedBy, item));
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
    const Record now = recordOf(node, noted.isPassedBy, noted.item);
    if (now.nodeId != noted.nodeId) {
        return false;
    }
    if (now.subtreeChanges == noted.subtreeChanges) {
        return true;
    }
    if (now.nodeChanges != noted.nodeChanges || now.coreId != noted.coreId ||
        now.coreChanges != noted.coreChanges) {
        return false;
    }
    if (!noted.isPassedBy) {
        std::size_t next = index + 1;
        const bool same = forEachEnteredChild(node, [&](const osg::NodePtr& child) {
            if (next >= records[index].end || !isCurrentFrom(next, child, touchedItems)) {
                return false;
            }
            next = records[next].end;
            return true;
        });
        if (!same || next != records[index].end) {
            return false;
        }
    }
    if (noted.item != kNoItem) {
        touchedItems.push_back(noted.item);
    }
    records[index].subtreeChanges = now.subtreeChanges;
    return true;
}

}  // namespace nbec::interaction::detail
