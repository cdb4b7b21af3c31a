// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/detail/MatchState.h>

#include <functional>

/// Whether eye, centre, up and field of view are the same, bit for bit.
bool isPlaceSame(const CameraPose& a, const CameraPose& b);

/// Keeps a camera's match and placement in the open undo step, as they are before its first edit in
/// the step. To be called before each edit.
void noteMatch(const osg::UberCameraPtr& camera);

/// Edits the match of a camera: records it, and announces the properties that have changed.
/// @param cameraNodeId  id of the camera's internal parent node; without a camera nothing happens
void editMatch(osg::UInt32 cameraNodeId, const std::function<void(MatchState&)>& edit);

/// Places a camera, for its match: records it, and announces the properties that have changed.
void placeCamera(const osg::UberCameraPtr& camera, const CameraPose& pose);
