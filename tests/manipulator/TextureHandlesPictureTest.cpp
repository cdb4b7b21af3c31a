// SPDX-License-Identifier: MIT
// What a person sees of the triplanar, UV and tire gizmos: their handles in their colours at named
// places, over the object.
#include "manipulator/TireProjectionManipulator.h"
#include "manipulator/TriplanarTextureManipulator.h"
#include "manipulator/UVTextureManipulator.h"
#include "tests/manipulator/support/AnchorScene.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGRenderAction/nbOffscreenView.h>

#include <QtGui/QImage>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <memory>

namespace nbec::manipulator::test {
namespace {

using osg::Vec3f;

const QColor kRed(255, 0, 0);
const QColor kGreen(0, 255, 0);
const QColor kBlue(0, 0, 255);
const QColor kYellow(255, 255, 0);
const QColor kLightRed(255, 128, 128);
const QColor kLightGreen(128, 255, 128);
const QColor kLightBlue(128, 128, 255);
const QColor kLightYellow(255, 255, 128);
const QColor kOrange(255, 128, 0);

class TextureHandlesPictureTest : public testing::TestWithParam<bool>
{
protected:
    static void SetUpTestSuite() { view = std::make_unique<nbOffscreenView>(); }

    static void TearDownTestSuite() { view.reset(); }

    void SetUp() override { ASSERT_TRUE(view->open()) << view->getError(); }

    void draw(AnchorScene& at)
    {
        at.gizmo.update(false);
        picture = view->render(at.scene.widget.getViewport(), 800, 600);
        ASSERT_FALSE(picture.isNull()) << view->getError();
        // For looking at what was drawn: a directory that gets every picture as a PNG file.
        if (const char* directory = std::getenv("NB_TEST_PICTURES"); directory != nullptr) {
            const auto* info = testing::UnitTest::GetInstance()->current_test_info();
            QString name = QString("%1_%2").arg(info->name()).arg(pictureCount++);
            picture.save(QString("%1/%2.png").arg(directory, name.replace('/', '_')));
        }
    }

    /// The colour of at least one pixel of 3 x 3 around a world point.
    void expectColor(const AnchorScene& at, const osg::Pnt3f& world, const QColor& color,
                     const char* what) const
    {
        const osg::Pnt2f center = at.scene.pixelOf(world);
        bool isThere = false;
        for (int x = -1; x <= 1; ++x) {
            for (int y = -1; y <= 1; ++y) {
                const QColor found =
                    picture.pixelColor(static_cast<int>(std::floor(center.x())) + x,
                                       static_cast<int>(std::floor(center.y())) + y);
                constexpr int kTolerance = 3;
                isThere = isThere ||
                    (std::abs(found.red() - color.red()) <= kTolerance &&
                     std::abs(found.green() - color.green()) <= kTolerance &&
                     std::abs(found.blue() - color.blue()) <= kTolerance);
            }
        }
        EXPECT_TRUE(isThere) << what << " at " << center.x() << ", " << center.y();
    }

    static inline std::unique_ptr<nbOffscreenView> view;
    QImage picture;
    int pictureCount = 0;
};

}  // namespace

TEST_P(TextureHandlesPictureTest, Triplanar)
{
    TriplanarTextureManipulator gizmo;
    AnchorScene at(gizmo, "::changedTriplanarManipulator",
                   osg::ColorComponentSettings::TriplanarProjection);
    gizmo.activateUniversalManipulator();
    at.look(Camera::Oblique, GetParam());
    draw(at);
    expectColor(at, at.onHandle("xaShape", Vec3f(1.9F, 0, 0)), kRed, "x arrow");
    expectColor(at, at.onHandle("yaShape", Vec3f(0, 1.9F, 0)), kGreen, "y arrow");
    expectColor(at, at.onHandle("zaShape", Vec3f(0, 0, 1.9F)), kBlue, "z arrow");
    expectColor(at, at.onHandle("xsShape", Vec3f(2.5F, 0, 0)), kLightRed, "x scale");
    expectColor(at, at.onHandle("ysShape", Vec3f(0, 2.5F, 0)), kLightGreen, "y scale");
    expectColor(at, at.onHandle("zsShape", Vec3f(0, 0, 2.5F)), kLightBlue, "z scale");
    expectColor(at, at.onHandle("xsShape", Vec3f(2.3F, 0, 0)), kRed, "x shaft");
    expectColor(at, at.onHandle("rzShape", Vec3f(1.06066F, 1.06066F, 0)), kBlue, "z ring");
    expectColor(at, at.onHandle("rxShape", Vec3f(0, 1.06066F, 1.06066F)), kRed, "x ring");
    expectColor(at, at.onHandle("ryShape", Vec3f(1.06066F, 0, 1.06066F)), kGreen, "y ring");
    expectColor(at, at.originOf("grid"), kYellow, "box");

    EXPECT_TRUE(at.scene.hover(at.originOf("grid")));
    draw(at);
    expectColor(at, at.originOf("grid"), kOrange, "highlighted box");
    expectColor(at, at.onHandle("ysShape", Vec3f(0, 2.5F, 0)), kOrange, "highlighted y scale");
    gizmo.activateRotateScaleManipulator();
    draw(at);
    expectColor(at, at.onHandle("ysShape", Vec3f(0, 2.5F, 0)), kGreen, "y scale in full colour");
    gizmo.activateRotateManipulator();
    EXPECT_TRUE(at.scene.hover(at.onHandle("rzShape", Vec3f(1.06066F, 1.06066F, 0))));
    draw(at);
    expectColor(at, at.onHandle("rzShape", Vec3f(1.06066F, 1.06066F, 0)), kOrange, "ring");
}

TEST_P(TextureHandlesPictureTest, UV)
{
    UVTextureManipulator gizmo;
    AnchorScene at(gizmo, "::changedUVManipulator", osg::ColorComponentSettings::UVProjection);
    at.look(Camera::Oblique, GetParam());
    draw(at);
    expectColor(at, at.onHandle("xaShape", Vec3f(1.9F, 0, 0)), kRed, "u arrow");
    expectColor(at, at.onHandle("yaShape", Vec3f(0, 1.9F, 0)), kGreen, "v arrow");
    expectColor(at, at.onHandle("xyaShape", Vec3f(0.2F, 0.2F, 0)), kYellow, "square");
    expectColor(at, at.onHandle("xsShape", Vec3f(2.5F, 0, 0)), kLightRed, "u scale");
    expectColor(at, at.onHandle("ysShape", Vec3f(0, 2.5F, 0)), kLightGreen, "v scale");
    expectColor(at, at.onHandle("grid", Vec3f(2.5F, 2.5F, 0)), kLightYellow, "both");
    expectColor(at, at.onHandle("rotateShape", Vec3f(-0.70710678F, 0.70710678F, 0)), kBlue, "ring");

    EXPECT_TRUE(at.scene.hover(at.onHandle("xyaShape", Vec3f(0.2F, 0.2F, 0))));
    draw(at);
    expectColor(at, at.onHandle("xyaShape", Vec3f(0.2F, 0.2F, 0)), kOrange, "square");
    gizmo.activateScaleManipulator();
    draw(at);
    expectColor(at, at.onHandle("grid", Vec3f(2.5F, 2.5F, 0)), kYellow, "both in full colour");
}

TEST_P(TextureHandlesPictureTest, Tire)
{
    TireProjectionManipulator gizmo;
    AnchorScene at(gizmo, "::changedTireManipulator", osg::ColorComponentSettings::TireProjection);
    at.editSettings([](const auto& settings) {
        settings->setTireScaleRadius(1.5F);
        settings->setTireScaleHeight(2);
        settings->setTireScaleU(0.3F);
    });
    at.look(Camera::Oblique, GetParam());
    draw(at);
    expectColor(at, at.onHandle("xaShape", Vec3f(1.9F, 0, 0)), kRed, "x arrow");
    expectColor(at, at.originOf("radiusShape"), kLightRed, "radius");
    expectColor(at, at.originOf("heightShape"), kLightBlue, "height");
    expectColor(at, at.originOf("oppositeHeightShape"), kLightBlue, "height");
    expectColor(at, at.originOf("scaleUShape"), kYellow, "u scale");
    expectColor(at, at.onHandle("radiusRingShape", Vec3f(0, -1, 0)), kRed, "ring");

    EXPECT_TRUE(at.scene.hover(at.originOf("radiusShape")));
    draw(at);
    expectColor(at, at.originOf("radiusShape"), kOrange, "radius");
    expectColor(at, at.onHandle("radiusRingShape", Vec3f(0, -1, 0)), kOrange, "ring");
}

INSTANTIATE_TEST_SUITE_P(PerspectiveAndOrthographic, TextureHandlesPictureTest, testing::Bool());

}  // namespace nbec::manipulator::test
