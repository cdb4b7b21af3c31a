// SPDX-License-Identifier: MIT
#include "manipulator/UniversalTransformManipulator2.h"
#include "manipulator/UniversalTransformManipulator2Handles.h"
#include "manipulator/detail/HandleGroup.h"
#include "manipulator/detail/HandleMaterials.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/HandlePick.h"
#include "manipulator/detail/HandleShapes.h"
#include "manipulator/detail/NodeVisibility.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

namespace nbec::manipulator {

using detail::HandleShape;

namespace {

using Mode = TransformHandles::Mode;
using Active = TransformHandles::Active;

constexpr int kSolidSortKey = 64016;
constexpr int kLineSortKey = 64015;
// Deliberate: the highlight's line material has the solid ones' sort key, unlike the other line
// materials.
constexpr int kHighlightLineSortKey = 64016;

constexpr float kRightAngleDeg = 90.0F;
constexpr float kConeLift = 1.0F;
constexpr std::size_t kUniform = 3;

struct ColorRow
{
    float red, green, blue;
};

constexpr std::array<ColorRow, 7> kColors = { { { 1.0F, 0.0F, 0.0F },
                                                { 0.0F, 1.0F, 0.0F },
                                                { 0.0F, 0.0F, 1.0F },
                                                { 1.0F, 1.0F, 0.0F },
                                                { 0.6F, 0.35F, 0.65F },
                                                { 1.0F, 0.5F, 0.0F },
                                                { 0.1F, 0.1F, 0.1F } } };

template <class... Modes>
constexpr unsigned in(Modes... modes)
{
    return ((1U << static_cast<unsigned>(modes)) | ...);
}

constexpr unsigned kWithTranslation =
    in(Mode::Universal, Mode::Translate, Mode::RotatePivot, Mode::ScalePivot, Mode::Clipping,
       Mode::TranslateRotate, Mode::TranslateRotateYZ, Mode::TranslateRotateScale);
constexpr unsigned kWithRotation =
    in(Mode::Universal, Mode::Rotate, Mode::RotatePivot, Mode::Clipping, Mode::TranslateRotate,
       Mode::TranslateRotateYZ, Mode::TranslateRotateScale);
constexpr unsigned kWithRotationX = kWithRotation & ~in(Mode::TranslateRotateYZ);
constexpr unsigned kWithScale = in(Mode::Universal, Mode::Scale, Mode::TranslateRotateScale);
constexpr unsigned kWithUniformScale = in(Mode::Universal, Mode::Scale);

constexpr std::array<HandleColor, 3> all(HandleColor color)
{
    return { color, color, color };
}

constexpr HandleColor kRed = HandleColor::Red;
constexpr HandleColor kGreen = HandleColor::Green;
constexpr HandleColor kBlue = HandleColor::Blue;

/// The turn that takes +y onto an axis.
osg::Quaternion turnOntoAxis(std::size_t axis)
{
    constexpr std::array<detail::Turn, 3> kTurns = { detail::Turn::OntoX, detail::Turn::None,
                                                     detail::Turn::OntoZ };
    return detail::quaternionOf(kTurns[axis]);
}

/// The same turn as Euler angles in degrees.
osg::Vec3f eulerOntoAxisDeg(std::size_t axis)
{
    return osg::Vec3f(axis == 2 ? kRightAngleDeg : 0.0F, 0.0F, axis == 0 ? -kRightAngleDeg : 0.0F);
}

osg::Vec3f unitAxis(std::size_t axis)
{
    return osg::Vec3f(axis == 0 ? 1.0F : 0.0F, axis == 1 ? 1.0F : 0.0F, axis == 2 ? 1.0F : 0.0F);
}

/// The turn that takes the xy plane onto a plane handle's plane: none for xy, y onto z for xz, x
/// onto z for yz.
osg::Quaternion turnOntoPlane(std::size_t plane)
{
    constexpr std::array<detail::Turn, 3> kTurns = { detail::Turn::None, detail::Turn::OntoZ,
                                                     detail::Turn::AboutY };
    return detail::quaternionOf(kTurns[plane]);
}

/// Hangs a shape below a node. @return the shape's node
osg::NodePtr addShape(const osg::NodePtr& parent, HandleShape shape)
{
    const osg::NodePtr shapeNode = detail::makeShapeNode(shape);
    detail::addChild(parent, shapeNode);
    return shapeNode;
}

}  // namespace

// Deliberate: the plane handles' colours (patch, bar, bar) do not follow one rule: xz has two red
// bars, yz two blue ones.
const std::array<TransformHandles::Row, TransformHandles::kHandleCount> TransformHandles::kRows = {
    {
        { "xaShape", Active::TranslateX, HandleKind::Arrow, 0, HandleFamily::Translate, all(kRed),
          kWithTranslation },
        { "yaShape", Active::TranslateY, HandleKind::Arrow, 1, HandleFamily::Translate, all(kGreen),
          kWithTranslation },
        { "zaShape", Active::TranslateZ, HandleKind::Arrow, 2, HandleFamily::Translate, all(kBlue),
          kWithTranslation },
        { "xsShape", Active::ScaleX, HandleKind::ScaleHandle, 0, HandleFamily::Scale, all(kRed),
          kWithScale },
        { "ysShape", Active::ScaleY, HandleKind::ScaleHandle, 1, HandleFamily::Scale, all(kGreen),
          kWithScale },
        { "zsShape", Active::ScaleZ, HandleKind::ScaleHandle, 2, HandleFamily::Scale, all(kBlue),
          kWithScale },
        { "grid", Active::ScaleUniform, HandleKind::ScaleHandle, kUniform, HandleFamily::Scale,
          all(HandleColor::Yellow), kWithUniformScale },
        { "rxShape", Active::RotateX, HandleKind::Ring, 0, HandleFamily::Rotate, all(kRed),
          kWithRotationX },
        { "ryShape", Active::RotateY, HandleKind::Ring, 1, HandleFamily::Rotate, all(kGreen),
          kWithRotation },
        { "rzShape", Active::RotateZ, HandleKind::Ring, 2, HandleFamily::Rotate, all(kBlue),
          kWithRotation },
        { "xyaShape",
          Active::TranslateXY,
          HandleKind::PlaneHandle,
          0,
          HandleFamily::Translate,
          { kGreen, kRed, kGreen },
          kWithTranslation },
        { "xzaShape",
          Active::TranslateXZ,
          HandleKind::PlaneHandle,
          1,
          HandleFamily::Translate,
          { kBlue, kRed, kRed },
          kWithTranslation },
        { "yzaShape",
          Active::TranslateYZ,
          HandleKind::PlaneHandle,
          2,
          HandleFamily::Translate,
          { kGreen, kBlue, kBlue },
          kWithTranslation },
        { nullptr, Active::None, HandleKind::CentreSphere, 0, HandleFamily::Marker,
          all(HandleColor::Yellow), in(Mode::RotatePivot) },
        { nullptr, Active::None, HandleKind::PivotCube, 0, HandleFamily::Marker,
          all(HandleColor::Purple), in(Mode::ScalePivot) },
    }
};

TransformHandles::TransformHandles()
    : tree(detail::makeTransform3DNode(osg::Vec3f()))
{
    createMaterials();
    for (std::size_t row = 0; row < kRows.size(); ++row) {
        nodes[row] = createHandle(kRows[row]);
        detail::addChild(tree.get(), nodes[row].top);
        setMaterials(row, false);
    }
    nbNodeUtils::setIsAuxiliaryNode(tree.get(), true);
}

void TransformHandles::createMaterials()
{
    const detail::LineChunks chunks = detail::makeLineChunks();
    for (std::size_t i = 0; i < kColors.size(); ++i) {
        const osg::Color3f color(kColors[i].red, kColors[i].green, kColors[i].blue);
        const bool isHighlight = i == static_cast<std::size_t>(HandleColor::Orange);
        lineMaterials[i] = detail::makeHandleMaterial(
            color, isHighlight ? kHighlightLineSortKey : kLineSortKey, &chunks);
        if (i < solidMaterials.size()) {
            solidMaterials[i] = detail::makeHandleMaterial(color, kSolidSortKey, nullptr);
        }
    }
}

TransformHandles::Nodes TransformHandles::createHandle(const Row& row)
{
    Nodes created;
    switch (row.kind) {
    case HandleKind::Arrow:
        created = createArrow(row.axis);
        break;
    case HandleKind::ScaleHandle:
        created = createScaleHandle(row.axis);
        break;
    case HandleKind::Ring:
        created = createRing(row.axis);
        break;
    case HandleKind::PlaneHandle:
        created = createPlaneHandle(row.axis);
        break;
    case HandleKind::CentreSphere:
    case HandleKind::PivotCube:
        created = createMarker(row.kind == HandleKind::CentreSphere);
        break;
    }
    if (row.name != nullptr) {
        nbNodeUtils::setName(created.top, row.name, true, created.top);
        nbNodeUtils::setIsAuxiliaryNode(created.top, true);
    }
    return created;
}

TransformHandles::Nodes TransformHandles::createArrow(std::size_t axis)
{
    Nodes arrow;
    arrow.top = detail::makePlacedNode(unitAxis(axis), turnOntoAxis(axis));
    arrow.parts[0] = { addShape(arrow.top, HandleShape::ArrowShaft), true };
    const osg::NodePtr head =
        detail::makePlacedNode(osg::Vec3f(0.0F, kConeLift, 0.0F), osg::Quaternion());
    detail::addChild(arrow.top, head);
    arrow.parts[1] = { addShape(head, HandleShape::ArrowHead), false };
    return arrow;
}

TransformHandles::Nodes TransformHandles::createScaleHandle(std::size_t axis)
{
    Nodes handle;
    if (axis == kUniform) {
        handle.top = detail::makeTransform3DNode(osg::Vec3f());
        handle.parts[0] = { addShape(handle.top, HandleShape::Cube), false };
        return handle;
    }
    handle.top = detail::makeTransform3DNode(eulerOntoAxisDeg(axis));
    handle.parts[0] = { addShape(handle.top, HandleShape::ScaleShaft), true };
    handle.parts[1] = { addShape(handle.top, HandleShape::ScaleCube), false };
    return handle;
}

TransformHandles::Nodes TransformHandles::createRing(std::size_t axis)
{
    Nodes ring;
    ring.top = detail::makeTransform3DNode(eulerOntoAxisDeg(axis));
    ring.parts[0] = { addShape(ring.top, HandleShape::Ring), true };
    ring.parts[1] = { addShape(ring.top, HandleShape::RingAxis), true };
    return ring;
}

TransformHandles::Nodes TransformHandles::createPlaneHandle(std::size_t plane)
{
    Nodes handle;
    handle.top = detail::makePlacedNode(osg::Vec3f(), turnOntoPlane(plane));
    handle.parts[0] = { addShape(handle.top, HandleShape::PlanePatch), false };
    handle.parts[1] = { addShape(handle.top, HandleShape::PlaneBarX), false };
    handle.parts[2] = { addShape(handle.top, HandleShape::PlaneBarY), false };
    return handle;
}

TransformHandles::Nodes TransformHandles::createMarker(bool sphere)
{
    Nodes marker;
    marker.top = detail::makeShapeNode(sphere ? HandleShape::CentreSphere : HandleShape::Cube);
    marker.parts[0] = { marker.top, false };
    return marker;
}

// == What is shown and lit up

osg::SimpleMaterialPtr TransformHandles::getLineMaterial(HandleColor color) const
{
    return lineMaterials[static_cast<std::size_t>(color)].get();
}

void TransformHandles::show(Mode mode, Active grabbed)
{
    const unsigned modeBit = 1U << static_cast<unsigned>(mode);
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        const Row& row = kRows[i];
        const bool isGrabbed = grabbed != Active::None && row.active == grabbed;
        const bool isVisible = (row.visibleIn & modeBit) != 0;
        detail::showNode(nodes[i].top, isVisible && (isGrabbed || grabbed == Active::None));
        if (row.kind == HandleKind::Ring) {
            detail::showNode(nodes[i].parts[1].node, isGrabbed);
        }
    }
}

void TransformHandles::setMaterials(std::size_t row, bool highlight)
{
    for (std::size_t i = 0; i < kMaxParts; ++i) {
        const Part& part = nodes[row].parts[i];
        if (part.node == osg::NullFC) {
            continue;
        }
        const auto color =
            static_cast<std::size_t>(highlight ? HandleColor::Orange : kRows[row].idle[i]);
        detail::setGeometryMaterial(
            part.node, part.isLine ? lineMaterials[color].get() : solidMaterials[color].get());
    }
}

void TransformHandles::makeIdle(const DefaultFamilies& families, Active except)
{
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        const Row& row = kRows[i];
        const bool isInFamily = row.family == HandleFamily::Translate ? families.translate
            : row.family == HandleFamily::Rotate                      ? families.rotate
            : row.family == HandleFamily::Scale                       ? families.scale
                                                                      : true;
        if (isInFamily && (except == Active::None || row.active != except)) {
            setMaterials(i, false);
        }
    }
    highlighted = except == highlighted ? highlighted : Active::None;
}

void TransformHandles::highlight(Active handle)
{
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        if (handle != Active::None && kRows[i].active == handle) {
            setMaterials(i, true);
        }
    }
    highlighted = handle;
}

TransformHandles::Active TransformHandles::find(const osg::NodePtr& node)
{
    const Row* const row = detail::findHandleRow(kRows, node);
    return row != nullptr ? row->active : Active::None;
}

}  // namespace nbec::manipulator
