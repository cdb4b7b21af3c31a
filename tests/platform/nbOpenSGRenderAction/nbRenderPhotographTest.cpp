// SPDX-License-Identifier: MIT
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbMagnifier/nbMagnifierRenderer.h>
#include <nbOpenSGRenderAction/nbImageConvert.h>
#include <nbOpenSGUberViewport/nbPhotographFit.h>

#include <cstdlib>
#include <limits>

#include <tests/platform/support/RenderTest.h>

namespace {

using namespace rendertest;

/// Vertical stripes, so that neighbours tell each other apart, of a picture of its own size.
QImage stripes(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.setPixelColor(x, y, QColor((x * 37) % 256, (y * 53) % 256, (x * y) % 256));
        }
    }
    return picture;
}

int difference(const QColor& a, const QColor& b)
{
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
        std::abs(a.blue() - b.blue());
}

TEST(nbPhotographFit, KeepsTheReferenceSideAndTheMiddle)
{
    const std::tuple<const char*, QSize, bool, QRectF> rows[] = {
        { "wider view, by the height", QSize(2000, 500), true, QRectF(625., 0., 750., 500.) },
        { "narrower view, by the height", QSize(500, 500), true, QRectF(-125., 0., 750., 500.) },
        { "wider view, by the width", QSize(600, 100), false, QRectF(0., -150., 600., 400.) },
        { "no area", QSize(600, 0), false, QRectF(0., 0., 0., 0.) },
    };
    for (const auto& [name, size, verticalSizing, expected] : rows) {
        SCOPED_TRACE(name);
        const nbPhotographFit fit =
            nbPhotographFit::of(300, 200, size.width(), size.height(), verticalSizing);
        EXPECT_EQ(QRectF(fit.left, fit.bottom, fit.width, fit.height), expected);
    }
}

/// A main render widget with a photograph and nothing in its scene.
class nbRenderPhotographTest : public RenderTest
{
protected:
    nbRenderPhotographTest()
    {
        widget.setMain();
        const nbEdit edit(widget.getViewport(), osg::FieldBits::AllFields);
        widget.getUberViewport()->setBackgroundColor(osg::Color4f(0.f, 0.f, 0.f, 1.f));
    }

    ~nbRenderPhotographTest() override
    {
        nbMagnifierRenderer::setVisible(false);
        nbScenegraph::clear();
    }

    void show(const QImage& photograph)
    {
        const nbEdit edit(widget.getViewport(), osg::UberViewport::PhotographFieldMask);
        widget.getUberViewport()->setPhotograph(nbImageConvert::toImage(photograph));
    }

    QImage draw(int width, int height)
    {
        widget.resize(width, height);
        QImage picture = view->render(widget.getViewport(), width, height);
        EXPECT_FALSE(picture.isNull()) << view->getError();
        return picture;
    }

    nbOSGWidget widget;
};

TEST_F(nbRenderPhotographTest, APhotographOfTheViewsHeightIsShownPixelByPixel)
{
    const QImage photograph = stripes(60, 40);
    show(photograph);

    const QImage picture = draw(100, 40);

    int worst = 0;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 60; ++x) {
            worst = std::max(
                worst, difference(picture.pixelColor(x + 20, y), photograph.pixelColor(x, y)));
        }
    }
    EXPECT_LE(worst, 3);
    EXPECT_EQ(picture.pixelColor(19, 20), kBlack);
    EXPECT_EQ(picture.pixelColor(80, 20), kBlack);

    QImage changed(60, 40, QImage::Format_ARGB32);
    changed.fill(QColor(0, 0, 255, 128));
    show(changed);
    EXPECT_LE(difference(draw(100, 40).pixelColor(50, 20), QColor(0, 0, 128)), 3);
    show(QImage());
    EXPECT_EQ(draw(100, 40).pixelColor(50, 20), kBlack);
}

TEST_F(nbRenderPhotographTest, AVeilCoversTheSceneButNoHandles)
{
    nbScenegraph::getRootNode()->addChild(square(4.f, unlit(kRed)));
    const osg::NodePtr handle = placed(square(1.f, unlit(kGreen)), osg::Vec3f(0.f, 1.f, 0.f));
    nbScenegraph::getInternalRoot()->addChild(manipulator({ handle }));
    QImage photograph(40, 40, QImage::Format_RGB32);
    photograph.fill(kBlue);
    show(photograph);
    EXPECT_EQ(draw(200, 200).pixelColor(100, 120), kRed);

    const nbEdit edit(widget.getViewport(), osg::UberViewport::PhotographVeilFieldMask);
    widget.getUberViewport()->setPhotographVeil(0.25f);
    const QImage picture = draw(200, 200);

    EXPECT_LE(difference(picture.pixelColor(100, 120), QColor(191, 0, 64)), 3);
    EXPECT_EQ(picture.pixelColor(100, 76), kGreen);
    EXPECT_EQ(picture.pixelColor(20, 20), kBlue);

    // The lens shows the photograph without scene and handles, under a cross that leaves the
    // middle.
    nbMagnifierRenderer::setVisible(true);
    nbMagnifierRenderer::setCursorPosition(100, 76);
    nbMagnifierRenderer::setMagnificationScale(2.f);
    const QImage magnified = draw(200, 200);
    EXPECT_LE(difference(magnified.pixelColor(100, 80), kBlue), 3);
    EXPECT_GT(magnified.pixelColor(100, 90).red(), 200);
    EXPECT_LE(difference(magnified.pixelColor(100, 126), kBlue), 3);
    EXPECT_EQ(magnified.pixelColor(100, 170), picture.pixelColor(100, 170));
}

TEST_F(nbRenderPhotographTest, TheMagnifierShowsPixelsAsSquaresAboutTheCursor)
{
    constexpr int kWidth = 300;
    constexpr int kHeight = 240;
    show(stripes(kWidth, kHeight));
    const QImage plain = draw(kWidth, kHeight);
    nbMagnifierRenderer::setVisible(true);

    const std::tuple<int, int, int> rows[] = {
        { 150, 100, 5 }, { 151, 121, 4 }, { 0, 0, 4 }, { 299, 239, 3 }
    };
    for (const auto& [cursorX, cursorY, scale] : rows) {
        SCOPED_TRACE(testing::Message() << cursorX << ", " << cursorY << " by " << scale);
        nbMagnifierRenderer::setCursorPosition(cursorX, cursorY);
        nbMagnifierRenderer::setMagnificationScale(static_cast<float>(scale));
        const QImage picture = draw(kWidth, kHeight);
        const QPoint middle(std::clamp(cursorX, 80, kWidth - 81),
                            std::clamp(cursorY, 80, kHeight - 81));
        int compared = 0;
        int wrong = 0;
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                const int offX = x - middle.x();
                const int offY = y - middle.y();
                const double radius = std::hypot(offX, offY);
                const bool isCross = std::min(std::abs(offX), std::abs(offY)) < 2 && radius < 21.0;
                if (radius > 80.0 + 1.0) {
                    wrong += picture.pixelColor(x, y) != plain.pixelColor(x, y);
                } else if (radius < 80.0 - 3.0 - 1.0 && !isCross) {
                    // In the form of whole numbers: y runs down here and up in the lens.
                    const int fromX =
                        static_cast<int>(std::floor(cursorX + 0.5 + double(offX) / scale));
                    const int fromY = kHeight - 1 -
                        static_cast<int>(std::floor(kHeight - cursorY - 0.5 -
                                                    double(offY) / scale));
                    ++compared;
                    wrong += picture.pixelColor(x, y) !=
                        plain.pixelColor(std::clamp(fromX, 0, kWidth - 1),
                                         std::clamp(fromY, 0, kHeight - 1));
                }
            }
        }
        EXPECT_EQ(wrong, 0);
        EXPECT_GT(compared, 900);
    }
    nbMagnifierRenderer::setCursorPosition(std::numeric_limits<int>::max(),
                                           std::numeric_limits<int>::min());
    EXPECT_EQ(draw(kWidth, kHeight), plain);
    nbMagnifierRenderer::setCursorPosition(150, 300);
    EXPECT_EQ(draw(kWidth, kHeight), plain);
    nbMagnifierRenderer::setCursorPosition(150, 100);
    nbOSGWidget other;
    other.setMain();
    EXPECT_EQ(draw(kWidth, kHeight), plain);
}

}  // namespace
