// SPDX-License-Identifier: MIT
#include "manipulator/CameraManipulator.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/course/Gizmo.h"
#include "manipulator/handles/ContainerReference.h"
#include "manipulator/handles/HandleGroup.h"
#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/handles/HandleNodes.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>

namespace nbec::manipulator {

namespace {

constexpr float kHighlightTransparency = 0.01F;
constexpr float kHighlightGrey = 0.25F;
constexpr float kArmLength = 0.25F;
constexpr float kUnchangedTolerance = 1e-6F;

/// Three segments of length 0.5 along the axes, centred on the origin.
osg::GeometryPtr makeCross()
{
    std::vector<osg::Pnt3f> ends;
    std::vector<osg::UInt32> indices;
    for (osg::UInt32 axis = 0; axis < 3; ++axis) {
        for (const float reach : { -kArmLength, kArmLength }) {
            osg::Pnt3f end;
            end[axis] = reach;
            indices.push_back(static_cast<osg::UInt32>(ends.size()));
            ends.push_back(end);
        }
    }
    return makeLineGeometry(ends, indices);
}

osg::SimpleMaterialRefPtr withSpecular(osg::SimpleMaterialRefPtr material, float grey)
{
    const nbEdit edit(material.get(), osg::SimpleMaterial::SpecularFieldMask);
    material->setSpecular(osg::Color3f(grey, grey, grey));
    return material;
}

}  // namespace

Instances<CameraManipulator> CameraManipulator::instances;
bool CameraManipulator::m_LocalSpaceManipulator = false;

CameraManipulator::CameraManipulator()
    : transformNode(createManipulatorGeo())
    , root(makeHandleRootOfPasses(transformNode.get()))
{
    showNode(transformNode.get(), false);
    instances.add(this);
}

CameraManipulator::~CameraManipulator()
{
    instances.remove(this);
}

void CameraManipulator::createMaterials()
{
    const LineChunks chunks = makeLineChunks();
    normalMaterial = withSpecular(
        makeHandleMaterial(osg::Color3f(1.0F, 0.5F, 0.0F), handleSortKey::kSolid, &chunks), 0.5F);
    highlightMaterial = withSpecular(
        makeHandleMaterial(osg::Color3f(kHighlightGrey, kHighlightGrey, kHighlightGrey),
                           handleSortKey::kLine, nullptr, kHighlightTransparency),
        1.0F);
}

osg::NodePtr CameraManipulator::createManipulatorGeo()
{
    createMaterials();
    geometryNode = makeNode(makeCross());
    setGeometryMaterial(geometryNode.get(), normalMaterial.get());
    const osg::NodePtr transform = makeTransform3DNode(osg::Vec3f());
    addChild(transform, geometryNode.get());
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
    const View view;
    osg::Pnt3f cameraFrom;
    osg::Pnt3f cameraAt;
    osg::Vec3f cameraUp;
    view.getFromAtUp(cameraFrom, cameraAt, cameraUp);
    const bool isSame = cameraFrom.equals(from, kUnchangedTolerance) &&
        cameraAt.equals(at, kUnchangedTolerance) && cameraUp.equals(up, kUnchangedTolerance) &&
        view.getFov() == fov;
    if (!isSame || isOrthographicSizeChanged(view)) {
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
    const osg::NodePtr hit = Gizmo::pickHandle(ctx != nullptr ? ctx->getPicker() : nullptr);
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
    return resolveContainer<osg::NodePtr>(selectedNodeId);
}

osg::NodePtr CameraManipulator::resolveTransformNode(const osg::NodePtr& node)
{
    return nbNodeUtils::resolveToTransformNode(node);
}

void CameraManipulator::setSelectedNode(const osg::NodePtr& node)
{
    selectedNodeId = containerId(node);
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
    showNode(transformNode.get(), true);
    showNode(geometryNode.get(), true);
}

void CameraManipulator::hideAllElements()
{
    showNode(transformNode.get(), false);
    showNode(geometryNode.get(), false);
}

void CameraManipulator::updateManipulator()
{
    const View view;
    if (!view.exists() || view.getWidget()->getUberCamera() == osg::NullFC) {
        return;
    }
    const float cameraFov = view.getFov();
    const osg::Pnt3f cameraFrom = view.getEye();
    const osg::Pnt3f cameraPivot = view.getPivot();
    if (isUnchanged(cameraFrom, cameraPivot, cameraFov)) {
        return;
    }
    scale = view.scaleAt(cameraPivot, instances.m_ManipulatorSize, ViewDiagonal::NearPlane);
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

bool CameraManipulator::isOrthographicSizeChanged(const View& view) const
{
    const std::optional<float> diagonal = view.orthographicDiagonal();
    return diagonal && orthographicScale(*diagonal) != scale;
}

void CameraManipulator::place(const osg::Pnt3f& position) const
{
    const osg::Transform3DPtr core = osg::Transform3DPtr::dcast(transformNode->getCore());
    if (core != osg::NullFC) {
        placeTransform(core, position.subZero(), osg::Quaternion(),
                       osg::Vec3f(scale, scale, scale));
    }
}

// == All instances

void CameraManipulator::setManipulatorSize(float size)
{
    instances.setSize(size);
}

float CameraManipulator::getManipulatorSize()
{
    return instances.m_ManipulatorSize;
}

void CameraManipulator::setLocalSpaceManipulator(bool local)
{
    m_LocalSpaceManipulator = local;
    instances.updateShared();
}

void CameraManipulator::updateAllManipulators()
{
    instances.updateAll();
}

void CameraManipulator::createInstance()
{
    new CameraManipulator;
}

}  // namespace nbec::manipulator
