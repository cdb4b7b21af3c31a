// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/DragScene.h"

#include "tests/platform/support/Edited.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbTransform/nbTransformModel.h>

#include <OpenSG/OSGSimpleGeometry.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::test {

namespace {

using Gizmo = UniversalTransformManipulator2;

void useDefaultSettings()
{
    Gizmo::setLocalSpaceManipulator(false);
    Gizmo::setManipulatorSize(32.0F);
    nbTransformModel::the()->setTranslationPrecision(1.0);
    nbTransformModel::the()->setRotationPrecision(15.0);
    nbTransformModel::the()->setScalePrecision(0.1);
    nbUndoService::the()->clear();
}

}  // namespace

DragScene::DragScene()
    : parent(osg::makeCoredNode<osg::Transform3D>())
{
    useDefaultSettings();
    addChild(nbScenegraph::getRootNode(), parent);
    addChild(parent, scene.node);
    gizmo.setNode(scene.node);
    scene.install(gizmo);
}

DragScene::~DragScene()
{
    gizmo.setManipulatorMode("tool");
    useDefaultSettings();
    notification::NotificationManager::getInstance()->clear();
    nbController::clear();
}

void DragScene::look(Camera from, bool orthographic)
{
    drag.look(from, orthographic);
    Gizmo::updateAllManipulators();
}

void DragScene::activate(Gizmo::ManipulatorMode mode)
{
    using Mode = Gizmo::ManipulatorMode;
    switch (mode) {
    case Mode::Universal:
        return gizmo.activateUniversalManipulator();
    case Mode::Translate:
        return gizmo.activateTranslateManipulator();
    case Mode::Scale:
        return gizmo.activateScaleManipulator();
    case Mode::Rotate:
        return gizmo.activateRotateManipulator();
    case Mode::RotatePivot:
        return gizmo.activateRotatePivotManipulator();
    case Mode::ScalePivot:
        return gizmo.activateScalePivotManipulator();
    case Mode::Clipping:
        return gizmo.activateClippingManipulator();
    case Mode::TranslateRotate:
        return gizmo.activateTranslateRotateManipulator();
    case Mode::TranslateRotateYZ:
        return gizmo.activateTranslateRotateYZManipulator();
    case Mode::TranslateRotateScale:
        return gizmo.activateTranslateRotateScaleManipulator();
    }
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
    return drag.press(onGizmo(unit)) && drag.stepTo(osg::Vec2f());
}

osg::Transform3DPtr DragScene::core() const
{
    return transformOf(scene.node);
}

osg::Transform3DPtr DragScene::parentCore() const
{
    return transformOf(parent);
}

void DragScene::edit(const osg::Transform3DPtr& transform,
                     const std::function<void(const osg::Transform3DPtr&)>& change)
{
    osg::beginEditCP(transform);
    change(transform);
    osg::endEditCP(transform);
    gizmo.update(true);
}

osg::NodePtr DragScene::addFurther(const osg::Vec3f& translation)
{
    const osg::NodePtr further = osg::makeCoredNode<osg::Transform3D>();
    const auto transform = transformOf(further);
    nbtest::edited(transform)->setTranslation(translation);
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

bool isFinite(const osg::Matrix& matrix)
{
    return std::all_of(matrix.getValues(), matrix.getValues() + 16,
                       [](float value) { return std::isfinite(value); });
}

}  // namespace nbec::manipulator::test
