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
    for (const QSize size : { QSize(960, 640), QSize(480, 720) }) {
        scene.widget.resize(size.width(), size.height());
        scene.layLines();
        draw();
        scene.send("hover", scene.pixelOf(scene.match().getXLine1().p1()));
        draw();
        scene.send("start", scene.pixelOf(scene.match().getXLine1().p1()));
        scene.send("process", scene.pixelOf(scene.match().getXLine1().p1()));
        draw();
        scene.send("stop", scene.pixelOf(scene.match().getXLine1().p1()));
        scene.match().setVanishingLinesType(nbCameraTypes::XZLines);
        draw();
        scene.match().setVanishingLinesType(nbCameraTypes::XYZLines);
    }
}

}  // namespace nbec::manipulator::test
