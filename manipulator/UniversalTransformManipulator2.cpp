// SPDX-License-Identifier: MIT
#include "manipulator/UniversalTransformManipulator2.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/UniversalTransformManipulator2Drag.h"
#include "manipulator/UniversalTransformManipulator2Handles.h"
#include "manipulator/detail/EditBracket.h"
#include "manipulator/detail/HandleGroup.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/HandlePick.h"
#include "manipulator/detail/InstanceRegistry.h"
#include "manipulator/detail/NodeVisibility.h"
#include "manipulator/detail/ScreenScale.h"
#include "manipulator/detail/TargetFrame.h"

#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberCamera/nbUberCameraUtils.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGSimpleAttachments.h>

#include <cmath>
#include <cstring>
#include <string_view>

#include <EditStamp.h>

namespace nbec::manipulator {

namespace {

using Mode = UniversalTransformManipulator2::ManipulatorMode;

/// Elements of two to-world matrices that differ by no more are the same placement.
constexpr float kPlacementTolerance = 1e-6F;

/// Equal bits, which is the usual case and quick to see, or equal within the tolerance.
bool isSamePlacement(const osg::Matrix& left, const osg::Matrix& right)
{
    return std::memcmp(left.getValues(), right.getValues(), sizeof(osg::Real32) * 16) == 0 ||
        left.equals(right, kPlacementTolerance);
}

/// Which families an activation puts back to their idle colours.
struct DefaultFamilies
{
    bool translate, rotate, scale;
};

/// One row per mode, in the order of the modes' values.
constexpr std::array<DefaultFamilies, 10> kDefaultFamilies = { { { true, true, true },
                                                                 { true, false, false },
                                                                 { false, false, true },
                                                                 { false, true, false },
                                                                 { true, true, false },
                                                                 { true, true, false },
                                                                 { true, true, true },
                                                                 { true, true, false },
                                                                 { true, true, false },
                                                                 { true, true, true } } };

}  // namespace

float UniversalTransformManipulator2::m_ManipulatorSize = detail::kDefaultManipulatorSize;
bool UniversalTransformManipulator2::m_LocalSpaceManipulator = false;
std::vector<UniversalTransformManipulator2*> UniversalTransformManipulator2::_allManipulators;
UniversalTransformManipulator2* UniversalTransformManipulator2::_the = nullptr;
bool UniversalTransformManipulator2::_temporary_snapping_active = false;

UniversalTransformManipulator2::UniversalTransformManipulator2()
    : drag(std::make_unique<TransformDrag>())
{
    handleTree = createManipulatorGeo();
    placement = osg::Transform3DPtr::dcast(handleTree->getCore());
    createMultiselectionRepresentationGeo();
    additionalGeometry = detail::makeGroupNode();
    nbNodeUtils::setIsAuxiliaryNode(additionalGeometry.get(), true);
    const detail::HandlePasses passes = detail::makeHandlePasses(handleTree.get());
    root = detail::makeHandleRoot();
    detail::addChild(root.get(), multiselection.get());
    detail::addChild(root.get(), passes.depthPass.get());
    detail::addChild(root.get(), additionalGeometry.get());
    detail::addChild(root.get(), passes.handlePass.get());
    showElements(ActiveMode::None);
    detail::showNode(handleTree.get(), false);
    _allManipulators.push_back(this);
}

UniversalTransformManipulator2::~UniversalTransformManipulator2()
{
    detail::unregisterInstance(_allManipulators, this);
    if (_the == this) {
        _the = nullptr;
    }
}

// == Events, in their slot order

void UniversalTransformManipulator2::activate(ManipulatorInteractionContext* ctx)
{
    NodeManipulator::activate(ctx);
    showActiveManipulator();
}

void UniversalTransformManipulator2::deactivate(ManipulatorInteractionContext* ctx)
{
    NodeManipulator::deactivate(ctx);
    grabbing = false;
    prepared = false;
    endHover();
}

osg::NodePtr UniversalTransformManipulator2::getVisualisation()
{
    return root.get();
}

osg::NodePtr UniversalTransformManipulator2::getCollider()
{
    return root.get();
}

void UniversalTransformManipulator2::update(bool force)
{
    const osg::UInt64 stamp = osg::glue::editStamp();
    if (!isActive() || (!force && stamp == comparedStamp)) {
        return;
    }
    const osg::NodePtr node = getNode();
    if (node == osg::NullFC) {
        return;
    }
    comparedStamp = stamp;
    if (force || !isSamePlacement(detail::targetToWorld(node), cachedTargetToWorld)) {
        updateManipulator();
    }
}

bool UniversalTransformManipulator2::startManipulator(ManipulatorInteractionContext* ctx,
                                                      const std::string& /*hint*/)
{
    endHover();
    update(false);  // the node may have been moved since the last picture: by undo, by the host
    activeHandle = detectMode(ctx);
    if (activeHandle == ActiveMode::None) {
        return false;
    }
    grabbing = true;
    grabbedPoint = ctx->getPicker()->getHitPoint();
    highlightControlElement();
    return true;
}

bool UniversalTransformManipulator2::hoverManipulator(ManipulatorInteractionContext* ctx,
                                                      const std::string& /*hint*/)
{
    if (grabbing) {
        return true;
    }
    update(false);
    activeHandle = detectMode(ctx);
    if (activeHandle != highlighted) {
        setDefaultMaterials(true, true, true, activeHandle);
        highlightMode();
    }
    return activeHandle != ActiveMode::None;
}

bool UniversalTransformManipulator2::resetManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                      const std::string& /*hint*/)
{
    if (!grabbing) {
        endHover();
    }
    return true;
}

bool UniversalTransformManipulator2::setManipulatorMode(const std::string& newMode)
{
    _temporary_snapping_active = newMode == "precisionTool";
    // Deliberate: "tool" answers false although it has ended temporary snapping.
    return newMode == "precisionTool" || newMode.empty();
}

// == Modes

void UniversalTransformManipulator2::activateRotatePivotManipulator()
{
    activateMode(ManipulatorMode::RotatePivot);
}

void UniversalTransformManipulator2::activateScalePivotManipulator()
{
    activateMode(ManipulatorMode::ScalePivot);
}

void UniversalTransformManipulator2::activateTranslateManipulator()
{
    activateMode(ManipulatorMode::Translate);
}

void UniversalTransformManipulator2::activateRotateManipulator()
{
    activateMode(ManipulatorMode::Rotate);
}

void UniversalTransformManipulator2::activateScaleManipulator()
{
    activateMode(ManipulatorMode::Scale);
}

void UniversalTransformManipulator2::activateUniversalManipulator()
{
    activateMode(ManipulatorMode::Universal);
}

void UniversalTransformManipulator2::activateClippingManipulator()
{
    activateMode(ManipulatorMode::Clipping);
}

void UniversalTransformManipulator2::activateAdditionalManipulator() { }

void UniversalTransformManipulator2::activateTranslateRotateManipulator()
{
    activateMode(ManipulatorMode::TranslateRotate);
}

void UniversalTransformManipulator2::activateTranslateRotateScaleManipulator()
{
    activateMode(ManipulatorMode::TranslateRotateScale);
}

void UniversalTransformManipulator2::activateTranslateRotateYZManipulator()
{
    activateMode(ManipulatorMode::TranslateRotateYZ);
}

void UniversalTransformManipulator2::activateMode(ManipulatorMode newMode)
{
    mode = newMode;
    showElements(ActiveMode::None);
    const DefaultFamilies& families = kDefaultFamilies[static_cast<std::size_t>(newMode)];
    setDefaultMaterials(families.translate, families.rotate, families.scale, ActiveMode::None);
    updateManipulator();
}

void UniversalTransformManipulator2::showActiveManipulator()
{
    if (getNode() == osg::NullFC) {
        hideManipulator();
        return;
    }
    showElements(ActiveMode::None);
    showAllElements();
    updateManipulator();
}

void UniversalTransformManipulator2::hideManipulator()
{
    hideAllElements();
}

void UniversalTransformManipulator2::showAllElements()
{
    detail::showNode(handleTree.get(), true);
}

void UniversalTransformManipulator2::hideAllElements()
{
    detail::showNode(handleTree.get(), false);
}

void UniversalTransformManipulator2::showElements(ActiveMode grabbed)
{
    const unsigned modeBit = 1U << static_cast<unsigned>(mode);
    for (std::size_t i = 0; i < kHandles.size(); ++i) {
        const HandleRow& row = kHandles[i];
        const bool isGrabbed = grabbed != ActiveMode::None && row.activeMode == grabbed;
        const bool isVisible = (row.visibleIn & modeBit) != 0;
        detail::showNode(handles[i].top, isVisible && (isGrabbed || grabbed == ActiveMode::None));
        if (row.kind == HandleKind::Ring) {
            detail::showNode(handles[i].parts[1].node, isGrabbed);
        }
    }
}

// == Colours

void UniversalTransformManipulator2::setHandleMaterials(std::size_t row, bool highlight)
{
    for (std::size_t i = 0; i < kMaxParts; ++i) {
        const HandlePart& part = handles[row].parts[i];
        if (part.node == osg::NullFC) {
            continue;
        }
        const auto color =
            static_cast<std::size_t>(highlight ? HandleColor::Orange : kHandles[row].idle[i]);
        detail::setGeometryMaterial(
            part.node, part.isLine ? lineMaterials[color].get() : solidMaterials[color].get());
    }
}

void UniversalTransformManipulator2::setDefaultMaterials(bool translate, bool rotate, bool scale,
                                                         ActiveMode except)
{
    for (std::size_t i = 0; i < kHandles.size(); ++i) {
        const HandleRow& row = kHandles[i];
        const bool isInFamily = row.family == HandleFamily::Translate ? translate
            : row.family == HandleFamily::Rotate                      ? rotate
            : row.family == HandleFamily::Scale                       ? scale
                                                                      : true;
        if (isInFamily && (except == ActiveMode::None || row.activeMode != except)) {
            setHandleMaterials(i, false);
        }
    }
    highlighted = except == highlighted ? highlighted : ActiveMode::None;
}

void UniversalTransformManipulator2::highlightMode()
{
    for (std::size_t i = 0; i < kHandles.size(); ++i) {
        if (activeHandle != ActiveMode::None && kHandles[i].activeMode == activeHandle) {
            setHandleMaterials(i, true);
        }
    }
    highlighted = activeHandle;
}

void UniversalTransformManipulator2::highlightControlElement()
{
    showElements(activeHandle);
    highlightMode();
}

void UniversalTransformManipulator2::endHover()
{
    activeHandle = ActiveMode::None;
    if (highlighted != ActiveMode::None) {
        setDefaultMaterials(true, true, true, ActiveMode::None);
    }
}

UniversalTransformManipulator2::ActiveMode
UniversalTransformManipulator2::detectMode(ManipulatorInteractionContext* ctx) const
{
    if (getNode() == osg::NullFC) {
        return ActiveMode::None;
    }
    const osg::NodePtr hit = detail::pickHandle(ctx);
    if (hit == osg::NullFC) {
        return ActiveMode::None;
    }
    const char* const name = osg::getName(hit);
    if (name == nullptr) {
        return ActiveMode::None;
    }
    for (const HandleRow& row : kHandles) {
        if (row.name != nullptr && std::string_view(name) == row.name) {
            return row.activeMode;
        }
    }
    return ActiveMode::None;
}

// == Placement

void UniversalTransformManipulator2::updateManipulator()
{
    const osg::NodePtr selected = getNode();
    if (selected == osg::NullFC) {
        return;
    }
    const osg::NodePtr node = detail::editedNode(selected);
    const osg::Pnt3f anchor = anchorWorld(node);
    const float size = screenScale(anchor);
    cachedTargetToWorld = node->getToWorld();
    {
        const detail::EditBracket edit(placement,
                                       osg::Transform3D::TranslationFieldMask |
                                           osg::Transform3D::RotationFieldMask |
                                           osg::Transform3D::ScaleFieldMask);
        placement->setTranslation(anchor.subZero());
        placement->setScale(osg::Vec3f(size, size, size));
        placement->setRotation(orientationWorld(node));
    }
    if (!transformationInfos.empty()) {
        updateMarks(size);
    }
}

osg::Pnt3f UniversalTransformManipulator2::anchorWorld(const osg::NodePtr& node) const
{
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    if (transform == osg::NullFC) {
        return calculateObjectCenter(node, true);
    }
    const bool atScalePivot = mode == ManipulatorMode::Scale || mode == ManipulatorMode::ScalePivot;
    return detail::pivotWorld(node, transform, atScalePivot);
}

osg::Quaternion UniversalTransformManipulator2::orientationWorld(const osg::NodePtr& node) const
{
    if (mode == ManipulatorMode::Scale) {
        return detail::worldRotation(node);
    }
    if (!m_LocalSpaceManipulator) {
        return osg::Quaternion();
    }
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    return transform != osg::NullFC ? detail::pivotAxesInWorld(node, transform)
                                    : detail::worldRotation(node);
}

float UniversalTransformManipulator2::screenScale(const osg::Pnt3f& anchor)
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    const osg::UberCameraPtr camera =
        widget != nullptr ? widget->getUberCamera() : osg::UberCameraPtr();
    if (camera != osg::NullFC && nbUberCameraUtils::isOrthographicCamera(camera)) {
        const float width = camera->getRight() - camera->getLeft();
        const float height = camera->getBottom() - camera->getTop();
        return detail::orthographicScale(std::sqrt(width * width + height * height));
    }
    const double distance = anchor.dist(nbOSGWidget::getFrom(-1));
    return detail::perspectiveScale(distance, nbOSGWidget::getFov(-1), m_ManipulatorSize);
}

osg::Pnt3f UniversalTransformManipulator2::calculateObjectCenter(const osg::NodePtr& node,
                                                                 bool worldSpace)
{
    return detail::objectCenter(node, worldSpace);
}

// == All instances

void UniversalTransformManipulator2::createInstance()
{
    delete _the;
    _the = new UniversalTransformManipulator2;
}

void UniversalTransformManipulator2::setManipulatorSize(float size)
{
    m_ManipulatorSize = size;
    if (_the != nullptr) {
        _the->updateManipulator();
    }
}

void UniversalTransformManipulator2::setLocalSpaceManipulator(bool local)
{
    m_LocalSpaceManipulator = local;
    if (_the != nullptr) {
        _the->updateManipulator();
    }
}

void UniversalTransformManipulator2::updateAllManipulators()
{
    detail::forEachInstance(_allManipulators, [](UniversalTransformManipulator2& manipulator) {
        manipulator.updateManipulator();
    });
}

}  // namespace nbec::manipulator
