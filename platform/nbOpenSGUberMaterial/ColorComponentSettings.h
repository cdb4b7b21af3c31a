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
    VALUE(Invert, invert, bool, false)                                                             \
    VALUE(Rotate, rotate, Real32, 0.0F)                                                             \
    VALUE(Offset, offset, Vec2f, Vec2f(0.0F, 0.0F))                                                  \
    VALUE(Repeat, repeat, Vec2f, Vec2f(1.0F, 1.0F))                                                  \
    VALUE(TriplanarRotation, triplanarRotation, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))                       \
    VALUE(TriplanarOffsetU, triplanarOffsetU, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))                         \
    VALUE(TriplanarOffsetV, triplanarOffsetV, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))                         \
    VALUE(TriplanarRepeatU, triplanarRepeatU, Vec3f, Vec3f(1.0F, 1.0F, 1.0F))                         \
    VALUE(TriplanarRepeatV, triplanarRepeatV, Vec3f, Vec3f(1.0F, 1.0F, 1.0F))                         \
    VALUE(TireCenter, tireCenter, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))                                     \
    VALUE(TireScaleU, tireScaleU, Real32, 1.0F)                                                     \
    VALUE(TireScaleHeight, tireScaleHeight, Real32, 1.0F)                                           \
    VALUE(TireScaleRadius, tireScaleRadius, Real32, 1.0F)                                           \
    VALUE(TireAutoParameter, tireAutoParameter, bool, true)                                         \
    VALUE(PlanarAngles, planarAngles, Vec2f, Vec2f(180.0F, 0.0F))                                    \
    VALUE(PlacingId, placingId, UInt32, 0)

// clang-format on

/// How the picture of one colour component of an UberMaterial lies on the surface. The object is
/// the node that carries the material; (u, v) is (0, 0) at the picture's left lower corner and
/// (1, 1) at the opposite one.
///
/// Planar: the projection lies in the object's space: world = node.toWorld *
/// projection.getMatrix(). In its own frame the picture covers x and y from -1 to 1, its left lower
/// corner at (-1, -1), and is projected along z through the whole object, onto surfaces of either
/// side. With ClampZ it shows only where z is from -1 to 0, the Z extent. PlanarAngles, in degrees:
/// up to the first between the world's normal of the surface, on the front side of triangles as
/// they wind, and the direction that the picture comes from (+z) it shows, and fades over the
/// second. From 180 on it shows on all faces.
///
/// Triplanar: three projections along the axes of a frame, which is that of the object, its axes of
/// the world's unit length, turned by TriplanarRotation: radians about the object's own x, then y,
/// then z axis. Deliberate: those about x and z turn the frame counter-clockwise, that about y
/// clockwise. The projection along x shows (y, z) of the frame, that along y (x, z), that along z
/// (x, y): u = coordinate * repeat, and v alike. The frame's coordinates are those of (place / 100
/// + offset), so that turning and scaling leave the place where a picture begins, place = -100 *
/// offset, and offsets shift along the object's own axes. Offsets and repeats are element 0, 1, 2
/// of their fields for the projections along x, y, z; an offset's u and v go along the same two
/// axes of the object, along the third one it is the mean of those of the other two projections (of
/// no effect without a rotation). The three mix by the surface normal in the frame, by the eighth
/// powers of its coordinates. The picture repeats, and goes through the object.
///
/// UV: the geometry's texture coordinates less the Offset, turned about their (0.5, 0.5), times
/// Repeat. The picture moves with a growing offset along u and v, and turns clockwise about the
/// middle of the unit square by Rotate, in degrees. It repeats.
///
/// Tire: around an axle through TireCenter along the object's x axis, lengths in its space. u goes
/// around it, from y to z: the picture's middle is at +y and takes the part TireScaleU of the
/// circumference, so that 1 is once around and 0.25 four times. On the tread v goes along the
/// axle: the picture is centred on TireCenter and TireScaleHeight wide. On the sides v goes from
/// the edge at TireScaleRadius, where a picture of the tread would begin again, one picture to the
/// axle. Tread and sides mix by the surface normal as in the triplanar projection. With
/// TireAutoParameter an nbMaterialEditor fits the centre, height and radius to the object; nobody
/// else looks at this.
///
/// While somebody looks for a place for a planar picture, PlacingId is the container id of a
/// projection that is drawn instead, as long as that lives; nobody keeps it or takes it for an
/// edit.
///
/// A projection that is null, flattened (a scale or repeat of 0, say) or not finite shows no
/// picture, nor does a UV projection of a geometry without texture coordinates.
///
/// Coverage is where the picture counts: its alpha, or, as a mask, its brightness (the average of
/// red, green and blue). Invert turns it over. What covers nothing shows the plain component.
class NB_PLATFORM_API ColorComponentSettings : public AttachmentContainer
{
    NB_CONTAINER(ColorComponentSettings, AttachmentContainer, NB_COLOR_COMPONENT_SETTINGS_FIELDS);

public:
    /// Bits of PlanarProjectionFlags; none at the start. They hold for the planar projection only.
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

    /// The planar projection that is drawn; null if there is none.
    Transform3DPtr getShownProjection() const;

    /// Whether all bits of a flag are set.
    bool hasPlanarProjectionFlag(PlanarProjectionFlag flag) const;

    /// Switches one flag. Edited with PlanarProjectionFlagsFieldMask.
    void setPlanarProjectionFlag(PlanarProjectionFlag flag, bool on);
};

}  // namespace osg
