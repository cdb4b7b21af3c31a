// SPDX-License-Identifier: MIT
#include "manipulator/PlanarTextureManipulator.h"
#include "manipulator/PlanarTextureManipulatorState.h"
#include "manipulator/detail/DragGeometry.h"
#include "manipulator/detail/HandleGroup.h"
#include "manipulator/detail/HandleMaterials.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/NodeVisibility.h"
#include "manipulator/detail/ScreenScale.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <cmath>
#include <initializer_list>

namespace nbec::manipulator {

using detail::HandleShape;
using detail::Turn;

namespace {

using Active = PlanarTextureManipulator::ActiveMode;
using Mode = PlanarTextureManipulator::ManipulatorMode;
using Group = PlanarGroup;
using Color = PlanarMaterial;

constexpr int kAxisSortKey = 64016;
constexpr int kLightSortKey = 64015;
/// Deliberate: a trace of transparency has the handles drawn among the blended items, after the
/// scene and in the order of their sort keys, while they look opaque.
constexpr float kTrace = 0.001F;

/// In the order of PlanarMaterial.
constexpr std::array<detail::HandleMaterialRow, static_cast<std::size_t>(Color::Yellow) + 1>
    kMaterials = { { { 1.0F, 0.0F, 0.0F, kTrace, kAxisSortKey },
                     { 0.0F, 1.0F, 0.0F, kTrace, kAxisSortKey },
                     { 1.0F, 0.5F, 0.5F, kTrace, kLightSortKey },
                     { 0.5F, 1.0F, 0.5F, kTrace, kLightSortKey },
                     { 0.5F, 0.5F, 1.0F, kTrace, kLightSortKey },
                     { 0.0F, 0.0F, 1.0F, kTrace, kAxisSortKey },
                     { 0.953F, 0.525F, 0.184F, 0.0F, kAxisSortKey },
                     { 1.0F, 0.5F, 0.0F, 0.0F, kAxisSortKey },
                     { 1.0F, 1.0F, 0.0F, kTrace, kAxisSortKey } } };

constexpr std::array<int, 3> kNoSide = { 0, 0, 0 };
/// Below this size on screen nothing can be placed relative to the gizmo.
constexpr float kLeastSize = 1e-20F;

detail::HandlePart part(HandleShape shape, Color color)
{
    const auto material = static_cast<std::size_t>(color);
    return { shape, material, material };
}

PlanarHandleRow handle(const char* name, Active mode, Group group,
                       std::initializer_list<detail::HandlePart> parts,
                       const std::array<float, 3>& place = {}, Turn turn = Turn::None,
                       const std::array<int, 3>& side = kNoSide)
{
    constexpr int kNoGroupNode = -1;
    return { detail::makeHandleRow(name, static_cast<int>(mode), kNoGroupNode, parts, place, turn),
             mode, group, side };
}

/// A tab of the given shape and colour at an edge, a corner or the end of the Z extent.
PlanarHandleRow tab(const char* name, Active mode, HandleShape shape, Color color, int x, int y,
                    int z)
{
    return handle(name, mode, Group::Scale, { part(shape, color) }, {}, Turn::None, { x, y, z });
}

PlanarHandleRow arrow(const char* name, Active mode, Color color, const std::array<float, 3>& place,
                      Turn turn)
{
    return handle(
        name, mode, Group::Translate,
        { part(HandleShape::SolidArrowShaft, color), part(HandleShape::SolidArrowHead, color) },
        place, turn);
}

PlanarHandleRow scaleAxis(const char* name, Active mode, Color color, HandleShape shaft,
                          HandleShape box)
{
    return handle(name, mode, Group::Scale, { part(shaft, color), part(box, color) });
}

/// Whether a group is among those that a mode shows.
bool isInMode(Group group, Mode mode)
{
    switch (mode) {
    case Mode::Universal:
        return true;
    case Mode::Translate:
        return group == Group::Translate;
    case Mode::Scale:
        return group == Group::Scale;
    case Mode::Rotate:
        return group == Group::Rotate;
    }
    return false;
}

const detail::HandleTable& handleTable()
{
    static const detail::HandleTable table = [] {
        detail::HandleTable handles = { {}, {}, static_cast<std::size_t>(Color::Highlight), 0 };
        for (const PlanarHandleRow& row : planarHandles()) {
            handles.rows.push_back(row.handle);
        }
        return handles;
    }();
    return table;
}

}  // namespace

// Deliberate: the arrow and the scale axis of z point to -z, where the projection looks, unlike
// those of x and y.
const std::vector<PlanarHandleRow>& planarHandles()
{
    static const std::vector<PlanarHandleRow> rows = {
        arrow("yaShape", Active::TranslateY, Color::YAxis, { 0.0F, 1.0F, 0.0F }, Turn::None),
        arrow("xaShape", Active::TranslateX, Color::XAxis, { 1.0F, 0.0F, 0.0F }, Turn::OntoX),
        arrow("zaShape", Active::TranslateZ, Color::ZAxis, { 0.0F, 0.0F, -1.0F }, Turn::OntoMinusZ),
        handle("xyaShape", Active::TranslateXY, Group::Translate,
               { part(HandleShape::SolidPatch, Color::ZAxis),
                 part(HandleShape::SolidBarX, Color::XAxis),
                 part(HandleShape::SolidBarY, Color::YAxis) }),
        scaleAxis("zsShape", Active::ScaleZ, Color::ZLight, HandleShape::SolidScaleShaftMinusZ,
                  HandleShape::ScaleTabMinusZ),
        scaleAxis("ysShape", Active::ScaleY, Color::YLight, HandleShape::SolidScaleShaftY,
                  HandleShape::ScaleTabY),
        scaleAxis("xsShape", Active::ScaleX, Color::XLight, HandleShape::SolidScaleShaftX,
                  HandleShape::ScaleTabX),
        tab("grid", Active::ScaleUniform, HandleShape::BigCube, Color::Yellow, 0, 0, 0),
        handle("rotateShape", Active::Rotate, Group::Rotate,
               { part(HandleShape::SolidRing, Color::ZAxis),
                 part(HandleShape::RingGrip, Color::Accent) }),
        tab("scaleXYLLShape", Active::ScaleLowerLeft, HandleShape::SquareTab, Color::Yellow, -1, -1,
            0),
        tab("scaleXYULShape", Active::ScaleUpperLeft, HandleShape::SquareTab, Color::Yellow, -1, 1,
            0),
        tab("scaleXYLRShape", Active::ScaleLowerRight, HandleShape::SquareTab, Color::Yellow, 1, -1,
            0),
        tab("scaleXYURShape", Active::ScaleUpperRight, HandleShape::SquareTab, Color::Yellow, 1, 1,
            0),
        tab("scaleXLShape", Active::ScaleLeft, HandleShape::UprightTab, Color::XLight, -1, 0, 0),
        tab("scaleXRShape", Active::ScaleRight, HandleShape::UprightTab, Color::XLight, 1, 0, 0),
        tab("scaleYLShape", Active::ScaleLower, HandleShape::LyingTab, Color::YLight, 0, -1, 0),
        tab("scaleYUShape", Active::ScaleUpper, HandleShape::LyingTab, Color::YLight, 0, 1, 0),
        tab("scaleZPlaneShape", Active::ScaleZPlane, HandleShape::SquareTab, Color::ZLight, 0, 0,
            -1),
    };
    return rows;
}

const PlanarHandleRow* planarHandleOf(Active mode)
{
    for (const PlanarHandleRow& row : planarHandles()) {
        if (row.activeMode == mode) {
            return &row;
        }
    }
    return nullptr;
}

// == Building

PlanarTextureManipulator::State::State()
    : handles(handleTable(), detail::makeHandleMaterials(kMaterials))
{ }

void PlanarTextureManipulator::createManipulatorGeo(bool withDepthPass)
{
    const osg::NodePtr tree = state->handles.getRoot();
    nbNodeUtils::setIsAuxiliaryNode(tree, true);
    state->root = detail::makeHandleRoot();
    if (withDepthPass) {
        const detail::HandlePasses passes = detail::makeHandlePasses(tree);
        detail::addChild(state->root.get(), passes.depthPass.get());
        detail::addChild(state->root.get(), passes.handlePass.get());
    } else {
        detail::addChild(state->root.get(), tree);
    }
}

// == Colours

void PlanarTextureManipulator::setDefaultMaterials()
{
    state->handles.setDefaultMaterials(static_cast<int>(state->mode));
    state->highlighted = ActiveMode::None;
}

void PlanarTextureManipulator::highlightMode()
{
    state->handles.highlight(static_cast<int>(state->activeMode));
    state->highlighted = state->activeMode;
}

void PlanarTextureManipulator::highlightControlElement()
{
    setDefaultMaterials();
    highlightMode();
    state->showElements();
}

// == Visibility

void PlanarTextureManipulator::activateTranslateManipulator()
{
    activateMode(ManipulatorMode::Translate);
}

void PlanarTextureManipulator::activateRotateManipulator()
{
    activateMode(ManipulatorMode::Rotate);
}

void PlanarTextureManipulator::activateScaleManipulator()
{
    activateMode(ManipulatorMode::Scale);
}

void PlanarTextureManipulator::activateUniversalManipulator()
{
    activateMode(ManipulatorMode::Universal);
}

void PlanarTextureManipulator::activateMode(ManipulatorMode newMode)
{
    state->mode = newMode;
    state->showElements();
    setDefaultMaterials();
    updateManipulator();
}

PlanarTextureManipulator::ManipulatorMode PlanarTextureManipulator::getMode() const
{
    return state->mode;
}

PlanarTextureManipulator::ActiveMode PlanarTextureManipulator::getActiveMode() const
{
    return state->activeMode;
}

void PlanarTextureManipulator::showActiveManipulator()
{
    if (getNode() == osg::NullFC) {
        hideManipulator();
        return;
    }
    state->showElements();
    state->handles.showRoot(true);
    updateManipulator();
}

void PlanarTextureManipulator::hideManipulator()
{
    state->handles.showRoot(false);
}

void PlanarTextureManipulator::State::showElements() const
{
    const PlanarHandleRow* const grabbed = dragging ? planarHandleOf(activeMode) : nullptr;
    // Deliberate: a drag of the x arrow or the plane handle hides no group.
    const bool othersHidden = grabbed != nullptr && grabbed->activeMode != ActiveMode::TranslateX &&
        grabbed->activeMode != ActiveMode::TranslateXY;
    for (std::size_t i = 0; i < planarHandles().size(); ++i) {
        const PlanarHandleRow& row = planarHandles()[i];
        const bool isPlane = row.activeMode == ActiveMode::ScaleZPlane;
        const bool isZScale = isPlane || row.activeMode == ActiveMode::ScaleZ;
        const bool isWanted = (!isZScale || zScaleVisible) && (!isPlane || zScaleValueShown) &&
            isInMode(row.group, mode);
        detail::showNode(handles.getNode(i),
                         isWanted && (!othersHidden || row.group == grabbed->group));
    }
}

void PlanarTextureManipulator::showAllElements()
{
    state->handles.showAll();
    state->handles.showRoot(true);
}

void PlanarTextureManipulator::hideAllElements()
{
    state->handles.hideAll();
    state->handles.showRoot(false);
}

// == Placement

bool hasLength(float length)
{
    constexpr float kLeastLength = 1e-12F;
    return std::abs(length) >= kLeastLength;
}

float usableLength(float length)
{
    return hasLength(length) ? length : 1.0F;
}

osg::Matrix ProjectionFrame::worldFromAxes() const
{
    osg::Matrix axes;
    axes.setTransform(translation, rotation);
    osg::Matrix result = worldFromObject;
    result.mult(axes);
    return result;
}

osg::Vec3f ProjectionFrame::halfExtents() const
{
    return osg::Vec3f(scale.x() * extentPerScale.x(), scale.y() * extentPerScale.y(),
                      scale.z() * extentPerScale.z());
}

void PlanarTextureManipulator::State::placeHandles()
{
    const osg::Matrix worldFromAxes = frame.worldFromAxes();
    const osg::Pnt3f center(detail::column(worldFromAxes, 3));
    const osg::Matrix axes = detail::orthonormalised(worldFromAxes);
    const float size =
        detail::ScreenScale(m_ManipulatorSize, detail::ViewDiagonal::NearPlane).at(center);
    placedSize = m_ManipulatorSize;
    // A mirrored object has mirrored handles: -z stays where the projection looks.
    const osg::Vec3f scales(size, size, worldFromAxes.det3() < 0.0F ? -size : size);
    detail::placeTransform(handles.getRootTransform(), center.subZero(), osg::Quaternion(axes),
                           scales);
    if (!(size > kLeastSize) || !std::isfinite(size)) {
        return;
    }
    const osg::Vec3f extents = frame.halfExtents();
    std::array<osg::Vec3f, 3> ends;  // of the extents, in the unit frame
    for (osg::UInt32 end = 0; end < 3; ++end) {
        const osg::Vec3f world = detail::column(worldFromAxes, end) * extents[end];
        for (osg::UInt32 axis = 0; axis < 3; ++axis) {
            ends[end][axis] = world.dot(detail::column(axes, axis)) / scales[axis];
        }
    }
    for (std::size_t i = 0; i < planarHandles().size(); ++i) {
        const std::array<int, 3>& side = planarHandles()[i].side;
        if (side != kNoSide) {
            detail::moveNode(handles.getNode(i),
                             ends[0] * static_cast<float>(side[0]) +
                                 ends[1] * static_cast<float>(side[1]) +
                                 ends[2] * static_cast<float>(side[2]));
        }
    }
}

}  // namespace nbec::manipulator
