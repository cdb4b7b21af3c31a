// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbUndoRecord.h>
#include <nbOpenSGUtils/nbTransformState.h>

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

/// What is kept of one transform core during a step.
struct nbTransformEntry
{
    /// Before its first edit in the step.
    nbTransformState start;
    /// For the transform model: the state that its last edit of a kind left; kind 0: no such edit.
    nbTransformState written;
    int writtenKind = 0;
};

/// The transform cores that are edited in a step, with their states before it.
class nbTransformTable
{
public:
    /// The entry of a core; made from its present state if there is none yet. Valid until the next
    /// call. Cores that come in the order of the pass before are found without a search.
    nbTransformEntry& note(const osg::Transform3DPtr& core)
    {
        const osg::UInt32 id = core.getFieldContainerId();
        if (cursor < ids.size() && ids[cursor] == id) {
            return entries[cursor++];
        }
        return noteSlowly(*core, id);
    }

    /// The next call of note is the first of a pass.
    void startPass() { cursor = 0; }

    bool isEmpty() const { return ids.empty(); }

    /// A record of the cores that have changed, which still live; null if there is none.
    std::unique_ptr<nbUndoRecord> makeRecord() const;

    /// Gives all cores the states before the step.
    void restoreStart() const;

    void clear();

private:
    nbTransformEntry& noteSlowly(const osg::Transform3D& core, osg::UInt32 id);

    std::vector<osg::UInt32> ids;
    std::vector<nbTransformEntry> entries;
    std::unordered_map<osg::UInt32, std::size_t> places;
    std::size_t cursor = 0;
};
