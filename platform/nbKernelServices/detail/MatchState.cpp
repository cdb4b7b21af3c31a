// SPDX-License-Identifier: MIT
#include "MatchState.h"

#include <nbOpenSGUberCamera/nbUberCameraPool.h>

#include <cstring>
#include <iterator>
#include <unordered_map>

namespace {

/// By container id of the camera.
using States = std::unordered_map<osg::UInt32, MatchState>;

States& states()
{
    static States all;
    return all;
}

void dropLostCameras()
{
    States& all = states();
    for (auto state = all.begin(); state != all.end();) {
        state = nbUberCameraPool::get(state->first) == osg::NullFC ? all.erase(state)
                                                                   : std::next(state);
    }
}

}  // namespace

bool MatchState::isSame(const MatchState& other) const
{
    // The comparison of QLineF forgives small differences.
    static_assert(sizeof(QLineF) == 4 * sizeof(qreal));
    return std::memcmp(lines.data(), other.lines.data(), sizeof(lines)) == 0 &&
        type == other.type && magnifyFactor == other.magnifyFactor && fovMode == other.fovMode;
}

MatchState& MatchTable::of(const osg::UberCameraPtr& camera)
{
    const osg::UInt32 id = camera.getFieldContainerId();
    const auto found = states().find(id);
    if (found != states().end()) {
        return found->second;
    }
    // Ids are never used again, so entries that are left over only cost memory.
    dropLostCameras();
    return states()[id];
}

MatchState* MatchTable::find(osg::UInt32 cameraNodeId)
{
    const osg::UberCameraPtr camera = nbUberCameraPool::getByNode(cameraNodeId);
    return camera != osg::NullFC ? &of(camera) : nullptr;
}
