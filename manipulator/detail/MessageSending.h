// SPDX-License-Identifier: MIT
#pragma once

namespace nbec::manipulator::detail {

/// Tells the kernel that transforms have changed: "nbTransform::changedTransformation", then
/// "nbTransform::updateTransformation", each without attributes, and marks the scene as modified.
void sendTransformationChanged();

/// Pauses the host's preview of materials while something is dragged: "setMatRenderEnabled" with
/// "enabled" false.
void pauseMaterialPreview();

/// Has the preview go on: "setMatRenderEnabled" with "enabled" true, then "updateMatRender".
void resumeMaterialPreview();

}  // namespace nbec::manipulator::detail
