// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/DragScene.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbTransform/nbTransformModel.h>

#include <OpenSG/OSGSimpleGeometry.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::test {

namespace {

using Gizmo = UniversalTransformManipulator2;

void addChild(const osg::NodePtr& above, const osg::NodePtr& child)
{
    osg::beginEditCP(above, osg::Node::ChildrenFieldMask);
    above->addChild(child);
    osg::endEditCP(above, osg::Node::ChildrenFieldMask);
}

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
    const osg::UberCameraPtr camera = scene.widget.getUberCamera();
    osg::beginEditCP(camera);
    camera->setOrthographic(orthographic);
    osg::endEditCP(camera);
    static const osg::Pnt3f kEyes[] = {
        { 0, 0, 10 }, { 10, 0, 0 }, { 0, 10, 0 }, { 20.0F / 7, 30.0F / 7, 60.0F / 7 }
    };
    const osg::Pnt3f& eye = kEyes[static_cast<std::size_t>(from)];
    const osg::Vec3f up = from == Camera::Top ? osg::Vec3f(0, 0, -1) : osg::Vec3f(0, 1, 0);
    camera->setFromAtUp(eye, osg::Pnt3f(0, 0, 0), up);
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

osg::Pnt2f DragScene::rayPixelOf(const osg::Pnt3f& world) const
{
    const osg::Pnt2f middle(400.0F, 300.0F);
    osg::Line ray;
    scene.widget.getCamera()->calcViewRay(ray, 400, 300, *scene.widget.getViewport());
    const osg::Pnt3f onRay = ray.getPosition() + ray.getDirection() * 10.0F;
    return scene.pixelOf(world) + (middle - scene.pixelOf(onRay));
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
    const osg::Pnt2f pixel = rayPixelOf(onGizmo(unit));
    pressed = osg::Pnt2f(std::round(pixel.x()), std::round(pixel.y()));
    reached = osg::Vec2f();
    return scene.send("start", pressed) && scene.send("process", pressed);
}

bool DragScene::stepTo(const osg::Vec2f& offsetPx)
{
    reached = offsetPx;
    return scene.send(
        "process",
        osg::Pnt2f(std::round(pressed.x() + offsetPx.x()), std::round(pressed.y() + offsetPx.y())));
}

bool DragScene::dragBy(const osg::Vec2f& offsetPx)
{
    const osg::Vec2f from = reached;
    const osg::Vec2f way = offsetPx - from;
    const int steps = std::max(1, static_cast<int>(std::ceil(way.length())));
    bool isHandled = true;
    for (int i = 1; i <= steps; ++i) {
        isHandled =
            stepTo(from + way * (static_cast<float>(i) / static_cast<float>(steps))) && isHandled;
    }
    return isHandled;
}

bool DragScene::release()
{
    return scene.send("stop", osg::Pnt2f(pressed.x() + reached.x(), pressed.y() + reached.y()));
}

osg::Transform3DPtr DragScene::core() const
{
    return osg::Transform3DPtr::dcast(scene.node->getCore());
}

osg::Transform3DPtr DragScene::parentCore() const
{
    return osg::Transform3DPtr::dcast(parent->getCore());
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
    const auto transform = osg::Transform3DPtr::dcast(further->getCore());
    osg::beginEditCP(transform);
    transform->setTranslation(translation);
    osg::endEditCP(transform);
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
