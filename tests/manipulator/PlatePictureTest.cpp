// SPDX-License-Identifier: MIT
// The handles of scene plates as they are drawn, at named pixels.
#include "tests/manipulator/support/PlateScene.h"

#include <nbOpenSGRenderAction/nbOffscreenView.h>

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

TEST(PlatePicture, HandlesHaveTheirColoursAndADarkEdgeBehindThem)
{
    PlateScene scene(400, 300);
    // Lines run along the middles of pixels.
    scene.gizmo.setNodes({ scene.addPlate({ 200, 160, 201, 101 }) });
    nbOffscreenView view;
    ASSERT_TRUE(view.open()) << view.getError();
    const auto draw = [&] { return view.render(scene.widget.getViewport(), 400, 300); };
    const QColor yellow(255, 255, 0);
    const QColor blue(0, 0, 255);

    const QImage picture = draw();
    EXPECT_EQ(picture.pixelColor(99, 109), yellow) << "box";
    EXPECT_EQ(picture.pixelColor(160, 109), yellow) << "frame";
    EXPECT_EQ(picture.pixelColor(160, 112), QColor(0x33, 0x66, 0x99)) << "the plate";
    EXPECT_LT(picture.pixelColor(160, 111).blue(), 0x60) << "dark beside the frame";
    EXPECT_EQ(picture.pixelColor(200, 77), blue) << "knob";
    EXPECT_EQ(picture.pixelColor(200, 90), blue) << "arm, two pixels wide";
    EXPECT_EQ(picture.pixelColor(201, 90), QColor(26, 26, 26)) << "its edge";
    EXPECT_GT(picture.pixelColor(202, 90).red(), 40);

    scene.send("hover", osg::Pnt2f(99, 109));
    EXPECT_EQ(draw().pixelColor(99, 109), QColor(255, 128, 0));
}

}  // namespace nbec::manipulator::test
