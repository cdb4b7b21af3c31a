// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/AnchorScene.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>

namespace nbec::manipulator::test {

AnchorScene::AnchorScene(AnchoredTextureManipulator& anchored, const AnchoredTraits& traits,
                         Receiver receiver)
    : gizmo(anchored)
    , parent(osg::makeCoredNode<osg::Transform3D>())
    , material(osg::UberMaterial::create())
    , settings(osg::ColorComponentSettings::create())
{
    nbController::clear();
    nbUndoService::the()->clear();
    addChild(nbScenegraph::getRootNode(), parent);
    addChild(parent, scene.node);
    settings->setTextureProjectionType(traits.type);
    material->setComponentSettings(osg::UberMaterial::kDiffuseComponent, settings);
    {
        const auto geometry = osg::GeometryPtr::dcast(scene.node->getChild(0)->getCore());
        const nbEdit edit(geometry, osg::Geometry::MaterialFieldMask);
        geometry->setMaterial(material.get());
    }
    if (receiver == Receiver::Editor) {
        editor = std::make_unique<nbMaterialEditor>("label");
        editor->setMaterial(material.get(), scene.node, osg::UberMaterial::kDiffuseComponent);
    } else {
        listen(std::string("label") + traits.changed);
        listen("setMatRenderEnabled");
        listen("updateMatRender");
    }
    gizmo.setMessageReceiver("label");
    gizmo.setAnchor(scene.node, osg::Pnt3f(0, 0, 0));
    gizmo.setMaterialComponent(material.get(), osg::UberMaterial::kDiffuseComponent, nullptr);
    scene.install(gizmo);
    log.clear();
}

AnchorScene::~AnchorScene()
{
    editor.reset();
    nbController::clear();
    notification::NotificationManager::getInstance()->clear();
    nbUndoService::the()->clear();
}

void AnchorScene::look(Camera from, bool orthographic)
{
    drag.look(from, orthographic);
    gizmo.update(false);
}

void AnchorScene::edit(const osg::Transform3DPtr& transform,
                       const std::function<void(const osg::Transform3DPtr&)>& change)
{
    {
        const nbEdit edited(transform, osg::FieldBits::AllFields);
        change(transform);
    }
    gizmo.update(false);
}

void AnchorScene::editSettings(
    const std::function<void(const osg::ColorComponentSettingsPtr&)>& change)
{
    {
        const nbEdit edited(settings, osg::FieldBits::AllFields);
        change(settings);
    }
    gizmo.update(true);
}

osg::Transform3DPtr AnchorScene::core() const
{
    return transformOf(scene.node);
}

osg::Transform3DPtr AnchorScene::parentCore() const
{
    return transformOf(parent);
}

osg::NodePtr AnchorScene::handle(const std::string& name) const
{
    return findNode(gizmo.getVisualisation(), name);
}

osg::Pnt3f AnchorScene::onHandle(const std::string& name, const osg::Vec3f& unit) const
{
    osg::Pnt3f point(unit);
    handle(name)->getParent()->getToWorld().multMatrixPnt(point);
    return point;
}

osg::Pnt3f AnchorScene::originOf(const std::string& name) const
{
    osg::Pnt3f point;
    handle(name)->getToWorld().multMatrixPnt(point);
    return point;
}

bool AnchorScene::grabAt(const std::string& name, const osg::Pnt3f& world)
{
    return drag.press(world) && nbNodeUtils::getName(scene.picker.getHitNode()) == name &&
        drag.stepTo(osg::Vec2f());
}

bool AnchorScene::grab(const std::string& name, const osg::Vec3f& unit)
{
    return grabAt(name, onHandle(name, unit));
}

}  // namespace nbec::manipulator::test
