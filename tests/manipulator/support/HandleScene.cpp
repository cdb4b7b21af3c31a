// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/HandleScene.h"

#include "tests/platform/support/Edited.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>

#include <OpenSG/OSGSimpleGeometry.h>

namespace nbec::manipulator::test {

// == HandleScene

HandleScene::HandleScene(AbstractManipulator& installed)
    : manipulator(installed)
    , parent(osg::makeCoredNode<osg::Transform3D>())
{
    nbController::clear();
    nbUndoService::the()->clear();
    addChild(nbScenegraph::getRootNode(), parent);
    addChild(parent, scene.node);
}

HandleScene::~HandleScene()
{
    nbController::clear();
    notification::NotificationManager::getInstance()->clear();
    nbUndoService::the()->clear();
}

void HandleScene::look(Camera from, bool orthographic)
{
    scene.setOrthographic(orthographic);
    static const osg::Pnt3f kEyes[] = {
        { 0, 0, 10 }, { 10, 0, 0 }, { 0, 10, 0 }, { 20.0F / 7, 30.0F / 7, 60.0F / 7 }
    };
    const osg::Pnt3f& eye = kEyes[static_cast<std::size_t>(from)];
    const osg::Vec3f up = from == Camera::Top ? osg::Vec3f(0, 0, -1) : osg::Vec3f(0, 1, 0);
    scene.widget.getUberCamera()->setFromAtUp(eye, osg::Pnt3f(0, 0, 0), up);
    manipulator.update(true);
}

void HandleScene::edit(const osg::Transform3DPtr& transform,
                       const std::function<void(const osg::Transform3DPtr&)>& change)
{
    osg::beginEditCP(transform);
    change(transform);
    osg::endEditCP(transform);
    manipulator.update(true);
}

osg::NodePtr HandleScene::handle(const std::string& name) const
{
    return findNode(manipulator.getVisualisation(), name);
}

osg::Pnt3f HandleScene::onHandle(const std::string& name, const osg::Vec3f& unit) const
{
    const bool isTab = name.compare(0, 5, "scale") == 0;
    osg::Pnt3f point(unit);
    (isTab ? handle(name) : handle(name)->getParent())->getToWorld().multMatrixPnt(point);
    return point;
}

osg::Pnt3f HandleScene::originOf(const std::string& name) const
{
    osg::Pnt3f point;
    handle(name)->getToWorld().multMatrixPnt(point);
    return point;
}

Names HandleScene::shownOf(const Names& names) const
{
    Names shown;
    std::copy_if(names.begin(), names.end(), std::back_inserter(shown),
                 [this](const std::string& name) { return isShown(handle(name)); });
    return shown;
}

Names HandleScene::texts()
{
    Names found;
    for (const auto& each :
         notification::NotificationManager::getInstance()->getVisibleTexts(800, 600)) {
        found.push_back(each.text.toStdString());
    }
    return found;
}

bool HandleScene::grabAt(const std::string& name, const osg::Pnt3f& world)
{
    return press(world) && nbNodeUtils::getName(scene.picker.getHitNode()) == name &&
        stepTo(osg::Vec2f());
}

// == DragScene

namespace {

using Gizmo = UniversalTransformManipulator2;

void useDefaultSettings()
{
    Gizmo::setLocalSpaceManipulator(false);
    nbTransformModel::the()->setTranslationPrecision(1.0);
    nbTransformModel::the()->setRotationPrecision(15.0);
    nbTransformModel::the()->setScalePrecision(0.1);
}

}  // namespace

DragScene::DragScene()
    : HandleScene(gizmo)
{
    useDefaultSettings();
    gizmo.setNode(scene.node);
    scene.install(gizmo);
}

DragScene::~DragScene()
{
    gizmo.setManipulatorMode("tool");
    useDefaultSettings();
}

void DragScene::activate(Gizmo::ManipulatorMode mode)
{
    // In the order of the modes.
    static constexpr void (
        Gizmo::*kActivate[])() = { &Gizmo::activateUniversalManipulator,
                                   &Gizmo::activateTranslateManipulator,
                                   &Gizmo::activateScaleManipulator,
                                   &Gizmo::activateRotateManipulator,
                                   &Gizmo::activateRotatePivotManipulator,
                                   &Gizmo::activateScalePivotManipulator,
                                   &Gizmo::activateClippingManipulator,
                                   &Gizmo::activateTranslateRotateManipulator,
                                   &Gizmo::activateTranslateRotateYZManipulator,
                                   &Gizmo::activateTranslateRotateScaleManipulator };
    const auto activation = kActivate[static_cast<std::size_t>(mode)];
    (gizmo.*activation)();
    EXPECT_EQ(gizmo.getMode(), mode);
}

osg::Pnt3f DragScene::onGizmo(const osg::Vec3f& unit)
{
    const osg::NodePtr handles = gizmo.getVisualisation()->getChild(3)->getChild(0);
    osg::Pnt3f point(unit);
    handles->getToWorld().multMatrixPnt(point);
    return point;
}

bool DragScene::grab(const osg::Vec3f& unit)
{
    return press(onGizmo(unit)) && stepTo(osg::Vec2f());
}

osg::NodePtr DragScene::addFurther(const osg::Vec3f& translation)
{
    const osg::NodePtr further = osg::makeCoredNode<osg::Transform3D>();
    nbtest::edited(transformOf(further))->setTranslation(translation);
    addChild(further, osg::makeBox(2, 2, 2, 1, 1, 1));
    addChild(nbScenegraph::getRootNode(), further);
    return further;
}

float greatestDifference(const osg::Matrix& left, const osg::Matrix& right)
{
    float greatest = 0.0F;
    for (int i = 0; i < 16; ++i) {
        const float difference = std::abs(left.getValues()[i] - right.getValues()[i]);
        greatest = std::isnan(difference) ? difference : std::max(greatest, difference);
    }
    return greatest;
}

}  // namespace nbec::manipulator::test
