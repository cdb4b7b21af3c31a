// SPDX-License-Identifier: MIT
#include "manipulator/CameraManipulator.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/course/Gizmo.h"
#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/handles/HandleNodes.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbGeoFactory.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

namespace nbec::manipulator {

namespace {

constexpr float kArmLength = 0.25F;
constexpr float kUnchangedTolerance = 1e-6F;

/// Three segments of length 0.5 along the axes, centred on the origin.
osg::GeometryPtr makeCross()
{
    std::vector<osg::Pnt3f> ends;
    for (osg::UInt32 axis = 0; axis < 3; ++axis) {
        for (const float reach : { -kArmLength, kArmLength }) {
            ends.emplace_back();
            ends.back()[axis] = reach;
        }
    }
    return nbGeoFactory::makeGeo(GL_LINES, ends, { 0, 1, 2, 3, 4, 5 });
}

osg::SimpleMaterialRefPtr makeMaterial(const osg::Color3f& diffuse, const osg::Color3f& specular,
                                       int sortKey, const LineChunks* chunks, float transparency)
{
    osg::SimpleMaterialRefPtr material = makeHandleMaterial(diffuse, sortKey, chunks, transparency);
    const nbEdit edit(material.get(), osg::SimpleMaterial::SpecularFieldMask);
    material->setSpecular(specular);
    return material;
}

}  // namespace

bool CameraManipulator::m_LocalSpaceManipulator = false;

CameraManipulator::CameraManipulator()
    : transformNode(createManipulatorGeo())
    , root(makeHandleRootOfPasses(transformNode.get()))
{
    showNode(transformNode.get(), false);
    instances.add(this);
}

osg::NodePtr CameraManipulator::createManipulatorGeo()
{
    const LineChunks chunks = makeLineChunks();
    normalMaterial = makeMaterial(osg::Color3f(1.0F, 0.5F, 0.0F), osg::Color3f(0.5F, 0.5F, 0.5F),
                                  handleSortKey::kSolid, &chunks, 0.0F);
    highlightMaterial =
        makeMaterial(osg::Color3f(0.25F, 0.25F, 0.25F), osg::Color3f(1.0F, 1.0F, 1.0F),
                     handleSortKey::kLine, nullptr, 0.01F);
    geometryNode = osg::makeNodeFor(makeCross());
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

void CameraManipulator::update(bool /*force*/)
{
    if (isActive() && getNode() != osg::NullFC) {
        updateManipulator();
    }
}

bool CameraManipulator::startManipulator(ManipulatorInteractionContext* ctx,
                                         const std::string& tool)
{
    return CameraManipulator::hoverManipulator(ctx, tool);
}

bool CameraManipulator::processManipulator(ManipulatorInteractionContext*, const std::string&)
{
    return false;
}

bool CameraManipulator::stopManipulator(ManipulatorInteractionContext*, const std::string&)
{
    return false;
}

bool CameraManipulator::hoverManipulator(ManipulatorInteractionContext* ctx,
                                         const std::string& /*tool*/)
{
    if (getNode() != osg::NullFC) {
        Gizmo::pickHandle(pickerOf(ctx));
    }
    return false;
}

bool CameraManipulator::resetManipulator(ManipulatorInteractionContext*, const std::string&)
{
    return true;
}

bool CameraManipulator::setManipulatorMode(const std::string& tool)
{
    return tool == "precisionTool" || tool.empty();
}

void CameraManipulator::setNode(const osg::NodePtr& node)
{
    NodeManipulator::setNode(node);
    if (isActive()) {
        showForSelection();
    }
}

// == Placement

void CameraManipulator::showForSelection()
{
    if (getNode() != osg::NullFC) {
        activatePivotManipulator();
    } else {
        showAllElements(false);
    }
}

void CameraManipulator::activatePivotManipulator()
{
    showAllElements(true);
    updateManipulator();
}

void CameraManipulator::showAllElements(bool isVisible)
{
    showNode(transformNode.get(), isVisible);
    showNode(geometryNode.get(), isVisible);
}

void CameraManipulator::updateManipulator()
{
    const View view;
    if (!view.exists() || view.getWidget()->getUberCamera() == osg::NullFC) {
        return;
    }
    // Deliberate: a new aspect alone does not resize the cross of an orthographic view.
    if (view.getWidget() == placedFor && view.getEye().equals(from, kUnchangedTolerance) &&
        view.getPivot().equals(pivot, kUnchangedTolerance) && view.getFov() == fov) {
        return;
    }
    placedFor = view.getWidget();
    fov = view.getFov();
    from = view.getEye();
    pivot = view.getPivot();
    const float scale = view.scaleAt(pivot, instances.m_ManipulatorSize, ViewDiagonal::NearPlane);
    const auto core = osg::Transform3DPtr::dcast(transformNode->getCore());
    if (core != osg::NullFC) {
        placeTransform(core, pivot.subZero(), osg::Quaternion(), osg::Vec3f(scale, scale, scale));
    }
}

}  // namespace nbec::manipulator
