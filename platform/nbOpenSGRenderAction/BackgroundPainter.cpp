// SPDX-License-Identifier: MIT
#include "BackgroundPainter.h"

#include <nbOpenSGUberCamera/nbCameraUtils.h>
#include <nbOpenSGUberViewport/UberViewport.h>
#include <nbOpenSGUberViewport/nbPhotographFit.h>

#include <OpenSG/OSGSolidBackground.h>

#include <algorithm>

namespace nbrender {

namespace {

const char* const kGradientFragment = R"(
in vec2 place;
uniform vec4 topColor;
uniform vec4 bottomColor;
layout (location = 0) out vec4 colorBufferRGBA;
void main()
{
    colorBufferRGBA = vec4(mix(bottomColor.rgb, topColor.rgb, place.y), 1.0);
}
)";

const char* const kPhotographFragment = R"(
in vec2 place;
uniform sampler2D picture;
uniform vec4 area;
uniform vec2 viewSize;
uniform float opacity;
layout (location = 0) out vec4 colorBufferRGBA;
void main()
{
    vec2 uv = (place * viewSize - area.xy) / area.zw;
    // Before the test, so that the level of detail is known on both sides of an edge.
    vec4 color = texture(picture, uv);
    if (any(lessThan(uv, vec2(0.0))) || any(greaterThan(uv, vec2(1.0)))) {
        discard;
    }
    colorBufferRGBA = vec4(color.rgb, color.a * opacity);
}
)";

struct Gradient
{
    osg::Color4f top { 0.0F, 0.0F, 0.0F, 1.0F };
    osg::Color4f bottom { 0.0F, 0.0F, 0.0F, 1.0F };
};

Gradient gradientOf(const osg::ViewportPtr& viewport)
{
    Gradient result;
    if (viewport == osg::NullFC) {
        return result;
    }
    const auto solid = osg::SolidBackgroundPtr::dcast(viewport->getBackground());
    const auto uber = osg::UberViewportPtr::dcast(viewport);
    if (solid != osg::NullFC) {
        const osg::Color3f color = solid->getColor();
        result.top = result.bottom = osg::Color4f(color.red(), color.green(), color.blue(), 1.0F);
    } else if (uber != osg::NullFC) {
        result.top = uber->getBackgroundTop();
        result.bottom = uber->getBackgroundBottom();
    }
    return result;
}

/// Where a viewport's photograph lies.
nbPhotographFit fitOf(const osg::ViewportPtr& viewport, const Frame& frame)
{
    const osg::ImagePtr image = osg::UberViewportPtr::dcast(viewport)->getPhotograph();
    const bool verticalSizing =
        nbCameraUtils::getVerticalSizing(viewport->getCamera(), frame.widthPx, frame.heightPx);
    return nbPhotographFit::of(image->getWidth(), image->getHeight(), frame.widthPx, frame.heightPx,
                               verticalSizing);
}

void prepareState(Gl& gl)
{
    gl.glDisable(GL_SCISSOR_TEST);
    gl.glDisable(GL_DEPTH_TEST);
    gl.glDisable(GL_BLEND);
    gl.glDisable(GL_CULL_FACE);
    gl.glDisable(GL_STENCIL_TEST);
    // Colours reach the frame buffer as they are.
    gl.glDisable(GL_FRAMEBUFFER_SRGB);
    gl.glDisable(GL_DITHER);
}

}  // namespace

void BackgroundPainter::draw(Gl& gl, const osg::ViewportPtr& viewport, const Frame& frame,
                             ShaderPrograms& programs, GpuTextures& textures)
{
    prepareState(gl);
    const Gradient gradient = gradientOf(viewport);
    GlProgram* const program =
        programs.use(gl, "backgrounds", shaders::kFullScreenVertex, kGradientFragment);
    if (program == nullptr) {
        return;
    }
    const osg::Color4f& top = gradient.top;
    const osg::Color4f& bottom = gradient.bottom;
    program->set(gl, "topColor", top.red(), top.green(), top.blue(), top.alpha());
    program->set(gl, "bottomColor", bottom.red(), bottom.green(), bottom.blue(), bottom.alpha());
    gl.glColorMaski(1, GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    gl.glBindVertexArray(frame.emptyArray);
    gl.glDrawArrays(GL_TRIANGLES, 0, 3);
    frame.drew(1);
    if (hasPhotograph(viewport)) {
        drawPhotograph(gl, viewport, 1.0F, frame, programs, textures);
    }
    gl.glColorMaski(1, GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
}

void BackgroundPainter::drawVeil(Gl& gl, const osg::ViewportPtr& viewport, const Frame& frame,
                                 ShaderPrograms& programs, GpuTextures& textures)
{
    if (!hasVeil(viewport)) {
        return;
    }
    prepareState(gl);
    const float veil = osg::UberViewportPtr::dcast(viewport)->getPhotographVeil();
    gl.glColorMaski(1, GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    gl.glBindVertexArray(frame.emptyArray);
    drawPhotograph(gl, viewport, std::min(veil, 1.0F), frame, programs, textures);
    gl.glColorMaski(1, GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
}

void BackgroundPainter::addTo(osg::ContentStamp& stamp, const osg::ViewportPtr& viewport,
                              const Frame& frame)
{
    const Gradient gradient = gradientOf(viewport);
    stamp.add(gradient.top.getValuesRGBA(), 4);
    stamp.add(gradient.bottom.getValuesRGBA(), 4);
    if (hasPhotograph(viewport)) {
        stamp.add(osg::UberViewportPtr::dcast(viewport)->getPhotograph());
        const nbPhotographFit fit = fitOf(viewport, frame);
        for (const float number :
             { fit.left, fit.bottom, fit.width, fit.height, frame.shiftXPx, frame.shiftYPx }) {
            stamp.add(number);
        }
    }
}

void BackgroundPainter::addVeilTo(osg::ContentStamp& stamp, const osg::ViewportPtr& viewport)
{
    stamp.add(hasVeil(viewport) ? osg::UberViewportPtr::dcast(viewport)->getPhotographVeil()
                                : 0.0F);
}

bool BackgroundPainter::hasPhotograph(const osg::ViewportPtr& viewport)
{
    const auto uber = osg::UberViewportPtr::dcast(viewport);
    return uber != osg::NullFC && uber->getPhotograph() != osg::NullFC;
}

bool BackgroundPainter::hasVeil(const osg::ViewportPtr& viewport)
{
    return hasPhotograph(viewport) &&
        osg::UberViewportPtr::dcast(viewport)->getPhotographVeil() > 0.0F;
}

void BackgroundPainter::drawPhotograph(Gl& gl, const osg::ViewportPtr& viewport, float opacity,
                                       const Frame& frame, ShaderPrograms& programs,
                                       GpuTextures& textures)
{
    const osg::ImagePtr image = osg::UberViewportPtr::dcast(viewport)->getPhotograph();
    const GLuint texture = textures.get(gl, image, PixelForm::Plain).name;
    GlProgram* const program =
        programs.use(gl, "photographs", shaders::kFullScreenVertex, kPhotographFragment);
    if (program == nullptr || texture == 0) {
        return;
    }
    const nbPhotographFit fit = fitOf(viewport, frame);
    program->set(gl, "picture", GLint(0));
    program->set(gl, "area", fit.left + frame.shiftXPx, fit.bottom + frame.shiftYPx, fit.width,
                 fit.height);
    program->set(gl, "viewSize", static_cast<float>(frame.widthPx),
                 static_cast<float>(frame.heightPx));
    program->set(gl, "opacity", opacity);
    gl.glActiveTexture(GL_TEXTURE0);
    gl.glBindTexture(GL_TEXTURE_2D, texture);
    gl.glBindSampler(0, textures.getSampler(gl, false, false));
    gl.glEnable(GL_BLEND);
    gl.glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ZERO, GL_ONE);
    gl.glDrawArrays(GL_TRIANGLES, 0, 3);
    frame.drew(1);
    gl.glDisable(GL_BLEND);
    gl.glBindSampler(0, 0);
}

}  // namespace nbrender
