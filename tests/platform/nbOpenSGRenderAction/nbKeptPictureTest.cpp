// SPDX-License-Identifier: MIT
// Frames that begin with the kept image of the scene are those that are drawn in full, to the last
// bit, whatever was changed before.
#include "tests/platform/support/Showcase.h"

#include <functional>

namespace {

using namespace rendertest;

/// A view that keeps the image of the scene, and one that does not to compare with.
class KeptPictureTest : public RenderTest
{
protected:
    using Change = std::pair<const char*, std::function<void()>>;

    static void SetUpTestSuite()
    {
        RenderTest::SetUpTestSuite();
        plainView = std::make_unique<nbOffscreenView>();
    }

    static void TearDownTestSuite()
    {
        plainView.reset();
        RenderTest::TearDownTestSuite();
    }

    void SetUp() override
    {
        RenderTest::SetUp();
        ASSERT_TRUE(plainView->open()) << plainView->getError();
        plainView->getAction().setSceneKept(false);
        camera->setOrthographic(false);
        lookFrom(osg::Pnt3f(2.f, 3.f, 6.f));
        viewport->setRoot(show.root.get());
    }

    void TearDown() override
    {
        forBoth([](nbRenderAction& action) {
            action.setPixelRatio(1.f);
            action.setSubpixelShift(0.f, 0.f);
            action.showEffectBuffer(false);
            action.setSamples(8);
        });
    }

    static void forBoth(const std::function<void(nbRenderAction&)>& set)
    {
        set(view->getAction());
        set(plainView->getAction());
    }

    /// How many pixels differ; -1 without two pictures of one size.
    static int difference(const QImage& found, const QImage& expected)
    {
        if (found.isNull() || found.size() != expected.size()) {
            return -1;
        }
        int count = 0;
        for (int y = 0; y < found.height(); ++y) {
            for (int x = 0; x < found.width(); ++x) {
                count += found.pixel(x, y) != expected.pixel(x, y) ? 1 : 0;
            }
        }
        return count;
    }

    /// Draws in both views, which must be alike.
    QImage compare(const std::string& after)
    {
        const QImage kept = view->render(viewport.get(), widthPx, kSize);
        const QImage full = plainView->render(viewport.get(), widthPx, kSize);
        EXPECT_EQ(difference(kept, full), 0) << after;
        EXPECT_EQ(plainView->getAction().getStatistics().reused, 0U);
        return kept;
    }

    /// Draws until the image of the scene stands.
    QImage settle()
    {
        compare("settling");
        compare("settling");
        return compare("settling");
    }

    static std::size_t reused() { return view->getAction().getStatistics().reused; }

    osg::SceneplatePtr frontPlate() const { return platetest::plateOf(show.frontPlate); }

    /// Those that leave the scene as it is.
    std::vector<Change> handleChanges();
    std::vector<Change> materialChanges();
    std::vector<Change> placeChanges();
    std::vector<Change> viewChanges();

    QColor nextColor()
    {
        constexpr int kTurn = 97;
        hue = (hue + kTurn) % 360;
        return QColor::fromHsv(hue, 200, 200);
    }

    osg::Color4f nextRgba()
    {
        const osg::Color3f next = color(nextColor());
        return osg::Color4f(next.red(), next.green(), next.blue(), 1.f);
    }

    Showcase show;
    int widthPx = kSize;
    float pixelRatio = 1.f;
    int hue = 0;
    static inline std::unique_ptr<nbOffscreenView> plainView;
};

std::vector<KeptPictureTest::Change> KeptPictureTest::handleChanges()
{
    return {
        { "highlight", [this] { setDiffuse(materialOf(show.handle), nextColor()); } },
        { "handle moved", [this] { turn(show.handle, 0.1f); } },
        { "handle hidden or shown",
          [this] { nbtest::edited(show.lineHandle)->setActive(!show.lineHandle->getActive()); } },
        { "plate before the scene marked",
          [this] {
              nbtest::edited(frontPlate())->setMarker((frontPlate()->getMarker() + 1) % 3);
          } },
        { "plate before the scene moved",
          [this] {
              const osg::Vec2f place = frontPlate()->getPosition();
              nbtest::edited(frontPlate())->setPosition(place - osg::Vec2f(0.02f, 0.01f));
          } },
    };
}

std::vector<KeptPictureTest::Change> KeptPictureTest::materialChanges()
{
    return {
        { "colour of an object", [this] { setDiffuse(materialOf(show.ball), nextColor()); } },
        { "item that is drawn late", [this] { setDiffuse(materialOf(show.late), nextColor()); } },
        { "image of a texture",
          [this] {
              osg::ImagePtr image = nbImageConvert::toImage(
                  quarters(nextColor(), nextColor(), nextColor(), nextColor()));
              nbtest::edited(show.texture)->setImage(image);
          } },
        { "pixels of a texture's image",
          [this] {
              const osg::ImagePtr image = show.texture->getImage();
              const nbEdit edit(image, osg::FieldBits::AllFields);
              std::fill_n(image->getData(), 3 * 64 * 16, static_cast<osg::UInt8>(hue = hue + 9));
          } },
        { "parameter of a shader",
          [this] {
              show.shader->setUniformParameter("tint", osg::Vec4f(nextRgba().getValuesRGBA()));
          } },
        { "projected picture",
          [this] {
              show.pictured.setPicture(
                  quarters(nextColor(), nextColor(), nextColor(), nextColor()));
          } },
        { "place of a projection",
          [this] {
              hue += 7;
              show.pictured.place(osg::Vec3f(0.001f * static_cast<float>(hue), 0.f, 0.f),
                                  osg::Vec3f(0.5f, 0.5f, 1.f));
          } },
        { "plate behind the scene",
          [this] { nbtest::edited(platetest::plateOf(show.backPlate))->setColor(nextRgba()); } },
        { "picture of a plate",
          [this] {
              nbtest::edited(platetest::plateOf(show.backPlate))
                  ->setImage(nbImageConvert::toImage(colorQuarters()));
          } },
        { "pixels of a plate's picture",
          [this] {
              const osg::ImagePtr image = platetest::plateOf(show.backPlate)->getImage();
              std::fill_n(nbtest::edited(image)->getData(), 3 * 64 * 32, osg::UInt8(99));
          } },
    };
}

std::vector<KeptPictureTest::Change> KeptPictureTest::placeChanges()
{
    return {
        { "object moved", [this] { turn(show.ball, 0.05f); } },
        { "glass moved", [this] { turn(show.glass, 0.05f); } },
        { "object within the others' bounds moved", [this] { turn(show.shaded, 0.05f); } },
        { "clip plane's place, which is not in the tree",
          [this] {
              const auto core = osg::ComponentTransformPtr::dcast(show.clipPlace->getCore());
              const osg::Vec3f way(0.05f, 0.f, 0.f);
              nbtest::edited(core)->setTranslation(core->getTranslation() + way);
          } },
        { "corner of a geometry",
          [this] {
              const auto geometry = osg::GeometryPtr::dcast(show.card->getChild(0)->getCore());
              const osg::Pnt3f corner = geometry->getPositions()->getValue(0);
              nbtest::edited(geometry->getPositions())
                  ->setValue(corner - osg::Vec3f(0.05f, 0.f, 0.f), 0);
          } },
        { "object hidden or shown",
          [this] { nbtest::edited(show.textured)->setActive(!show.textured->getActive()); } },
    };
}

std::vector<KeptPictureTest::Change> KeptPictureTest::viewChanges()
{
    return {
        { "camera",
          [this] { lookFrom(osg::Pnt3f(2.f + 0.001f * static_cast<float>(++hue), 3.f, 6.f)); } },
        { "width", [this] { widthPx = widthPx == kSize ? kSize + 60 : kSize; } },
        { "plate before the scene hidden or shown",
          [this] { nbtest::edited(frontPlate())->setVisible(!frontPlate()->getVisible()); } },
        { "background", [this] { nbtest::edited(viewport)->setBackgroundColor(nextRgba()); } },
        { "photograph",
          [this] {
              const QImage picture = quarters(nextColor(), kWhite, kYellow, nextColor());
              nbtest::edited(viewport)->setPhotograph(nbImageConvert::toImage(picture));
          } },
        { "veil",
          [this] {
              nbtest::edited(viewport)->setPhotograph(nbImageConvert::toImage(colorQuarters()));
              nbtest::edited(viewport)->setPhotographVeil(
                  viewport->getPhotographVeil() > 0.4f ? 0.2f : 0.5f);
          } },
        { "pixel ratio",
          [this] {
              pixelRatio = pixelRatio > 1.f ? 1.f : 1.6f;
              forBoth([this](nbRenderAction& action) { action.setPixelRatio(pixelRatio); });
          } },
        { "shift by part of a pixel",
          [this] {
              hue += 1;
              forBoth([this](nbRenderAction& action) {
                  action.setSubpixelShift(0.1f * static_cast<float>(hue % 5), 0.25f);
              });
          } },
    };
}

TEST_F(KeptPictureTest, ChangesOfHandlesAndPlatesUseTheImageOfTheScene)
{
    for (const auto& [name, make] : handleChanges()) {
        const QImage before = settle();
        make();
        const QImage after = compare(name);
        EXPECT_NE(before, after) << name << " is not seen";
        EXPECT_GE(reused(), 4U) << name;
    }
}

TEST_F(KeptPictureTest, EveryOtherChangeIsSeenInTheNextPicture)
{
    for (const auto& changes : { materialChanges(), placeChanges(), viewChanges() }) {
        for (const auto& [name, make] : changes) {
            const QImage before = settle();
            EXPECT_GE(reused(), 1U) << "before " << name;
            make();
            EXPECT_NE(before, compare(name)) << name << " is not seen";
            setDiffuse(materialOf(show.handle), nextColor());
            compare(std::string("highlight after ") + name);
        }
    }
}

TEST_F(KeptPictureTest, EffectBufferAndSamplesChangeNothing)
{
    settle();
    for (const bool isEffect : { true, false, true }) {
        forBoth([isEffect](nbRenderAction& action) { action.showEffectBuffer(isEffect); });
        compare("effect buffer on or off");
        setDiffuse(materialOf(show.handle), nextColor());
        compare("highlight after that");
    }
    for (const int samples : { 1, 2, 8 }) {
        forBoth([samples](nbRenderAction& action) { action.setSamples(samples); });
        settle();
        setDiffuse(materialOf(show.handle), nextColor());
        compare("highlight with other samples");
        EXPECT_GE(reused(), 4U);
    }
}

TEST_F(KeptPictureTest, ADragDrawsTheRestOnceWhereverItIsInTheTreeAndGoes)
{
    const auto ball = [](const QColor& c, osg::UInt16 rows, float x) {
        return placed(colored(osg::makeLatLongSphere(rows, rows, 0.6f), lit(c)),
                      osg::Vec3f(x, 0.f, 0.f));
    };
    const osg::NodePtr first = ball(kRed, 12, -0.9f);
    const osg::NodePtr middle = ball(kGreen, 12, 0.9f);
    const osg::NodeRefPtr root(group({ first, ball(kBlue, 80, 0.f), middle }));
    viewport->setRoot(root.get());
    view->getAction().setMovedLast(true);
    // The last one goes beyond the bounds of the others.
    const std::vector<std::pair<osg::NodePtr, float>> drags { { first, 0.02f },
                                                              { middle, -0.02f },
                                                              { first, 0.4f } };
    for (const auto& [node, z] : drags) {
        view->render(viewport.get(), widthPx, kSize);
        for (int step = 0; step < 6; ++step) {
            turn(node, z);
            const QImage quick = view->render(viewport.get(), widthPx, kSize);
            const QImage full = plainView->render(viewport.get(), widthPx, kSize);
            // Depths are rounded otherwise, which single samples of a meeting may show.
            EXPECT_LE(difference(quick, full), 20) << "step " << step;
            EXPECT_EQ(reused(), step == 0 ? 0U : 2U) << "step " << step;
        }
    }
    lookFrom(osg::Pnt3f(2.f, 3.1f, 6.f));
    compare("the camera moved");
    view->getAction().setMovedLast(false);
    turn(middle, 0.02f);
    compare("in the tree's order again");
}

TEST_F(KeptPictureTest, SlowPicturesOfAMovingCameraAreCoarseBelowWholeHandles)
{
    // What a software renderer does not draw in time.
    const QSize slow(2600, 1800);
    const auto draw = [&](nbOffscreenView& in) {
        return in.render(viewport.get(), slow.width(), slow.height());
    };
    const QImage whole = draw(*view);
    view->getAction().setHurried(true);
    draw(*view);
    draw(*view);
    const QImage coarse = draw(*view);
    view->getAction().setHurried(false);
    if (!view->getAction().getStatistics().coarse) {
        GTEST_SKIP() << "this machine draws whole pictures in time";
    }
    EXPECT_NE(coarse, whole);
    const auto small = [](const QImage& picture) {
        return picture.scaled(130, 90, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage a = small(coarse);
    const QImage b = small(whole);
    int most = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            most = std::max(most, std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))));
        }
    }
    EXPECT_LE(most, 24) << "another picture, not a coarser one";
    EXPECT_EQ(draw(*view), whole);
}

}  // namespace
