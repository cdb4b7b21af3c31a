// SPDX-License-Identifier: MIT
// What a person sees of the scene-plate manipulator, at named pixels in windows of several sizes.
#include "tests/manipulator/support/PlateScene.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGRenderAction/nbOffscreenView.h>

#include <OpenSG/OSGSimpleGeometry.h>

#include <QtGui/QImage>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <memory>

namespace nbec::manipulator::test {
namespace {

const QColor kYellow(255, 255, 0);
const QColor kBlue(0, 0, 255);
const QColor kOrange(255, 128, 0);
const QColor kPurple(153, 89, 166);
const QColor kEdge(26, 26, 26);
const QColor kPlate(51, 102, 153);

class SceneplateHandlesPictureTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { view = std::make_unique<nbOffscreenView>(); }

    static void TearDownTestSuite() { view.reset(); }

    void open(int widthPx, int heightPx)
    {
        ASSERT_TRUE(view->open()) << view->getError();
        scene.reset();
        scene = std::make_unique<PlateScene>(widthPx, heightPx);
        // Something of the 3D scene right before the eye.
        const osg::NodePtr root = nbScenegraph::getRootNode();
        const nbEdit edit(root, osg::Node::ChildrenFieldMask);
        root->addChild(osg::makeBox(2, 2, 18, 1, 1, 1));
    }

    QImage draw()
    {
        scene->manipulator.update(false);
        const QImage picture = view->render(scene->widget.getViewport(), scene->widget.getWidth(),
                                            scene->widget.getHeight());
        EXPECT_FALSE(picture.isNull()) << view->getError();
        // For looking at what was drawn: a directory that gets every picture as a PNG file.
        if (const char* directory = std::getenv("NB_TEST_PICTURES"); directory != nullptr) {
            const auto* info = testing::UnitTest::GetInstance()->current_test_info();
            picture.save(QString("%1/%2_%3.png").arg(directory, info->name()).arg(pictureCount++));
        }
        return picture;
    }

    static void expectColor(const QImage& picture, float x, float y, const QColor& color)
    {
        const QColor found =
            picture.pixelColor(static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y)));
        constexpr int kTolerance = 2;
        EXPECT_TRUE(std::abs(found.red() - color.red()) <= kTolerance &&
                    std::abs(found.green() - color.green()) <= kTolerance &&
                    std::abs(found.blue() - color.blue()) <= kTolerance)
            << "at " << x << ", " << y << " is " << found.name().toStdString() << ", not "
            << color.name().toStdString();
    }

    /// Pixels of a colour in a row or column of the picture around a place.
    static int extent(const QImage& picture, int x, int y, int stepX, int stepY)
    {
        const QRgb color = picture.pixel(x, y);
        int count = 1;
        for (const int sign : { -1, 1 }) {
            for (int i = 1; picture.valid(x + sign * i * stepX, y + sign * i * stepY) &&
                 picture.pixel(x + sign * i * stepX, y + sign * i * stepY) == color;
                 ++i) {
                ++count;
            }
        }
        return count;
    }

    static inline std::unique_ptr<nbOffscreenView> view;
    std::unique_ptr<PlateScene> scene;
    int pictureCount = 0;
};

TEST_F(SceneplateHandlesPictureTest, HandlesHaveOneSizeInEveryWindow)
{
    for (const auto& [width, height] :
         { std::pair(800, 600), std::pair(400, 300), std::pair(1600, 500) }) {
        open(width, height);
        const auto x = static_cast<float>(width) / 2;
        const auto y = static_cast<float>(height) / 2;
        scene->manipulator.setNodes({ scene->addPlate({ x, y, 200, 100 }) });
        const QImage picture = draw();

        for (const float alongX : { -1.0F, 1.0F }) {
            for (const float alongY : { -1.0F, 1.0F }) {
                const float cornerX = x + alongX * 100;
                const float cornerY = y + alongY * 50;
                expectColor(picture, cornerX, cornerY, kYellow);
                // 3 pixels inside, beside the frame's lines.
                const int boxX = static_cast<int>(cornerX - alongX * 3);
                const int boxY = static_cast<int>(cornerY - alongY * 3);
                EXPECT_EQ(extent(picture, boxX, boxY, 1, 0), 10);
                EXPECT_EQ(extent(picture, boxX, boxY, 0, 1), 10);
            }
        }
        expectColor(picture, x + 40, y - 50, kYellow);
        expectColor(picture, x + 100, y + 20, kYellow);
        expectColor(picture, x, y - 82, kBlue);
        expectColor(picture, x, y - 70, kBlue);
        EXPECT_NEAR(extent(picture, static_cast<int>(x), static_cast<int>(y) - 82, 1, 0), 12, 1);
        // A dark edge parts box and frame from what they lie on.
        expectColor(picture, x - 105.5F, y - 50, kEdge);
        expectColor(picture, x + 40, y + 51.5F, kEdge);
        // The body is hit, not seen.
        expectColor(picture, x + 30, y + 20, kPlate);
    }
}

}  // namespace
}  // namespace nbec::manipulator::test
