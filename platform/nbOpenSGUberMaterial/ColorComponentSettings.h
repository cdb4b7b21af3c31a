// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/Transform3D.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGAttachmentContainer.h>

#include <FieldContainerGlue.h>

namespace osg {

class NB_PLATFORM_API ColorComponentSettings;
NB_CONTAINER_POINTER(ColorComponentSettings, AttachmentContainerPtr);

// clang-format off
#define NB_COLOR_COMPONENT_SETTINGS_FIELDS(VALUE, OWNED, LINK)                                     \
    OWNED(PlanarProjection, planarProjection, Transform3DPtr)                                      \
    VALUE(PlanarProjectionFlags, planarProjectionFlags, UInt32, 0)                                 \
    VALUE(TextureProjectionType, textureProjectionType, Int32, 1)                                  \
    VALUE(AsMask, asMask, bool, false)                                                             \
    VALUE(Invert, invert, bool, false)

// clang-format on

/// How the picture of one colour component of an UberMaterial lies on the surface.
///
/// The planar projection lies in the space of the node that carries the material: world =
/// node.toWorld * projection.getMatrix(). In its own frame the picture covers x and y from -1 to 1,
/// its left lower corner at (-1, -1), and is projected along z through the whole object, onto
/// surfaces of either side. With ClampZ it shows only where z is from -1 to 0, the Z extent.
/// A projection that is null, flattened (a scale of 0, say) or not finite shows no picture.
///
/// Coverage is where the picture counts: its alpha, or, as a mask, its brightness (the average of
/// red, green and blue). Invert turns it over. What covers nothing shows the plain component.
class NB_PLATFORM_API ColorComponentSettings : public AttachmentContainer
{
    NB_CONTAINER(ColorComponentSettings, AttachmentContainer, NB_COLOR_COMPONENT_SETTINGS_FIELDS);

public:
    /// Bits of PlanarProjectionFlags; none at the start.
    enum PlanarProjectionFlag : UInt32
    {
        /// Who edits the scale keeps the ratio of x to y. The picture fills the projection anyhow,
        /// so that handles on its edges are where it ends.
        KeepAspectRatio = 1,
        RepeatU = 2,  ///< the picture repeats along x; otherwise it ends at its edges
        RepeatV = 4,  ///< the same along y
        ClampZ = 8  ///< only in the Z extent; otherwise at any distance
    };

    /// Values of TextureProjectionType; planar at the start.
    enum TextureProjection : Int32
    {
        UVProjection = 0,
        PlanarProjection = 1,
        TriplanarProjection = 2,
        TireProjection = 3
    };

    /// Whether all bits of a flag are set.
    bool hasPlanarProjectionFlag(PlanarProjectionFlag flag) const;

    /// Switches one flag. Edited with PlanarProjectionFlagsFieldMask.
    void setPlanarProjectionFlag(PlanarProjectionFlag flag, bool on);
};

}  // namespace osg
