// SPDX-License-Identifier: MIT
// The perspective match overlay as it is drawn, at named pixels.
#include "manipulator/PerspectiveMatchManipulator.h"
#include "tests/manipulator/support/MatchScene.h"

#include <nbOpenSGRenderAction/nbOffscreenView.h>

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

namespace {

class PerspectiveMatchPictureTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { view = std::make_unique<nbOffscreenView>(); }

    static void TearDownTestSuite() { view.reset(); }

    QImage draw()
    {
        const QImage picture = view->render(scene.widget.getViewport(), scene.widget.getWidth(),
                                            scene.widget.getHeight());
        EXPECT_FALSE(picture.isNull()) << view->getError();
        // For looking at what was drawn: a directory that gets every picture as a PNG file.
        const char* const directory = std::getenv("NB_TEST_PICTURES");
        if (directory != nullptr) {
            const auto* const info = testing::UnitTest::GetInstance()->current_test_info();
            picture.save(QString("%1/%2_%3.png").arg(directory, info->name()).arg(pictureCount++));
        }
        return picture;
    }

    static inline std::unique_ptr<nbOffscreenView> view;
    PerspectiveMatchManipulator gizmo;  // outlives the scene, which deactivates it
    MatchScene scene;
    int pictureCount = 0;
};

}  // namespace

TEST_F(PerspectiveMatchPictureTest, Look)
{
    scene.install(gizmo);
    osg::beginEditCP(scene.widget.getUberViewport());
    scene.widget.getUberViewport()->setBackgroundTop(osg::Color4f(1, 1, 1, 1));
    scene.widget.getUberViewport()->setBackgroundBottom(osg::Color4f(.0, .0, .0, 1));
    osg::endEditCP(scene.widget.getUberViewport());
    for (const QSize size : { QSize(960, 640), QSize(480, 720) }) {
        const double kk = size.width() > 700 ? 0 : .5;
        scene.widget.resize(size.width(), size.height());
        scene.layLines();
        draw();
        scene.send("hover", scene.pixelOf(scene.match().getXLine1().pointAt(kk)));
        draw();
        scene.send("start", scene.pixelOf(scene.match().getXLine1().pointAt(kk)));
        scene.send("process", scene.pixelOf(scene.match().getXLine1().pointAt(kk)));
        draw();
        scene.send("stop", scene.pixelOf(scene.match().getXLine1().pointAt(kk)));
        scene.match().setVanishingLinesType(nbCameraTypes::XZLines);
        draw();
        scene.match().setVanishingLinesType(nbCameraTypes::XYZLines);
    }
}

}  // namespace nbec::manipulator::test
