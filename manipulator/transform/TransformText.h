// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragParameters.h"
#include "manipulator/transform/TransformModes.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <QtCore/QString>

namespace nbec::manipulator::transform {

/// Text of the values that a handle edits in a mode. Deliberate: the universal mode shows none,
/// whatever the handle, rings show theirs in mode rotate only, scale handles in mode scale only.
/// @param anglesDeg  of the present rotation, as the drag has come to them
QString describeTransform(const osg::NodePtr& node, const HandleAction& action,
                          ManipulatorMode mode, bool worldSpace, const osg::Vec3f& anglesDeg);

}  // namespace nbec::manipulator::transform
