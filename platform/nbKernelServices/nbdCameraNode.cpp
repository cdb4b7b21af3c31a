// SPDX-License-Identifier: MIT
#include "nbdCameraNode.h"

#include <nbKernelServices/detail/MatchEdit.h>
#include <nbKernelServices/detail/MatchState.h>
#include <nbKernelServices/nbPerspectiveSolver.h>
#include <nbOpenSGUberCamera/nbUberCameraPool.h>

namespace {

PerspectiveSolution solveFor(const osg::UberCameraPtr& camera)
{
    PerspectiveSolution solution;
    if (camera == osg::NullFC || !nbCameraNavigation::isFinite(camera->getPose())) {
        return solution;
    }
    if (camera->isOrthographic()) {
        solution.result = nbCameraTypes::OrthographicCamera;
        return solution;
    }
    const MatchState& state = MatchTable::of(camera);
    PerspectiveProblem problem;
    problem.lines = state.lines;
    problem.type = state.type;
    problem.fovMode = state.fovMode;
    problem.width = state.shape.width;
    problem.height = state.shape.height;
    problem.start = nbPerspectiveSolver::aimOf(camera->getPose(), problem.height);
    return nbPerspectiveSolver::solve(problem);
}

}  // namespace

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
        editMatch(getId(), [&](MatchState& state) { state.fovMode = mode; });
    }
}

nbCameraTypes::MatchResult nbdCameraNode::checkPerspectiveMatch() const
{
    return solveFor(getCamera()).result;
}

nbCameraTypes::MatchResult nbdCameraNode::updateFromPerspectiveMatch() const
{
    const osg::UberCameraPtr camera = getCamera();
    const PerspectiveSolution solution = solveFor(camera);
    if (nbCameraTypes::isSolved(solution.result)) {
        const CameraPose pose = camera->getPose();
        CameraPose turned =
            nbPerspectiveSolver::turned(pose, solution.aim, ViewShape::of(*camera).height);
        if (solution.result == nbCameraTypes::SolvedWithKeptFov) {
            turned.fovDeg = pose.fovDeg;
        }
        placeCamera(camera, turned);
    }
    return solution.result;
}

void nbdCameraNode::layLinesAsSeen() const
{
    const osg::UberCameraPtr camera = getCamera();
    if (camera == osg::NullFC || !nbCameraNavigation::isFinite(camera->getPose())) {
        return;
    }
    editMatch(getId(), [&](MatchState& state) {
        state.lines =
            nbPerspectiveSolver::linesOf(camera->getPose(), state.shape.width, state.shape.height);
    });
}
