// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/nbRotationMath.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGTransform.h>
#include <OpenSG/OSGVector.h>

#include <string>

#include <FieldContainerGlue.h>

namespace osg {

class NB_PLATFORM_API Transform3D;
NB_CONTAINER_POINTER(Transform3D, TransformPtr);

// clang-format off
#define NB_TRANSFORM3D_FIELDS(VALUE, OWNED, LINK)                                                  \
    VALUE(Translation, translation, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))                                   \
    VALUE(RotatePivot, rotatePivot, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))                                   \
    VALUE(ScalePivot, scalePivot, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))                                     \
    VALUE(EulerRotation, eulerRotation, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))                               \
    VALUE(EulerRotationOrder, eulerRotationOrder, std::string, "xyz")                              \
    VALUE(RotationQuaternion, rotationQuaternion, Quaternion, Quaternion())                        \
    VALUE(RotationOrientation, rotationOrientation, Quaternion, Quaternion())                      \
    VALUE(Scale, scale, Vec3f, Vec3f(1.0F, 1.0F, 1.0F))                                               \
    VALUE(RotationMode, rotationMode, Int32, 0)                                                    \
    VALUE(Shear, shear, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))

// clang-format on

/// Transform core that keeps its parts: translation, rotation, scale, the pivots of both, and the
/// shear of a matrix that it was made from.
/// Local matrix (column vectors), T translation, S scale, H shear:
/// T(translation) T(rotatePivot) R RO T(-rotatePivot) T(scalePivot) S H T(-scalePivot).
/// H takes y by shear x and z by shear y along x, and z by shear z along y. No drag edits it.
/// R is the rotation by angles or quaternion; its axes are the orientation of the rotate pivot. RO,
/// the rotation orientation, is how the object lies within that frame; the whole rotation is R RO.
/// The matrix is rebuilt from all parts when an edit of any of them ends.
class NB_PLATFORM_API Transform3D : public Transform
{
    NB_CONTAINER(Transform3D, Transform, NB_TRANSFORM3D_FIELDS);

public:
    /// Where R comes from.
    enum RotationMode : Int32
    {
        EulerMode = 0,  ///< from EulerRotation in EulerRotationOrder
        QuaternionMode = 1,  ///< from RotationQuaternion
        AxisAlignedMode =
            2,  ///< as EulerMode; drags turn about the parent's axes, not the object's
    };

    /// Everything that R depends on; for edits around setRotation.
    // NOLINTNEXTLINE(readability-identifier-naming): named as the masks of fields
    static constexpr BitVector RotationFieldMask = EulerRotationFieldMask |
        EulerRotationOrderFieldMask | RotationQuaternionFieldMask | RotationModeFieldMask;

    /// Everything that the matrix depends on.
    // NOLINTNEXTLINE(readability-identifier-naming): named as the masks of fields
    static constexpr BitVector PartsFieldMask = TranslationFieldMask | RotatePivotFieldMask |
        ScalePivotFieldMask | RotationFieldMask | RotationOrientationFieldMask | ScaleFieldMask |
        ShearFieldMask;

    /// R as angles about x, y, z in degrees, in the core's order, whatever the mode.
    Vec3f getRotation() const;

    /// Sets R by angles about x, y, z in degrees; leaves QuaternionMode for EulerMode.
    void setRotation(const Vec3f& anglesDeg);

    /// Sets R by a unit quaternion: goes to QuaternionMode, except that AxisAlignedMode stays and
    /// takes the equivalent angles.
    void setRotation(const Quaternion& rotation);

    /// R as a quaternion, whatever the mode.
    Quaternion getRotationAsQuaternion() const;

    /// R RO as a matrix, in double. Valid until a part of the rotation changes.
    const nbRotationMath::Rows& getWholeRotation() const;

    /// The matrix that the parts give now, without waiting for the end of an edit.
    Matrix computeMatrix() const;

    /// Rebuilds the matrix when one of the parts has changed.
    void changed(BitVector whichField, UInt32 origin) override;

private:
    /// What costs most to work out, kept with what it was worked out from: most edits leave the
    /// rotation as it is.
    struct RotationCache
    {
        nbRotationMath::Rows rows { { { 1.0, 0.0, 0.0 }, { 0.0, 1.0, 0.0 }, { 0.0, 0.0, 1.0 } } };
        Quaternion turn;  ///< R
        Quaternion orientation;
        Vec3f angles { 0.0F, 0.0F, 0.0F };  ///< that gave the turn
        Char8 order[3] = { 'x', 'y', 'z' };
        bool isOfAngles = true;  ///< the turn comes from angles and order
    };

    const Quaternion& currentTurn() const;

    mutable RotationCache cache;
};

}  // namespace osg
