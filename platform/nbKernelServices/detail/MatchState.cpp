// SPDX-License-Identifier: MIT
#include "MatchState.h"

#include <nbKernelServices/nbQRPCConverter.h>
#include <nbOpenSGUberCamera/nbUberCameraPool.h>
#include <nbOpenSGUtils/nbDropDead.h>

#include <cmath>
#include <cstring>
#include <unordered_map>

namespace {

/// By container id of the camera.
using States = std::unordered_map<osg::UInt32, MatchState>;

States& states()
{
    static States all;
    return all;
}

}  // namespace

ViewShape ViewShape::of(const osg::UberCamera& camera)
{
    const double ratio = camera.getViewAspect();
    const double aspect = std::isfinite(ratio) && ratio > 0.0 ? ratio : 1.0;
    return camera.getHorizontalSizing() ? ViewShape { 1.0, 1.0 / aspect }
                                        : ViewShape { aspect, 1.0 };
}

bool MatchState::isLineSame(const MatchState& other, int line) const
{
    // The comparison of QLineF forgives small differences.
    static_assert(sizeof(QLineF) == 4 * sizeof(qreal));
    return std::memcmp(&lines[line], &other.lines[line], sizeof(QLineF)) == 0;
}

bool MatchState::isSame(const MatchState& other) const
{
    for (int line = 0; line < nbdPerspectiveMatch::kLineCount; ++line) {
        if (!isLineSame(other, line)) {
            return false;
        }
    }
    return type == other.type && magnifyFactor == other.magnifyFactor && fovMode == other.fovMode &&
        anchoredToCentre == other.anchoredToCentre;
}

bool MatchState::isBackAtDragStart() const
{
    const auto rounded = [](PerspectiveLines all) {
        for (QLineF& line : all) {
            line = nbQRPCConverter::fromLine2D(nbQRPCConverter::toLine2D(line));
        }
        return all;
    };
    return drag &&
        std::memcmp(rounded(lines).data(), rounded(drag->lines).data(), sizeof(PerspectiveLines)) ==
        0;
}

void MatchState::settle(const ViewShape& now)
{
    if (anchoredToCentre && (now.width != shape.width || now.height != shape.height)) {
        const QPointF way(0.5 * (now.width - shape.width), 0.5 * (now.height - shape.height));
        for (QLineF& line : lines) {
            line.translate(way);
        }
    }
    shape = now;
}

MatchState& MatchTable::of(const osg::UberCameraPtr& camera)
{
    const osg::UInt32 id = camera.getFieldContainerId();
    auto found = states().find(id);
    if (found == states().end()) {
        // Ids are never used again, so entries that are left over only cost memory.
        nbDropDead(states());
        found = states().emplace(id, MatchState()).first;
        MatchState& made = found->second;
        made.shape = ViewShape::of(*camera);
        if (nbCameraNavigation::isFinite(camera->getPose())) {
            made.lines = nbPerspectiveSolver::linesOf(camera->getPose(), made.shape.width,
                                                      made.shape.height);
        }
    }
    found->second.settle(ViewShape::of(*camera));
    return found->second;
}

MatchState* MatchTable::find(osg::UInt32 cameraNodeId)
{
    const osg::UberCameraPtr camera = nbUberCameraPool::getByNode(cameraNodeId);
    return camera != osg::NullFC ? &of(camera) : nullptr;
}
