// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/AnchoredTextureManipulator.h"
#include "manipulator/course/Instances.h"
#include "manipulator/texture/TextureModes.h"

namespace nbec::manipulator {

/// The gizmo that edits how a picture lies in the texture coordinates: its offset, rotation and
/// scale (the reciprocal of the repeat).
///
/// It works on the screen: the handles lie in a plane that faces the viewer, u to the right and v
/// up, and drags are measured in pixels from the anchor's place in the view.
///
/// Messages: receiver + "::changedUVManipulator", absolute values.
/// - Arrows and square: "offset" (Vec2f), 1/512 for each pixel of the pointer's way.
/// - Ring: "rotate" (float), degrees. Deliberate: a counter-clockwise turn of the pointer
///   subtracts.
/// - Scale handles: "scale" (Vec2f), times the ratio of the pointer's distances from the anchor
///   along u or v; the box at the corner takes the greater ratio for both. Neither limited nor kept
///   from being infinite or undefined, where the handle was grabbed beside the anchor.
/// Deliberate: unlike the other gizmos it does not mark the scene as modified.
///
/// Decisions.
/// - The handle root has the scale field of view * size, or 1.25 in an orthographic view; the
///   transform above it turns it to the viewer and scales it about the anchor, by distance / 20.16
///   or near-plane diagonal / 25, so that the handles keep their size on screen, that of the
///   triplanar gizmo. It follows every movement of the camera.
/// - Everything is shown at the start. The square in the corner is yellow with a red and a green
///   edge.
/// - A drag starts from the material's settings, else from the gui object if it has the component,
///   else from no turn and offset and the repeat that the material tells.
/// - A pointer on the anchor has no direction and keeps the last angle.
/// - A drag goes on without its material; the messages go to the receiver all the same.
/// - The aspect ratio is kept for the host; nothing here depends on it.
class NB_MANIPULATOR_API UVTextureManipulator
    : public Instanced<UVTextureManipulator, AnchoredTextureManipulator>
{
public:
    using ManipulatorMode = texture::UVMode;
    using ActiveMode = texture::UVHandle;

    static constexpr float kDefaultSize = 0.03F;

    /// Builds the handles and appends the instance to the list of live ones.
    UVTextureManipulator();
    UVTextureManipulator(const UVTextureManipulator& other) = default;
    UVTextureManipulator& operator=(const UVTextureManipulator& other) = default;

    /// Unregisters the instance and releases the handles.
    ~UVTextureManipulator() override;

    void activateUniversalManipulator() { activateMode(ManipulatorMode::Universal); }

    void activateTranslateManipulator() { activateMode(ManipulatorMode::Translate); }

    void activateScaleManipulator() { activateMode(ManipulatorMode::Scale); }

    void activateRotateManipulator() { activateMode(ManipulatorMode::Rotate); }

    void activateRotateScaleManipulator() { activateMode(ManipulatorMode::RotateScale); }

    ManipulatorMode getMode() const { return static_cast<ManipulatorMode>(gizmo->getMode()); }

    ActiveMode getActiveMode() const { return static_cast<ActiveMode>(gizmo->getArmed()); }

    /// Has the scale handles of u and v scale both components. Off at the start.
    void setKeepAspectRatio(bool on) { textureGizmo().keepAspectRatio = on; }

    bool getKeepAspectRatio() const { return textureGizmo().keepAspectRatio; }

    /// Width by height of the picture, 1 at the start.
    void setAspectRatio(float ratio) { textureGizmo().aspectRatio = ratio; }

    float getAspectRatio() const { return textureGizmo().aspectRatio; }
};

}  // namespace nbec::manipulator
