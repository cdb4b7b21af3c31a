// SPDX-License-Identifier: MIT
#include "viewer/scenes/SceneMatchState.h"

#include "viewer/match/PerspectiveMatchTool.h"
#include "viewer/scenes/ScenePictures.h"
#include "viewer/stage/Stage.h"

#include <nbKernelServices/nbScopedUndo.h>

namespace viewer {
namespace {

PerspectiveMatchTool* toolOf(const Stage& stage)
{
    return dynamic_cast<PerspectiveMatchTool*>(stage.toolByName("match"));
}

/// Middle of a view in its reference sizes.
QPointF middleOf(double aspect, bool isHeightKept)
{
    return isHeightKept ? QPointF(0.5 * aspect, 0.5) : QPointF(0.5, 0.5 / aspect);
}

bool isAsInANewScene(const SceneMatch& match)
{
    const SceneMatch usual;
    return match.photograph.isNull() && match.veil == usual.veil &&
        match.fitsWidth == usual.fitsWidth && match.linesShown == usual.linesShown &&
        match.locked == usual.locked && match.linesType == usual.linesType &&
        match.fovMode == usual.fovMode && match.magnifyFactor == usual.magnifyFactor &&
        !match.lines;
}

nbdPerspectiveMatch::Line lineAt(std::size_t number)
{
    return static_cast<nbdPerspectiveMatch::Line>(number);
}

}  // namespace

std::optional<SceneMatch> matchOf(Stage& stage)
{
    const PerspectiveMatchTool* const tool = toolOf(stage);
    if (tool == nullptr) {
        return std::nullopt;
    }
    const nbdPerspectiveMatch source = tool->camera().getPerspectiveMatch();
    SceneMatch match;
    QString none;
    capturePicture(tool->photograph().image(), match.photograph, none);
    match.veil = tool->veil();
    match.fitsWidth = tool->photograph().fitsWidth();
    match.linesShown = tool->areLinesShown();
    match.locked = tool->camera().isLocked();
    match.linesType = source.getVanishingLinesType();
    match.fovMode = tool->camera().getFovMode();
    match.magnifyFactor = source.getMagnifyFactor();
    if (tool->areLinesLaid()) {
        match.lines.emplace();
        for (std::size_t i = 0; i < match.lines->size(); ++i) {
            (*match.lines)[i] = source.getLine(lineAt(i));
        }
    }
    if (match.lines || match.fitsWidth) {
        match.aspect = stage.view().getUberCamera()->getViewAspect();
    }
    return isAsInANewScene(match) ? std::nullopt : std::make_optional(match);
}

void showMatch(const SceneMatch& match, const osg::ImagePtr& photograph, Stage& stage)
{
    PerspectiveMatchTool* const tool = toolOf(stage);
    if (tool == nullptr) {
        return;
    }
    const nbScopedUndo muted(false);
    const nbdPerspectiveMatch target = tool->camera().getPerspectiveMatch();
    tool->photograph().set(photograph);
    if (match.fitsWidth) {
        // The camera's field of view is that of the view it was saved in.
        const osg::UberCameraPtr camera = stage.view().getUberCamera();
        const float aspectNow = camera->getViewAspect();
        camera->resizeView(match.aspect);
        tool->photograph().setFitsWidth(true);
        camera->resizeView(aspectNow);
    }
    tool->setVeil(match.veil);
    tool->showLines(match.linesShown);
    target.setVanishingLinesType(static_cast<nbCameraTypes::VanishingLinesType>(match.linesType));
    tool->camera().setFovMode(static_cast<nbCameraTypes::FovMode>(match.fovMode));
    target.setMagnifyFactor(match.magnifyFactor);
    if (match.lines) {
        // The photograph stays in the middle, so the lines keep their place relative to that.
        const double aspectNow = stage.view().getUberCamera()->getViewAspect();
        const QPointF shift =
            middleOf(aspectNow, !match.fitsWidth) - middleOf(match.aspect, !match.fitsWidth);
        for (std::size_t i = 0; i < match.lines->size(); ++i) {
            // A match keeps further digits of a line that it has already; so it must not have it.
            target.setLine(lineAt(i), QLineF());
            target.setLine(lineAt(i), (*match.lines)[i].translated(shift));
        }
    }
    tool->setLinesLaid(match.lines.has_value());
    tool->camera().setLocked(match.locked);
}

}  // namespace viewer
