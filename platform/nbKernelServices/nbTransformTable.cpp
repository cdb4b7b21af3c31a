// SPDX-License-Identifier: MIT
#include "nbTransformTable.h"

#include <nbOpenSGExt/nbContainerId.h>

#include <utility>

namespace {

/// A core with its states before and after a step.
struct TransformChange
{
    osg::UInt32 id;
    nbTransformState before;
    nbTransformState after;
};

void restore(osg::UInt32 id, const nbTransformState& state)
{
    const auto core = resolveContainer<osg::Transform3DPtr>(id);
    if (core != osg::NullFC) {
        state.applyTo(core);
    }
}

class TransformRecord : public nbUndoRecord
{
public:
    explicit TransformRecord(std::vector<TransformChange>&& done)
        : changes(std::move(done))
    { }

    bool close() override { return !changes.empty(); }

    void undo() override
    {
        for (const TransformChange& change : changes) {
            restore(change.id, change.before);
        }
    }

    void redo() override
    {
        for (const TransformChange& change : changes) {
            restore(change.id, change.after);
        }
    }

private:
    std::vector<TransformChange> changes;
};

}  // namespace

nbTransformEntry& nbTransformTable::noteSlowly(const osg::Transform3D& core, osg::UInt32 id)
{
    const auto [found, isNew] = places.emplace(id, ids.size());
    if (isNew) {
        ids.push_back(id);
        entries.push_back({ nbTransformState::of(core), {}, 0 });
    }
    cursor = found->second + 1;
    return entries[found->second];
}

std::unique_ptr<nbUndoRecord> nbTransformTable::makeRecord() const
{
    std::vector<TransformChange> changes;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        const auto core = resolveContainer<osg::Transform3DPtr>(ids[i]);
        if (core == osg::NullFC) {
            continue;
        }
        const nbTransformState after = nbTransformState::of(*core);
        if (!after.isSame(entries[i].start)) {
            changes.push_back({ ids[i], entries[i].start, after });
        }
    }
    if (changes.empty()) {
        return nullptr;
    }
    return std::make_unique<TransformRecord>(std::move(changes));
}

void nbTransformTable::restoreStart() const
{
    for (std::size_t i = 0; i < ids.size(); ++i) {
        restore(ids[i], entries[i].start);
    }
}

void nbTransformTable::clear()
{
    ids.clear();
    entries.clear();
    places.clear();
    cursor = 0;
}
