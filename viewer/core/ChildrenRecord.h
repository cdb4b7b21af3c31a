// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbUndoRecord.h>

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>

#include <vector>

namespace viewer {

/// Undo record of edits to what hangs below some nodes. Keeps nodes that were taken out alive.
class ChildrenRecord : public nbUndoRecord
{
public:
    /// Remembers the children that the nodes have now; made before the edit.
    /// @param parents  a node may be named twice
    explicit ChildrenRecord(const std::vector<osg::NodePtr>& parents);

    bool close() override;
    void undo() override;
    void redo() override;

private:
    using Children = std::vector<osg::NodeRefPtr>;

    struct Entry
    {
        osg::NodeRefPtr parent;
        Children before;
        Children after;
    };

    void restore(Children Entry::*state);

    std::vector<Entry> entries;
};

}  // namespace viewer
