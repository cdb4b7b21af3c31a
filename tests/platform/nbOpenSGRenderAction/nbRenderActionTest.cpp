// SPDX-License-Identifier: MIT
#include <nbOpenSGExt/DepthTestChunk.h>
#include <nbOpenSGRenderAction/nbImageConvert.h>
#include <nbOpenSGRenderAction/nbOffscreenView.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberViewport/UberViewport.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbGeoFactory.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbOpenSGUtils/nbShaderHeader.h>
#include <nbUtils/nbLog.h>

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGDepthChunk.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSHLChunk.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTextureChunk.h>
#include <OpenSG/OSGTransform.h>

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

constexpr int kSize = 200;
/// The view is this many world units high and wide; its centre is the origin.
constexpr float kViewHeight = 4.f;

const QColor kRed(255, 0, 0);
const QColor kGreen(0, 255, 0);
const QColor kBlue(0, 0, 255);
const QColor kBlack(0, 0, 0);

osg::Color3f color(const QColor& c)
{
    return osg::Color3f(static_cast<float>(c.redF()), static_cast<float>(c.greenF()),
                        static_cast<float>(c.blueF()));
}

osg::SimpleMaterialPtr unlit(const QColor& c, int sortKey = 0, float transparency = 0.f)
{
    const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
    const nbEdit edit(material, osg::FieldBits::AllFields);
    material->setDiffuse(color(c));
    material->setLit(false);
    material->setSortKey(sortKey);
    material->setTransparency(transparency);
    return material;
}

template <class MaterialPtr>
MaterialPtr with(const MaterialPtr& material, const osg::StateChunkPtr& chunk)
{
    const nbEdit edit(material, osg::FieldBits::AllFields);
    material->addChunk(chunk);
    return material;
}

osg::StateChunkPtr lineChunk(float width)
{
    const osg::LineChunkPtr chunk = osg::LineChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setWidth(width);
    chunk->setSmooth(true);
    return chunk;
}

osg::StateChunkPtr alwaysChunk()
{
    const osg::DepthTestChunkPtr chunk = osg::DepthTestChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setFunc(GL_ALWAYS);
    return chunk;
}

osg::StateChunkPtr blendChunk()
{
    const osg::BlendChunkPtr chunk = osg::BlendChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setSrcFactor(GL_SRC_ALPHA);
    chunk->setDestFactor(GL_ONE_MINUS_SRC_ALPHA);
    return chunk;
}

osg::NodePtr colored(const osg::NodePtr& node, const osg::MaterialPtr& material)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    const nbEdit edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(material);
    return node;
}

osg::NodePtr group(const std::vector<osg::NodePtr>& children)
{
    const osg::NodePtr node = osg::makeCoredNode<osg::Group>();
    const nbEdit edit(node, osg::Node::ChildrenFieldMask);
    for (const osg::NodePtr& child : children) {
        node->addChild(child);
    }
    return node;
}

osg::NodePtr materialGroup(const osg::MaterialPtr& material, const osg::NodePtr& child)
{
    osg::MaterialGroupPtr core;
    const osg::NodePtr node = osg::makeCoredNode<osg::MaterialGroup>(&core);
    {
        const nbEdit edit(core, osg::MaterialGroup::MaterialFieldMask);
        core->setMaterial(material);
    }
    const nbEdit edit(node, osg::Node::ChildrenFieldMask);
    node->addChild(child);
    return node;
}

osg::NodePtr placed(const osg::NodePtr& child, const osg::Vec3f& translation,
                    const osg::Quaternion& rotation = osg::Quaternion())
{
    osg::ComponentTransformPtr core;
    const osg::NodePtr node = osg::makeCoredNode<osg::ComponentTransform>(&core);
    {
        const nbEdit edit(core, osg::FieldBits::AllFields);
        core->setTranslation(translation);
        core->setRotation(rotation);
    }
    const nbEdit edit(node, osg::Node::ChildrenFieldMask);
    node->addChild(child);
    return node;
}

osg::NodePtr square(float size, const osg::MaterialPtr& material, float z = 0.f, float x = 0.f)
{
    return placed(colored(osg::makePlane(size, size, 1, 1), material), osg::Vec3f(x, 0.f, z));
}

osg::NodePtr manipulator(const std::vector<osg::NodePtr>& children)
{
    const osg::NodePtr node = group(children);
    nbNodeUtils::setIsAuxiliaryNode(node, true);
    nbNodeUtils::setIsManipulatorNode(node, true);
    return node;
}

/// One view for all tests: an orthographic camera on the z axis, black background, 200 x 200 pixels
/// for 4 x 4 units, so that a pixel is 0.02 units.
class nbRenderActionTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { view = std::make_unique<nbOffscreenView>(); }

    static void TearDownTestSuite() { view.reset(); }

    void SetUp() override
    {
        ASSERT_TRUE(view->open()) << view->getError();
        camera = osg::UberCamera::create();
        viewport = osg::UberViewport::create();
        const nbEdit edit(camera, osg::FieldBits::AllFields);
        camera->setOrthographic(true);
        camera->setFov(2.f * std::atan(0.5f * kViewHeight / 10.f) * 180.f / 3.14159265f);
        lookFrom(osg::Pnt3f(0.f, 0.f, 10.f));
        const nbEdit viewportEdit(viewport, osg::FieldBits::AllFields);
        viewport->setBackgroundColor(osg::Color4f(0.f, 0.f, 0.f, 1.f));
        viewport->setCamera(camera.get());
    }

    void lookFrom(const osg::Pnt3f& eye)
    {
        const osg::Vec3f up =
            std::fabs(eye.y()) > 5.f ? osg::Vec3f(0.f, 0.f, -1.f) : osg::Vec3f(0.f, 1.f, 0.f);
        camera->setFromAtUp(eye, osg::Pnt3f(0.f, 0.f, 0.f), up);
    }

    QImage draw(const osg::NodePtr& root)
    {
        scene = root;
        return redraw();
    }

    QImage redraw()
    {
        viewport->setRoot(scene.get());
        const QImage picture = view->render(viewport.get(), kSize, kSize);
        EXPECT_FALSE(picture.isNull()) << view->getError();
        const char* directory = std::getenv("NB_TEST_PICTURES");
        if (directory != nullptr) {
            const auto* info = testing::UnitTest::GetInstance()->current_test_info();
            picture.save(QString("%1/%2_%3.png").arg(directory, info->name()).arg(pictureCount++));
        }
        return picture;
    }

    /// Colour at a place in world units, for a camera on the z axis.
    static QColor at(const QImage& picture, float x, float y)
    {
        const float pxPerUnit = kSize / kViewHeight;
        return picture.pixelColor(static_cast<int>(std::floor(0.5f * kSize + x * pxPerUnit)),
                                  static_cast<int>(std::floor(0.5f * kSize - y * pxPerUnit)));
    }

    static std::unique_ptr<nbOffscreenView> view;
    osg::RefPtr<osg::UberCameraPtr> camera;
    osg::RefPtr<osg::UberViewportPtr> viewport;
    osg::NodeRefPtr scene;
    int pictureCount = 0;
};

std::unique_ptr<nbOffscreenView> nbRenderActionTest::view;

}  // namespace

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

TEST_F(nbRenderActionTest, TwoRunsGiveTheSamePicture)
{
    const osg::NodePtr root =
        group({ osg::makeTorus(0.3f, 1.f, 16, 32), osg::makeSphere(3, 0.5f) });
    const QImage first = draw(root);

    nbOffscreenView other;
    viewport->setRoot(scene.get());
    EXPECT_EQ(other.render(viewport.get(), kSize, kSize), first);
    view->getAction().showEffectBuffer(true);
    EXPECT_NE(redraw(), first);
    view->getAction().showEffectBuffer(false);
    EXPECT_EQ(redraw(), first);
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

TEST_F(nbRenderActionTest, OutermostMaterialGroupWins)
{
    const QImage picture =
        draw(materialGroup(unlit(kBlue), materialGroup(unlit(kGreen), square(2.f, unlit(kRed)))));

    EXPECT_EQ(at(picture, 0.f, 0.f), kBlue);
}

TEST_F(nbRenderActionTest, MaterialGroupBelowAManipulatorKeepsColors)
{
    const auto handles = [](int firstKey, int secondKey) {
        return manipulator({ materialGroup(with(unlit(kBlue, firstKey), alwaysChunk()),
                                           square(1.f, unlit(kRed, 9))),
                             materialGroup(with(unlit(kBlue, secondKey), alwaysChunk()),
                                           square(1.f, unlit(kGreen, 9))) });
    };

    EXPECT_EQ(at(draw(group({ handles(1, 2) })), 0.f, 0.f), kGreen);
    EXPECT_EQ(at(draw(group({ handles(2, 1) })), 0.f, 0.f), kRed) << "the group's key comes first";
}

TEST_F(nbRenderActionTest, HandleShowsThroughABoxBeforeIt)
{
    const osg::NodePtr handle =
        square(0.5f, with(with(unlit(kGreen, 64015), blendChunk()), alwaysChunk()));
    const osg::NodePtr box = placed(colored(osg::makeBox(1.f, 1.f, 1.f, 1, 1, 1), unlit(kRed)),
                                    osg::Vec3f(0.f, 0.f, 2.f));

    const QImage picture = draw(group({ manipulator({ handle }), box }));

    EXPECT_EQ(at(picture, 0.f, 0.f), kGreen);
    EXPECT_EQ(at(picture, 0.4f, 0.4f), kRed);
}

TEST_F(nbRenderActionTest, HandlesHideEachOtherByDepthFromBothSides)
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
    const osg::NodeRefPtr handles(group({ ring, cone }));
    const osg::NodePtr copy = osg::cloneTree(handles);
    const osg::NodePtr root = group(
        { manipulator({ materialGroup(with(unlit(kBlue, 64015), alwaysChunk()), copy),
                        materialGroup(with(unlit(kBlue, 64017), alwaysChunk()), handles) }) });

    const QImage front = draw(root);
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
    for (const osg::Pnt3f& eye : { osg::Pnt3f(0.f, 0.f, 10.f), osg::Pnt3f(6.f, 3.f, 7.f) }) {
        lookFrom(eye);
        // Whatever comes first in the tree, and whichever is the longer one.
        const QImage long64016 =
            draw(group({ manipulator({ shaft(kRed, 64016, 1.8f), shaft(kGreen, 64015, 1.2f) }) }));
        const QImage short64016 =
            draw(group({ manipulator({ shaft(kGreen, 64015, 1.8f), shaft(kRed, 64016, 1.2f) }) }));
        for (int y = 0; y < kSize; ++y) {
            for (int x = 0; x < kSize; ++x) {
                EXPECT_EQ(long64016.pixelColor(x, y).green(), 0) << x << " " << y;
            }
        }
        int green = 0;
        for (int y = 60; y < 100; ++y) {
            for (int x = 0; x < kSize; ++x) {
                green += short64016.pixelColor(x, y).green() > 0 ? 1 : 0;
            }
        }
        EXPECT_EQ(green, 0);
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

TEST_F(nbRenderActionTest, RingOfSegmentsHasNoGaps)
{
    const QImage picture = draw(group({ placed(
        colored(nbGeoFactory::makeLineTorus(1.5f, 36, false), with(unlit(kRed), lineChunk(6.f))),
        osg::Vec3f(0.f, 0.f, 0.f), osg::Quaternion(osg::Vec3f(1.f, 0.f, 0.f), osg::Pi / 2)) }));

    for (int i = 0; i < 360; ++i) {
        const float angle = static_cast<float>(i) * osg::Pi / 180.f;
        // The outer rim at the joints is where plain quads would leave notches.
        EXPECT_EQ(at(picture, 1.5f * std::cos(angle), 1.5f * std::sin(angle)), kRed) << i;
        if (i % 10 == 0) {
            EXPECT_GT(at(picture, 1.54f * std::cos(angle), 1.54f * std::sin(angle)).red(), 200)
                << i;
        }
    }
}

TEST_F(nbRenderActionTest, TransparentHandleIsDrawnOnceThoughItIsThereTwice)
{
    const osg::NodeRefPtr handle(square(1.f, unlit(kRed, 64016, 0.5f)));
    const osg::NodePtr copy = osg::cloneTree(handle);

    const QImage picture = draw(group(
        { manipulator({ materialGroup(with(unlit(kBlue, 64015), alwaysChunk()), copy),
                        materialGroup(with(unlit(kBlue, 64017), alwaysChunk()), handle) }) }));

    EXPECT_NEAR(at(picture, 0.f, 0.f).red(), 128, 1);
}

TEST_F(nbRenderActionTest, LitSurfaceIsBrightestTowardsTheLightAndVisibleFromBehind)
{
    const QImage picture = draw(group({ osg::makeSphere(4, 1.5f) }));
    const auto brightness = [&](float x, float y) { return at(picture, x, y).lightness(); };

    EXPECT_GT(brightness(-0.4f, 0.6f), brightness(0.8f, -0.8f) + 30);
    EXPECT_GT(brightness(0.9f, -0.9f), 20) << "shaded, not black";

    lookFrom(osg::Pnt3f(0.f, 0.f, -10.f));
    const QImage behind = draw(group({ osg::makePlane(2.f, 2.f, 1, 1) }));
    EXPECT_GT(at(behind, 0.f, 0.f).lightness(), 100) << "both sides are lit";
}

TEST_F(nbRenderActionTest, EffectBufferTellsSceneFromHandles)
{
    const QImage picture = draw(
        group({ square(2.f, unlit(kRed)), manipulator({ square(0.5f, unlit(kGreen, 64016)) }) }));
    const QImage effect = view->readEffect();

    EXPECT_EQ(at(picture, 0.f, 0.f), kGreen);
    EXPECT_EQ(at(effect, 0.f, 0.f), QColor(0, 0, 0, 0));
    EXPECT_EQ(at(effect, 1.5f, 0.f), QColor(0, 0, 0, 0)) << "the background";
    const QColor facing = at(effect, 0.8f, 0.f);
    EXPECT_NEAR(facing.red(), 128, 1);
    EXPECT_NEAR(facing.green(), 128, 1);
    EXPECT_EQ(facing.blue(), 255);
    EXPECT_EQ(facing.alpha(), 255);
}

TEST_F(nbRenderActionTest, TextureEnvironmentsMixAsTheirNamesSay)
{
    QImage halves(2, 2, QImage::Format_ARGB32);
    halves.fill(QColor(0, 255, 0, 255));
    halves.setPixelColor(0, 0, QColor(255, 255, 255, 255));  // top left
    halves.setPixelColor(1, 0, QColor(255, 255, 255, 0));  // top right, without coverage
    osg::ImagePtr image = nbImageConvert::toImage(halves);

    struct Row
    {
        GLenum mode;
        QColor bottom;
        QColor topLeft;
        QColor topRight;
    };

    const Row rows[] = {
        { GL_REPLACE, QColor(0, 255, 0), QColor(255, 255, 255), kBlack },
        { GL_MODULATE, QColor(0, 100, 0), QColor(200, 100, 50), kBlack },
        { GL_DECAL, QColor(0, 255, 0), QColor(255, 255, 255), QColor(200, 100, 50) },
        { GL_BLEND, QColor(200, 0, 50), QColor(0, 0, 255), kBlack },
    };
    const osg::TextureChunkPtr texture = osg::TextureChunk::create();
    const osg::NodePtr root = group({ square(
        2.f, with(with(unlit(QColor(200, 100, 50)), blendChunk()), osg::StateChunkPtr(texture))) });
    for (const Row& row : rows) {
        {
            const nbEdit edit(texture, osg::FieldBits::AllFields);
            texture->setImage(image);
            texture->setMinFilter(GL_NEAREST);
            texture->setMagFilter(GL_NEAREST);
            texture->setEnvMode(row.mode);
            texture->setEnvColor(osg::Color4f(0.f, 0.f, 1.f, 1.f));
        }
        const QImage picture = draw(root);

        EXPECT_EQ(at(picture, -0.5f, 0.5f), row.topLeft) << row.mode;
        EXPECT_EQ(at(picture, 0.5f, 0.5f), row.topRight) << row.mode;
        EXPECT_EQ(at(picture, 0.5f, -0.5f), row.bottom) << row.mode;
    }
}

TEST_F(nbRenderActionTest, ShaderChunkDrawsWithItsParameters)
{
    const osg::SHLChunkPtr chunk = osg::SHLChunk::create();
    {
        const nbEdit edit(chunk, osg::FieldBits::AllFields);
        chunk->setVertexProgram(shaderHeaderString(nbShaderStage::Vertex, true, false, false) +
                                "uniform mat4 viewProjectionMatrix;\n"
                                "void main() { gl_Position = viewProjectionMatrix * "
                                "nbClipFromObject * vec4(nbPosition, 1.0); }\n");
        chunk->setFragmentProgram(
            shaderHeaderString(nbShaderStage::Fragment, true, false, false) +
            "uniform vec4 color;\nlayout (location = 0) out vec4 colorBufferRGBA;\n"
            "layout (location = 1) out vec4 effectBufferRGBA;\n"
            "void main() { colorBufferRGBA = color; effectBufferRGBA = vec4(0.0); }\n");
        chunk->setUniformParameter("color", osg::Vec4f(0.f, 0.f, 1.f, 1.f));
        chunk->setUniformParameter("viewProjectionMatrix", osg::Matrix::identity());
    }
    const osg::ChunkMaterialPtr material = with(osg::ChunkMaterial::create(), chunk);
    const osg::NodePtr line =
        placed(colored(nbGeoFactory::makeLine(1.f),
                       with(with(osg::ChunkMaterial::create(), chunk), lineChunk(5.f))),
               osg::Vec3f(1.5f, 0.f, 0.f));

    const QImage picture = draw(group({ manipulator({ square(1.f, material), line }) }));

    EXPECT_EQ(at(picture, 0.f, 0.f), kBlue);
    EXPECT_EQ(at(picture, 1.53f, 0.f), kBlue) << "lines are widened for a user's program, too";
    EXPECT_EQ(at(view->readEffect(), 0.f, 0.f).alpha(), 0);
}

TEST_F(nbRenderActionTest, BrokenShaderCostsOneLineAndIsDrawnInPlainColor)
{
    std::vector<std::string> lines;
    const nbLog::Sink former =
        nbLog::setSink([&lines](nbLog::Level, const std::string& text) { lines.push_back(text); });
    const osg::SHLChunkPtr chunk = osg::SHLChunk::create();
    {
        const nbEdit edit(chunk, osg::FieldBits::AllFields);
        chunk->setFragmentProgram("#version 330 core\nvoid main() { this is no program; }\n");
    }

    draw(group({ square(1.f, with(unlit(kGreen), osg::StateChunkPtr(chunk))) }));
    const QImage picture = redraw();
    nbLog::setSink(former);

    EXPECT_EQ(at(picture, 0.f, 0.f), kGreen);
    ASSERT_EQ(lines.size(), 1u) << "once, not per frame";
    EXPECT_EQ(lines[0].find('\n'), std::string::npos);
}

TEST_F(nbRenderActionTest, EditsShowInTheNextFrameAndStillScenesCostNoRebuild)
{
    const osg::SimpleMaterialPtr material = unlit(kRed);
    const osg::NodePtr plane = colored(osg::makePlane(1.f, 1.f, 1, 1), material);
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(plane->getCore());
    EXPECT_EQ(at(draw(group({ plane })), 0.f, 0.f), kRed);
    const std::size_t builds = view->getAction().getStatistics().listBuilds;
    lookFrom(osg::Pnt3f(0.f, 0.1f, 10.f));
    redraw();
    EXPECT_EQ(view->getAction().getStatistics().listBuilds, builds);

    {
        const nbEdit edit(material, osg::SimpleMaterial::DiffuseFieldMask);
        material->setDiffuse(color(kBlue));
    }
    EXPECT_EQ(at(redraw(), 0.f, 0.f), kBlue);

    const osg::GeoPositionsPtr positions = geometry->getPositions();
    {
        const nbEdit edit(positions, osg::FieldBits::AllFields);
        for (osg::UInt32 i = 0; i < positions->getSize(); ++i) {
            positions->setValue(positions->getValue(i) + osg::Vec3f(1.f, 0.f, 0.f), i);
        }
    }
    const QImage moved = redraw();
    EXPECT_EQ(at(moved, 0.f, 0.f), kBlack);
    EXPECT_EQ(at(moved, 1.f, 0.f), kBlue);

    plane->setActive(false);
    {
        const nbEdit edit(plane, osg::Node::TravMaskFieldMask);
    }
    EXPECT_EQ(at(redraw(), 1.f, 0.f), kBlack);
}

TEST_F(nbRenderActionTest, WhatIsOutOfViewIsNotDrawn)
{
    draw(group({ square(1.f, unlit(kRed)), square(1.f, unlit(kRed), 0.f, 50.f) }));

    EXPECT_EQ(view->getAction().getStatistics().items, 2u);
    EXPECT_EQ(view->getAction().getStatistics().drawn, 1u);
}

TEST_F(nbRenderActionTest, ReleaseAndAnotherContextRebuildFromTheContainers)
{
    draw(group({ square(1.f, unlit(kRed)) }));
    {
        nbOffscreenView other;
        EXPECT_EQ(at(other.render(viewport.get(), kSize, kSize), 0.f, 0.f), kRed);
    }
    EXPECT_EQ(at(redraw(), 0.f, 0.f), kRed);

    view = std::make_unique<nbOffscreenView>();
    EXPECT_EQ(at(redraw(), 0.f, 0.f), kRed);
    EXPECT_TRUE(view->render(viewport.get(), 0, 10).isNull());
    EXPECT_NE(view->getError(), "");
}

TEST_F(nbRenderActionTest, SeveralPassesSmoothEdgesAndKeepSurfaces)
{
    const QColor odd(200, 77, 31);
    const osg::NodePtr root = group(
        { placed(colored(osg::makePlane(2.f, 2.f, 1, 1), unlit(odd)), osg::Vec3f(0.f, 0.f, 0.f),
                 osg::Quaternion(osg::Vec3f(0.f, 0.f, 1.f), 0.3f)) });
    draw(root);

    const QImage smooth = view->render(viewport.get(), kSize, kSize, 8);

    EXPECT_EQ(at(smooth, 0.f, 0.f), odd);
    EXPECT_EQ(view->render(viewport.get(), kSize, kSize, 8), smooth);
}
