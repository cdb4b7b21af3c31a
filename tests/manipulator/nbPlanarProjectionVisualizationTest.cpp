// SPDX-License-Identifier: MIT
#include "manipulator/nbPlanarProjectionVisualization.h"

#include "tests/manipulator/support/GizmoScene.h"
#include "tests/platform/support/PictureTest.h"

#include <OpenSG/OSGDepthChunk.h>

namespace {

using nbec::manipulator::test::transformOf;
using rendertest::group;
using rendertest::placed;

constexpr float kTolerance = 1e-5f;
constexpr int kColorTolerance = 3;

/// Image of 4 x 4 pixels, all alike.
osg::ImagePtr makeImage(osg::UInt32 format, const std::vector<osg::UInt8>& pixel)
{
    constexpr int kSide = 4;
    std::vector<osg::UInt8> data;
    for (int i = 0; i < kSide * kSide; ++i) {
        data.insert(data.end(), pixel.begin(), pixel.end());
    }
    const osg::ImagePtr image = osg::Image::create();
    image->set(format, kSide, kSide, 1, 1, 1, 0.0, data.data());
    return image;
}

/// Materials of the planes below a node, in tree order.
std::vector<osg::SimpleMaterialPtr> planeMaterials(const osg::NodePtr& top)
{
    std::vector<osg::SimpleMaterialPtr> found;
    for (const osg::NodePtr& part : nbec::manipulator::test::partsOf(top)) {
        found.push_back(
            osg::SimpleMaterialPtr::dcast(osg::GeometryPtr::dcast(part->getCore())->getMaterial()));
        if (found.back()->find(osg::TextureChunk::getClassType()) == osg::NullFC) {
            found.pop_back();
        }
    }
    return found;
}

template <class Chunk>
typename Chunk::Ptr chunkOf(const osg::SimpleMaterialPtr& material)
{
    return Chunk::Ptr::dcast(material->find(Chunk::getClassType()));
}

osg::ImagePtr shownImage(const nbPlanarProjectionVisualization& visualization)
{
    const auto materials = planeMaterials(visualization.get2DTransformNode());
    return chunkOf<osg::TextureChunk>(materials.at(0))->getImage();
}

osg::NodePtr zExtentNode(const nbPlanarProjectionVisualization& visualization)
{
    return visualization.getProjectionTransformNode()->getChild(1);
}

void expectBox(const osg::NodePtr& node, const osg::Pnt3f& low, const osg::Pnt3f& high)
{
    osg::DynamicVolume volume;
    node->getWorldVolume(volume);
    osg::Pnt3f min;
    osg::Pnt3f max;
    volume.getBounds(min, max);
    EXPECT_TRUE(min.equals(low, kTolerance)) << min;
    EXPECT_TRUE(max.equals(high, kTolerance)) << max;
}

// == The tree

TEST(nbPlanarProjectionVisualization, ShowsAndHidesAsAWholeAndTheZExtentAlone)
{
    nbPlanarProjectionVisualization visualization;
    const osg::NodePtr extent = zExtentNode(visualization);

    visualization.setZScaleVisible(false);
    EXPECT_FALSE(extent->getActive());
    EXPECT_FALSE(extent->getChild(0)->getActive());
    EXPECT_TRUE(visualization.get2DTransformNode()->getActive());
    visualization.setZScaleVisible(true);
    visualization.setVisible(false);
    EXPECT_TRUE(extent->getActive() && extent->getChild(0)->getActive());
    EXPECT_FALSE(visualization.getRootNode()->getActive());

    // A mask that shows it in some passes only is no reason to leave it there.
    visualization.getRootNode()->setTravMask(1);
    visualization.setVisible(false);
    EXPECT_EQ(0U, visualization.getRootNode()->getTravMask());
}

// == Placement

TEST(nbPlanarProjectionVisualization, FollowsTheObjectAndTheProjection)
{
    nbPlanarProjectionVisualization visualization;
    const osg::NodePtr object = group({});
    const osg::NodeRefPtr scene(placed(object, osg::Vec3f(10, 0, 0)));
    // The quarter turn takes the projection's x to y; half of it is the orientation.
    rendertest::PictureMaterial picture;
    picture.place(osg::Vec3f(0, 5, 0), osg::Vec3f(2, 3, 4), osg::Vec3f(0, 0, 45));
    picture.setOrientation(osg::Pi / 4);

    visualization.attachToNode(object);
    visualization.updateProjectionTransform(picture.settings.get());
    visualization.setScale(2, 3);

    expectBox(visualization.get2DTransformNode(), { 7, 3, 0 }, { 13, 7, 0 });
    // The box in which the projection shows when it ends in z.
    expectBox(zExtentNode(visualization), { 7, 3, -4 }, { 13, 7, 0 });
    EXPECT_EQ(osg::Vec3f(2, 3, 4), transformOf(zExtentNode(visualization))->getScale());

    // Without a projection nothing moves.
    const osg::RefPtr<osg::ColorComponentSettingsPtr> empty(osg::ColorComponentSettings::create());
    visualization.updateProjectionTransform(empty.get());
    visualization.updateProjectionTransform(osg::ColorComponentSettingsPtr());
    visualization.setRotate(90);
    expectBox(visualization.get2DTransformNode(), { 8, 2, 0 }, { 12, 8, 0 });

    visualization.attachToNode(osg::NodePtr());
    expectBox(visualization.get2DTransformNode(), { -2, 2, 0 }, { 2, 8, 0 });
}

// == Textures

TEST(nbPlanarProjectionVisualization, ShowsAnImageWithAlphaAndNoneWithout)
{
    nbPlanarProjectionVisualization visualization;
    const osg::RefPtr<osg::ImagePtr> clear(makeImage(osg::Image::OSG_RGBA_PF, { 255, 0, 0, 128 }));
    const osg::RefPtr<osg::ImagePtr> opaque(makeImage(osg::Image::OSG_RGB_PF, { 255, 0, 0 }));

    visualization.setTexture(clear.get(), false, false);
    EXPECT_EQ(clear.get(), shownImage(visualization));
    for (const osg::SimpleMaterialPtr& material : planeMaterials(visualization.getRootNode())) {
        EXPECT_NE(osg::NullFC, chunkOf<osg::BlendChunk>(material));
        EXPECT_FALSE(chunkOf<osg::DepthChunk>(material)->getEnable());
    }
    visualization.setTexture(opaque.get(), false, false);
    EXPECT_EQ(osg::NullFC, shownImage(visualization));
    visualization.setTexture(clear.get(), false, true);
    EXPECT_EQ(clear.get(), shownImage(visualization));
    visualization.setTexture(osg::ImagePtr(), true, true);
    EXPECT_EQ(osg::NullFC, shownImage(visualization));
}

TEST(nbPlanarProjectionVisualization, AMaskIsTheBrightnessAsAlpha)
{
    nbPlanarProjectionVisualization visualization;
    const osg::RefPtr<osg::ImagePtr> source(
        makeImage(osg::Image::OSG_RGBA_PF, { 40, 50, 60, 255 }));

    visualization.setTexture(source.get(), true, false);
    const osg::ImagePtr mask = shownImage(visualization);
    ASSERT_NE(osg::NullFC, mask);
    EXPECT_NE(source.get(), mask);
    EXPECT_EQ(osg::UInt32(osg::Image::OSG_A_PF), mask->getPixelFormat());
    EXPECT_EQ(50, *mask->getData());
    EXPECT_EQ(1, mask->getMipMapCount());

    visualization.setTexture(source.get(), true, true);
    const osg::ImagePtr inverted = shownImage(visualization);
    EXPECT_EQ(205, *inverted->getData());
    EXPECT_EQ(3, inverted->getMipMapCount());
    EXPECT_EQ(205, *inverted->getData(2));
    EXPECT_EQ(osg::UInt32(osg::Image::OSG_RGBA_PF), source->getPixelFormat());
}

TEST(nbPlanarProjectionVisualization, TheSameTextureAgainDoesNothingAlsoThroughACopy)
{
    nbPlanarProjectionVisualization visualization;
    const osg::RefPtr<osg::ImagePtr> source(makeImage(osg::Image::OSG_RGB_PF, { 9, 9, 9 }));
    visualization.setTexture(source.get(), true, false);
    const osg::ImagePtr mask = shownImage(visualization);

    nbPlanarProjectionVisualization copy(visualization);
    nbPlanarProjectionVisualization assigned;
    assigned = visualization;
    visualization.setTexture(source.get(), true, false);
    copy.setTexture(source.get(), true, false);
    EXPECT_EQ(mask, shownImage(visualization));
    EXPECT_EQ(visualization.getRootNode(), copy.getRootNode());
    EXPECT_EQ(visualization.getRootNode(), assigned.getRootNode());

    // What one of them changes is no longer what the others would leave alone.
    copy.setTexture(osg::ImagePtr(), false, false);
    visualization.setTexture(source.get(), true, false);
    EXPECT_NE(osg::NullFC, shownImage(visualization));
}

// == Pictures

class PlanarProjectionPictureTest : public rendertest::RenderTest
{
protected:
    static void expectColor(const QColor& expected, const QColor& seen)
    {
        EXPECT_NEAR(expected.red(), seen.red(), kColorTolerance);
        EXPECT_NEAR(expected.green(), seen.green(), kColorTolerance);
        EXPECT_NEAR(expected.blue(), seen.blue(), kColorTolerance);
    }

    nbPlanarProjectionVisualization visualization;
};

TEST_F(PlanarProjectionPictureTest, ThePictureShowsThroughTheObjectWithItsRightWayUp)
{
    // Left half clear, right half white, the lower right quarter green.
    const osg::ImagePtr image = makeImage(osg::Image::OSG_RGBA_PF, { 255, 255, 255, 0 });
    for (int y = 0; y < 4; ++y) {
        for (int x = 2; x < 4; ++x) {
            osg::UInt8* const pixel = image->getData() + 4 * (4 * y + x);
            pixel[0] = pixel[2] = y < 2 ? 0 : 255;
            pixel[3] = 255;
        }
    }

    visualization.setTexture(image, false, false);
    visualization.setPlaneTransparency(0.5f);
    // Behind a wall at z = 1.
    const osg::NodePtr wall = rendertest::square(4.f, rendertest::unlit(rendertest::kRed), 1.f);
    const QImage picture = draw(group({ wall, visualization.getRootNode() }));

    expectColor(rendertest::kRed, at(picture, -0.75f, 0.5f));
    expectColor(QColor(255, 128, 128), at(picture, 0.75f, 0.75f));
    EXPECT_GT(at(picture, 0.75f, -0.75f).green(), 120);
    EXPECT_LT(at(picture, 0.75f, -0.75f).blue(), 80);
    expectColor(rendertest::kRed, at(picture, 1.5f, 0.f));
    // The same from behind, by half as well.
    camera->setFromAtUp({ 0.f, 0.f, -10.f }, { 0.f, 0.f, 0.f }, { 0.f, 1.f, 0.f });
    expectColor(QColor(255, 128, 128), at(redraw(), -0.75f, 0.75f));
}

TEST_F(PlanarProjectionPictureTest, OutlineAndZExtentAreLinesThatCanBeSeenFromTheSide)
{
    camera->setFromAtUp({ 10.f, 0.f, 0.f }, { 0.f, 0.f, 0.f }, { 0.f, 1.f, 0.f });
    rendertest::PictureMaterial projected;
    projected.place(osg::Vec3f(0, 0, 0), osg::Vec3f(1, 1, 1.5f));
    visualization.updateProjectionTransform(projected.settings.get());

    // From the side, x on the picture is -z: the extent goes from 0 to 1.5, its edge at y = 1.
    const auto edgeIsSeen = [](const QImage& picture) {
        return at(picture, 0.7f, 0.99f).red() + at(picture, 0.7f, 1.01f).red() > 100;
    };
    const QImage picture = draw(group({ visualization.getRootNode() }));
    EXPECT_TRUE(edgeIsSeen(picture));
    EXPECT_GT(at(picture, 0.7f, 0.99f).red() + at(picture, 0.7f, 1.01f).red(),
              at(picture, 0.7f, 0.99f).green() + at(picture, 0.7f, 1.01f).green() + 10);
    visualization.setZScaleVisible(false);
    EXPECT_FALSE(edgeIsSeen(redraw()));
}

}  // namespace
