// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/TextureScene.h"

#include "tests/platform/support/Edited.h"

namespace nbec::manipulator::test {

using Settings = osg::ColorComponentSettings;

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

TextureScene::TextureScene(TriplanarTextureManipulator& gizmo, Receiver receiver)
    : TextureScene(gizmo, receiver, "label::changedTriplanarManipulator",
                   Settings::TriplanarProjection)
{
    anchor(gizmo);
}

TextureScene::TextureScene(UVTextureManipulator& gizmo, Receiver receiver)
    : TextureScene(gizmo, receiver, "label::changedUVManipulator", Settings::UVProjection)
{
    anchor(gizmo);
}

TextureScene::TextureScene(TireProjectionManipulator& gizmo, Receiver receiver)
    : TextureScene(gizmo, receiver, "label::changedTireManipulator", Settings::TireProjection)
{
    anchor(gizmo);
}

void TextureScene::anchor(AnchoredTextureManipulator& gizmo)
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

}  // namespace nbec::manipulator::test
