// SPDX-License-Identifier: MIT
#include "MatchEdit.h"

#include <nbKernelServices/nbObjectService.h>
#include <nbKernelServices/nbUndoRecord.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbKernelServices/nbdCameraNode.h>
#include <nbOpenSGExt/nbSameBits.h>
#include <nbOpenSGUberCamera/nbUberCameraPool.h>

#include <memory>

namespace {

/// Names of the lines as properties, by nbdPerspectiveMatch::Line.
constexpr const char* kLineProperties[] = { "xLine1", "xLine2", "yLine1",
                                            "yLine2", "zLine1", "zLine2" };

bool isOrientationSame(const CameraPose& a, const CameraPose& b)
{
    return nbSameValues(a.from, b.from) && nbSameValues(a.at, b.at) && nbSameValues(a.up, b.up);
}

void announce(const nbdCameraNode& camera, const MatchState& before, const MatchState& after)
{
    const nbdPerspectiveMatch match = camera.getPerspectiveMatch();
    for (int line = 0; line < nbdPerspectiveMatch::kLineCount; ++line) {
        if (!before.isLineSame(after, line)) {
            nbObjectService::notify(match, kLineProperties[line]);
        }
    }
    if (before.type != after.type) {
        nbObjectService::notify(match, "vanishingLinesType");
    }
    if (before.magnifyFactor != after.magnifyFactor) {
        nbObjectService::notify(match, "magnifyFactor");
    }
    if (before.anchoredToCentre != after.anchoredToCentre) {
        nbObjectService::notify(match, "anchoredToCentre");
    }
    if (before.fovMode != after.fovMode) {
        nbObjectService::notify(camera, "fovMode");
    }
}

nbdCameraNode cameraNode(const osg::UberCameraPtr& camera)
{
    return nbdCameraNode(camera->getInternalParentNode().getFieldContainerId());
}

/// Sets eye, centre, up and field of view, and nothing else. The camera may be gone afterwards:
/// those who are told may have destroyed it.
void place(const osg::UberCameraPtr& camera, const CameraPose& pose)
{
    const CameraPose before = camera->getPose();
    if (isPlaceSame(before, pose)) {
        return;
    }
    CameraPose after = before;
    after.from = pose.from;
    after.at = pose.at;
    after.up = pose.up;
    after.fovDeg = pose.fovDeg;
    if (!camera->setPose(after)) {
        return;
    }
    // Whoever is told may destroy the camera.
    const nbdCameraNode node = cameraNode(camera);
    if (!isOrientationSame(before, after)) {
        nbObjectService::notify(node, "orientation");
    }
    if (before.fovDeg != after.fovDeg && !node.isNull()) {
        nbObjectService::notify(node, "fov");
    }
}

/// A camera's match and placement before and after a step. What the step did not change, it leaves
/// alone: a camera that was turned by hand after a setting of the match was changed stays.
class MatchRecord : public nbUndoRecord
{
public:
    MatchRecord(const osg::UberCameraPtr& camera, bool isInGroup)
        : cameraId(camera.getFieldContainerId())
        , isGrouped(isInGroup)
        , stateBefore(MatchTable::of(camera))
        , poseBefore(camera->getPose())
    { }

    /// Deliberate: outside of a group a scope is a step even where it changed nothing, so that each
    /// edit of a line makes exactly one. A group leaves none then.
    bool close() override
    {
        const osg::UberCameraPtr camera = nbUberCameraPool::get(cameraId);
        if (camera == osg::NullFC) {
            return false;
        }
        stateAfter = MatchTable::of(camera);
        isStateChanged = !stateBefore.isSame(stateAfter);
        poseAfter = camera->getPose();
        isPlaceChanged = !isPlaceSame(poseBefore, poseAfter);
        return isStateChanged || isPlaceChanged || !isGrouped;
    }

    void undo() override { restore(stateBefore, poseBefore); }

    void redo() override { restore(stateAfter, poseAfter); }

private:
    void restore(const MatchState& state, const CameraPose& pose) const
    {
        if (isPlaceChanged) {
            restorePlace(pose);
        }
        if (isStateChanged) {
            restoreState(state);
        }
    }

    void restorePlace(const CameraPose& pose) const
    {
        const osg::UberCameraPtr camera = nbUberCameraPool::get(cameraId);
        if (camera != osg::NullFC) {
            place(camera, pose);
        }
    }

    void restoreState(const MatchState& state) const
    {
        const osg::UberCameraPtr camera = nbUberCameraPool::get(cameraId);
        if (camera == osg::NullFC) {
            return;
        }
        MatchState& current = MatchTable::of(camera);
        const MatchState replaced = current;
        current = state;
        current.drag = replaced.drag;
        // The view may have got another shape since.
        const MatchState restored = MatchTable::of(camera);
        announce(cameraNode(camera), replaced, restored);
    }

    osg::UInt32 cameraId;
    bool isGrouped;
    MatchState stateBefore;
    MatchState stateAfter;
    CameraPose poseBefore;
    CameraPose poseAfter;
    // A group that is cancelled takes all back without closing.
    bool isStateChanged = true;
    bool isPlaceChanged = true;
};

}  // namespace

bool isPlaceSame(const CameraPose& a, const CameraPose& b)
{
    return isOrientationSame(a, b) && a.fovDeg == b.fovDeg;
}

void noteMatch(const osg::UberCameraPtr& camera)
{
    nbUndoService* const service = nbUndoService::the();
    if (service->isNewInStep(camera.getFieldContainerId())) {
        service->record(std::make_unique<MatchRecord>(camera, service->isGroupOpen()));
    }
}

void editMatch(osg::UInt32 cameraNodeId, const std::function<void(MatchState&)>& edit)
{
    const osg::UberCameraPtr camera = nbUberCameraPool::getByNode(cameraNodeId);
    if (camera == osg::NullFC) {
        return;
    }
    noteMatch(camera);
    MatchState& state = MatchTable::of(camera);
    const MatchState before = state;
    edit(state);
    // Those who are told may edit in turn.
    const MatchState after = state;
    announce(nbdCameraNode(cameraNodeId), before, after);
}

void placeCamera(const osg::UberCameraPtr& camera, const CameraPose& pose)
{
    noteMatch(camera);
    place(camera, pose);
}
