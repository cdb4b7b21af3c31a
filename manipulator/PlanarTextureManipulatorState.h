// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/PlanarTextureManipulator.h"
#include "manipulator/detail/HandleShapes.h"
#include "manipulator/detail/MaterialComponent.h"
#include "manipulator/detail/PreviewPause.h"

#include <nbOpenSGExt/Transform3D.h>

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGVector.h>

#include <array>
#include <cstddef>
#include <string>

namespace nbec::manipulator {

/// The nine materials of the planar gizmo, in the order of their array.
enum class PlanarMaterial : std::size_t
{
    XAxis,
    YAxis,
    XLight,
    YLight,
    ZLight,
    ZAxis,
    Accent,
    Highlight,
    Yellow
};

/// What a handle belongs to.
enum class PlanarGroup
{
    Translate,
    Rotate,
    Scale
};

/// One drawn piece of a handle with its idle colour.
struct PlanarPart
{
    detail::HandleShape shape;
    PlanarMaterial idle;
};

/// One row of the handle table. The order of rows is that of the tree and of the comparison of
/// names.
struct PlanarHandleRow
{
    static constexpr std::size_t kMostParts = 3;

    const char* name;
    PlanarTextureManipulator::ActiveMode activeMode;
    PlanarGroup group;
    std::size_t partCount;
    std::array<PlanarPart, kMostParts> parts;
    std::array<float, 3> place;  ///< in the unit frame
    detail::Turn turn;
    std::array<int, 3> side;  ///< of a tab: which end of each extent it stands at; 0 the centre
};

inline constexpr std::size_t kPlanarHandleCount = 18;
inline constexpr std::size_t kPlanarMaterialCount = 9;
extern const std::array<PlanarHandleRow, kPlanarHandleCount> kPlanarHandles;

/// The row of a handle; null for None.
const PlanarHandleRow* planarHandleOf(PlanarTextureManipulator::ActiveMode mode);

/// Whether a length of the projection, of either sign, is long enough to divide by: 1e-12, so that
/// objects in small units have proportions too.
bool hasLength(float length);

/// The length, or 1 if it has none.
float usableLength(float length);

/// The projection's frame as it was read last.
struct ProjectionFrame
{
    osg::Matrix worldFromObject;
    osg::Vec3f translation;  ///< place of the centre, object space
    osg::Quaternion rotation;  ///< rotation * rotation orientation, unit length
    osg::Vec3f scale { 1.0F, 1.0F, 1.0F };
    osg::Vec3f projectionScale { 1.0F, 1.0F, 1.0F };  ///< of the projection even if another is used
    osg::Vec3f extentPerScale { 1.0F, 1.0F, 1.0F };  ///< half of what the projection covers

    /// World from the handle frame in object units, scale left out.
    osg::Matrix worldFromAxes() const;
    /// Signed distances of the edges from the centre and depth of the Z extent, object units.
    osg::Vec3f halfExtents() const;
};

/// State of one drag, captured at its start.
struct ProjectionDrag
{
    osg::Plane plane;  ///< in which the pointer's ray is intersected, world
    ProjectionFrame frame;
    osg::Vec3f unit;  ///< object units of each axis of handle space
    osg::Matrix handleFromWorld;
    osg::Pnt3f startWorld;
    osg::Vec3f start;  ///< handle space
    float lastAngle = 0.0F;  ///< radians
    bool hasStart = false;  ///< whether a ray has met the plane yet
    bool isTargetReady = false;  ///< whether the node has been made a transform

    /// From the start to a point, object units along the axes of the handle frame.
    osg::Vec3f motionTo(const osg::Pnt3f& hit) const;
};

struct PlanarTextureManipulator::State
{
    /// The nodes of one row of the handle table; the handle tree keeps them alive.
    struct HandleNodes
    {
        osg::NodePtr top;
        std::array<osg::NodePtr, PlanarHandleRow::kMostParts> parts;
    };

    detail::MaterialComponent component;
    std::string messageReceiver;
    detail::PreviewPause previewPause;

    bool zScaleVisible = true;
    bool zScaleValueShown = true;
    bool keepAspectRatio = false;
    bool useTextureScale = false;
    bool useObjectScale = false;
    bool useObjectTranslation = false;
    bool applyRotationToTranslation = false;
    float aspectRatio = 1.0F;
    osg::Vec3f initialTextureScale { 1.0F, 1.0F, 1.0F };
    osg::Vec2f projectionSize;

    ManipulatorMode mode = ManipulatorMode::Universal;
    ActiveMode activeMode = ActiveMode::None;
    ActiveMode highlighted = ActiveMode::None;
    bool dragging = false;
    ProjectionFrame frame;
    ProjectionDrag drag;

    osg::RefPtr<osg::NodePtr> root;
    osg::RefPtr<osg::NodePtr> handleTree;
    osg::Transform3DPtr placement;  ///< core of the handle tree, which never gets another
    std::array<HandleNodes, kPlanarHandleCount> handles;
    std::array<osg::SimpleMaterialRefPtr, kPlanarMaterialCount> materials;

    osg::UInt64 comparedStamp = 0;  ///< edits seen by the last update, see EditStamp.h
    float placedSize = 0.0F;  ///< class-wide size at the last placement
};

}  // namespace nbec::manipulator
