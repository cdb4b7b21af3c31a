// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/AnchoredTextureManipulator.h"
#include "manipulator/course/Instances.h"
#include "manipulator/texture/TextureModes.h"

namespace nbec::manipulator {

/// The gizmo that edits the tire projection of a picture, which goes around an axle: its centre,
/// how much of the circumference the picture takes, and the height (along the axle) and radius of
/// the tread.
///
/// The projection lies in the space of the anchor's node, the axle along its x axis. The handles
/// stand at the projection's centre and show it: a ring as large as its radius, boxes at both ends
/// of its height, a box where the picture ends on the ring, and arrows for the centre, which keep
/// their size on screen as the boxes do.
///
/// Messages: receiver + "::changedTireManipulator", absolute values.
/// - Arrows: "center" (Vec3f), in the space of the anchor's node.
/// - Ring and its box: "ScaleRadius"; boxes of the height: "ScaleHeight"; box on the ring:
///   "ScaleU" (each float). What is grabbed stays under the pointer; no value falls below 0.001 of
///   its start (the part of the circumference not below 0.001). Each is followed by marking the
///   scene as modified.
/// - When a drag that has sent something stops: "autoParameter" (bool), false, so that what was set
///   by hand is not fitted again. A drag of the U scale, which is never fitted, sends what the
///   material says.
///
/// Decisions.
/// - Values come from the gui object if it has the component, else from the material's settings if
///   they are those of a tire; else centre 0 and 1 for the rest.
/// - The box of the radius is at -z, those of the height at +y, where the picture's middle is; the
///   picture's end goes from there to +z as the U scale grows, and is at -y for once around.
/// - The ring is dragged along the direction from the axle in which it was grabbed, in a plane that
///   faces the viewer, so that it can be dragged from any side but exactly against the view. The U
///   scale follows the angle about the axle in the object's space, whole turns counted, with the
///   transform gizmo's rule for rings seen at a grazing angle.
/// - Everything is shown at the start. On-screen text tells the value while it is dragged.
class NB_MANIPULATOR_API TireProjectionManipulator
    : public Instanced<TireProjectionManipulator, AnchoredTextureManipulator>
{
public:
    using ManipulatorMode = texture::TireMode;
    using ActiveMode = texture::TireHandle;

    /// Builds the handles and appends the instance to the list of live ones.
    TireProjectionManipulator();
    TireProjectionManipulator(const TireProjectionManipulator& other) = default;
    TireProjectionManipulator& operator=(const TireProjectionManipulator& other) = default;

    /// Unregisters the instance and releases the handles.
    ~TireProjectionManipulator() override;

    void activateUniversalManipulator() { activateMode(ManipulatorMode::Universal); }

    void activateTranslateManipulator() { activateMode(ManipulatorMode::Translate); }

    void activateScaleManipulator() { activateMode(ManipulatorMode::Scale); }

    ManipulatorMode getMode() const { return static_cast<ManipulatorMode>(gizmo->getMode()); }

    ActiveMode getActiveMode() const { return static_cast<ActiveMode>(gizmo->getArmed()); }
};

}  // namespace nbec::manipulator
