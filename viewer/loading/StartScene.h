// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/ModelData.h"

#include <OpenSG/OSGVector.h>

namespace viewer {

/// Name of the start scene's main object, which is selected at the start.
constexpr const char* kStartSceneMainObject = "Knot";

/// ModelData::builtIn of the start scene.
constexpr const char* kStartSceneName = "start scene";

/// Eye and point looked at from which the start scene is composed; world space, y up.
const osg::Pnt3f kStartSceneFrom { 6.4F, 5.3F, 9.6F };
const osg::Pnt3f kStartSceneAt { 0.0F, 1.25F, 0.0F };

/// Narrowest view that shows all of the start scene from there, width by height.
constexpr float kStartSceneAspect = 1.3F;

/// The scene shown when no file is given: a still life on a round table, y up, the table's top at y
/// = 0.
ModelData makeStartScene();

}  // namespace viewer
