// SPDX-License-Identifier: MIT
#include "manipulator/detail/EditBracket.h"
#include "manipulator/detail/HandleMaterials.h"
#include "manipulator/detail/HandleNodes.h"
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

using Material = SceneplateMaterial;
using Mode = nbSceneplateManipulator::ActiveMode;

// Of what lies over each other the higher key is drawn nearer; layers of the plane part the rest.
constexpr int kSolidSortKey = 64016;
constexpr int kLineSortKey = 64015;
constexpr float kFrameLayer = 0.0F;
constexpr float kGuideLayer = 1.0F;
constexpr float kHandleLayer = 2.0F;

constexpr double kDegree = 3.14159265358979323846 / 180.0;
constexpr float kSphereRadius = 0.125F;  ///< of the shape
constexpr float kShaftLength = 2.0F;  ///< of the shape
/// A guide on the view's edge is drawn this far inside, so that all of its width is seen.
constexpr float kGuideInset = 1.0F;

struct MaterialRow
{
    float red, green, blue;
    bool isLine;
};

constexpr std::array<MaterialRow, static_cast<std::size_t>(Material::Count)> kMaterials = {
    { { 1.0F, 1.0F, 0.0F, false },
      { 0.0F, 0.0F, 1.0F, false },
      { 1.0F, 0.5F, 0.0F, false },
      { 1.0F, 1.0F, 0.0F, true },
      { 0.0F, 0.0F, 1.0F, true },
      { 1.0F, 0.5F, 0.0F, true },
      { 0.6F, 0.35F, 0.65F, true },
      { 0.0F, 0.0F, 0.0F, false } }
};

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

/// Hangs a shape below a node, scaled and then moved along y.
osg::NodePtr addShape(const osg::NodePtr& parent, HandleShape shape, const osg::Vec3f& scale,
                      float y)
{
    const osg::ComponentTransformPtr core = osg::ComponentTransform::create();
    {
        const EditBracket edit(core, osg::FieldBits::AllFields);
        core->setScale(scale);
        core->setTranslation(osg::Vec3f(0.0F, y, 0.0F));
    }
    const osg::NodePtr place = detail::makeNode(core);
    const osg::NodePtr shapeNode = detail::makeShapeNode(shape);
    detail::addChild(place, shapeNode);
    detail::addChild(parent, place);
    return shapeNode;
}

osg::NodePtr addShape(const osg::NodePtr& parent, HandleShape shape)
{
    const osg::NodePtr shapeNode = detail::makeShapeNode(shape);
    detail::addChild(parent, shapeNode);
    return shapeNode;
}

bool isFinite(const PlateFrame& frame)
{
    return std::isfinite(frame.centre.x()) && std::isfinite(frame.centre.y()) &&
        std::isfinite(frame.size.x()) && std::isfinite(frame.size.y()) &&
        std::isfinite(frame.rotation);
}

}  // namespace

const std::array<nbSceneplateManipulator::HandleRow, nbSceneplateManipulator::kHandleCount>
    nbSceneplateManipulator::kHandles = { {
        { "scaleXYLLShape",
          Mode::ScaleLowerLeft,
          SceneplateHandleKind::Box,
          { Material::YellowSolid, Material::YellowSolid },
          { Material::OrangeSolid, Material::OrangeSolid } },
        { "scaleXYULShape",
          Mode::ScaleUpperLeft,
          SceneplateHandleKind::Box,
          { Material::YellowSolid, Material::YellowSolid },
          { Material::OrangeSolid, Material::OrangeSolid } },
        { "scaleXYLRShape",
          Mode::ScaleLowerRight,
          SceneplateHandleKind::Box,
          { Material::YellowSolid, Material::YellowSolid },
          { Material::OrangeSolid, Material::OrangeSolid } },
        { "scaleXYURShape",
          Mode::ScaleUpperRight,
          SceneplateHandleKind::Box,
          { Material::YellowSolid, Material::YellowSolid },
          { Material::OrangeSolid, Material::OrangeSolid } },
        { "rotateShape",
          Mode::Rotate,
          SceneplateHandleKind::Arm,
          { Material::BlueSolid, Material::BlueLine },
          { Material::OrangeSolid, Material::OrangeLine } },
        { "grid",
          Mode::Move,
          SceneplateHandleKind::Body,
          { Material::Clear, Material::YellowLine },
          { Material::Clear, Material::OrangeLine } },
    } };

// == Building

void nbSceneplateManipulator::createMaterials()
{
    static_assert(kMaterialCount == static_cast<std::size_t>(Material::Count));
    const detail::LineChunks chunks = detail::makeLineChunks();
    for (std::size_t i = 0; i < kMaterials.size(); ++i) {
        const MaterialRow& row = kMaterials[i];
        materials[i] = detail::makeHandleMaterial(osg::Color3f(row.red, row.green, row.blue),
                                                  row.isLine ? kLineSortKey : kSolidSortKey,
                                                  row.isLine ? &chunks : nullptr);
    }
    const osg::SimpleMaterialPtr clear = materials[static_cast<std::size_t>(Material::Clear)].get();
    const EditBracket edit(clear, osg::SimpleMaterial::TransparencyFieldMask);
    clear->setTransparency(1.0F);
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

nbSceneplateManipulator::HandleNodes nbSceneplateManipulator::createHandle(const HandleRow& row)
{
    HandleNodes created;
    created.placement = osg::Transform::create();
    created.top = detail::makeNode(created.placement);
    switch (row.kind) {
    case SceneplateHandleKind::Box:
        created.parts[0] = addShape(created.top, HandleShape::Square);
        break;
    case SceneplateHandleKind::Arm: {
        constexpr float kKnobScale = detail::kPlateKnobRadius / kSphereRadius;
        constexpr float kLength = detail::kPlateArmLength - detail::kPlateKnobRadius;
        // The knob is flat, one layer thick, as all else here; its arm goes down to the frame.
        created.parts[0] = addShape(created.top, HandleShape::CentreSphere,
                                    osg::Vec3f(kKnobScale, kKnobScale, 1.0F / kSphereRadius), 0.0F);
        created.parts[1] = addShape(created.top, HandleShape::ArrowShaft,
                                    osg::Vec3f(1.0F, kLength / kShaftLength, 1.0F),
                                    -detail::kPlateKnobRadius - kLength / 2);
        break;
    }
    case SceneplateHandleKind::Body:
        created.parts[0] = addShape(created.top, HandleShape::Square);
        created.parts[1] = addShape(created.top, HandleShape::SquareOutline);
        break;
    }
    nbNodeUtils::setName(created.top, row.name, true, created.top);
    nbNodeUtils::setIsAuxiliaryNode(created.top, true);
    return created;
}

nbSceneplateManipulator::HandleNodes nbSceneplateManipulator::createGuide() const
{
    HandleNodes guide;
    guide.placement = osg::Transform::create();
    guide.top = detail::makeNode(guide.placement);
    guide.parts[0] = addShape(guide.top, HandleShape::ArrowShaft);
    detail::setGeometryMaterial(guide.parts[0],
                                materials[static_cast<std::size_t>(Material::PurpleLine)].get());
    return guide;
}

// == Colours and visibility

void nbSceneplateManipulator::setHandleMaterials(std::size_t row, bool highlight)
{
    const auto& colors = highlight ? kHandles[row].highlight : kHandles[row].idle;
    for (std::size_t i = 0; i < kPartCount; ++i) {
        if (handles[row].parts[i] != osg::NullFC) {
            detail::setGeometryMaterial(handles[row].parts[i],
                                        materials[static_cast<std::size_t>(colors[i])].get());
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
                             row.kind == SceneplateHandleKind::Body);
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
        case SceneplateHandleKind::Box:
            place = placeInPlane(layout.corners[i], layout.frame.rotation, osg::Vec2f(boxPx, boxPx),
                                 kHandleLayer);
            break;
        case SceneplateHandleKind::Arm:
            place = placeInPlane(layout.knob, layout.armRotation,
                                 osg::Vec2f(view.unitPx, view.unitPx), kHandleLayer);
            break;
        case SceneplateHandleKind::Body:
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
