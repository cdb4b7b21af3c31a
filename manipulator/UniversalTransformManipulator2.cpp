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
#include "manipulator/detail/PivotMarks.h"
#include "manipulator/detail/ScreenScale.h"
#include "manipulator/detail/TargetFrame.h"

#include <nbInteraction/Picker.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <algorithm>
#include <atomic>
#include <cstring>

#include <EditStamp.h>

namespace nbec::manipulator {

namespace {

using Mode = UniversalTransformManipulator2::ManipulatorMode;

/// Of the scene when all gizmos were placed together.
osg::UInt64 allPlacedStamp = 0;
/// Gizmos that are looked at together before they are placed.
constexpr std::size_t kReadAhead = 16;
/// Takes what was only read, so that it is read.
std::atomic<osg::UInt32> seen { 0 };
/// Elements of two to-world matrices that differ by no more are the same placement.
constexpr float kPlacementTolerance = 1e-6F;
constexpr std::size_t kElements = 16;

/// Equal bits, which is the usual case and quick to see, or equal within the tolerance.
bool isSamePlacement(const osg::Matrix& left, const osg::Matrix& right)
{
    return std::memcmp(left.getValues(), right.getValues(), sizeof(osg::Real32) * kElements) == 0 ||
        left.equals(right, kPlacementTolerance);
}

/// Looks at what placing a gizmo will touch. Nothing of it is near by when there are many gizmos;
/// looked at one after the other, the waiting times for memory overlap, which the work on each
/// would not let them.
/// @param target  node that the gizmo is to be placed at, or null
void readAhead(const osg::Transform3D& placement, const osg::NodePtr& target)
{
    osg::UInt32 sum =
        placement.getChangeCount() + static_cast<osg::UInt32>(placement.getRotationMode());
    for (const osg::NodePtr& pass : placement.getParents()) {
        sum += pass->getTravMask();
    }
    if (target != osg::NullFC && target->getCore() != osg::NullFC) {
        sum += target->getCore()->getFieldContainerId();
    }
    seen.store(sum, std::memory_order_relaxed);
}

constexpr DefaultFamilies kAllFamilies { true, true, true };

/// What each mode puts back to idle colours, one row per mode, in the order of the modes' values.
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
    : marks(std::make_unique<detail::PivotMarks>())
    , handles(std::make_unique<TransformHandles>())
    , drag(std::make_unique<TransformDrag>())
{
    placement = osg::Transform3DPtr::dcast(handles->getTree()->getCore());
    multiselection = detail::makeGroupNode();
    nbNodeUtils::setIsAuxiliaryNode(multiselection.get(), true);
    additionalGeometry = detail::makeGroupNode();
    nbNodeUtils::setIsAuxiliaryNode(additionalGeometry.get(), true);
    const detail::HandlePasses passes = detail::makeHandlePasses(handles->getTree());
    root = detail::makeHandleRoot();
    detail::addChild(root.get(), multiselection.get());
    detail::addChild(root.get(), passes.depthPass.get());
    detail::addChild(root.get(), additionalGeometry.get());
    detail::addChild(root.get(), passes.handlePass.get());
    handles->show(mode, ActiveMode::None);
    detail::showNode(handles->getTree(), false);
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
    handles->show(mode, activeHandle);
    handles->highlight(activeHandle);
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
    if (activeHandle != handles->getHighlighted()) {
        handles->makeIdle(kAllFamilies, activeHandle);
        handles->highlight(activeHandle);
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

bool UniversalTransformManipulator2::snappingActive() const
{
    return _temporary_snapping_active || snappingEnabled;
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
    handles->show(mode, ActiveMode::None);
    handles->makeIdle(kDefaultFamilies[static_cast<std::size_t>(newMode)], ActiveMode::None);
    updateManipulator();
}

void UniversalTransformManipulator2::showActiveManipulator()
{
    if (getNode() == osg::NullFC) {
        hideManipulator();
        return;
    }
    handles->show(mode, ActiveMode::None);
    detail::showNode(handles->getTree(), true);
    updateManipulator();
}

void UniversalTransformManipulator2::hideManipulator()
{
    detail::showNode(handles->getTree(), false);
}

// == Handle under the pointer

void UniversalTransformManipulator2::endHover()
{
    activeHandle = ActiveMode::None;
    if (handles->getHighlighted() != ActiveMode::None) {
        handles->makeIdle(kAllFamilies, ActiveMode::None);
    }
}

UniversalTransformManipulator2::ActiveMode
UniversalTransformManipulator2::detectMode(ManipulatorInteractionContext* ctx) const
{
    if (getNode() == osg::NullFC) {
        return ActiveMode::None;
    }
    return TransformHandles::find(detail::pickHandle(ctx));
}

// == Placement

void UniversalTransformManipulator2::updateManipulator(bool areMarksPlaced)
{
    updateManipulator(detail::ScreenScale(m_ManipulatorSize, detail::ViewDiagonal::FrustumSides),
                      areMarksPlaced);
}

void UniversalTransformManipulator2::updateManipulator(const detail::ScreenScale& scale,
                                                       bool areMarksPlaced)
{
    const osg::NodePtr selected = getNode();
    isPlaced = false;
    if (selected == osg::NullFC) {
        return;
    }
    const osg::NodePtr node = detail::editedNode(selected);
    isPlaced = node->getParent() != osg::NullFC;
    const osg::Pnt3f anchor = anchorWorld(node);
    const float size = scale.at(anchor);
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
        updateMarks(size, areMarksPlaced);
    }
}

void UniversalTransformManipulator2::updateSize(const detail::ScreenScale& scale)
{
    const float size = scale.at(osg::Pnt3f(placement->getTranslation()));
    {
        const detail::EditBracket edit(placement, osg::Transform3D::ScaleFieldMask);
        placement->setScale(osg::Vec3f(size, size, size));
    }
    if (!transformationInfos.empty()) {
        updateMarks(size, true);
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

float UniversalTransformManipulator2::getManipulatorSize()
{
    return m_ManipulatorSize;
}

bool UniversalTransformManipulator2::isLocalSpaceManipulator()
{
    return m_LocalSpaceManipulator;
}

void UniversalTransformManipulator2::setLocalSpaceManipulator(bool local)
{
    m_LocalSpaceManipulator = local;
    allPlacedStamp = 0;
    if (_the != nullptr) {
        _the->updateManipulator();
    }
}

/// The usual case is that the camera has moved and nothing else. Then gizmos stay where they are
/// and change their size, and there is no need to look at their nodes.
void UniversalTransformManipulator2::updateAllManipulators()
{
    const detail::ScreenScale scale(m_ManipulatorSize, detail::ViewDiagonal::FrustumSides);
    const bool areAllInPlace = osg::glue::sceneStamp() == allPlacedStamp;
    std::size_t next = 0;
    detail::forEachInstance(_allManipulators, [&](UniversalTransformManipulator2& manipulator) {
        if (next % kReadAhead == 0) {
            const std::size_t end = std::min(next + kReadAhead, _allManipulators.size());
            for (std::size_t i = next; i < end; ++i) {
                const UniversalTransformManipulator2& other = *_allManipulators[i];
                readAhead(*other.placement, areAllInPlace ? osg::NodePtr() : other.getNode());
            }
        }
        ++next;
        if (areAllInPlace && manipulator.isPlaced) {
            manipulator.updateSize(scale);
        } else {
            manipulator.updateManipulator(scale, false);
        }
    });
    allPlacedStamp = osg::glue::sceneStamp();
}

}  // namespace nbec::manipulator
