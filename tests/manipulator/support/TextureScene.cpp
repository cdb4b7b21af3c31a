// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/TextureScene.h"

#include "tests/platform/support/Edited.h"

namespace nbec::manipulator::test {

namespace {

using Settings = osg::ColorComponentSettings;

/// Message of a step, and type of the projection.
std::pair<const char*, int> rowOf(AnchoredTextureManipulator& gizmo)
{
    return dynamic_cast<UVTextureManipulator*>(&gizmo) != nullptr
        ? std::pair("label::changedUVManipulator", Settings::UVProjection)
        : dynamic_cast<TireProjectionManipulator*>(&gizmo) != nullptr
        ? std::pair("label::changedTireManipulator", Settings::TireProjection)
        : std::pair("label::changedTriplanarManipulator", Settings::TriplanarProjection);
}

}  // namespace

TextureScene::TextureScene(AbstractManipulator& gizmo, Receiver receiver, const char* changed,
                           int type)
    : HandleScene(gizmo)
    , material(osg::UberMaterial::create())
    , settings(Settings::create())
    , projection(osg::Transform3D::create())
{
    nbtest::edited(settings)->setTextureProjectionType(type);
    nbtest::edited(settings)->setPlanarProjection(projection);
    material->setComponentSettings(osg::UberMaterial::kDiffuseComponent, settings);
    const auto geometry = osg::GeometryPtr::dcast(scene.node->getChild(0)->getCore());
    nbtest::edited(geometry, osg::Geometry::MaterialFieldMask)->setMaterial(material.get());
    if (receiver == Receiver::Editor) {
        editor = std::make_unique<nbMaterialEditor>("label");
        editor->setMaterial(material.get(), scene.node, osg::UberMaterial::kDiffuseComponent);
        return;
    }
    listen(changed);
    listen("label::getScaleValues", [this](nbMessage& message) {
        if (scaleReply) {
            scaleReply(message);
        }
    });
    listen("setMatRenderEnabled");
    listen("updateMatRender");
}

TextureScene::TextureScene(PlanarTextureManipulator& planar, Receiver receiver)
    : TextureScene(planar, receiver, "label::changedPlanarManipulator", Settings::PlanarProjection)
{
    planar.setMessageReceiver("label");
    planar.setMaterialComponent(material.get(), osg::UberMaterial::kDiffuseComponent, nullptr);
    planar.setNode(scene.node);
    scene.install(planar);
    log.clear();
}

TextureScene::TextureScene(AnchoredTextureManipulator& gizmo, Receiver receiver)
    : TextureScene(gizmo, receiver, rowOf(gizmo).first, rowOf(gizmo).second)
{
    gizmo.setMessageReceiver("label");
    gizmo.setAnchor(scene.node, osg::Pnt3f(0, 0, 0));
    gizmo.setMaterialComponent(material.get(), osg::UberMaterial::kDiffuseComponent, nullptr);
    scene.install(gizmo);
    log.clear();
}

void TextureScene::editSettings(
    const std::function<void(const osg::ColorComponentSettingsPtr&)>& change)
{
    osg::beginEditCP(settings);
    change(settings);
    osg::endEditCP(settings);
    manipulator.update(true);
}

osg::Pnt3f PlanarScene::inWorld(const osg::Vec3f& inProjection) const
{
    osg::Pnt3f point(inProjection);
    projection->getMatrix().multMatrixPnt(point);
    scene.node->getToWorld().multMatrixPnt(point);
    return point;
}

}  // namespace nbec::manipulator::test
