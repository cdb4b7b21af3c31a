// SPDX-License-Identifier: MIT
#pragma once

namespace nbec::manipulator::detail {

/// Tells the kernel that transforms have changed: "nbTransform::changedTransformation", then
/// "nbTransform::updateTransformation", each without attributes, and marks the scene as modified.
void sendTransformationChanged();

}  // namespace nbec::manipulator::detail
