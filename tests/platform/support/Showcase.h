// SPDX-License-Identifier: MIT
#pragma once

#include "tests/platform/support/PictureTest.h"
#include "tests/platform/support/Plates.h"

#include <nbOpenSGExt/ClipPlane3D.h>

namespace rendertest {

inline void setDiffuse(const osg::MaterialPtr& material, const QColor& c)
{
    nbtest::edited(osg::SimpleMaterialPtr::dcast(material))->setDiffuse(color(c));
}

inline osg::MaterialPtr materialOf(const osg::NodePtr& placedGeometry)
{
    return osg::GeometryPtr::dcast(placedGeometry->getChild(0)->getCore())->getMaterial();
}

inline osg::SimpleMaterialPtr lit(const QColor& c, float transparency = 0.f)
{
    const osg::SimpleMaterialPtr material = unlit(c, 0, transparency);
    material->setLit(true);
    return material;
}

inline osg::SHLChunkPtr shaderChunk()
{
    const osg::SHLChunkPtr chunk = osg::SHLChunk::create();
    chunk->setFragmentProgram("#version 330 core\n"
                              "uniform vec4 tint;\n"
                              "layout (location = 0) out vec4 color;\n"
                              "layout (location = 1) out vec4 effect;\n"
                              "void main() { color = tint; effect = vec4(1.0); }\n");
    chunk->setUniformParameter("tint", osg::Vec4f(0.5f, 0.f, 0.5f, 1.f));
    return chunk;
}

inline osg::TextureChunkPtr textureChunk()
{
    const osg::TextureChunkPtr chunk = osg::TextureChunk::create();
    osg::ImagePtr image = nbImageConvert::toImage(colorQuarters());
    chunk->setImage(image);
    chunk->setEnvMode(GL_MODULATE);
    return chunk;
}

inline void turn(const osg::NodePtr& node, float z)
{
    const auto core = osg::ComponentTransformPtr::dcast(node->getCore());
    nbtest::edited(core)->setTranslation(core->getTranslation() + osg::Vec3f(0.f, 0.f, z));
}

/// One of each thing that a picture depends on, in a perspective view.
struct Showcase
{
    Showcase()
    {
        pictured.setPicture(colorQuarters());
        clip->setEquation(osg::Vec4f(1.f, 0.f, 0.f, 0.f));
        clip->setTransformNode(clipPlace.get());
        const osg::NodePtr cut = osg::makeNodeFor(osg::NodeCorePtr(clip.get()));
        cut->addChild(ball);
        const osg::NodePtr helper = colored(nbGeoFactory::makeLine(2.f), unlit(kYellow));
        nbNodeUtils::setIsAuxiliaryNode(helper, true);
        root = group({ cut, glass, card, shaded, textured, helper, late, backPlate, frontPlate,
                       manipulator({ handle, veilHandle, lineHandle }) });
    }

    osg::RefPtr<osg::SHLChunkPtr> shader { shaderChunk() };
    osg::RefPtr<osg::TextureChunkPtr> texture { textureChunk() };
    osg::RefPtr<osg::ClipPlane3DPtr> clip { osg::ClipPlane3D::create() };
    PictureMaterial pictured;
    osg::NodeRefPtr clipPlace { placed(group({}), osg::Vec3f(-0.2f, 0.f, 0.f)) };
    osg::NodeRefPtr ball { placed(colored(osg::makeLatLongSphere(40, 40, 1.f), lit(kRed)),
                                  osg::Vec3f(0.f, 0.f, 0.f)) };
    osg::NodeRefPtr glass { placed(colored(osg::makeLatLongSphere(20, 20, 0.6f), lit(kBlue, 0.5f)),
                                   osg::Vec3f(0.5f, 0.5f, 1.f)) };
    osg::NodeRefPtr card { square(1.5f, pictured.material.get(), -1.f, -1.f) };
    osg::NodeRefPtr shaded { square(0.5f, with(unlit(kWhite), osg::StateChunkPtr(shader.get())),
                                    0.f, 1.4f) };
    osg::NodeRefPtr textured { square(0.8f, with(unlit(kWhite), osg::StateChunkPtr(texture.get())),
                                      1.f, -1.4f) };
    /// Drawn after the handles unless a plate is before the scene.
    osg::NodeRefPtr late { square(0.6f, unlit(kGreen, 70000, 0.5f), 1.5f, 0.3f) };
    osg::NodeRefPtr handle { square(0.4f, unlit(kYellow, 64016), 0.f, 0.5f) };
    osg::NodeRefPtr veilHandle { square(0.4f, unlit(kGreen, 64015, 0.5f), 0.3f, 0.6f) };
    osg::NodeRefPtr lineHandle { placed(
        colored(nbGeoFactory::makeLine(1.f), with(unlit(kBlue, 64016), lineChunk(5.f))),
        osg::Vec3f(0.3f, 0.3f, 0.f)) };
    osg::NodeRefPtr backPlate { platetest::makePlate({ 40.f, 30.f, 50.f, 30.f, 0.f }, kSize,
                                                     osg::Color4f(0.f, 1.f, 1.f, 1.f)) };
    osg::NodeRefPtr frontPlate { platetest::makePlate({ 160.f, 160.f, 40.f, 30.f, 20.f }, kSize,
                                                      osg::Color4f(1.f, 0.f, 1.f, 0.7f)) };
    osg::NodeRefPtr root;
};

}  // namespace rendertest
