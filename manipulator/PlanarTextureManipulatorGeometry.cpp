// SPDX-License-Identifier: MIT
#include "manipulator/PlanarTextureManipulator.h"
#include "manipulator/PlanarTextureManipulatorState.h"
#include "manipulator/detail/DragGeometry.h"
#include "manipulator/detail/EditBracket.h"
#include "manipulator/detail/HandleGroup.h"
#include "manipulator/detail/HandleMaterials.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/NodeVisibility.h"
#include "manipulator/detail/ScreenScale.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGComponentTransform.h>

#include <cmath>

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
constexpr std::array<detail::HandleMaterialRow, kPlanarMaterialCount> kMaterials = {
    { { 1.0F, 0.0F, 0.0F, kTrace, kAxisSortKey },
      { 0.0F, 1.0F, 0.0F, kTrace, kAxisSortKey },
      { 1.0F, 0.5F, 0.5F, kTrace, kLightSortKey },
      { 0.5F, 1.0F, 0.5F, kTrace, kLightSortKey },
      { 0.5F, 0.5F, 1.0F, kTrace, kLightSortKey },
      { 0.0F, 0.0F, 1.0F, kTrace, kAxisSortKey },
      { 0.953F, 0.525F, 0.184F, 0.0F, kAxisSortKey },
      { 1.0F, 0.5F, 0.0F, 0.0F, kAxisSortKey },
      { 1.0F, 1.0F, 0.0F, kTrace, kAxisSortKey } }
};

constexpr std::array<float, 3> kCentre = { 0.0F, 0.0F, 0.0F };
constexpr std::array<int, 3> kNoSide = { 0, 0, 0 };
/// Below this size on screen nothing can be placed relative to the gizmo.
constexpr float kLeastSize = 1e-20F;

/// A tab of the given shape and colour at an edge, a corner or the end of the Z extent.
constexpr PlanarHandleRow tab(const char* name, Active mode, HandleShape shape, Color color, int x,
                              int y, int z)
{
    return {
        name, mode, Group::Scale, 1, { { { shape, color } } }, kCentre, Turn::None, { x, y, z }
    };
}

constexpr PlanarHandleRow arrow(const char* name, Active mode, Color color,
                                const std::array<float, 3>& place, Turn turn)
{
    return { name,
             mode,
             Group::Translate,
             2,
             { { { HandleShape::SolidArrowShaft, color },
                 { HandleShape::SolidArrowHead, color } } },
             place,
             turn,
             kNoSide };
}

constexpr PlanarHandleRow scaleAxis(const char* name, Active mode, Color color, HandleShape shaft,
                                    HandleShape box)
{
    return { name,    mode,       Group::Scale, 2, { { { shaft, color }, { box, color } } },
             kCentre, Turn::None, kNoSide };
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

}  // namespace

// Deliberate: the arrow and the scale axis of z point to -z, where the projection looks, unlike
// those of x and y.
const std::array<PlanarHandleRow, kPlanarHandleCount> kPlanarHandles = { {
    arrow("yaShape", Active::TranslateY, Color::YAxis, { 0.0F, 1.0F, 0.0F }, Turn::None),
    arrow("xaShape", Active::TranslateX, Color::XAxis, { 1.0F, 0.0F, 0.0F }, Turn::OntoX),
    arrow("zaShape", Active::TranslateZ, Color::ZAxis, { 0.0F, 0.0F, -1.0F }, Turn::OntoMinusZ),
    { "xyaShape",
      Active::TranslateXY,
      Group::Translate,
      3,
      { { { HandleShape::SolidPatch, Color::ZAxis },
          { HandleShape::SolidBarX, Color::XAxis },
          { HandleShape::SolidBarY, Color::YAxis } } },
      kCentre,
      Turn::None,
      kNoSide },
    scaleAxis("zsShape", Active::ScaleZ, Color::ZLight, HandleShape::SolidScaleShaftMinusZ,
              HandleShape::ScaleTabMinusZ),
    scaleAxis("ysShape", Active::ScaleY, Color::YLight, HandleShape::SolidScaleShaftY,
              HandleShape::ScaleTabY),
    scaleAxis("xsShape", Active::ScaleX, Color::XLight, HandleShape::SolidScaleShaftX,
              HandleShape::ScaleTabX),
    tab("grid", Active::ScaleUniform, HandleShape::BigCube, Color::Yellow, 0, 0, 0),
    { "rotateShape",
      Active::Rotate,
      Group::Rotate,
      2,
      { { { HandleShape::SolidRing, Color::ZAxis }, { HandleShape::RingGrip, Color::Accent } } },
      kCentre,
      Turn::None,
      kNoSide },
    tab("scaleXYLLShape", Active::ScaleLowerLeft, HandleShape::SquareTab, Color::Yellow, -1, -1, 0),
    tab("scaleXYULShape", Active::ScaleUpperLeft, HandleShape::SquareTab, Color::Yellow, -1, 1, 0),
    tab("scaleXYLRShape", Active::ScaleLowerRight, HandleShape::SquareTab, Color::Yellow, 1, -1, 0),
    tab("scaleXYURShape", Active::ScaleUpperRight, HandleShape::SquareTab, Color::Yellow, 1, 1, 0),
    tab("scaleXLShape", Active::ScaleLeft, HandleShape::UprightTab, Color::XLight, -1, 0, 0),
    tab("scaleXRShape", Active::ScaleRight, HandleShape::UprightTab, Color::XLight, 1, 0, 0),
    tab("scaleYLShape", Active::ScaleLower, HandleShape::LyingTab, Color::YLight, 0, -1, 0),
    tab("scaleYUShape", Active::ScaleUpper, HandleShape::LyingTab, Color::YLight, 0, 1, 0),
    tab("scaleZPlaneShape", Active::ScaleZPlane, HandleShape::SquareTab, Color::ZLight, 0, 0, -1),
} };

const PlanarHandleRow* planarHandleOf(Active mode)
{
    for (const PlanarHandleRow& row : kPlanarHandles) {
        if (row.activeMode == mode) {
            return &row;
        }
    }
    return nullptr;
}

// == Building

void PlanarTextureManipulator::createMaterials()
{
    for (std::size_t i = 0; i < kMaterials.size(); ++i) {
        state->materials[i] = detail::makeHandleMaterial(kMaterials[i]);
    }
}

void PlanarTextureManipulator::createManipulatorGeo(bool withDepthPass)
{
    createMaterials();
    const osg::NodePtr tree = detail::makeTransform3DNode(osg::Vec3f());
    for (std::size_t i = 0; i < kPlanarHandles.size(); ++i) {
        const PlanarHandleRow& row = kPlanarHandles[i];
        State::HandleNodes& nodes = state->handles[i];
        nodes.top = detail::makePlacedNode(osg::Vec3f(row.place[0], row.place[1], row.place[2]),
                                           detail::quaternionOf(row.turn));
        for (std::size_t part = 0; part < row.partCount; ++part) {
            nodes.parts[part] = detail::makeShapeNode(row.parts[part].shape);
            detail::addChild(nodes.top, nodes.parts[part]);
        }
        nbNodeUtils::setName(nodes.top, row.name, true);
        nbNodeUtils::setIsAuxiliaryNode(nodes.top, true);
        detail::addChild(tree, nodes.top);
    }
    nbNodeUtils::setIsAuxiliaryNode(tree, true);
    state->handleTree = tree;
    state->placement = osg::Transform3DPtr::dcast(tree->getCore());
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
    for (std::size_t i = 0; i < kPlanarHandles.size(); ++i) {
        const PlanarHandleRow& row = kPlanarHandles[i];
        for (std::size_t part = 0; part < row.partCount; ++part) {
            const auto color = static_cast<std::size_t>(row.parts[part].idle);
            detail::setGeometryMaterial(state->handles[i].parts[part],
                                        state->materials[color].get());
        }
    }
    state->highlighted = ActiveMode::None;
}

void PlanarTextureManipulator::highlightMode()
{
    const auto highlight = static_cast<std::size_t>(PlanarMaterial::Highlight);
    for (std::size_t i = 0; i < kPlanarHandles.size(); ++i) {
        if (kPlanarHandles[i].activeMode != state->activeMode) {
            continue;
        }
        for (const osg::NodePtr& part : state->handles[i].parts) {
            if (part != osg::NullFC) {
                detail::setGeometryMaterial(part, state->materials[highlight].get());
            }
        }
    }
    state->highlighted = state->activeMode;
}

void PlanarTextureManipulator::highlightControlElement()
{
    setDefaultMaterials();
    highlightMode();
    showElements();
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
    showElements();
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
    showElements();
    detail::showNode(state->handleTree.get(), true);
    updateManipulator();
}

void PlanarTextureManipulator::hideManipulator()
{
    detail::showNode(state->handleTree.get(), false);
}

void PlanarTextureManipulator::showElements()
{
    const PlanarHandleRow* const grabbed =
        state->dragging ? planarHandleOf(state->activeMode) : nullptr;
    // Deliberate: a drag of the x arrow or the plane handle hides no group.
    const bool othersHidden = grabbed != nullptr && grabbed->activeMode != ActiveMode::TranslateX &&
        grabbed->activeMode != ActiveMode::TranslateXY;
    for (std::size_t i = 0; i < kPlanarHandles.size(); ++i) {
        const PlanarHandleRow& row = kPlanarHandles[i];
        const bool isPlane = row.activeMode == ActiveMode::ScaleZPlane;
        const bool isZScale = isPlane || row.activeMode == ActiveMode::ScaleZ;
        const bool isWanted = (!isZScale || state->zScaleVisible) &&
            (!isPlane || state->zScaleValueShown) && isInMode(row.group, state->mode);
        detail::showNode(state->handles[i].top,
                         isWanted && (!othersHidden || row.group == grabbed->group));
    }
}

void PlanarTextureManipulator::showAllElements()
{
    for (const State::HandleNodes& nodes : state->handles) {
        detail::showNode(nodes.top, true);
    }
    detail::showNode(state->handleTree.get(), true);
}

void PlanarTextureManipulator::hideAllElements()
{
    for (const State::HandleNodes& nodes : state->handles) {
        detail::showNode(nodes.top, false);
    }
    detail::showNode(state->handleTree.get(), false);
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

void PlanarTextureManipulator::placeHandles()
{
    const osg::Matrix worldFromAxes = state->frame.worldFromAxes();
    const osg::Pnt3f center(detail::column(worldFromAxes, 3));
    const osg::Matrix axes = detail::orthonormalised(worldFromAxes);
    const float size =
        detail::ScreenScale(m_ManipulatorSize, detail::ViewDiagonal::NearPlane).at(center);
    state->placedSize = m_ManipulatorSize;
    // A mirrored object has mirrored handles: -z stays where the projection looks.
    const osg::Vec3f scales(size, size, worldFromAxes.det3() < 0.0F ? -size : size);
    detail::placeTransform(state->placement, center.subZero(), osg::Quaternion(axes), scales);
    if (!(size > kLeastSize) || !std::isfinite(size)) {
        return;
    }
    const osg::Vec3f extents = state->frame.halfExtents();
    std::array<osg::Vec3f, 3> ends;  // of the extents, in the unit frame
    for (osg::UInt32 end = 0; end < 3; ++end) {
        const osg::Vec3f world = detail::column(worldFromAxes, end) * extents[end];
        for (osg::UInt32 axis = 0; axis < 3; ++axis) {
            ends[end][axis] = world.dot(detail::column(axes, axis)) / scales[axis];
        }
    }
    for (std::size_t i = 0; i < kPlanarHandles.size(); ++i) {
        const std::array<int, 3>& side = kPlanarHandles[i].side;
        if (side != kNoSide) {
            detail::moveNode(state->handles[i].top,
                             ends[0] * static_cast<float>(side[0]) +
                                 ends[1] * static_cast<float>(side[1]) +
                                 ends[2] * static_cast<float>(side[2]));
        }
    }
}

}  // namespace nbec::manipulator
