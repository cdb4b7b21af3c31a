// SPDX-License-Identifier: MIT
#include "MagnifierPainter.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbMagnifier/nbMagnifierRenderer.h>
#include <nbOpenSGRenderAction/StandardShaders.h>

#include <algorithm>
#include <cmath>

namespace nbrender {

namespace {

/// The distances from the cursor are those of pixels' middles, so that the cursor's pixel covers
/// the middle of the lens whatever the scale is.
const char* const kLensFragment = R"(
uniform sampler2D picture;
uniform vec2 origin;
uniform vec2 size;
uniform vec2 cursor;
uniform vec2 middle;
uniform float scale;
uniform float cross;
uniform vec2 radii;
layout (location = 0) out vec4 color;
void main()
{
    vec2 way = gl_FragCoord.xy - middle;
    float distance = length(way);
    float cover = clamp(radii.y - distance + 0.5, 0.0, 1.0);
    if (cover <= 0.0) {
        discard;
    }
    vec2 pixel = clamp(floor(cursor + way / scale) - origin, vec2(0.0), size - 1.0);
    vec3 seen = texelFetch(picture, ivec2(pixel), 0).rgb;
    vec2 off = abs(way);
    float beside = min(off.x, off.y);
    float along = max(off.x, off.y);
    if (cross > 0.0 && beside < 1.5 * cross && along > 4.0 * cross && along < 20.0 * cross) {
        seen = beside < 0.5 * cross ? vec3(0.95) : mix(seen, vec3(0.12), 0.6);
    }
    float white = clamp(distance - radii.x + 0.5, 0.0, 1.0);
    float dark = clamp(distance - 0.5 * (radii.x + radii.y) + 0.5, 0.0, 1.0);
    color = vec4(mix(mix(seen, vec3(0.95), white), vec3(0.12), dark), cover);
}
)";

}  // namespace

bool MagnifierPainter::isShown(const osg::ViewportPtr& viewport)
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    return nbMagnifierRenderer::isVisible() && widget != nullptr && viewport != osg::NullFC &&
        widget->isMain() && widget->getViewport() == viewport;
}

void MagnifierPainter::keep(Gl& gl, GLuint picture, int widthPx, int heightPx, float pixelRatio,
                            bool crossed)
{
    hasCross = crossed;
    const auto reach = static_cast<int>(
        std::ceil(kRadius * pixelRatio / nbMagnifierRenderer::getMagnificationScale()));
    // A part that lies outside keeps the nearest pixels.
    const auto limited = [reach](double middle, int way, int side) {
        return static_cast<int>(
            std::clamp(middle + way * (reach + 1.0), 0.0, static_cast<double>(side - 1)));
    };
    const double x = nbMagnifierRenderer::getCursorX();
    const double y = heightPx - 1.0 - nbMagnifierRenderer::getCursorY();
    originX = limited(x, -1, widthPx);
    originY = limited(y, -1, heightPx);
    keptWidth = limited(x, 1, widthPx) - originX + 1;
    keptHeight = limited(y, 1, heightPx) - originY + 1;
    pictureWidth = widthPx;
    pictureHeight = heightPx;
    if (texture == 0) {
        gl.glGenTextures(1, &texture);
    }
    gl.glActiveTexture(GL_TEXTURE0);
    gl.glBindTexture(GL_TEXTURE_2D, texture);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, picture);
    gl.glReadBuffer(GL_COLOR_ATTACHMENT0);
    gl.glCopyTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, originX, originY, keptWidth, keptHeight, 0);
    gl.glBindTexture(GL_TEXTURE_2D, 0);
}

void MagnifierPainter::draw(Gl& gl, float pixelRatio, GLuint emptyArray, ShaderPrograms& programs)
{
    GlProgram* const lens =
        programs.use(gl, "magnifiers", shaders::kFullScreenVertex, kLensFragment);
    if (lens == nullptr || texture == 0) {
        return;
    }
    // Rows of the frame buffer run from the bottom.
    const float x = static_cast<float>(nbMagnifierRenderer::getCursorX()) + 0.5F;
    const float y = static_cast<float>(pictureHeight) -
        static_cast<float>(nbMagnifierRenderer::getCursorY()) - 0.5F;
    const auto width = static_cast<float>(pictureWidth);
    const auto height = static_cast<float>(pictureHeight);
    if (x < 0.0F || y < 0.0F || x > width || y > height) {
        return;
    }
    const float radius = kRadius * pixelRatio;
    const auto within = [radius](float place, float side) {
        // The half keeps pixels squares on the grid of the screen.
        const float room = std::min(std::ceil(radius) + 0.5F, 0.5F * side);
        return std::clamp(place, room, side - room);
    };
    const float middleX = within(x, width);
    const float middleY = within(y, height);
    lens->set(gl, "picture", GLint(0));
    lens->set(gl, "origin", static_cast<float>(originX), static_cast<float>(originY));
    lens->set(gl, "size", static_cast<float>(keptWidth), static_cast<float>(keptHeight));
    lens->set(gl, "cursor", x, y);
    lens->set(gl, "middle", middleX, middleY);
    lens->set(gl, "cross", hasCross ? pixelRatio : 0.0F);
    lens->set(gl, "scale", nbMagnifierRenderer::getMagnificationScale());
    lens->set(gl, "radii", radius - kRim * pixelRatio, radius);
    gl.glActiveTexture(GL_TEXTURE0);
    gl.glBindTexture(GL_TEXTURE_2D, texture);
    gl.glBindVertexArray(emptyArray);
    // The rest of the picture costs nothing.
    const auto edge = [radius](float middle) {
        return static_cast<GLint>(std::floor(middle - radius)) - 1;
    };
    const auto side = static_cast<GLsizei>(std::ceil(2.0F * radius)) + 3;
    gl.glEnable(GL_SCISSOR_TEST);
    gl.glScissor(edge(middleX), edge(middleY), side, side);
    gl.glEnable(GL_BLEND);
    gl.glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ZERO, GL_ONE);
    gl.glDrawArrays(GL_TRIANGLES, 0, 3);
    gl.glDisable(GL_BLEND);
    gl.glDisable(GL_SCISSOR_TEST);
    gl.glBindTexture(GL_TEXTURE_2D, 0);
}

void MagnifierPainter::release(Gl& gl)
{
    gl.glDeleteTextures(1, &texture);
    forget();
}

}  // namespace nbrender
