// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/AnchoredTextureManipulator.h"
#include "manipulator/course/Instances.h"
#include "manipulator/texture/TextureModes.h"

namespace nbec::manipulator {

/// The gizmo that edits the triplanar projection of a picture: the offsets and scales (reciprocals
/// of the repeats) of three planar projections along the axes of a frame, and the frame's rotation.
///
/// Frame. Origin at the anchor point, axes those of the anchor's node, each of unit length in the
/// world, so that a frame unit is a world unit; mirrored and skewed with the node. The handles lie
/// along them, without mirror and skew. The projection's own rotation does not turn them.
///
/// Messages: receiver + "::changedTriplanarManipulator", absolute values.
/// - Arrows: "XOffset", "YOffset", "ZOffset" (Vec2f), the two projections that contain the axis,
///   less the shift / 100.
/// - Rings: "rotate" (Vec3f), radians about x, y, z. Deliberate: a turn by the right hand about x
///   and z adds, one about y subtracts.
/// - Scale handles: "XScale", "YScale", "ZScale" (Vec2f), those two projections times the ratio of
///   the pointer's coordinates, never below 0.001; grabbed at coordinate 0 it is infinite or
///   undefined, and sent so. The yellow box scales all three, a hundred times more gently, by the y
///   coordinate (z where z is up in the world).
/// Each is followed by marking the scene as modified.
///
/// Decisions.
/// - Values come from the gui object if it has the component, else from the material's settings if
///   the projection is triplanar; else a drag starts from no rotation and offset and from scale 1.
/// - The size of a drag's handles follows only what update() compares: setManipulatorSize() places
///   the shared instance, hosts call updateAllManipulators() for the others.
class NB_MANIPULATOR_API TriplanarTextureManipulator
    : public Instanced<TriplanarTextureManipulator, AnchoredTextureManipulator>
{
public:
    using ManipulatorMode = texture::TriplanarMode;
    using ActiveMode = texture::TriplanarHandle;

    /// Builds the handles and appends the instance to the list of live ones.
    TriplanarTextureManipulator();
    TriplanarTextureManipulator(const TriplanarTextureManipulator& other) = default;
    TriplanarTextureManipulator& operator=(const TriplanarTextureManipulator& other) = default;

    /// Unregisters the instance and releases the handles.
    ~TriplanarTextureManipulator() override;

    void activateUniversalManipulator() { activateMode(ManipulatorMode::Universal); }

    void activateRotateManipulator() { activateMode(ManipulatorMode::Rotate); }

    void activateRotateScaleManipulator() { activateMode(ManipulatorMode::RotateScale); }

    ManipulatorMode getMode() const { return static_cast<ManipulatorMode>(gizmo->getMode()); }

    ActiveMode getActiveMode() const { return static_cast<ActiveMode>(gizmo->getArmed()); }

    /// Has drags of rings that are seen nearly edge-on follow the drawn ring, as those of the
    /// transform gizmo, see RingDrag, instead of the ring's own plane. Off at the start.
    void setRingsTilted(bool on) { textureGizmo().areRingsTilted = on; }

    bool areRingsTilted() const { return textureGizmo().areRingsTilted; }
};

}  // namespace nbec::manipulator
