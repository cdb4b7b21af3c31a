// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/match/PerspectiveMatchTool.h"
#include "viewer/plates/PlatesTool.h"
#include "viewer/textures/TextureTool.h"

namespace viewer {

/// The tools of a stage that have panels, with their commands: what they know outlives the panels.
struct StageTools
{
    /// @param stage  outlives this
    explicit StageTools(Stage& stage)
        : texture(stage)
        , match(stage)
        , plates(stage)
    { }

    TextureTool texture;
    PerspectiveMatchTool match;
    PlatesTool plates;
};

}  // namespace viewer
