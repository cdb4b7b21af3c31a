// SPDX-License-Identifier: MIT
#include "manipulator/detail/EditBracket.h"
#include "manipulator/detail/HandleMaterials.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/HandleShapes.h"
#include "manipulator/detail/NodeVisibility.h"
#include "manipulator/detail/ScreenPlane.h"
#include "manipulator/detail/ScreenScale.h"
#include "manipulator/nbSceneplateManipulator.h"
#include "manipulator/nbSceneplateManipulatorParts.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGComponentTransform.h>

#include <algorithm>
#include <cmath>

using nbec::manipulator::detail::EditBracket;
using nbec::manipulator::detail::HandleShape;
using nbec::manipulator::detail::PlateFrame;
using nbec::manipulator::detail::PlateHandles;
using nbec::manipulator::detail::PlateView;

namespace detail = nbec::manipulator::detail;

namespace {

using Color = SceneplateColor;
using Kind = SceneplateHandleKind;
using Mode = nbSceneplateManipulator::ActiveMode;

// Of what lies over each other the higher key is drawn nearer; layers of the plane part the rest.
constexpr int kSolidSortKey = 64016;
constexpr int kLineSortKey = 64015;
constexpr int kShadowSortKey = 64014;
constexpr float kFrameLayer = 0.0F;
constexpr float kGuideLayer = 1.0F;
constexpr float kHandleLayer = 2.0F;
/// Of a handle's dark edge, from the handle.
constexpr float kShadowLayer = -0.5F;
/// By how much the dark edge is wider than what it surrounds, on each side.
constexpr float kShadowWidth = 1.0F;
constexpr float kShadowLineWidth = 4.0F;

constexpr double kDegree = 3.14159265358979323846 / 180.0;
constexpr float kSphereRadius = 0.125F;  ///< of the shape
constexpr float kShaftLength = 2.0F;  ///< of the shape
/// A guide on the view's edge is drawn this far inside, so that all of its width is seen.
constexpr float kGuideInset = 1.0F;

struct ColorRow
{
    float red, green, blue;
};

constexpr std::array<ColorRow, static_cast<std::size_t>(Color::Count)> kColors = {
    { { 1.0F, 1.0F, 0.0F },
      { 0.0F, 0.0F, 1.0F },
      { 1.0F, 0.5F, 0.0F },
      { 0.6F, 0.35F, 0.65F },
      { 0.1F, 0.1F, 0.1F } }
};

constexpr std::size_t indexOf(Color color)
{
    return static_cast<std::size_t>(color);
}

/// Frame of a rectangle or handle in the plane of pixels: x and y along its own axes (y up on the
/// screen while it is not turned), z in layers.
osg::Matrix placeInPlane(const osg::Pnt2f& centrePx, float rotation, const osg::Vec2f& size,
                         float layer)
{
    const auto cosine = static_cast<float>(std::cos(rotation * kDegree));
    const auto sine = static_cast<float>(std::sin(rotation * kDegree));
    osg::Matrix place;
    place[0] = osg::Vec4f(cosine * size.x(), -sine * size.x(), 0.0F, 0.0F);
    place[1] = osg::Vec4f(-sine * size.y(), -cosine * size.y(), 0.0F, 0.0F);
    place[3] = osg::Vec4f(centrePx.x(), centrePx.y(), layer, 1.0F);
    return place;
}

/// Sets a matrix unless it is the same, bit for bit, so that nothing is redrawn for nothing.
void setPlace(const osg::TransformPtr& core, const osg::Matrix& place)
{
    const float* const known = core->getMatrix().getValues();
    constexpr std::size_t kSize = 16;
    if (std::equal(known, known + kSize, place.getValues())) {
        return;
    }
    const EditBracket edit(core, osg::Transform::MatrixFieldMask);
    core->setMatrix(place);
}

/// Hangs a shape below a node.
osg::NodePtr addShape(const osg::NodePtr& parent, HandleShape shape)
{
    const osg::NodePtr shapeNode = detail::makeShapeNode(shape);
    detail::addChild(parent, shapeNode);
    return shapeNode;
}

/// The same scaled and then moved. @param y  in the handle's units  @param layer  see ScreenPlane.h
osg::NodePtr addShape(const osg::NodePtr& parent, HandleShape shape, const osg::Vec3f& scale,
                      float y, float layer)
{
    const osg::ComponentTransformPtr core = osg::ComponentTransform::create();
    {
        const EditBracket edit(core, osg::FieldBits::AllFields);
        core->setScale(scale);
        core->setTranslation(osg::Vec3f(0.0F, y, layer));
    }
    const osg::NodePtr place = detail::makeNode(core);
    const osg::NodePtr shapeNode = addShape(place, shape);
    detail::addChild(parent, place);
    return shapeNode;
}

/// Scale of the sphere that makes a knob. It is flat, one layer thick to each side.
osg::Vec3f knobScale(float radius)
{
    return osg::Vec3f(radius / kSphereRadius, radius / kSphereRadius, 1.0F / kSphereRadius);
}

bool isFinite(const PlateFrame& frame)
{
    return std::isfinite(frame.centre.x()) && std::isfinite(frame.centre.y()) &&
        std::isfinite(frame.size.x()) && std::isfinite(frame.size.y()) &&
        std::isfinite(frame.rotation);
}

}  // namespace

const std::array<nbSceneplateManipulator::HandleRow, nbSceneplateManipulator::kHandleCount>
    nbSceneplateManipulator::kHandles = {
        { { "scaleXYLLShape", Mode::ScaleLowerLeft, Kind::Box, Color::Yellow },
          { "scaleXYULShape", Mode::ScaleUpperLeft, Kind::Box, Color::Yellow },
          { "scaleXYLRShape", Mode::ScaleLowerRight, Kind::Box, Color::Yellow },
          { "scaleXYURShape", Mode::ScaleUpperRight, Kind::Box, Color::Yellow },
          { "rotateShape", Mode::Rotate, Kind::Arm, Color::Blue },
          { "grid", Mode::Move, Kind::Body, Color::Yellow } }
    };

// == Building

void nbSceneplateManipulator::createMaterials()
{
    static_assert(kColorCount == static_cast<std::size_t>(Color::Count));
    const detail::LineChunks chunks = detail::makeLineChunks();
    const detail::LineChunks shadowChunks = detail::makeLineChunks();
    {
        const EditBracket edit(shadowChunks.line.get(), osg::LineChunk::WidthFieldMask);
        shadowChunks.line->setWidth(kShadowLineWidth);
    }
    for (std::size_t i = 0; i < kColorCount; ++i) {
        const osg::Color3f color(kColors[i].red, kColors[i].green, kColors[i].blue);
        const bool isShadow = i == indexOf(Color::Shadow);
        solidMaterials[i] =
            detail::makeHandleMaterial(color, isShadow ? kShadowSortKey : kSolidSortKey, nullptr);
        lineMaterials[i] = detail::makeHandleMaterial(
            color, isShadow ? kShadowSortKey : kLineSortKey, isShadow ? &shadowChunks : &chunks);
    }
    clearMaterial = detail::makeHandleMaterial(osg::Color3f(), kShadowSortKey, nullptr, 1.0F);
}

osg::NodePtr nbSceneplateManipulator::createManipulatorGeo()
{
    createMaterials();
    screenPlane = osg::Transform::create();
    const osg::NodePtr tree = detail::makeNode(screenPlane);
    for (std::size_t row = 0; row < kHandles.size(); ++row) {
        handles[row] = createHandle(kHandles[row]);
        detail::addChild(tree, handles[row].top);
        setHandleMaterials(row, false);
    }
    for (HandleNodes& guide : guides) {
        guide = createGuide();
        detail::addChild(tree, guide.top);
        detail::showNode(guide.top, false);
    }
    nbNodeUtils::setIsAuxiliaryNode(tree, true);
    return tree;
}

nbSceneplateManipulator::HandleNodes nbSceneplateManipulator::makeHandleNodes()
{
    HandleNodes nodes;
    nodes.placement = osg::Transform::create();
    nodes.top = detail::makeNode(nodes.placement);
    return nodes;
}

nbSceneplateManipulator::HandleNodes
nbSceneplateManipulator::createHandle(const HandleRow& row) const
{
    HandleNodes created = makeHandleNodes();
    switch (row.kind) {
    case Kind::Box:
        createBox(created);
        break;
    case Kind::Arm:
        createArm(created);
        break;
    case Kind::Body:
        createBody(created);
        break;
    }
    nbNodeUtils::setName(created.top, row.name, true, created.top);
    nbNodeUtils::setIsAuxiliaryNode(created.top, true);
    return created;
}

void nbSceneplateManipulator::createBox(HandleNodes& box) const
{
    box.parts[0] = { addShape(box.top, HandleShape::Square), false };
    constexpr float kScale = 1.0F + 2.0F * kShadowWidth / detail::kPlateBoxSize;
    const osg::NodePtr shadow = addShape(box.top, HandleShape::Square,
                                         osg::Vec3f(kScale, kScale, 1.0F), 0.0F, kShadowLayer);
    detail::setGeometryMaterial(shadow, solidMaterials[indexOf(Color::Shadow)].get());
}

void nbSceneplateManipulator::createArm(HandleNodes& arm) const
{
    // The knob is where the arm is placed; the shaft goes down to the frame.
    constexpr float kLength = detail::kPlateArmLength - detail::kPlateKnobRadius;
    constexpr float kShaftCentre = -detail::kPlateKnobRadius - kLength / 2;
    const osg::Vec3f shaftScale(1.0F, kLength / kShaftLength, 1.0F);
    arm.parts[0] = { addShape(arm.top, HandleShape::CentreSphere,
                              knobScale(detail::kPlateKnobRadius), 0.0F, 0.0F),
                     false };
    arm.parts[1] = { addShape(arm.top, HandleShape::ArrowShaft, shaftScale, kShaftCentre, 0.0F),
                     true };
    const osg::NodePtr knob =
        addShape(arm.top, HandleShape::CentreSphere,
                 knobScale(detail::kPlateKnobRadius + kShadowWidth), 0.0F, kShadowLayer);
    detail::setGeometryMaterial(knob, solidMaterials[indexOf(Color::Shadow)].get());
    const osg::NodePtr shaft =
        addShape(arm.top, HandleShape::ArrowShaft, shaftScale, kShaftCentre, kShadowLayer);
    detail::setGeometryMaterial(shaft, lineMaterials[indexOf(Color::Shadow)].get());
}

void nbSceneplateManipulator::createBody(HandleNodes& body) const
{
    body.parts[0] = { addShape(body.top, HandleShape::SquareOutline), true };
    const osg::NodePtr shadow = addShape(body.top, HandleShape::SquareOutline,
                                         osg::Vec3f(1.0F, 1.0F, 1.0F), 0.0F, kShadowLayer);
    detail::setGeometryMaterial(shadow, lineMaterials[indexOf(Color::Shadow)].get());
    const osg::NodePtr inside = addShape(body.top, HandleShape::Square);
    detail::setGeometryMaterial(inside, clearMaterial.get());
}

nbSceneplateManipulator::HandleNodes nbSceneplateManipulator::createGuide() const
{
    HandleNodes guide = makeHandleNodes();
    const osg::NodePtr line = addShape(guide.top, HandleShape::ArrowShaft);
    detail::setGeometryMaterial(line, lineMaterials[indexOf(Color::Purple)].get());
    return guide;
}

// == Colours and visibility

void nbSceneplateManipulator::setHandleMaterials(std::size_t row, bool highlight)
{
    const std::size_t color = indexOf(highlight ? Color::Orange : kHandles[row].idle);
    for (const HandlePart& part : handles[row].parts) {
        if (part.node != osg::NullFC) {
            detail::setGeometryMaterial(
                part.node, part.isLine ? lineMaterials[color].get() : solidMaterials[color].get());
        }
    }
}

void nbSceneplateManipulator::highlightMode(ActiveMode mode)
{
    if (mode == highlighted) {
        return;
    }
    highlighted = mode;
    for (std::size_t i = 0; i < kHandles.size(); ++i) {
        setHandleMaterials(i, kHandles[i].mode == mode);
    }
}

void nbSceneplateManipulator::showElements(ActiveMode grabbed)
{
    for (std::size_t i = 0; i < kHandles.size(); ++i) {
        const HandleRow& row = kHandles[i];
        detail::showNode(handles[i].top,
                         grabbed == ActiveMode::None || row.mode == grabbed ||
                             row.kind == Kind::Body);
    }
    if (grabbed == ActiveMode::None) {
        for (const HandleNodes& guide : guides) {
            detail::showNode(guide.top, false);
        }
    }
}

// == Placement

float nbSceneplateManipulator::unitPx() const
{
    return pixelRatio * m_ManipulatorSize / detail::kDefaultManipulatorSize;
}

bool nbSceneplateManipulator::placeHandles(const nbOSGWidget& widget)
{
    const PlateView view { widget.getWidth(), widget.getHeight(), unitPx() };
    const PlateFrame frame = drag != nullptr
        ? detail::changedFrame(drag->start, drag->change)
        : nbSceneplateLayout::frame(getPlates(), view.widthPx, view.heightPx);
    osg::Matrix worldFromPx;
    if (!isFinite(frame) || !detail::worldFromPixels(widget, worldFromPx)) {
        return false;
    }
    // While it is held the arm does not change its side.
    const PlateHandles layout = detail::layOutHandles(
        frame, drag != nullptr ? drag->arm : detail::chooseArm(frame, view), view);
    setPlace(screenPlane, worldFromPx);
    const float boxPx = detail::kPlateBoxSize * view.unitPx;
    for (std::size_t i = 0; i < kHandles.size(); ++i) {
        osg::Matrix place;
        switch (kHandles[i].kind) {
        case Kind::Box:
            place = placeInPlane(layout.corners[i], layout.frame.rotation, osg::Vec2f(boxPx, boxPx),
                                 kHandleLayer);
            break;
        case Kind::Arm:
            place = placeInPlane(layout.knob, layout.armRotation,
                                 osg::Vec2f(view.unitPx, view.unitPx), kHandleLayer);
            break;
        case Kind::Body:
            place = placeInPlane(layout.frame.centre, layout.frame.rotation, layout.frame.size,
                                 kFrameLayer);
            break;
        }
        setPlace(handles[i].placement, place);
    }
    return true;
}

void nbSceneplateManipulator::placeGuides(const nbOSGWidget& widget)
{
    const auto width = static_cast<float>(widget.getWidth());
    const auto height = static_cast<float>(widget.getHeight());
    const detail::PlateGuides snapped = drag != nullptr ? drag->guides : detail::PlateGuides();
    detail::showNode(guides[0].top, snapped.hasVertical);
    detail::showNode(guides[1].top, snapped.hasHorizontal);
    constexpr float kRight = 90.0F;
    if (snapped.hasVertical) {
        const float x = std::clamp(snapped.x, kGuideInset, std::max(width - kGuideInset, 1.0F));
        setPlace(guides[0].placement,
                 placeInPlane(osg::Pnt2f(x, height / 2), 0.0F,
                              osg::Vec2f(1.0F, height / kShaftLength), kGuideLayer));
    }
    if (snapped.hasHorizontal) {
        const float y = std::clamp(snapped.y, kGuideInset, std::max(height - kGuideInset, 1.0F));
        setPlace(guides[1].placement,
                 placeInPlane(osg::Pnt2f(width / 2, y), kRight,
                              osg::Vec2f(1.0F, width / kShaftLength), kGuideLayer));
    }
}
