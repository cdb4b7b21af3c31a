// SPDX-License-Identifier: MIT
#pragma once

#include "tests/platform/support/Edited.h"

#include <nbOpenSGExt/DepthTestChunk.h>
#include <nbOpenSGRenderAction/nbOffscreenView.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberViewport/UberViewport.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbGeoFactory.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSHLChunk.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

/// What tests of rendered pictures share: makers of small trees, and the view that they are drawn
/// in.
namespace rendertest {

constexpr int kSize = 200;
/// The view is this many world units high and wide; its centre is the origin.
constexpr float kViewHeight = 4.f;

inline const QColor kRed(255, 0, 0);
inline const QColor kGreen(0, 255, 0);
inline const QColor kBlue(0, 0, 255);
inline const QColor kBlack(0, 0, 0);

inline osg::Color3f color(const QColor& c)
{
    return osg::Color3f(static_cast<float>(c.redF()), static_cast<float>(c.greenF()),
                        static_cast<float>(c.blueF()));
}

inline osg::SimpleMaterialPtr unlit(const QColor& c, int sortKey = 0, float transparency = 0.f)
{
    const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
    material->setDiffuse(color(c));
    material->setLit(false);
    material->setSortKey(sortKey);
    material->setTransparency(transparency);
    return material;
}

template <class MaterialPtr>
MaterialPtr with(const MaterialPtr& material, const osg::StateChunkPtr& chunk)
{
    material->addChunk(chunk);
    return material;
}

inline osg::StateChunkPtr lineChunk(float width)
{
    const osg::LineChunkPtr chunk = osg::LineChunk::create();
    chunk->setWidth(width);
    chunk->setSmooth(true);
    return chunk;
}

inline osg::StateChunkPtr alwaysChunk()
{
    const osg::DepthTestChunkPtr chunk = osg::DepthTestChunk::create();
    chunk->setFunc(GL_ALWAYS);
    return chunk;
}

inline osg::StateChunkPtr blendChunk()
{
    const osg::BlendChunkPtr chunk = osg::BlendChunk::create();
    chunk->setSrcFactor(GL_SRC_ALPHA);
    chunk->setDestFactor(GL_ONE_MINUS_SRC_ALPHA);
    return chunk;
}

inline osg::NodePtr colored(const osg::NodePtr& node, const osg::MaterialPtr& material)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    geometry->setMaterial(material);
    return node;
}

inline osg::NodePtr group(const std::vector<osg::NodePtr>& children)
{
    const osg::NodePtr node = osg::makeCoredNode<osg::Group>();
    for (const osg::NodePtr& child : children) {
        node->addChild(child);
    }
    return node;
}

inline osg::NodePtr materialGroup(const osg::MaterialPtr& material, const osg::NodePtr& child)
{
    osg::MaterialGroupPtr core;
    const osg::NodePtr node = osg::makeCoredNode<osg::MaterialGroup>(&core);
    core->setMaterial(material);
    node->addChild(child);
    return node;
}

inline osg::NodePtr placed(const osg::NodePtr& child, const osg::Vec3f& translation,
                           const osg::Quaternion& rotation = osg::Quaternion())
{
    osg::ComponentTransformPtr core;
    const osg::NodePtr node = osg::makeCoredNode<osg::ComponentTransform>(&core);
    nbtest::edited(core)->setTranslation(translation);
    nbtest::edited(core)->setRotation(rotation);
    node->addChild(child);
    return node;
}

inline osg::NodePtr square(float size, const osg::MaterialPtr& material, float z = 0.f,
                           float x = 0.f)
{
    return placed(colored(osg::makePlane(size, size, 1, 1), material), osg::Vec3f(x, 0.f, z));
}

inline osg::NodePtr manipulator(const std::vector<osg::NodePtr>& children)
{
    const osg::NodePtr node = group(children);
    nbNodeUtils::setIsAuxiliaryNode(node, true);
    nbNodeUtils::setIsManipulatorNode(node, true);
    return node;
}

/// One view for all tests: an orthographic camera on the z axis, black background, 200 x 200 pixels
/// for 4 x 4 units, so that a pixel is 0.02 units.
class RenderTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { view = std::make_unique<nbOffscreenView>(); }

    static void TearDownTestSuite() { view.reset(); }

    void SetUp() override
    {
        ASSERT_TRUE(view->open()) << view->getError();
        camera = osg::UberCamera::create();
        viewport = osg::UberViewport::create();
        const nbEdit edit(camera, osg::FieldBits::AllFields);
        camera->setOrthographic(true);
        camera->setFov(2.f * std::atan(0.5f * kViewHeight / 10.f) * 180.f / 3.14159265f);
        lookFrom(osg::Pnt3f(0.f, 0.f, 10.f));
        const nbEdit viewportEdit(viewport, osg::FieldBits::AllFields);
        viewport->setBackgroundColor(osg::Color4f(0.f, 0.f, 0.f, 1.f));
        viewport->setCamera(camera.get());
    }

    void lookFrom(const osg::Pnt3f& eye)
    {
        const osg::Vec3f up =
            std::fabs(eye.y()) > 5.f ? osg::Vec3f(0.f, 0.f, -1.f) : osg::Vec3f(0.f, 1.f, 0.f);
        camera->setFromAtUp(eye, osg::Pnt3f(0.f, 0.f, 0.f), up);
    }

    QImage draw(const osg::NodePtr& root)
    {
        scene = root;
        return redraw();
    }

    QImage redraw()
    {
        viewport->setRoot(scene.get());
        const QImage picture = view->render(viewport.get(), kSize, kSize);
        EXPECT_FALSE(picture.isNull()) << view->getError();
        // For looking at what was drawn: a directory that gets every picture as a PNG file.
        const char* directory = std::getenv("NB_TEST_PICTURES");
        if (directory != nullptr) {
            const auto* info = testing::UnitTest::GetInstance()->current_test_info();
            picture.save(QString("%1/%2_%3.png").arg(directory, info->name()).arg(pictureCount++));
        }
        return picture;
    }

    /// The effect buffer instead of the colours, black where there is none.
    QImage redrawEffect()
    {
        view->getAction().showEffectBuffer(true);
        const QImage effect = redraw();
        view->getAction().showEffectBuffer(false);
        return effect;
    }

    /// Colour at a place in world units, for a camera on the z axis.
    static QColor at(const QImage& picture, float x, float y)
    {
        const float pxPerUnit = kSize / kViewHeight;
        return picture.pixelColor(static_cast<int>(std::floor(0.5f * kSize + x * pxPerUnit)),
                                  static_cast<int>(std::floor(0.5f * kSize - y * pxPerUnit)));
    }

    /// A colour that is wanted at such a place.
    struct Probe
    {
        float x;
        float y;
        QColor color;
    };

    static void expectColors(const QImage& picture, const std::vector<Probe>& probes,
                             const char* what)
    {
        for (const Probe& probe : probes) {
            EXPECT_EQ(at(picture, probe.x, probe.y), probe.color)
                << what << " at " << probe.x << ", " << probe.y << ": "
                << at(picture, probe.x, probe.y).name().toStdString();
        }
    }

    static inline std::unique_ptr<nbOffscreenView> view;
    osg::RefPtr<osg::UberCameraPtr> camera;
    osg::RefPtr<osg::UberViewportPtr> viewport;
    osg::NodeRefPtr scene;
    int pictureCount = 0;
};

}  // namespace rendertest
