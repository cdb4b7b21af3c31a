// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>

#include <vector>

namespace nbec::interaction::detail {

/// Remembers which nodes the pick list of a scene was made from, in order to tell cheaply whether
/// it still holds. Gizmos below the same root are moved all the time; this must not cost a walk
/// over the scene.
class SceneOutline
{
public:
    static constexpr osg::UInt32 kNoItem = 0xffffffffu;

    /// Whether a node's whole subtree plays no role in the scene: it is inactive or auxiliary.
    static bool isPassedBy(const osg::NodePtr& node);

    void clear() { records.clear(); }

    /// Notes a node, before its children. @return what to hand to closeNode
    /// @param item  number of the item that it is, or kNoItem
    std::size_t openNode(const osg::NodePtr& node, osg::UInt32 item);

    void closeNode(std::size_t record) { records[record].end = records.size(); }

    /// Compares a tree with what was noted, going only where change counters have moved, and notes
    /// the new counters.
    /// @param touchedItems  receives the items whose node or core was edited
    /// @return false if nodes, cores, marks or matrices of the scene have changed: it is to be
    /// noted anew
    bool isCurrent(const osg::NodePtr& root, std::vector<osg::UInt32>& touchedItems);

private:
    struct Record
    {
        osg::UInt32 nodeId;
        osg::UInt32 nodeChanges;
        osg::UInt32 coreId;
        osg::UInt32 coreChanges;  ///< 0 for an item: edits of a geometry change no structure
        osg::UInt64 subtreeChanges;
        std::size_t end;  ///< behind the records of the subtree
        osg::UInt32 item;
        bool passedBy;
    };

    static Record recordOf(const osg::NodePtr& node, osg::UInt32 item);

    /// A node that is yet to be compared with its record.
    struct Open
    {
        osg::NodePtr node;
        std::size_t record;
    };

    bool isNodeCurrent(const Open& one, std::vector<osg::UInt32>& touchedItems,
                       std::vector<Open>& open);
    bool openChildren(const Open& one, std::vector<Open>& open) const;

    std::vector<Record> records;
};

}  // namespace nbec::interaction::detail
