// SPDX-License-Identifier: MIT
#include "tests/platform/support/Plates.h"
#include "tests/platform/support/RenderTest.h"

#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGRenderAction/nbImageConvert.h>

using namespace rendertest;
using platetest::makePlate;
using platetest::plateOf;
using platetest::PlatePx;

namespace {

const osg::Color4f kRed4(1.f, 0.f, 0.f, 1.f);
const osg::Color4f kBlue4(0.f, 0.f, 1.f, 1.f);

/// Pixels of one colour.
int count(const QImage& picture, const QColor& color)
{
    int found = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            found += picture.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return found;
}

}  // namespace

class nbSceneplatePainterTest : public RenderTest
{
protected:
    static osg::NodePtr front(const PlatePx& place, const osg::Color4f& color)
    {
        return makePlate(place, kSize, color);
    }

    static osg::NodePtr back(const PlatePx& place, const osg::Color4f& color)
    {
        return makePlate(place, kSize, color,
                         [](const osg::SceneplatePtr& plate) { plate->setFront(false); });
    }
};

TEST_F(nbSceneplatePainterTest, LiesBeforeOrBehindTheSceneAndBelowHandles)
{
    const PlatePx all { 100.f, 100.f, 200.f, 200.f };
    const osg::NodePtr box = square(1.f, unlit(kGreen));

    EXPECT_EQ(at(draw(group({ back(all, kRed4), box })), 0.f, 0.f), kGreen);
    EXPECT_EQ(at(redraw(), 1.f, 0.f), kRed);
    EXPECT_EQ(at(draw(group({ front(all, kRed4), square(1.f, unlit(kGreen)) })), 0.f, 0.f), kRed);

    const QImage handles =
        draw(group({ manipulator({ square(1.f, unlit(kBlue)) }), square(2.f, unlit(kGreen, 7), 1.f),
                     front({ 100.f, 100.f, 20.f, 200.f }, kRed4) }));
    EXPECT_EQ(at(handles, 0.f, 0.f), kBlue) << "handles stay above plates";
    EXPECT_EQ(at(handles, 0.f, 0.8f), kRed);
    EXPECT_EQ(at(handles, 0.8f, 0.8f), kGreen);
}

TEST_F(nbSceneplatePainterTest, AlphaAndOpacityMixWithWhatIsBehind)
{
    QImage half(20, 20, QImage::Format_ARGB32);
    half.fill(QColor(255, 0, 0, 128));
    const auto transparent = [&](float opacity) {
        return makePlate({ 100.f, 100.f, 40.f, 40.f }, kSize, kRed4, [&](const auto& plate) {
            plate->setImage(nbImageConvert::toImage(half));
            plate->setOpacity(opacity);
        });
    };
    const osg::NodePtr green = square(4.f, unlit(kGreen));

    const QColor mixed = at(draw(group({ transparent(1.f), green })), 0.f, 0.f);
    EXPECT_NEAR(mixed.red(), 128, 2);
    EXPECT_NEAR(mixed.green(), 127, 2);
    const QColor faint =
        at(draw(group({ transparent(0.5f), square(4.f, unlit(kGreen)) })), 0.f, 0.f);
    EXPECT_NEAR(faint.red(), 64, 2);
    EXPECT_NEAR(faint.green(), 191, 2);
}

TEST_F(nbSceneplatePainterTest, EffectBufferAndSceneBoundsDoNotKnowPlates)
{
    const osg::NodePtr below = square(4.f, unlit(kBlue));
    const osg::NodePtr plate = front({ 100.f, 100.f, 100.f, 100.f }, kRed4);
    draw(group({ plate }));
    const nbEdit edit(plate, osg::Node::ChildrenFieldMask);
    plate->addChild(below);

    const QImage picture = redraw();

    EXPECT_EQ(count(picture, kBlue), 0) << "nothing below a plate is drawn";
    EXPECT_EQ(at(redrawEffect(), 0.f, 0.f), kBlack);
    EXPECT_EQ(view->getAction().getStatistics().items, 0U);
}

TEST_F(nbSceneplatePainterTest, MarkersLieAroundThePlateAndHideNothingOfIt)
{
    const QImage picture = draw(group(
        { makePlate({ 60.f, 100.f, 40.f, 40.f }, kSize, kRed4,
                    [](const auto& plate) { plate->setMarker(osg::Sceneplate::SelectedMarker); }),
          makePlate({ 150.f, 100.f, 60.f, 30.f, 30.f }, kSize, kBlue4,
                    [](const auto& plate) {
                        plate->setFront(false);
                        plate->setMarker(osg::Sceneplate::PreselectedMarker);
                    }),
          square(4.f, unlit(kGreen)) }));

    EXPECT_EQ(count(picture, kRed), 1600);
    EXPECT_GT(picture.pixelColor(60, 121).red(), 200) << "below the lower edge";
    EXPECT_GT(picture.pixelColor(80, 80 - 1).red(), 200) << "closed at the corners";
    EXPECT_EQ(picture.pixelColor(60, 76), kGreen);
    EXPECT_EQ(count(picture, kBlue), 0) << "hidden by the scene, its outline is not";
    EXPECT_LT(count(picture, kGreen), kSize * kSize - 1600 - 500);
}

TEST_F(nbSceneplatePainterTest, ThePickerHitsExactlyWhatIsDrawn)
{
    nbOSGWidget widget;
    widget.resize(kSize, kSize);
    nbec::interaction::Picker picker;
    picker.setFilter(nbec::interaction::Picker::SceneplateFilter);
    QImage ring(64, 64, QImage::Format_ARGB32);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            // Open below, so that it matters which way up it is.
            const bool isSolid = y < 40 && std::abs(std::hypot(x - 31.5, y - 31.5) - 24.0) < 7.0;
            ring.setPixelColor(x, y, isSolid ? Qt::white : Qt::transparent);
        }
    }
    const auto add = [](const PlatePx& place, const QImage& picture) {
        nbScenegraph::getSceneplateRoot()->addChild(
            makePlate(place, kSize, kRed4, [&](const auto& plate) {
                plate->setImage(nbImageConvert::toImage(picture));
            }));
    };
    add({ 60.f, 60.f, 90.f, 37.f, 17.f }, QImage());
    add({ 140.3f, 70.7f, 45.f, 45.f, -30.f }, QImage());
    add({ 60.5f, 150.f, 64.f, 64.f }, ring);
    add({ 150.f, 150.f, 61.f, 21.f, 270.f }, QImage());
    widget.getUberViewport()->setBackgroundColor(osg::Color4f(0.f, 0.f, 0.f, 1.f));
    view->getAction().setSamples(1);

    const QImage picture = view->render(widget.getViewport(), kSize, kSize);

    view->getAction().setSamples(8);
    int differences = 0;
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const bool isHit = picker.pickAt(osg::Pnt2f(static_cast<float>(x),
                                                        static_cast<float>(y))) != osg::NullFC;
            differences += isHit == (picture.pixelColor(x, y) != QColor(kBlack)) ? 0 : 1;
        }
    }
    EXPECT_EQ(differences, 0);
    EXPECT_NE(picture.pixelColor(60, 150 - 24), QColor(kBlack));
    EXPECT_EQ(picture.pixelColor(60, 150 + 24), QColor(kBlack));
    nbScenegraph::clear();
}
