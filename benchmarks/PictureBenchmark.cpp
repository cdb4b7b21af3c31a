// SPDX-License-Identifier: MIT
// Frames of plain boxes with and without boxes beside them that show a projected picture, which
// must cost the plain ones nothing; and frames of a drag of one projection.
// Needs a display: tests/support/with-display.sh nbPictureBenchmark
#include <nbOpenSGRenderAction/nbImageConvert.h>
#include <nbOpenSGRenderAction/nbOffscreenView.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>
#include <nbOpenSGUberViewport/UberViewport.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <QtGui/QGuiApplication>

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr int kViewSidePx = 256;
constexpr int kPictureSidePx = 64;
constexpr int kRowLength = 40;
constexpr int kMaterials = 50;

/// Boxes in rows, of which the first ones have plain materials.
class Scene
{
public:
    Scene(std::int64_t plainBoxes, std::int64_t pictureBoxes)
        : root(osg::makeCoredNode<osg::Group>())
        , camera(osg::UberCamera::create())
        , viewport(osg::UberViewport::create())
    {
        QImage picture(kPictureSidePx, kPictureSidePx, QImage::Format_ARGB32);
        picture.fill(QColor(200, 50, 50, 128));
        image = nbImageConvert::toImage(picture);
        for (int i = 0; i < kMaterials; ++i) {
            const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
            material->setDiffuse(osg::Color3f(0.02f * static_cast<float>(i), 0.5f, 0.5f));
            plain.emplace_back(material);
            uber.emplace_back(makeUber());
        }
        for (std::int64_t i = 0; i < plainBoxes + pictureBoxes; ++i) {
            const auto index = static_cast<std::size_t>(i % kMaterials);
            addBox(i, i < plainBoxes ? plain[index].get() : uber[index].get());
        }
        camera->setFromAtUp(osg::Pnt3f(0.f, 0.f, 80.f), osg::Pnt3f(0.f, 0.f, 0.f),
                            osg::Vec3f(0.f, 1.f, 0.f));
        viewport->setCamera(camera.get());
        viewport->setRoot(root.get());
        // What is measured is drawing.
        view.getAction().setSceneKept(false);
    }

    void moveOneProjection()
    {
        const osg::Transform3DPtr projection =
            osg::UberMaterialPtr::dcast(uber.front().get())
                ->getComponentSettings(osg::UberMaterial::kDiffuseComponent)
                ->getPlanarProjection();
        const nbEdit edit(projection, osg::Transform3D::TranslationFieldMask);
        projection->setTranslation(projection->getTranslation() + osg::Vec3f(0.001f, 0.f, 0.f));
    }

    void draw() { benchmark::DoNotOptimize(view.render(viewport.get(), kViewSidePx, kViewSidePx)); }

private:
    osg::MaterialPtr makeUber() const
    {
        const osg::UberMaterialPtr material = osg::UberMaterial::create();
        const osg::ColorComponentSettingsPtr settings = osg::ColorComponentSettings::create();
        settings->setPlanarProjection(osg::Transform3D::create());
        material->setComponentSettings(osg::UberMaterial::kDiffuseComponent, settings);
        material->setImage(osg::UberMaterial::kDiffuseComponent, image.get());
        return material;
    }

    void addBox(std::int64_t index, const osg::MaterialPtr& material)
    {
        const osg::NodePtr box = osg::makeBox(0.8f, 0.8f, 0.8f, 1, 1, 1);
        osg::GeometryPtr::dcast(box->getCore())->setMaterial(material);
        osg::ComponentTransformPtr place;
        const osg::NodePtr node = osg::makeCoredNode<osg::ComponentTransform>(&place);
        {
            const nbEdit edit(place, osg::ComponentTransform::TranslationFieldMask);
            place->setTranslation(
                osg::Vec3f(static_cast<float>(index % kRowLength) - kRowLength / 2,
                           static_cast<float>(index / kRowLength) - kRowLength / 2, 0.f));
        }
        node->addChild(box);
        root->addChild(node);
    }

    osg::NodeRefPtr root;
    osg::RefPtr<osg::UberCameraPtr> camera;
    osg::RefPtr<osg::UberViewportPtr> viewport;
    osg::RefPtr<osg::ImagePtr> image;
    std::vector<osg::RefPtr<osg::MaterialPtr>> plain;
    std::vector<osg::RefPtr<osg::MaterialPtr>> uber;
    nbOffscreenView view;
};

/// Qt's part of the windowless drawing.
void startGui()
{
    static int argc = 1;
    static char name[] = "nbPictureBenchmark";
    static char* argv[] = { name, nullptr };
    static const QGuiApplication application(argc, argv);
}

void frame(benchmark::State& state)
{
    startGui();
    Scene scene(state.range(0), state.range(1));
    scene.draw();
    for (auto iteration : state) {
        scene.draw();
    }
}

void frameOfADrag(benchmark::State& state)
{
    startGui();
    Scene scene(state.range(0), state.range(1));
    scene.draw();
    for (auto iteration : state) {
        scene.moveOneProjection();
        scene.draw();
    }
}

BENCHMARK(frame)
    ->ArgNames({ "plain", "pictures" })
    ->Args({ 800, 0 })
    ->Args({ 1600, 0 })
    ->Args({ 800, 800 })
    ->Args({ 0, 1600 })
    ->Unit(benchmark::kMillisecond);
BENCHMARK(frameOfADrag)
    ->ArgNames({ "plain", "pictures" })
    ->Args({ 800, 800 })
    ->Unit(benchmark::kMillisecond);

}  // namespace
