// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/PlanarTextureManipulator.h"
#include "manipulator/detail/DragPlane.h"
#include "manipulator/detail/HandleSet.h"
#include "manipulator/detail/MaterialComponent.h"
#include "manipulator/detail/PreviewPause.h"

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGVector.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

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

/// One row of the handle table. The order of rows is that of the tree and of the comparison of
/// names.
struct PlanarHandleRow
{
    detail::HandleRow handle;
    PlanarTextureManipulator::ActiveMode activeMode;
    PlanarGroup group;
    std::array<int, 3> side;  ///< of a tab: which end of each extent it stands at; 0 the centre
};

const std::vector<PlanarHandleRow>& planarHandles();

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
///
/// A tab keeps its distance from the pointer; no side shrinks below 0.01 of its start, and a side
/// of length 0 has no proportion to keep. A scale handle grabbed within 1e-6 of the centre has the
/// factor 1. A pointer on the centre keeps the last angle; angles lie within -pi to pi.
struct ProjectionDrag
{
    detail::DragPlane plane;
    ProjectionFrame frame;
    osg::Vec3f unit;  ///< object units of each axis of handle space
    osg::Matrix handleFromWorld;
    float lastAngle = 0.0F;  ///< radians
    bool isTargetReady = false;  ///< whether the node has been made a transform

    /// Where the drag started, handle space.
    osg::Vec3f start() const;
    /// From the start to a point, object units along the axes of the handle frame.
    osg::Vec3f motionTo(const osg::Pnt3f& hit) const;
};

/// The fields of a planar gizmo and what needs nothing else.
///
/// The tree: the root of the handle set places and sizes all handles, which stand below it without
/// groups; the tabs are moved to where the projection ends. The handle frame has its origin at the
/// projection's centre and its axes turned by rotation * rotation orientation, in world space
/// through the node. Handle space is that frame in units of the projection's scale, so that the
/// picture covers -1 to 1; an axis whose scale is below 1e-12 counts as 1. Below a mirrored node
/// the handles are mirrored too.
struct PlanarTextureManipulator::State
{
    State();

    // == Projection

    void readProjection(const osg::NodePtr& node);
    void askScaleValues();

    // == Handles

    /// Shows those of the mode, while one is dragged only those of its group.
    void showElements() const;
    void placeHandles();
    void endHover();

    // == Drag

    /// Makes the node a transform with pivots, once in a drag.
    void makeTransform(const osg::NodePtr& node);
    void beginDrag();
    /// Turns the plane of the drag for the active handle.
    void updatePlane();
    void setTranslationIn(nbMessage& message, const osg::Vec3f& shift) const;

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
    detail::HandleSet handles;

    osg::UInt64 comparedStamp = 0;  ///< edits seen by the last update, see EditStamp.h
    float placedSize = 0.0F;  ///< class-wide size at the last placement
};

}  // namespace nbec::manipulator
