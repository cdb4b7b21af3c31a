// SPDX-License-Identifier: MIT
#include "nbdCameraNode.h"

#include <nbKernelServices/detail/MatchEdit.h>
#include <nbKernelServices/detail/MatchState.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGUberCamera/nbUberCameraPool.h>

#include <algorithm>

namespace {

PerspectiveProblem problemFor(const osg::UberCameraPtr& camera, const CameraPose& start)
{
    const MatchState& state = MatchTable::of(camera);
    PerspectiveProblem problem;
    problem.lines = state.lines;
    problem.type = state.type;
    problem.fovMode = state.fovMode;
    problem.width = state.shape.width;
    problem.height = state.shape.height;
    problem.start = nbPerspectiveSolver::aimOf(start, problem.height);
    if (state.reference) {
        problem.reference = nbPerspectiveSolver::aimOf(*state.reference, problem.height);
    }
    return problem;
}

PerspectiveSolution solveFor(const osg::UberCameraPtr& camera, const CameraPose& start)
{
    PerspectiveSolution solution;
    if (!nbCameraNavigation::isFinite(start)) {
        return solution;
    }
    if (camera->isOrthographic()) {
        solution.result = nbCameraTypes::OrthographicCamera;
        return solution;
    }
    return nbPerspectiveSolver::solve(problemFor(camera, start));
}

/// Solves from a start and, if that gives a camera, places it.
nbCameraTypes::MatchResult placeSolved(const osg::UberCameraPtr& camera, const CameraPose& start)
{
    const PerspectiveSolution solution = solveFor(camera, start);
    if (nbCameraTypes::isSolved(solution.result)) {
        CameraPose pose =
            nbPerspectiveSolver::turned(start, solution.aim, ViewShape::of(*camera).height);
        if (solution.result == nbCameraTypes::SolvedWithKeptFov) {
            pose.fovDeg = start.fovDeg;
        }
        placeCamera(camera, pose);
    }
    return solution.result;
}

/// Brings lines and camera back to where they were when the drag began.
nbCameraTypes::MatchResult placeBack(const osg::UberCameraPtr& camera, MatchDrag drag)
{
    noteMatch(camera);
    MatchTable::of(camera).lines = drag.lines;
    const nbCameraTypes::MatchResult result = solveFor(camera, drag.pose).result;
    placeCamera(camera, drag.pose);
    return result;
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

void nbdCameraNode::setFov(double degrees) const
{
    if (const osg::UberCameraPtr camera = getCamera(); camera != osg::NullFC) {
        CameraPose pose = camera->getPose();
        pose.fovDeg = static_cast<osg::Real32>(degrees);
        placeCamera(camera, pose);
    }
}

nbCameraTypes::MatchResult nbdCameraNode::checkPerspectiveMatch() const
{
    const osg::UberCameraPtr camera = getCamera();
    return camera != osg::NullFC ? solveFor(camera, camera->getPose()).result
                                 : nbCameraTypes::NoCamera;
}

PerspectiveQuality nbdCameraNode::judgePerspectiveMatch(double endDeviation) const
{
    const osg::UberCameraPtr camera = getCamera();
    if (camera == osg::NullFC) {
        return {};
    }
    const CameraPose pose = camera->getPose();
    return nbPerspectiveSolver::judge(problemFor(camera, pose), solveFor(camera, pose),
                                      endDeviation);
}

nbCameraTypes::MatchResult nbdCameraNode::updateFromPerspectiveMatch() const
{
    const osg::UberCameraPtr camera = getCamera();
    if (camera == osg::NullFC) {
        return nbCameraTypes::NoCamera;
    }
    const MatchState& state = MatchTable::of(camera);
    const CameraPose present = camera->getPose();
    const bool isInDrag = state.drag && isPlaceSame(state.placed, present);
    const bool isBack = isInDrag && state.isBackAtDragStart();
    const CameraPose start = isInDrag ? state.drag->pose : present;
    const nbCameraTypes::MatchResult result =
        isBack ? placeBack(camera, *state.drag) : placeSolved(camera, start);
    // Those who were told may have destroyed the camera.
    MatchState* const now = MatchTable::find(getId());
    if (now != nullptr && (isBack || nbCameraTypes::isSolved(result))) {
        now->placed = getCamera()->getPose();
    }
    return result;
}

void nbdCameraNode::beginMatchDrag() const
{
    const osg::UberCameraPtr camera = getCamera();
    if (camera == osg::NullFC) {
        return;
    }
    const CameraPose pose = camera->getPose();
    MatchState& state = MatchTable::of(camera);
    if (!state.reference || !isPlaceSame(state.placed, pose)) {
        state.reference = pose;
    }
    state.placed = pose;
    state.drag = MatchDrag { state.lines, pose };
}

void nbdCameraNode::endMatchDrag() const
{
    if (MatchState* const state = MatchTable::find(getId()); state != nullptr) {
        state->drag.reset();
    }
}

void nbdCameraNode::turnMatch(int axis) const
{
    constexpr int kAxisCount = 3;
    const osg::UberCameraPtr camera = getCamera();
    if (camera == osg::NullFC || axis < 0 || axis >= kAxisCount) {
        return;
    }
    const CameraPose pose = nbPerspectiveSolver::turnedByQuarter(camera->getPose(), axis);
    const int first = (axis + 1) % kAxisCount;
    const int second = (axis + 2) % kAxisCount;
    editMatch(getId(), [&](MatchState& state) {
        std::swap_ranges(&state.lines[2 * first], &state.lines[2 * first] + 2,
                         &state.lines[2 * second]);
        const auto before = state.type;
        for (int i = 0; i < nbCameraTypes::kVanishingLinesTypeCount; ++i) {
            const auto type = static_cast<nbCameraTypes::VanishingLinesType>(i);
            if (nbCameraTypes::usesAxis(type, axis) == nbCameraTypes::usesAxis(before, axis) &&
                nbCameraTypes::usesAxis(type, first) == nbCameraTypes::usesAxis(before, second) &&
                nbCameraTypes::usesAxis(type, second) == nbCameraTypes::usesAxis(before, first)) {
                state.type = type;
            }
        }
        state.reference = state.placed = pose;
    });
    if (const osg::UberCameraPtr still = getCamera(); still != osg::NullFC) {
        placeCamera(still, pose);
    }
}

bool nbdCameraNode::placeByLine(nbdPerspectiveMatch::Line line, double length) const
{
    const osg::UberCameraPtr camera = getCamera();
    if (camera == osg::NullFC || camera->isOrthographic() || line < 0 ||
        line >= nbdPerspectiveMatch::kLineCount) {
        return false;
    }
    MatchState& state = MatchTable::of(camera);
    const auto pose = nbPerspectiveSolver::placedBy(
        camera->getPose(), state.lines[static_cast<std::size_t>(line)], line / 2, length,
        state.shape.width, state.shape.height);
    if (pose) {
        state.placed = *pose;
        placeCamera(camera, *pose);
    }
    return pose.has_value();
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
        state.reference = state.placed = camera->getPose();
        state.isFresh = false;
    });
}

void nbdCameraNode::layFreshLines() const
{
    const MatchState* const state = MatchTable::find(getId());
    if (state != nullptr && state->isFresh) {
        const nbScopedUndo muted(false);
        layLinesAsSeen();
    }
}
