// SPDX-License-Identifier: MIT
#include "manipulator/CameraManipulator.h"

#include "manipulator/detail/ContainerReference.h"
#include "manipulator/detail/EditBracket.h"
#include "manipulator/detail/HandleGroup.h"
#include "manipulator/detail/HandleMaterials.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/HandlePick.h"
#include "manipulator/detail/InstanceRegistry.h"
#include "manipulator/detail/NodeVisibility.h"
#include "manipulator/detail/ScreenScale.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberCamera/nbUberCameraUtils.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>

namespace nbec::manipulator {

namespace {

constexpr int kNormalSortKey = 64016;
constexpr int kHighlightSortKey = 64015;
constexpr float kHighlightTransparency = 0.01F;
constexpr float kHighlightGrey = 0.25F;
constexpr float kArmLength = 0.25F;
constexpr float kUnchangedTolerance = 1e-6F;

osg::UberCameraPtr mainCamera()
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    return widget != nullptr ? widget->getUberCamera() : osg::UberCameraPtr();
}

/// Three segments of length 0.5 along the axes, centred on the origin.
osg::GeometryPtr makeCross()
{
    const osg::GeoPTypesPtr types = osg::GeoPTypesUI8::create();
    types->push_back(GL_LINES);
    const osg::GeoPLengthsPtr lengths = osg::GeoPLengthsUI32::create();
    const osg::GeoIndicesPtr indices = osg::GeoIndicesUI32::create();
    const osg::GeoPositions3fPtr positions = osg::GeoPositions3f::create();
    for (osg::UInt32 axis = 0; axis < 3; ++axis) {
        osg::Pnt3f end;
        end[axis] = -kArmLength;
        positions->push_back(end);
        end[axis] = kArmLength;
        positions->push_back(end);
        indices->push_back(2 * axis);
        indices->push_back(2 * axis + 1);
    }
    lengths->push_back(positions->getSize());
    const osg::GeometryPtr cross = osg::Geometry::create();
    const detail::EditBracket edit(cross, osg::FieldBits::AllFields);
    cross->setTypes(types);
    cross->setLengths(lengths);
    cross->setIndices(indices);
    cross->setPositions(positions);
    return cross;
}

}  // namespace

float CameraManipulator::m_ManipulatorSize = detail::kDefaultManipulatorSize;
bool CameraManipulator::m_LocalSpaceManipulator = false;
std::vector<CameraManipulator*> CameraManipulator::_allManipulators;
CameraManipulator* CameraManipulator::_the = nullptr;

CameraManipulator::CameraManipulator()
{
    transformNode = createManipulatorGeo();
    const detail::HandlePasses passes = detail::makeHandlePasses(transformNode.get());
    detail::showNode(transformNode.get(), false);
    root = detail::makeHandleRoot();
    detail::addChild(root.get(), passes.depthPass.get());
    detail::addChild(root.get(), passes.handlePass.get());
    _allManipulators.push_back(this);
}

CameraManipulator::~CameraManipulator()
{
    detail::unregisterInstance(_allManipulators, this);
}

void CameraManipulator::createMaterials()
{
    const detail::LineChunks chunks = detail::makeLineChunks();
    normalMaterial =
        detail::makeHandleMaterial(osg::Color3f(1.0F, 0.5F, 0.0F), kNormalSortKey, &chunks);
    {
        const detail::EditBracket edit(normalMaterial.get(),
                                       osg::SimpleMaterial::SpecularFieldMask);
        normalMaterial->setSpecular(osg::Color3f(0.5F, 0.5F, 0.5F));
    }
    highlightMaterial =
        detail::makeHandleMaterial(osg::Color3f(kHighlightGrey, kHighlightGrey, kHighlightGrey),
                                   kHighlightSortKey, nullptr, kHighlightTransparency);
    const detail::EditBracket edit(highlightMaterial.get(), osg::SimpleMaterial::SpecularFieldMask);
    highlightMaterial->setSpecular(osg::Color3f(1.0F, 1.0F, 1.0F));
}

osg::NodePtr CameraManipulator::createManipulatorGeo()
{
    createMaterials();
    geometryNode = detail::makeNode(makeCross());
    detail::setGeometryMaterial(geometryNode.get(), normalMaterial.get());
    const osg::NodePtr transform = detail::makeTransform3DNode(osg::Vec3f());
    detail::addChild(transform, geometryNode.get());
    nbNodeUtils::setIsAuxiliaryNode(transform, true);
    return transform;
}

// == Events, in their slot order

void CameraManipulator::activate(ManipulatorInteractionContext* ctx)
{
    NodeManipulator::activate(ctx);
    showForSelection();
}

osg::NodePtr CameraManipulator::getVisualisation()
{
    return root.get();
}

osg::NodePtr CameraManipulator::getCollider()
{
    return root.get();
}

void CameraManipulator::update(bool force)
{
    if (!isActive() || getSelectedNode() == osg::NullFC) {
        return;
    }
    if (force) {
        updateManipulator();
        return;
    }
    osg::Pnt3f cameraFrom;
    osg::Pnt3f cameraAt;
    osg::Vec3f cameraUp;
    nbOSGWidget::getFromAtUp(-1, cameraFrom, cameraAt, cameraUp);
    const bool isSame = cameraFrom.equals(from, kUnchangedTolerance) &&
        cameraAt.equals(at, kUnchangedTolerance) && cameraUp.equals(up, kUnchangedTolerance) &&
        nbOSGWidget::getFov(-1) == fov;
    if (!isSame || isOrthographicSizeChanged()) {
        updateManipulator();
    }
}

bool CameraManipulator::startManipulator(ManipulatorInteractionContext* ctx,
                                         const std::string& /*tool*/)
{
    if (!detectUnderPointer(ctx)) {
        return false;
    }
    showAllElements();
    return true;
}

bool CameraManipulator::processManipulator(ManipulatorInteractionContext* /*ctx*/,
                                           const std::string& /*tool*/)
{
    return mode != 0;
}

bool CameraManipulator::stopManipulator(ManipulatorInteractionContext* /*ctx*/,
                                        const std::string& /*tool*/)
{
    if (mode == 0) {
        return false;
    }
    dragging = false;
    mode = 0;
    if (getSelectedNode() == osg::NullFC) {
        return false;
    }
    showAllElements();
    return true;
}

bool CameraManipulator::hoverManipulator(ManipulatorInteractionContext* ctx,
                                         const std::string& /*tool*/)
{
    return detectUnderPointer(ctx);
}

bool CameraManipulator::resetManipulator(ManipulatorInteractionContext* /*ctx*/,
                                         const std::string& /*tool*/)
{
    highlighted = false;
    return true;
}

bool CameraManipulator::setManipulatorMode(const std::string& tool)
{
    return tool == "precisionTool" || tool.empty();
}

void CameraManipulator::setNode(const osg::NodePtr& node)
{
    NodeManipulator::setNode(node);
    setSelectedNode(node);
    if (isActive()) {
        showForSelection();
    }
}

void CameraManipulator::setNode(const osg::NodePtr& node, const std::vector<osg::NodePtr>& others)
{
    setNode(node);
    otherNodes = others;
}

bool CameraManipulator::detectUnderPointer(ManipulatorInteractionContext* ctx)
{
    mode = 0;
    highlighted = false;
    if (getSelectedNode() == osg::NullFC) {
        return false;
    }
    const osg::NodePtr hit = detail::pickHandle(ctx);
    if (hit == osg::NullFC) {
        return false;
    }
    detectMode(hit);
    return mode != 0;
}

void CameraManipulator::detectMode(const osg::NodePtr& /*hit*/)
{
    // The cross has no handles: whatever was hit, no mode begins.
    mode = 0;
}

// == Selection and placement

osg::NodePtr CameraManipulator::getSelectedNode() const
{
    return detail::resolveContainer<osg::NodePtr>(selectedNodeId);
}

void CameraManipulator::setSelectedNode(const osg::NodePtr& node)
{
    selectedNodeId = detail::containerId(node);
}

void CameraManipulator::showForSelection()
{
    if (getSelectedNode() == osg::NullFC) {
        hideAllElements();
        return;
    }
    showAllElements();
    updateManipulator();
}

void CameraManipulator::activatePivotManipulator()
{
    showAllElements();
    updateManipulator();
}

void CameraManipulator::showAllElements()
{
    detail::showNode(transformNode.get(), true);
    detail::showNode(geometryNode.get(), true);
}

void CameraManipulator::hideAllElements()
{
    detail::showNode(transformNode.get(), false);
    detail::showNode(geometryNode.get(), false);
}

void CameraManipulator::updateManipulator()
{
    const osg::UberCameraPtr camera = mainCamera();
    if (camera == osg::NullFC) {
        return;
    }
    const float cameraFov = camera->getFov();
    const osg::Pnt3f cameraFrom = camera->getFrom(0);
    const osg::Pnt3f cameraPivot = nbOSGWidget::getPivot(-1);
    if (isUnchanged(cameraFrom, cameraPivot, cameraFov)) {
        return;
    }
    scale = nbUberCameraUtils::isOrthographicCamera(camera)
        ? detail::orthographicScale(camera->getNearPlaneDiagonal())
        : detail::perspectiveScale((cameraFrom - cameraPivot).length(), cameraFov,
                                   m_ManipulatorSize);
    place(cameraPivot);
    fov = cameraFov;
    from = cameraFrom;
    pivot = cameraPivot;
}

bool CameraManipulator::isUnchanged(const osg::Pnt3f& cameraFrom, const osg::Pnt3f& cameraPivot,
                                    float cameraFov) const
{
    return cameraFrom.equals(from, kUnchangedTolerance) &&
        cameraPivot.equals(pivot, kUnchangedTolerance) && cameraFov == fov;
}

bool CameraManipulator::isOrthographicSizeChanged() const
{
    const osg::UberCameraPtr camera = mainCamera();
    return camera != osg::NullFC && camera->isOrthographic() &&
        detail::orthographicScale(camera->getNearPlaneDiagonal()) != scale;
}

void CameraManipulator::place(const osg::Pnt3f& position) const
{
    const osg::Transform3DPtr core = osg::Transform3DPtr::dcast(transformNode->getCore());
    if (core == osg::NullFC) {
        return;
    }
    const detail::EditBracket edit(core,
                                   osg::Transform3D::TranslationFieldMask |
                                       osg::Transform3D::ScaleFieldMask |
                                       osg::Transform3D::RotationFieldMask);
    core->setTranslation(position.subZero());
    core->setScale(osg::Vec3f(scale, scale, scale));
    core->setRotation(osg::Quaternion());
}

// == All instances

void CameraManipulator::setManipulatorSize(float size)
{
    m_ManipulatorSize = size;
    if (_the != nullptr) {
        _the->updateManipulator();
    }
}

void CameraManipulator::setLocalSpaceManipulator(bool local)
{
    m_LocalSpaceManipulator = local;
    if (_the != nullptr) {
        _the->updateManipulator();
    }
}

void CameraManipulator::updateAllManipulators()
{
    detail::forEachInstance(
        _allManipulators, [](CameraManipulator& manipulator) { manipulator.updateManipulator(); });
}

void CameraManipulator::createInstance()
{
    new CameraManipulator;
}

}  // namespace nbec::manipulator
