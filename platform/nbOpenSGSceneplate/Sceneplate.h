// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGVector.h>

#include <FieldContainerGlue.h>

namespace osg {

class NB_PLATFORM_API Sceneplate;
NB_CONTAINER_POINTER(Sceneplate, GroupPtr);

/// Size of a new plate, heights of the view.
inline constexpr Real32 kSceneplateSize = 0.25F;

// clang-format off
#define NB_SCENEPLATE_FIELDS(VALUE, OWNED, LINK)                                                   \
    OWNED(Image, image, ImagePtr)                                                                  \
    VALUE(Color, color, Color4f, Color4f(1.0F, 1.0F, 1.0F, 1.0F))                                      \
    VALUE(Anchor, anchor, Int32, 4)                                                                \
    VALUE(Position, position, Vec2f, Vec2f(0.0F, 0.0F))                                              \
    VALUE(Size, size, Vec2f, Vec2f(kSceneplateSize, kSceneplateSize))                              \
    VALUE(Scale, scale, Real32, 1.0F)                                                               \
    VALUE(Rotation, rotation, Real32, 0.0F)                                                         \
    VALUE(Front, front, bool, true)                                                                \
    VALUE(Order, order, Int32, 0)                                                                  \
    VALUE(Opacity, opacity, Real32, 1.0F)                                                           \
    VALUE(Visible, visible, bool, true)                                                            \
    VALUE(Marker, marker, Int32, 0)

// clang-format on

/// Core of a scene plate: a flat picture or colour in front of or behind the 3D view.
///
/// - Image: the picture, counted while it is held; null: a plate of plain Color (alpha counts).
/// - Anchor, Position: the plate's centre lies Position away from one of nine places of the view,
///   x to the right and y up. The distance is in heights of the view, so that plates keep their
///   place and size relative to the window when it is resized.
/// - Size, Scale: width and height in heights of the view, times Scale.
/// - Rotation: degrees, counter-clockwise on screen, about the centre.
/// - Front: drawn after the 3D scene and before handles; otherwise before the scene.
/// - Order: among those before or behind the scene the higher one lies in front; of equal ones the
///   later in the tree.
/// - Opacity: 0 .. 1, factor to the alpha of the picture or colour.
/// - Visible: a hidden plate is neither drawn nor hit; as little is one whose node is not active.
/// - Marker: outline that shows a (pre)selected plate, see MarkerKind; nothing to do with how the
///   plate looks, and not for undo.
///
/// Where that lies in pixels says nbSceneplateLayout, which plates are shown nbSceneplateList:
/// those that hang below the root of a view through groups alone, usually as children of
/// nbScenegraph::getSceneplateRoot(). A plate has no place in 3D: nothing else below it is drawn,
/// and it has no part in scene picks and world bounds.
class NB_PLATFORM_API Sceneplate : public Group
{
    NB_CONTAINER(Sceneplate, Group, NB_SCENEPLATE_FIELDS);

public:
    /// Places of the view, by rows from the bottom; other numbers count as Centre.
    enum AnchorPlace : Int32
    {
        BottomLeft = 0,
        Bottom = 1,
        BottomRight = 2,
        Left = 3,
        Centre = 4,
        Right = 5,
        TopLeft = 6,
        Top = 7,
        TopRight = 8
    };

    enum MarkerKind : Int32
    {
        NoMarker = 0,
        PreselectedMarker = 1,  ///< under the pointer
        SelectedMarker = 2
    };

    /// Everything that a plate's place on screen depends on.
    // NOLINTNEXTLINE(readability-identifier-naming): named as the masks of fields
    static constexpr BitVector PlaceFieldMask =
        AnchorFieldMask | PositionFieldMask | SizeFieldMask | ScaleFieldMask | RotationFieldMask;
};

}  // namespace osg
