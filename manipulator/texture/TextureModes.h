// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGVector.h>

// Of X11's headers.
#pragma push_macro("None")
#undef None

namespace nbec::manipulator::texture {

/// Number of the picture itself among the handles of each gizmo that can grab it.
constexpr int kPictureHandle = 100;

/// The handle of the planar gizmo that is hovered or dragged.
enum class PlanarActiveMode : osg::UInt32
{
    None = 0,
    Rotate = 1,
    TranslateX = 2,
    TranslateY = 3,
    TranslateZ = 4,
    TranslateXY = 5,
    ScaleX = 6,
    ScaleY = 7,
    ScaleZ = 8,
    ScaleUniform = 9,
    ScaleLowerLeft = 10,
    ScaleUpperLeft = 11,
    ScaleLowerRight = 12,
    ScaleUpperRight = 13,
    ScaleLeft = 14,
    ScaleRight = 15,
    ScaleLower = 16,
    ScaleUpper = 17,
    ScaleZPlane = 18,
    Picture = kPictureHandle
};

/// Which handles of the planar gizmo are shown.
enum class PlanarManipulatorMode : osg::UInt32
{
    Universal = 0,  ///< all
    Translate = 1,  ///< arrows and plane handle
    Scale = 2,  ///< scale axes, edges, corners, grid
    Rotate = 3  ///< ring
};

/// Settings of one planar gizmo; see PlanarTextureManipulator.
struct PlanarSettings
{
    bool useTextureScale = false;
    bool useObjectScale = false;
    bool useObjectTranslation = false;
    bool applyRotationToTranslation = false;
    // What the receiver answers
    osg::Vec3f initialTextureScale { 1.0F, 1.0F, 1.0F };
    osg::Vec2f projectionSize;
};

/// Which handles of the triplanar gizmo are shown.
enum class TriplanarMode : osg::Int32
{
    Hidden = -1,
    Universal = 0,
    Initial = 1,  ///< after construction: what is shown is left as it is
    Rotate = 3,
    RotateScale = 4
};

/// The handle of the triplanar gizmo that is hovered or grabbed.
enum class TriplanarHandle : osg::UInt32
{
    None = 0,
    RotateX = 1,
    RotateY = 2,
    RotateZ = 3,
    TranslateX = 4,
    TranslateY = 5,
    TranslateZ = 6,
    ScaleX = 7,
    ScaleY = 8,
    ScaleZ = 9,
    ScaleUniform = 10,
    Picture = kPictureHandle
};

/// Which handles of the UV gizmo are shown.
enum class UVMode : osg::Int32
{
    Hidden = -1,
    Universal = 0,
    Translate = 1,
    Scale = 2,
    Rotate = 3,
    RotateScale = 4
};

/// The handle of the UV gizmo that is hovered or grabbed.
enum class UVHandle : osg::UInt32
{
    None = 0,
    Rotate = 1,
    TranslateU = 2,
    TranslateV = 3,
    TranslateUV = 4,
    ScaleU = 5,
    ScaleV = 6,
    ScaleUniform = 7,
    Picture = kPictureHandle
};

/// Which handles of the tire gizmo are shown.
enum class TireMode : osg::Int32
{
    Hidden = -1,
    Universal = 0,
    Translate = 1,
    Scale = 2
};

/// The handle of the tire gizmo that is hovered or grabbed.
enum class TireHandle : osg::UInt32
{
    None = 0,
    TranslateX = 1,
    TranslateY = 2,
    TranslateZ = 3,
    ScaleHeight = 4,
    ScaleRadius = 5,
    ScaleU = 6
};

}  // namespace nbec::manipulator::texture

#pragma pop_macro("None")
