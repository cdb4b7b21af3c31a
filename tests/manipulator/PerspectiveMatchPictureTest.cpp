// SPDX-License-Identifier: MIT
// The perspective match overlay as it is drawn, at named pixels.
#include "tests/manipulator/support/MatchScene.h"
#include "tests/platform/support/Edited.h"

#include <nbOpenSGRenderAction/nbOffscreenView.h>

#include <QtCore/QSize>

#include <gtest/gtest.h>

#include <cstdlib>

namespace nbec::manipulator::test {

namespace {

const QColor kRed = QColor::fromRgbF(1.0, 0.2, 0.2);
const QColor kGreen = QColor::fromRgbF(0.1, 0.75, 0.15);
const QColor kBlack(0, 0, 0);

::testing::AssertionResult isColor(const QColor& actual, const QColor& expected)
{
    constexpr int kRounding = 2;
    if (std::abs(actual.red() - expected.red()) <= kRounding &&
        std::abs(actual.green() - expected.green()) <= kRounding &&
        std::abs(actual.blue() - expected.blue()) <= kRounding) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
        << actual.name().toStdString() << " instead of " << expected.name().toStdString();
}

class PerspectiveMatchPictureTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { view = std::make_unique<nbOffscreenView>(); }

    static void TearDownTestSuite() { view.reset(); }

    void SetUp() override
    {
        ASSERT_TRUE(view->open()) << view->getError();
        const osg::UberViewportPtr viewport = scene.widget.getUberViewport();
        nbtest::edited(viewport)->setBackgroundColor(osg::Color4f(0, 0, 0, 1));
        scene.installFor(gizmo);
        scene.widget.resize(640, 480);
    }

    QImage draw()
    {
        const QImage picture = view->render(scene.widget.getViewport(), scene.widget.getWidth(),
                                            scene.widget.getHeight());
        EXPECT_FALSE(picture.isNull()) << view->getError();
        return picture;
    }

    /// A line between the middles of two pixels, counted from the lower left corner.
    QLineF pixelLine(int x1, int y1, int x2, int y2) const
    {
        const double unit = scene.referencePx();
        return QLineF((x1 + 0.5) / unit, (y1 + 0.5) / unit, (x2 + 0.5) / unit, (y2 + 0.5) / unit);
    }

    /// Colour of a pixel, counted from the lower left corner.
    static QColor at(const QImage& picture, int x, int y)
    {
        return picture.pixelColor(x, picture.height() - 1 - y);
    }

    static inline std::unique_ptr<nbOffscreenView> view;
    PerspectiveMatchManipulator gizmo;  // outlives the scene, which deactivates it
    MatchScene scene;
};

}  // namespace

TEST_F(PerspectiveMatchPictureTest, LinesStandInTheirPixelsWhateverTheViewAndTheCamera)
{
    const osg::UberCameraPtr camera = scene.widget.getUberCamera();
    for (const QSize size : { QSize(640, 480), QSize(360, 640), QSize(301, 203) }) {
        for (const bool isHorizontal : { false, true }) {
            nbtest::edited(camera)->setHorizontalSizing(isHorizontal);
            scene.widget.resize(size.width(), size.height());
            scene.layLines();
            // Across the middle, over the box; and up along the right edge.
            const int midX = size.width() / 2;
            const int midY = size.height() / 2;
            scene.match().setXLine1(pixelLine(midX - 60, midY, midX + 60, midY));
            scene.match().setYLine1(pixelLine(size.width() - 9, 20, size.width() - 9, 80));
            for (const osg::Pnt3f& eye : { osg::Pnt3f(0, 0, 6), osg::Pnt3f(500, 80, -3) }) {
                camera->setFromAtUp(eye, eye - osg::Vec3f(0, 0, 6), osg::Vec3f(0, 1, 0));
                const QImage picture = draw();
                EXPECT_TRUE(isColor(at(picture, midX, midY), kRed));
                EXPECT_TRUE(isColor(at(picture, midX + 30, midY), kRed));
                EXPECT_TRUE(isColor(at(picture, size.width() - 9, 50), kGreen));
                EXPECT_TRUE(isColor(at(picture, size.width() - 15, 20), kGreen)) << "ring";
                EXPECT_TRUE(isColor(at(picture, size.width() - 12, 20), kBlack)) << "inside it";
                EXPECT_TRUE(isColor(at(picture, size.width() - 15, 30), kBlack));
            }
        }
    }
}

TEST_F(PerspectiveMatchPictureTest, LinesOfAxesOutOfUseAreGreyAndThin)
{
    scene.match().setXLine1(pixelLine(60, 40, 200, 40));
    scene.match().setVanishingLinesType(nbCameraTypes::YZLines);
    EXPECT_TRUE(isColor(at(draw(), 130, 40), QColor::fromRgbF(0.8, 0.4, 0.4)));
    scene.match().setVanishingLinesType(nbCameraTypes::XYZLines);
    EXPECT_TRUE(isColor(at(draw(), 130, 40), kRed));
}

}  // namespace nbec::manipulator::test
