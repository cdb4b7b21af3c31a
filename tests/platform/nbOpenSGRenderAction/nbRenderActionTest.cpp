// SPDX-License-Identifier: MIT
#include "tests/platform/support/RenderTest.h"

using namespace rendertest;

using nbRenderActionTest = RenderTest;

TEST_F(nbRenderActionTest, UnlitBoxHasExactlyItsColorAndTheBackgroundItsGradient)
{
    viewport->setBackgroundTop(osg::Color4f(1.f, 1.f, 1.f, 1.f));
    viewport->setBackgroundBottom(osg::Color4f(0.f, 0.f, 0.f, 1.f));
    const QColor odd(200, 77, 31);

    const QImage picture =
        draw(group({ colored(osg::makeBox(1.f, 1.f, 1.f, 1, 1, 1), unlit(odd)) }));

    EXPECT_EQ(at(picture, 0.f, 0.f), odd);
    EXPECT_EQ(at(picture, 0.48f, 0.48f), odd);
    EXPECT_NEAR(picture.pixelColor(100, 0).red(), 254, 2);
    EXPECT_NEAR(picture.pixelColor(100, 40).green(), 204, 2);
    EXPECT_NEAR(picture.pixelColor(100, 199).blue(), 1, 2);
}

TEST_F(nbRenderActionTest, SortKeysOrderBlendedItemsWhateverTheirDepth)
{
    // Nearly opaque, so that the later one is what is seen; blended items write no depth.
    const float tiny = 0.001f;
    const QImage picture = draw(group(
        { square(2.f, unlit(kRed, 5, tiny), -1.f), square(2.f, unlit(kGreen, 4, tiny), 1.f) }));
    EXPECT_EQ(at(picture, 0.f, 0.f), kRed)
        << "the higher key is drawn later, though it lies behind";

    const QImage opaque = draw(
        group({ square(2.f, unlit(kRed, 5), -1.f), square(2.f, unlit(kGreen, 4, tiny), 1.f) }));
    EXPECT_EQ(at(opaque, 0.f, 0.f), kRed)
        << "opaque items of key 5 come after blended ones of key 4";

    const QImage sameKey = draw(group(
        { square(2.f, unlit(kGreen, 0, tiny), 1.f), square(2.f, unlit(kRed, 0, tiny), -1.f) }));
    EXPECT_EQ(at(sameKey, 0.f, 0.f), kGreen) << "within a key from back to front";
}

TEST_F(nbRenderActionTest, OpaqueItemsAreTestedByDepthUnlessAChunkSaysOtherwise)
{
    const QImage tested =
        draw(group({ square(2.f, unlit(kRed, 5), -1.f), square(2.f, unlit(kGreen, 4), 1.f) }));
    EXPECT_EQ(at(tested, 0.f, 0.f), kGreen);

    const QImage always = draw(group({ square(2.f, with(unlit(kRed, 5), alwaysChunk()), -1.f),
                                       square(2.f, unlit(kGreen, 4), 1.f) }));
    EXPECT_EQ(at(always, 0.f, 0.f), kRed);
}

TEST_F(nbRenderActionTest, OutermostMaterialGroupWinsButBelowAManipulatorColorsAreKept)
{
    EXPECT_EQ(at(draw(materialGroup(unlit(kBlue),
                                    materialGroup(unlit(kGreen), square(2.f, unlit(kRed))))),
                 0.f, 0.f),
              kBlue);
    const auto handles = [](int firstKey, int secondKey) {
        return manipulator({ materialGroup(with(unlit(kBlue, firstKey), alwaysChunk()),
                                           square(1.f, unlit(kRed, 9))),
                             materialGroup(with(unlit(kBlue, secondKey), alwaysChunk()),
                                           square(1.f, unlit(kGreen, 9))) });
    };

    EXPECT_EQ(at(draw(group({ handles(1, 2) })), 0.f, 0.f), kGreen);
    EXPECT_EQ(at(draw(group({ handles(2, 1) })), 0.f, 0.f), kRed) << "the group's key comes first";
}

TEST_F(nbRenderActionTest,
       HandlesHideEachOtherByDepthFromBothSidesAndAreDrawnOnceThoughTheyAreThereTwice)
{
    // A cone before a part of a ring, as a gizmo has them: own copies in two passes, chunks
    // GL_ALWAYS.
    const osg::NodePtr cone =
        placed(colored(osg::makeCone(0.8f, 0.4f, 24, true, true), unlit(kRed, 64016)),
               osg::Vec3f(0.f, 0.f, 1.f));
    const osg::NodePtr ring =
        placed(colored(nbGeoFactory::makeLine(3.f),
                       with(with(with(unlit(kGreen, 64015), lineChunk(6.f)), blendChunk()),
                            alwaysChunk())),
               osg::Vec3f(0.f, 0.f, 0.f), osg::Quaternion(osg::Vec3f(0.f, 0.f, 1.f), osg::Pi / 2));
    const auto drawTwice = [this](const osg::NodeRefPtr& handles) {
        const osg::NodePtr copy = osg::cloneTree(handles);
        return draw(group(
            { manipulator({ materialGroup(with(unlit(kBlue, 64015), alwaysChunk()), copy),
                            materialGroup(with(unlit(kBlue, 64017), alwaysChunk()), handles) }) }));
    };
    const QImage veil = drawTwice(osg::NodeRefPtr(square(1.f, unlit(kRed, 64016, 0.5f))));
    EXPECT_NEAR(at(veil, 0.f, 0.f).red(), 128, 1) << "drawn once";
    const QImage front = drawTwice(osg::NodeRefPtr(group({ ring, cone })));
    EXPECT_EQ(at(front, 0.f, 0.f), kRed) << "the cone is nearer";
    EXPECT_EQ(at(front, 1.f, 0.f), kGreen);

    lookFrom(osg::Pnt3f(0.f, 0.f, -10.f));
    const QImage back = redraw();
    EXPECT_EQ(at(back, 0.f, 0.f), kGreen) << "from behind the line is nearer";
    EXPECT_EQ(at(back, 0.f, -0.2f), kRed);
}

TEST_F(nbRenderActionTest, HighlightedShaftWinsOverCoincidentOnes)
{
    const auto shaft = [](const QColor& c, int key, float length) {
        return placed(colored(nbGeoFactory::makeLine(length),
                              with(with(unlit(c, key), lineChunk(2.f)), alwaysChunk())),
                      osg::Vec3f(0.f, 0.5f * length, 0.f));
    };
    const auto greenPixels = [](const QImage& picture, int from, int to) {
        int green = 0;
        for (int i = from * kSize; i < to * kSize; ++i) {
            green += picture.pixelColor(i % kSize, i / kSize).green() > 0 ? 1 : 0;
        }
        return green;
    };
    for (const osg::Pnt3f& eye : { osg::Pnt3f(0.f, 0.f, 10.f), osg::Pnt3f(6.f, 3.f, 7.f) }) {
        lookFrom(eye);
        // Whatever comes first in the tree, and whichever is the longer one.
        const QImage long64016 =
            draw(group({ manipulator({ shaft(kRed, 64016, 1.8f), shaft(kGreen, 64015, 1.2f) }) }));
        const QImage short64016 =
            draw(group({ manipulator({ shaft(kGreen, 64015, 1.8f), shaft(kRed, 64016, 1.2f) }) }));
        EXPECT_EQ(greenPixels(long64016, 0, kSize), 0);
        EXPECT_EQ(greenPixels(short64016, 60, 100), 0);
    }
}

TEST_F(nbRenderActionTest, LineWidthIsInLogicalPixels)
{
    const auto measured = [this](float width, float ratio) {
        view->getAction().setPixelRatio(ratio);
        const QImage picture = draw(group(
            { placed(colored(nbGeoFactory::makeLine(3.f), with(unlit(kRed), lineChunk(width))),
                     osg::Vec3f(0.f, 0.f, 0.f)) }));
        view->getAction().setPixelRatio(1.f);
        float sum = 0.f;
        for (int x = 0; x < kSize; ++x) {
            sum += static_cast<float>(picture.pixelColor(x, 100).redF());
        }
        return sum;
    };
    constexpr float kSampling = 0.3f;

    EXPECT_NEAR(measured(1.f, 1.f), 1.f, kSampling);
    EXPECT_NEAR(measured(2.f, 1.f), 2.f, kSampling);
    EXPECT_NEAR(measured(5.f, 1.f), 5.f, kSampling);
    EXPECT_NEAR(measured(3.f, 2.f), 6.f, kSampling);
}

TEST_F(nbRenderActionTest, DepthsAreFineAlsoWithTheSceneAroundTheEye)
{
    // The floor reaches far behind the eye, so the near plane cannot help.
    const osg::NodePtr floor = placed(colored(osg::makePlane(400.f, 400.f, 1, 1), unlit(kBlue)),
                                      osg::Vec3f(0.f, -3.f, 0.f),
                                      osg::Quaternion(osg::Vec3f(1.f, 0.f, 0.f), -osg::Pi / 2));
    const float gap = 0.005f;
    camera->setOrthographic(false);
    lookFrom(osg::Pnt3f(0.f, 0.f, 50.f));
    const QImage picture =
        draw(group({ floor, square(4.f, unlit(kGreen), 0.f), square(4.f, unlit(kRed), -gap) }));
    for (int i = 90; i < 110; ++i) {
        EXPECT_EQ(picture.pixelColor(i, i), kGreen);
    }

    const QImage handles =
        draw(group({ floor,
                     manipulator({ square(4.f, unlit(kGreen, 64015), 0.f),
                                   square(4.f, unlit(kRed, 64016), -0.05f) }) }));
    for (int i = 90; i < 110; ++i) {
        EXPECT_EQ(handles.pixelColor(i, i), kGreen)
            << "a higher key wins over coincident ones only";
    }
}
