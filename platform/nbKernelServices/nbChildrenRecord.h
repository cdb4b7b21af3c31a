// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbUndoRecord.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>

#include <vector>

/// Undo record of edits to what hangs below some nodes. Keeps nodes that were taken out alive.
class NB_PLATFORM_API nbChildrenRecord : public nbUndoRecord
{
public:
    /// Remembers the children that the nodes have now; made before the edit.
    /// @param parents  a node may be named twice
    explicit nbChildrenRecord(const std::vector<osg::NodePtr>& parents);

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
