// SPDX-License-Identifier: MIT
#pragma once

namespace nbec::manipulator::detail {

/// Tells the kernel that transforms have changed: "nbTransform::changedTransformation", then
/// "nbTransform::updateTransformation", each without attributes, and marks the scene as modified.
void sendTransformationChanged();

/// Has the host pause its preview of the material: "setMatRenderEnabled" with "enabled" = false.
void sendMaterialPreviewPaused();

/// Has the preview go on, "setMatRenderEnabled" with "enabled" = true, and show the material as it
/// is now, "updateMatRender".
void sendMaterialPreviewResumed();

}  // namespace nbec::manipulator::detail
