// SPDX-License-Identifier: MIT
#include "nbdCameraNode.h"

#include <nbKernelServices/detail/MatchEdit.h>
#include <nbKernelServices/detail/MatchState.h>
#include <nbOpenSGUberCamera/nbUberCameraPool.h>

nbdCameraNode::nbdCameraNode(const nbdObject& object)
    : nbdNode(Kind::CameraNode,
              object.getKind() == Kind::CameraNode || object.getKind() == Kind::Node
                  ? object.getId()
                  : 0)
{ }

osg::UberCameraPtr nbdCameraNode::getCamera() const
{
    return nbUberCameraPool::getByNode(getId());
}

nbdPerspectiveMatch nbdCameraNode::getPerspectiveMatch() const
{
    return nbdPerspectiveMatch(isNull() ? 0 : getId());
}

nbCameraTypes::FovMode nbdCameraNode::getFovMode() const
{
    const MatchState* const state = MatchTable::find(getId());
    return state != nullptr ? state->fovMode : nbCameraTypes::SolvedFov;
}

void nbdCameraNode::setFovMode(nbCameraTypes::FovMode mode) const
{
    if (mode == nbCameraTypes::SolvedFov || mode == nbCameraTypes::FixedFov) {
        editMatch(*this, "fovMode", [&](MatchState& state) { state.fovMode = mode; });
    }
}

nbCameraTypes::MatchResult nbdCameraNode::updateFromPerspectiveMatch() const
{
    const osg::UberCameraPtr camera = getCamera();
    if (camera == osg::NullFC) {
        return nbCameraTypes::NoCamera;
    }
    return nbCameraTypes::ContradictingLines;
}
