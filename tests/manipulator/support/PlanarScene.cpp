// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/PlanarScene.h"

#include "tests/platform/support/Edited.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

using Gizmo = PlanarTextureManipulator;

PlanarScene::PlanarScene(Receiver receiver)
    : parent(osg::makeCoredNode<osg::Transform3D>())
    , material(osg::UberMaterial::create())
    , settings(osg::ColorComponentSettings::create())
    , projection(osg::Transform3D::create())
{
    nbController::clear();
    nbUndoService::the()->clear();
    Gizmo::setManipulatorSize(32.0F);
    addChild(nbScenegraph::getRootNode(), parent);
    addChild(parent, scene.node);
    makeMaterial();
    if (receiver == Receiver::Editor) {
        editor = std::make_unique<nbMaterialEditor>("label");
        editor->setMaterial(material.get(), scene.node, osg::UberMaterial::kDiffuseComponent);
    } else {
        listen("label::changedPlanarManipulator");
        listen("label::getScaleValues", [this](nbMessage& message) {
            if (scaleReply) {
                scaleReply(message);
            }
        });
        listen("setMatRenderEnabled");
        listen("updateMatRender");
    }
    gizmo.setMessageReceiver("label");
    gizmo.setMaterialComponent(material.get(), osg::UberMaterial::kDiffuseComponent, nullptr);
    gizmo.setNode(scene.node);
    scene.install(gizmo);
    log.clear();
}

PlanarScene::~PlanarScene()
{
    nbController::clear();
    Gizmo::setManipulatorSize(32.0F);
    notification::NotificationManager::getInstance()->clear();
    nbUndoService::the()->clear();
}

void PlanarScene::makeMaterial()
{
    nbtest::edited(settings)->setPlanarProjection(projection);
    material->setComponentSettings(osg::UberMaterial::kDiffuseComponent, settings);
    const auto geometry = osg::GeometryPtr::dcast(scene.node->getChild(0)->getCore());
    nbtest::edited(geometry, osg::Geometry::MaterialFieldMask)->setMaterial(material.get());
}

void PlanarScene::look(Camera from, bool orthographic)
{
    drag.look(from, orthographic);
    Gizmo::updateAllManipulators();
}

void PlanarScene::edit(const osg::Transform3DPtr& transform,
                       const std::function<void(const osg::Transform3DPtr&)>& change)
{
    osg::beginEditCP(transform);
    change(transform);
    osg::endEditCP(transform);
    gizmo.update(true);
}

osg::Transform3DPtr PlanarScene::core() const
{
    return transformOf(scene.node);
}

osg::Transform3DPtr PlanarScene::parentCore() const
{
    return transformOf(parent);
}

osg::Matrix PlanarScene::worldFromProjection() const
{
    osg::Matrix result = scene.node->getToWorld();
    result.mult(projection->getMatrix());
    return result;
}

osg::Pnt3f PlanarScene::inWorld(const osg::Vec3f& inProjection) const
{
    osg::Pnt3f point(inProjection);
    worldFromProjection().multMatrixPnt(point);
    return point;
}

osg::NodePtr PlanarScene::handle(const std::string& name)
{
    return findNode(gizmo.getVisualisation(), name);
}

osg::Pnt3f PlanarScene::onHandle(const std::string& name, const osg::Vec3f& unit)
{
    const osg::NodePtr node = handle(name);
    const bool isTab = name.compare(0, 5, "scale") == 0;
    osg::Pnt3f point(unit);
    (isTab ? node : node->getParent())->getToWorld().multMatrixPnt(point);
    return point;
}

bool PlanarScene::grab(const std::string& name, const osg::Vec3f& unit)
{
    return drag.press(onHandle(name, unit)) &&
        nbNodeUtils::getName(scene.picker.getHitNode()) == name;
}

}  // namespace nbec::manipulator::test
