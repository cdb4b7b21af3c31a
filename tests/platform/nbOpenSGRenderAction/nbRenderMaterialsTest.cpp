// SPDX-License-Identifier: MIT
#include "tests/platform/support/LogLines.h"
#include "tests/platform/support/RenderTest.h"

#include <nbOpenSGRenderAction/GlProgram.h>
#include <nbOpenSGRenderAction/nbImageConvert.h>
#include <nbOpenSGUtils/nbShaderHeader.h>

#include <OpenSG/OSGSwitch.h>

#include <QOpenGLFramebufferObject>
#include <QOpenGLPaintDevice>
#include <QtGui/QOffscreenSurface>
#include <QtGui/QPainter>

using namespace rendertest;

using nbRenderMaterialsTest = RenderTest;

namespace {

/// A shader chunk whose fragments have the colour that an expression over uniforms gives.
osg::SHLChunkPtr programOf(const std::string& uniforms, const std::string& color)
{
    const osg::SHLChunkPtr chunk = osg::SHLChunk::create();
    chunk->setVertexProgram(shaderHeaderString(nbShaderStage::Vertex, true, false, false) +
                            "uniform mat4 viewProjectionMatrix;\n"
                            "void main() { gl_Position = viewProjectionMatrix * "
                            "nbClipFromObject * vec4(nbPosition, 1.0); }\n");
    chunk->setFragmentProgram(shaderHeaderString(nbShaderStage::Fragment, true, false, false) +
                              uniforms +
                              "layout (location = 0) out vec4 colorBufferRGBA;\n"
                              "layout (location = 1) out vec4 effectBufferRGBA;\n"
                              "void main() { colorBufferRGBA = " +
                              color + "; effectBufferRGBA = vec4(0.0); }\n");
    chunk->setUniformParameter("viewProjectionMatrix", osg::Matrix::identity());
    return chunk;
}

}  // namespace

TEST_F(nbRenderMaterialsTest, LitSurfaceIsBrightestTowardsTheLightAndVisibleFromBehind)
{
    const QImage picture = draw(group({ osg::makeSphere(4, 1.5f) }));
    const auto brightness = [&](float x, float y) { return at(picture, x, y).lightness(); };

    EXPECT_GT(brightness(-0.4f, 0.6f), brightness(0.8f, -0.8f) + 30);
    EXPECT_GT(brightness(0.9f, -0.9f), 20) << "shaded, not black";

    lookFrom(osg::Pnt3f(0.f, 0.f, -10.f));
    const QImage behind = draw(group({ osg::makePlane(2.f, 2.f, 1, 1) }));
    EXPECT_GT(at(behind, 0.f, 0.f).lightness(), 100) << "both sides are lit";
}

TEST_F(nbRenderMaterialsTest, EffectBufferTellsSceneFromHandles)
{
    const QImage picture = draw(
        group({ square(2.f, unlit(kRed)), manipulator({ square(0.5f, unlit(kGreen, 64016)) }) }));
    const QImage effect = redrawEffect();

    EXPECT_EQ(at(picture, 0.f, 0.f), kGreen);
    EXPECT_EQ(at(effect, 0.f, 0.f), kBlack);
    EXPECT_EQ(at(effect, 1.5f, 0.f), kBlack) << "the background";
    const QColor facing = at(effect, 0.8f, 0.f);
    EXPECT_NEAR(facing.red(), 128, 1);
    EXPECT_NEAR(facing.green(), 128, 1);
    EXPECT_EQ(facing.blue(), 255);
}

TEST_F(nbRenderMaterialsTest, TextureEnvironmentsMixAsTheirNamesSay)
{
    QImage halves(2, 2, QImage::Format_ARGB32);
    halves.fill(QColor(0, 255, 0, 255));
    halves.setPixelColor(0, 0, QColor(255, 255, 255, 255));  // top left
    halves.setPixelColor(1, 0, QColor(255, 255, 255, 0));  // top right, without coverage
    osg::ImagePtr image = nbImageConvert::toImage(halves);

    const std::tuple<GLenum, QColor, QColor, QColor> rows[] = {
        { GL_REPLACE, QColor(0, 255, 0), QColor(255, 255, 255), kBlack },
        { GL_MODULATE, QColor(0, 100, 0), QColor(200, 100, 50), kBlack },
        { GL_DECAL, QColor(0, 255, 0), QColor(255, 255, 255), QColor(200, 100, 50) },
        { GL_BLEND, QColor(200, 0, 50), QColor(0, 0, 255), kBlack },
    };
    const osg::TextureChunkPtr texture = osg::TextureChunk::create();
    const osg::NodePtr root = group({ square(
        2.f, with(with(unlit(QColor(200, 100, 50)), blendChunk()), osg::StateChunkPtr(texture))) });
    for (const auto& [mode, bottom, topLeft, topRight] : rows) {
        {
            const nbEdit edit(texture, osg::FieldBits::AllFields);
            texture->setImage(image);
            texture->setMinFilter(GL_NEAREST);
            texture->setMagFilter(GL_NEAREST);
            texture->setEnvMode(mode);
            texture->setEnvColor(osg::Color4f(0.f, 0.f, 1.f, 1.f));
        }
        const QImage picture = draw(root);

        EXPECT_EQ(at(picture, -0.5f, 0.5f), topLeft) << mode;
        EXPECT_EQ(at(picture, 0.5f, 0.5f), topRight) << mode;
        EXPECT_EQ(at(picture, 0.5f, -0.5f), bottom) << mode;
    }
}

TEST_F(nbRenderMaterialsTest, ShaderChunkDrawsWithItsParameters)
{
    const osg::SHLChunkPtr chunk = programOf("uniform vec4 color;\n", "color");
    chunk->setUniformParameter("color", osg::Vec4f(0.f, 0.f, 1.f, 1.f));
    const osg::ChunkMaterialPtr material = with(osg::ChunkMaterial::create(), chunk);
    const osg::NodePtr line =
        placed(colored(nbGeoFactory::makeLine(1.f),
                       with(with(osg::ChunkMaterial::create(), chunk), lineChunk(5.f))),
               osg::Vec3f(1.5f, 0.f, 0.f));

    const QImage picture = draw(group({ manipulator({ square(1.f, material), line }) }));

    EXPECT_EQ(at(picture, 0.f, 0.f), kBlue);
    EXPECT_EQ(at(picture, 1.53f, 0.f), kBlue) << "lines are widened for a user's program, too";
    EXPECT_EQ(at(redrawEffect(), 0.f, 0.f), kBlack);
}

TEST_F(nbRenderMaterialsTest, ParametersThatAreArraysReachTheProgramWhole)
{
    const osg::SHLChunkPtr chunk =
        programOf("uniform int picks[2]; uniform float weights[2];\n"
                  "uniform vec2 places[2]; uniform vec3 axes[2]; uniform vec4 colors[3];\n"
                  "uniform mat4 turns[2];\n",
                  "turns[1] * vec4(1.0 - weights[1], 1.0 - places[1].y, axes[1].z,"
                  " colors[picks[1]].w)");
    const auto give = [&chunk](const char* name, auto values, const auto& last) {
        values[values.size() - 1] = last;
        chunk->setUniformParameter(name, values);
    };
    give("picks", osg::MFInt32(2), 2);
    give("weights", osg::MFReal32(2), 1.f);
    give("places", osg::MFVec2f(2), osg::Vec2f(1.f, 1.f));
    give("axes", osg::MFVec3f(2), osg::Vec3f(0.f, 0.f, 1.f));
    give("colors", osg::MFVec4f(3), osg::Vec4f(0.f, 0.f, 0.f, 1.f));
    give("turns", osg::MFMatrix(2), osg::Matrix::identity());

    const QImage picture =
        draw(group({ manipulator({ square(1.f, with(osg::ChunkMaterial::create(), chunk)) }) }));

    EXPECT_EQ(at(picture, 0.f, 0.f), kBlue);
}

TEST_F(nbRenderMaterialsTest, BrokenShaderCostsOneLineAndIsDrawnInPlainColor)
{
    const nbtest::LogLines log;
    const osg::SHLChunkPtr chunk = osg::SHLChunk::create();
    chunk->setFragmentProgram("#version 330 core\nvoid main() { this is no program; }\n");
    chunk->setUniformParameter("color", osg::Vec4f(0.f, 0.f, 1.f, 1.f));

    draw(group({ square(1.f, with(unlit(kGreen), osg::StateChunkPtr(chunk))) }));
    const QImage picture = redraw();

    EXPECT_EQ(at(picture, 0.f, 0.f), kBlue) << "the parameter color is what is left";
    ASSERT_EQ(log.lines.size(), 1u) << "once, not per frame";
    EXPECT_EQ(log.lines[0].find('\n'), std::string::npos);
}

TEST_F(nbRenderMaterialsTest, WhatIsHiddenOrOutOfViewIsNotDrawnAndAMovingCameraCostsNoRebuild)
{
    const auto shown = [](float x) { return square(0.2f, unlit(kRed), 0.f, x); };
    const auto chosen = [](osg::Int32 choice, const std::vector<osg::NodePtr>& children) {
        const osg::SwitchPtr core = osg::Switch::create();
        core->setChoice(choice);
        const osg::NodePtr node = group(children);
        node->setCore(core);
        return node;
    };
    const osg::NodePtr hidden = shown(-1.8f);
    hidden->setActive(false);
    const osg::NodePtr masked = shown(-1.5f);
    masked->setTravMask(4);

    const QImage picture =
        draw(group({ hidden, masked, chosen(1, { shown(-1.f), shown(-0.5f) }),
                     chosen(osg::Switch::NONE, { shown(0.f) }),
                     chosen(osg::Switch::ALL, { shown(0.5f), shown(1.f) }), shown(50.f) }));

    EXPECT_EQ(view->getAction().getStatistics().items, 5u);
    EXPECT_EQ(view->getAction().getStatistics().drawn, 4u);
    for (const float x : { -1.5f, -0.5f, 0.5f, 1.f }) {
        EXPECT_EQ(at(picture, x, 0.f), kRed) << x;
    }
    const std::size_t builds = view->getAction().getStatistics().listBuilds;
    lookFrom(osg::Pnt3f(0.f, 0.1f, 10.f));
    redraw();
    EXPECT_EQ(view->getAction().getStatistics().listBuilds, builds);
}

TEST_F(nbRenderMaterialsTest, SeveralPassesSmoothEdgesAndKeepSurfaces)
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

TEST_F(nbRenderMaterialsTest, AHostsDrawingDoesNotLeakInAndItsStateComesBack)
{
    draw(group({ osg::makeSphere(3, 1.f) }));  // makes the view's context
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    QSurfaceFormat format;
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    context.setFormat(format);
    ASSERT_TRUE(context.create() && context.makeCurrent(&surface));
    auto* const gl = nbrender::functionsOf(context);
    ASSERT_TRUE(gl != nullptr && gl->initializeOpenGLFunctions());
    QOpenGLFramebufferObject target(kSize, kSize);
    nbRenderAction action;
    const auto picture = [&] {
        EXPECT_TRUE(action.render(viewport.get(), kSize, kSize, target.handle()));
        return target.toImage();
    };
    const QImage expected = picture();
    ASSERT_NE(expected.pixelColor(kSize / 2, kSize / 2), QColor(Qt::black));

    for (const GLenum capability :
         { GL_SAMPLE_COVERAGE, GL_SAMPLE_ALPHA_TO_COVERAGE, GL_COLOR_LOGIC_OP, GL_PRIMITIVE_RESTART,
           GL_RASTERIZER_DISCARD, GL_SCISSOR_TEST, GL_STENCIL_TEST, GL_CULL_FACE, GL_BLEND }) {
        gl->glEnable(capability);
        gl->glLogicOp(GL_INVERT);
        gl->glSampleCoverage(0.25F, GL_FALSE);
        EXPECT_EQ(picture(), expected) << std::hex << capability;
        EXPECT_TRUE(gl->glIsEnabled(capability)) << std::hex << capability;
        gl->glDisable(capability);
    }
    gl->glDisable(GL_MULTISAMPLE);
    gl->glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
    gl->glColorMask(GL_TRUE, GL_FALSE, GL_TRUE, GL_TRUE);
    EXPECT_EQ(picture(), expected);
    GLint mode[2] = {};
    gl->glGetIntegerv(GL_POLYGON_MODE, mode);
    GLboolean mask[4] = {};
    gl->glGetBooleanv(GL_COLOR_WRITEMASK, mask);
    EXPECT_TRUE(mode[0] == GL_LINE && mask[0] && !mask[1]);
    EXPECT_FALSE(gl->glIsEnabled(GL_MULTISAMPLE));
    gl->glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    gl->glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    ASSERT_TRUE(target.bind());
    {
        QOpenGLPaintDevice device(kSize, kSize);
        QPainter painter(&device);
        painter.setClipRect(0, 0, kSize / 2, kSize);
        painter.drawText(9, 99, "between");
        painter.beginNativePainting();
        EXPECT_EQ(picture(), expected);
        painter.endNativePainting();
        painter.fillRect(0, 0, kSize, kSize, Qt::red);
    }
    EXPECT_EQ(target.toImage().pixelColor(9, 9), QColor(Qt::red)) << "the painter goes on";
    EXPECT_EQ(picture(), expected);
    action.release();
}

TEST_F(nbRenderMaterialsTest, ARoundBodysDarkEdgeHasNoBrightDots)
{
    const QImage picture = draw(osg::makeSphere(3, 1.5f));
    // The light comes from above on the left: towards the lower right it only gets darker.
    for (float aside = -0.9f; aside < 0.9f; aside += 0.02f) {
        int darkest = 255;
        for (float away = 0.7f; away < 1.5f; away += 0.02f) {
            const float angle = aside - 0.96f;
            const QColor pixel = at(picture, away * std::cos(angle), away * std::sin(angle));
            EXPECT_LE(pixel.green(), darkest + 10) << aside << ", " << away;
            darkest = std::min(darkest, pixel.green());
        }
    }
}

TEST_F(nbRenderMaterialsTest, OneActionOutlivesALostContext)
{
    viewport->setRoot((scene = group({ square(1.f, unlit(kRed)) })).get());
    QSurfaceFormat format;
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QOffscreenSurface surface;
    surface.setFormat(format);
    surface.create();
    nbRenderAction action;
    EXPECT_FALSE(action.initialise(nullptr)) << "no context is current";
    for (int life = 0; life < 2; ++life) {
        QOpenGLContext context;
        context.setFormat(format);
        ASSERT_TRUE(context.create() && context.makeCurrent(&surface));
        QOpenGLFramebufferObject target(kSize, kSize);

        ASSERT_TRUE(action.render(viewport.get(), kSize, kSize, target.handle()));

        EXPECT_EQ(at(target.toImage(), 0.f, 0.f), kRed) << "life " << life;
        // The context dies without a word to the action.
    }
}
