// SPDX-License-Identifier: MIT
#include "LiftManipulator.h"

#include <nbInteraction/Picker.h>
#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbGeoFactory.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <cmath>

#include <manipulator/ManipulatorInteractionContext.h>
#include <manipulator/nbManipulatorMaterials.h>

using nbec::interaction::Picker;

namespace {

constexpr int kIdleSortKey = 64016;
constexpr int kHighlightSortKey = 64017;
/// Height of the view in units of the handles.
constexpr float kUnitsPerView = 8.f;

osg::NodePtr makeArrow()
{
    return osg::makeCone(1.f, 0.15f, 24, true, true);  // height, radius, sides
}

osg::NodePtr makeRing()
{
    return nbGeoFactory::makeLineTorus(0.75f, 36, false);  // radius, pieces
}

void setMaterial(const osg::NodePtr& node, const osg::MaterialPtr& material)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    const nbEdit edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(material);
}

osg::SimpleMaterialRefPtr makeMaterial(const osg::Color4f& color, int sortKey)
{
    osg::SimpleMaterialPtr made = nbManipulatorMaterials::createUnlitMaterial(color, sortKey);
    osg::SimpleMaterialRefPtr held(made);
    osg::subRefCP(made);  // that with which it was returned
    return held;
}

}  // namespace

/// A handle: everything that differs between the handles stands in its row.
struct LiftManipulator::HandleRow
{
    const char* name;  ///< by which a pick tells the handle
    ActiveMode mode;
    osg::NodePtr (*make)();
    float height;  ///< of the middle, in units of the handles
    std::array<float, 3> color;
};

const std::array<LiftManipulator::HandleRow, LiftManipulator::kHandleCount>
    LiftManipulator::kHandles = { {
        { "liftShape", ActiveMode::Lift, &makeArrow, 0.5f, { 0.f, 1.f, 0.f } },
        { "putDownShape", ActiveMode::PutDown, &makeRing, 0.f, { 0.5f, 0.25f, 1.f } },
    } };

// == Building

LiftManipulator::LiftManipulator()
    : root(osg::Node::create())
    , placement(osg::Node::create())
    , highlightMaterial(makeMaterial(osg::Color4f(1.f, 0.5f, 0.f, 1.f), kHighlightSortKey))
{
    const nbEdit edit(root.get(), osg::Node::CoreFieldMask | osg::Node::ChildrenFieldMask);
    root->setCore(osg::Group::create());
    root->addChild(placement);
    const nbEdit placementEdit(placement, osg::Node::CoreFieldMask | osg::Node::ChildrenFieldMask);
    placement->setCore(osg::Transform3D::create());
    for (std::size_t i = 0; i < kHandles.size(); ++i) {
        const HandleRow& row = kHandles[i];
        const osg::Transform3DPtr lifted = osg::Transform3D::create();
        {
            const nbEdit liftedEdit(lifted, osg::Transform3D::TranslationFieldMask);
            lifted->setTranslation(osg::Vec3f(0.f, row.height, 0.f));
        }
        handles[i] = row.make();
        const osg::NodePtr holder = osg::Node::create();
        const nbEdit holderEdit(holder, osg::Node::CoreFieldMask | osg::Node::ChildrenFieldMask);
        holder->setCore(lifted);
        holder->addChild(handles[i]);
        placement->addChild(holder);
        nbNodeUtils::setName(handles[i], row.name);
        idleMaterials[i] =
            makeMaterial(osg::Color4f(row.color[0], row.color[1], row.color[2], 1.f), kIdleSortKey);
        setMaterial(handles[i], idleMaterials[i].get());
    }
    // The scene's tools pass the handles by, the picker of handles hits them, and they are drawn
    // over the scene.
    nbNodeUtils::setIsAuxiliaryNode(root.get(), true);
    nbNodeUtils::setIsSelectableAuxiliaryNode(root.get(), true);
    nbNodeUtils::setIsManipulatorNode(root.get(), true);
}

void LiftManipulator::update(bool /*force*/)
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    const osg::NodePtr node = getNode();
    if (!isActive() || node == osg::NullFC || widget == nullptr) {
        return;
    }
    const osg::Vec3f place = nbTransformModel::getRotationPivot(node, true);
    const CameraPose pose = widget->getUberCamera()->getPose();
    const float unit =
        nbCameraNavigation::viewHeight(
            pose, nbCameraNavigation::depth(pose, osg::Pnt3f(place[0], place[1], place[2]))) /
        kUnitsPerView;
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(placement->getCore());
    const nbEdit edit(transform, osg::Transform3D::PartsFieldMask);
    transform->setTranslation(place);
    transform->setScale(osg::Vec3f(unit, unit, unit));
}

// == Hovering

LiftManipulator::ActiveMode LiftManipulator::detectMode(Context* ctx) const
{
    Picker* const picker = ctx != nullptr ? ctx->getPicker() : nullptr;
    if (picker == nullptr || getNode() == osg::NullFC) {
        return ActiveMode::None;
    }
    picker->setFilter(Picker::HandleFilter);
    const std::string name = nbNodeUtils::getName(picker->pick());
    picker->setFilter(Picker::SceneFilter);
    for (const HandleRow& row : kHandles) {
        if (name == row.name) {
            return row.mode;
        }
    }
    return ActiveMode::None;
}

void LiftManipulator::highlight(ActiveMode mode)
{
    activeMode = mode;
    for (std::size_t i = 0; i < kHandles.size(); ++i) {
        const bool isActive = kHandles[i].mode == mode;
        setMaterial(handles[i], (isActive ? highlightMaterial : idleMaterials[i]).get());
    }
}

bool LiftManipulator::hoverManipulator(Context* ctx, const std::string& /*hint*/)
{
    if (!grabbing) {
        update(false);
        highlight(detectMode(ctx));
    }
    return activeMode != ActiveMode::None;
}

bool LiftManipulator::resetManipulator(Context* /*ctx*/, const std::string& /*hint*/)
{
    if (!grabbing) {
        highlight(ActiveMode::None);
    }
    return true;
}

bool LiftManipulator::setManipulatorMode(const std::string& mode)
{
    snapping = mode == "precisionTool";
    return snapping;
}

// == Dragging

bool LiftManipulator::startManipulator(Context* ctx, const std::string& /*hint*/)
{
    update(false);
    highlight(detectMode(ctx));
    grabbing = activeMode != ActiveMode::None;
    prepared = false;
    return grabbing;
}

bool LiftManipulator::processManipulator(Context* /*ctx*/, const std::string& /*hint*/)
{
    const osg::NodePtr node = getNode();
    if (!grabbing || node == osg::NullFC) {
        return false;
    }
    if (!prepared) {
        const osg::Vec3f place = nbTransformModel::getRotationPivot(node, true);
        osg::Vec3f towardsEye = nbOSGWidget::getFrom(-1) - osg::Pnt3f(place[0], place[1], place[2]);
        towardsEye[1] = 0.f;  // the plane contains the y axis
        plane = osg::Plane(towardsEye, osg::Pnt3f(place[0], place[1], place[2]));
        startHeight = nbTransformModel::getTranslation(node, true)[1];
    }
    osg::Pnt3f hit;
    if (activeMode == ActiveMode::PutDown) {
        const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(node);
        if (!prepared && !bounds.isEmpty()) {
            setHeight(startHeight - bounds.getMin()[1]);
        }
        prepared = true;
    } else if (pointerOnPlane(hit)) {
        if (!prepared) {
            startHit = hit[1];
        } else {
            setHeight(startHeight + hit[1] - startHit);  // always from the start, never in sums
        }
        prepared = true;
    }
    update(true);
    return true;
}

bool LiftManipulator::stopManipulator(Context* /*ctx*/, const std::string& /*hint*/)
{
    const bool wasGrabbing = grabbing;
    grabbing = false;
    highlight(ActiveMode::None);
    return wasGrabbing;
}

bool LiftManipulator::pointerOnPlane(osg::Pnt3f& hit) const
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    osg::Line ray;
    return widget != nullptr &&
        widget->getCamera()->calcViewRay(ray, static_cast<int>(getMousePosition()[0]),
                                         static_cast<int>(getMousePosition()[1]),
                                         *widget->getViewport()) &&
        plane.intersect(ray, hit);
}

void LiftManipulator::setHeight(float heightWorld) const
{
    nbTransformModel* const model = nbTransformModel::the();
    const auto step = static_cast<float>(model->getTranslationPrecision());
    if (snapping && activeMode == ActiveMode::Lift && step > 0.f) {
        heightWorld = startHeight + std::round((heightWorld - startHeight) / step) * step;
    }
    // One call is one undo scope; the host's group makes one step of a drag.
    model->setTranslation(1, true, [&](osg::UInt32 /*index*/) {
        osg::Vec3f place = nbTransformModel::getTranslation(getNode(), true);
        place[1] = heightWorld;
        return nbTransformModel::Value({ getNode(), -1 }, place);
    });
    nbController::call("nbTransform::changedTransformation", 0);
    nbController::call("nbTransform::updateTransformation", 0);
    nbController::setModified(1);
}
