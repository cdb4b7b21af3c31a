// SPDX-License-Identifier: MIT
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUberCamera/nbUberCameraPool.h>

#include <algorithm>
#include <vector>

namespace {

struct PoolEntry
{
    osg::UInt32 cameraId;
    osg::UInt32 nodeId;
};

/// Entries of cameras that are gone stay until the next one comes: ids are never used again.
std::vector<PoolEntry>& entries()
{
    static std::vector<PoolEntry> all;
    return all;
}

}  // namespace

osg::UberCameraPtr nbUberCameraPool::get(osg::UInt32 id)
{
    return resolveContainer<osg::UberCameraPtr>(id);
}

osg::UberCameraPtr nbUberCameraPool::getByNode(osg::UInt32 nodeId)
{
    const auto found = std::find_if(entries().begin(), entries().end(),
                                    [nodeId](const auto& entry) { return entry.nodeId == nodeId; });
    return found != entries().end() ? get(found->cameraId) : osg::UberCameraPtr(osg::NullFC);
}

void nbUberCameraPool::add(osg::UInt32 cameraId, osg::UInt32 nodeId)
{
    std::vector<PoolEntry>& all = entries();
    all.erase(
        std::remove_if(all.begin(), all.end(),
                       [](const PoolEntry& entry) { return get(entry.cameraId) == osg::NullFC; }),
        all.end());
    all.push_back({ cameraId, nodeId });
}
