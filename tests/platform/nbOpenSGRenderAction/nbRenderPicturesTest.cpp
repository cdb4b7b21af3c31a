// SPDX-License-Identifier: MIT
#include "tests/platform/support/Edited.h"
#include "tests/platform/support/PictureTest.h"

using namespace rendertest;

namespace {

using Settings = osg::ColorComponentSettings;

constexpr float kPi = 3.14159265f;

class nbRenderPicturesTest : public RenderTest
{
protected:
    void setOrthographic(bool on) { nbtest::edited(camera)->setOrthographic(on); }

    static osg::NodePtr wall(const PictureMaterial& picture, float size = 4.f, float z = 0.f,
                             float x = 0.f)
    {
        return square(size, picture.material.get(), z, x);
    }
};

}  // namespace

// == Where the picture is

TEST_F(nbRenderPicturesTest, PictureIsWhereTheProjectionSaysInBothKindsOfView)
{
    struct Row
    {
        const char* what;
        std::vector<Probe> probes;
        osg::Vec3f translation {};
        osg::Vec3f scale { 1.f, 1.f, 1.f };
        osg::Vec3f rotationDeg {};
        float orientation = 0.f;
    };

    const Row rows[] = {
        { "translated",
          { { 0.3f, 0.1f, kBlue },
            { 1.3f, -0.9f, kGreen },
            { -0.26f, 0.f, kGrey },
            { 0.5f, 0.66f, kGrey } },
          { 0.8f, -0.4f, 3.f } },
        { "scaled",
          { { -0.25f, 1.7f, kBlue }, { 0.44f, -1.7f, kGreen }, { 0.56f, 0.f, kGrey } },
          {},
          { 0.5f, 1.8f, 1.f } },
        { "mirrored", { { -0.5f, 0.5f, kYellow }, { 0.5f, -0.5f, kRed } }, {}, { -1.f, 1.f, 1.f } },
        { "turned by its angles and its orientation, 45 degrees each",
          { { 0.25f, 0.5f, kGreen },
            { -0.25f, 0.5f, kYellow },
            { -0.25f, -0.5f, kBlue },
            { 0.25f, -0.5f, kRed },
            { 0.6f, 0.f, kGrey },
            { -0.4f, 0.94f, kYellow } },
          {},
          { 1.f, 0.5f, 1.f },
          { 0.f, 0.f, 45.f },
          0.25f * kPi },
        // What lies at y on the wall is at y cos 60 along the picture.
        { "turned about x, so that it is seen shortened",
          { { -0.5f, 1.8f, kBlue }, { 0.5f, -1.8f, kGreen }, { 1.06f, 0.5f, kGrey } },
          {},
          { 1.f, 1.f, 1.f },
          { 60.f, 0.f, 0.f } },
    };
    for (const bool orthographic : { true, false }) {
        setOrthographic(orthographic);
        for (const Row& row : rows) {
            PictureMaterial picture;
            picture.setPicture(colorQuarters());
            picture.place(row.translation, row.scale, row.rotationDeg);
            picture.setOrientation(row.orientation);
            expectColors(draw(wall(picture)), row.probes, row.what);
        }
    }
}

TEST_F(nbRenderPicturesTest, RepeatsAlongTheAxesThatSaySo)
{
    PictureMaterial picture;
    picture.setPicture(colorQuarters());
    picture.place({ 0.f, 0.f, 0.f }, { 0.4f, 0.4f, 1.f });
    const osg::NodePtr root = wall(picture);

    expectColors(draw(root), { { 1.f, 0.2f, kGrey }, { 0.2f, 1.f, kGrey } }, "no repeat");
    picture.setFlags(Settings::RepeatU);
    expectColors(redraw(), { { 1.f, 0.2f, kYellow }, { 0.6f, -0.2f, kRed }, { 0.2f, 1.f, kGrey } },
                 "along x");
    picture.setFlags(Settings::RepeatV | Settings::KeepAspectRatio);
    expectColors(redraw(), { { 1.f, 0.2f, kGrey }, { 0.2f, 0.6f, kGreen } }, "along y");
    picture.setFlags(Settings::RepeatU | Settings::RepeatV);
    expectColors(redraw(), { { -1.f, -1.f, kRed }, { 0.6f, 1.f, kBlue } }, "along both");
}

TEST_F(nbRenderPicturesTest, ZExtentReachesFromThePlaneOneUnitBehindIt)
{
    PictureMaterial picture;
    picture.setPicture(colorQuarters());
    picture.place({ 0.f, 0.f, 0.5f }, { 2.f, 2.f, 0.8f });
    std::vector<osg::NodePtr> walls;
    // From 0.5 down to -0.3, both ends included.
    const float places[] = { 0.6f, 0.5f, 0.1f, -0.3f, -0.4f };
    for (int i = 0; i < 5; ++i) {
        // The material's space is each square's own: the transform above moves the square, so the
        // square itself has to be at the height.
        const osg::Vec3f way(-1.6f + 0.8f * static_cast<float>(i), 0.5f, places[i]);
        walls.push_back(colored(osg::makePlane(0.6f, 0.6f, 1, 1), picture.material.get()));
        nbtest::changePoints(walls.back(), [&way](const osg::Pnt3f& p) { return p + way; });
    }
    const osg::NodePtr root = group(walls);

    expectColors(draw(root), { { -1.6f, 0.5f, kBlue }, { 1.6f, 0.5f, kYellow } }, "unlimited");
    picture.setFlags(Settings::ClampZ);
    expectColors(redraw(),
                 { { -1.6f, 0.5f, kGrey },
                   { -0.8f, 0.5f, kBlue },
                   { -0.1f, 0.5f, kBlue },
                   { 0.1f, 0.5f, kYellow },
                   { 0.8f, 0.5f, kYellow },
                   { 1.6f, 0.5f, kGrey } },
                 "in the extent");
}

TEST_F(nbRenderPicturesTest, LiesInTheSpaceOfTheNodeThatCarriesTheMaterial)
{
    PictureMaterial picture;
    picture.setPicture(colorQuarters());
    picture.place({ 0.5f, 0.f, 0.f }, { 0.5f, 0.5f, 1.f });

    // The wall turned by 90 degrees and made twice as wide along its x, which is up now.
    const osg::NodePtr plane = colored(osg::makePlane(2.f, 2.f, 1, 1), picture.material.get());
    expectColors(
        draw(transformed(plane, { 0.5f, 0.f, 0.f }, { 0.f, 0.f, 90.f }, { 2.f, 1.f, 1.f })),
        { { 0.25f, 1.5f, kYellow },
          { 0.75f, 1.5f, kGreen },
          { 0.25f, 0.5f, kBlue },
          { 0.75f, 0.5f, kRed },
          { 1.1f, 1.5f, kGrey },
          { 0.5f, -0.5f, kGrey } },
        "a geometry's own material");
}

// == How it covers

TEST_F(nbRenderPicturesTest, DiffusePictureCoversByAlphaOrAsAMaskByBrightness)
{
    QImage picture = colorQuarters().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width() / 2; ++x) {
            picture.setPixelColor(x, y, QColor(255, 255, 255, y < picture.height() / 2 ? 0 : 128));
        }
    }
    PictureMaterial decal;
    decal.setPicture(picture);
    const osg::NodePtr root = wall(decal);

    const QImage byAlpha = draw(root);
    expectColors(byAlpha, { { -0.5f, 0.5f, kGrey }, { 0.5f, 0.5f, kYellow } }, "by alpha");
    EXPECT_NEAR(at(byAlpha, -0.5f, -0.5f).red(), 178, 1) << "half of white over grey";
    decal.setMask(false, true);
    expectColors(redraw(), { { -0.5f, 0.5f, kWhite }, { 0.5f, 0.5f, kGrey }, { 1.2f, 0.f, kGrey } },
                 "by inverted alpha");
    decal.setMask(true, false);
    const QImage byBrightness = redraw();
    expectColors(byBrightness, { { -0.5f, 0.5f, kWhite } }, "by brightness");
    EXPECT_NEAR(at(byBrightness, 0.5f, -0.5f).green(), 152, 1) << "a third of green";
    EXPECT_NEAR(at(byBrightness, 0.5f, -0.5f).red(), 67, 1);
}

TEST_F(nbRenderPicturesTest, ColorsOfTransparentPixelsDoNotShowAtTheBordersOfOpaqueOnes)
{
    // White columns between hidden black ones over white: all of it is white.
    QImage columns(8, 8, QImage::Format_ARGB32);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            columns.setPixelColor(x, y, x % 2 == 0 ? kWhite : QColor(0, 0, 0, 0));
        }
    }
    PictureMaterial decal;
    decal.setPicture(columns);
    nbtest::edited(decal.material)->setDiffuse(color(kWhite));
    for (const float scale : { 1.9f, 0.05f }) {
        decal.place({ 0.f, 0.f, 0.f }, { scale, scale, 1.f });
        const QImage picture = draw(wall(decal));
        for (int x = 0; x < kSize; ++x) {
            ASSERT_EQ(picture.pixelColor(x, kSize / 2), kWhite) << scale << " at pixel " << x;
        }
    }
}

TEST_F(nbRenderPicturesTest, TransparencyPictureCutsTheSurfaceOut)
{
    PictureMaterial cutout(osg::UberMaterial::kTransparencyComponent);
    cutout.setPicture(quarters(kWhite, kBlack, QColor(128, 128, 128), kWhite));
    EXPECT_FALSE(cutout.material->isTransparent());
    const osg::NodePtr root =
        group({ square(4.f, unlit(kBlue), -1.f), wall(cutout), square(0.2f, unlit(kRed), -2.f) });

    expectColors(draw(root), { { 0.5f, 0.5f, kGrey } }, "no alpha and no mask");
    cutout.setMask(true, false);
    EXPECT_TRUE(cutout.material->isTransparent());
    const QImage masked = redraw();
    expectColors(masked,
                 { { -0.5f, 0.5f, kGrey },
                   { 0.5f, 0.5f, kBlue },
                   { 0.5f, -0.5f, kGrey },
                   { 1.5f, 0.5f, kGrey } },
                 "mask");
    EXPECT_NEAR(at(masked, -0.5f, -0.5f).blue(), 177, 1) << "half of grey over blue";
    cutout.setMask(true, true);
    expectColors(redraw(),
                 { { -0.5f, 0.5f, kBlue },
                   { 0.5f, 0.5f, kGrey },
                   { 0.5f, -0.5f, kBlue },
                   { 1.5f, 0.5f, kGrey } },
                 "inverted mask");
    cutout.setMask(false, false);
    cutout.setPicture(QImage(2, 2, QImage::Format_ARGB32));
    EXPECT_TRUE(cutout.material->isTransparent()) << "by alpha";
    cutout.material->setImage(cutout.component, osg::Image::create());
    EXPECT_FALSE(cutout.material->isTransparent());
}

TEST_F(nbRenderPicturesTest, OpaquePartsOfACutOutBodyHideWhatIsBehindThem)
{
    PictureMaterial picture;
    picture.setPicture(quarters(kRed, kRed, kRed, kRed));
    picture.place({ 0.f, 0.f, 0.6f }, { 1.f, 1.f, 0.2f });
    picture.setFlags(Settings::ClampZ);
    PictureMaterial mask(osg::UberMaterial::kTransparencyComponent);
    nbtest::edited(mask.settings)->setAsMask(true);
    picture.material->setComponentSettings(mask.component, mask.settings.get());
    picture.material->setImage(mask.component,
                               nbImageConvert::toImage(quarters(kWhite, kBlack, kWhite, kWhite)));
    const osg::NodePtr body = colored(osg::makeBox(1.f, 1.f, 1.f, 1, 1, 1), picture.material.get());

    expectColors(draw(body), { { -0.25f, 0.25f, kRed }, { 0.25f, 0.25f, kBlack } }, "front");
    lookFrom(osg::Pnt3f(0.f, 0.f, -10.f));
    expectColors(redraw(), { { 0.25f, 0.25f, kGrey }, { -0.25f, 0.25f, kBlack } }, "back");
}

// == What cannot be shown

TEST_F(nbRenderPicturesTest, WithoutAnImageOrAnAreaTheSurfaceIsPlain)
{
    PictureMaterial picture;
    expectColors(draw(wall(picture)), { { 0.3f, 0.3f, kGrey } }, "none");
    picture.material->setImage(picture.component, osg::Image::create());
    expectColors(redraw(), { { 0.3f, 0.3f, kGrey } }, "no pixels");
    picture.setPicture(colorQuarters());
    expectColors(redraw(), { { 0.3f, 0.3f, kYellow } }, "sound");
    picture.place({ 0.f, 0.f, 0.f }, { 0.f, 1.f, 1.f });
    expectColors(redraw(), { { 0.3f, 0.3f, kGrey }, { 0.f, 0.3f, kGrey } }, "flat");
}

// == Formats of pictures

TEST_F(nbRenderPicturesTest, ShowsPicturesOfEveryFormat)
{
    const std::tuple<osg::Image::PixelFormat, std::vector<osg::UInt8>, QColor> rows[] = {
        { osg::Image::OSG_L_PF, { 200 }, QColor(200, 200, 200) },
        { osg::Image::OSG_I_PF, { 255 }, kWhite },
        { osg::Image::OSG_LA_PF, { 10, 255 }, QColor(10, 10, 10) },
        { osg::Image::OSG_LA_PF, { 10, 0 }, kGrey },
        { osg::Image::OSG_RGB_PF, { 10, 20, 30 }, QColor(10, 20, 30) },
        { osg::Image::OSG_BGR_PF, { 10, 20, 30 }, QColor(30, 20, 10) },
        { osg::Image::OSG_RGBA_PF, { 10, 20, 30, 255 }, QColor(10, 20, 30) },
        { osg::Image::OSG_BGRA_PF, { 10, 20, 30, 255 }, QColor(30, 20, 10) },
    };
    for (const auto& [format, pixel, shown] : rows) {
        PictureMaterial picture;
        const osg::ImagePtr image = osg::Image::create();
        image->set(format, 1, 1, 1, 1, 1, 0.0, pixel.data());
        picture.material->setImage(picture.component, image);
        expectColors(draw(wall(picture)), { { 0.f, 0.f, shown } }, "format");
    }
}
