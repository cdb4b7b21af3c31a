// SPDX-License-Identifier: MIT
#include "SceneplatePainter.h"

#include <nbOpenSGSceneplate/nbSceneplateLayout.h>
#include <nbOpenSGSceneplate/nbSceneplatePicture.h>

#include <algorithm>
#include <cmath>

#include <ChangeCount.h>

namespace nbrender {

namespace {

constexpr GLuint kEffectBuffer = 1;
constexpr GLsizei kCorners = 4;

const char* const kPlateVertexBody = R"(
uniform vec2 viewSize;
uniform vec2 origin;
uniform vec2 sideX;
uniform vec2 sideY;
out vec2 texCoord;
void main()
{
    vec2 place = vec2(gl_VertexID & 1, gl_VertexID >> 1);
    vec2 pixel = origin + place.x * sideX + place.y * sideY;
    vec2 part = pixel / viewSize;
    texCoord = vec2(place.x, 1.0 - place.y);
    gl_Position = vec4(2.0 * part.x - 1.0, 1.0 - 2.0 * part.y, 0.0, 1.0);
}
)";

const char* const kPlateFragmentBody = R"(
uniform sampler2D picture;
uniform bool textured;
uniform vec4 color;
in vec2 texCoord;
layout (location = 0) out vec4 colorBufferRGBA;
void main()
{
    colorBufferRGBA = textured ? color * texture(picture, texCoord) : color;
}
)";

/// An outline: a bright line next to the plate and a dark one around that, which together show on
/// any ground.
struct OutlineStyle
{
    float brightPx;  ///< logical pixels
    float darkPx;
    osg::Color4f color;
};

const osg::Color4f kDarkLine(0.05F, 0.05F, 0.06F, 0.55F);
const OutlineStyle kSelectedStyle { 2.0F, 1.0F, osg::Color4f(1.0F, 0.72F, 0.2F, 1.0F) };
const OutlineStyle kPreselectedStyle { 1.0F, 1.0F, osg::Color4f(0.75F, 0.88F, 1.0F, 0.9F) };

/// Times alpha, as blending expects it.
osg::Color4f premultiplied(const osg::Color4f& color, float opacity)
{
    const float alpha = std::clamp(color.alpha(), 0.0F, 1.0F) * std::clamp(opacity, 0.0F, 1.0F);
    return { color.red() * alpha, color.green() * alpha, color.blue() * alpha, alpha };
}

/// At least one device pixel, and whole ones, so that lines along the pixels are sharp.
float devicePixels(float logicalPx, float pixelRatio)
{
    return std::max(std::floor(logicalPx * pixelRatio + 0.5F), 1.0F);
}

}  // namespace

/// A parallelogram in device pixels, y from the top: origin + a x + b y, 0 <= a, b <= 1.
struct SceneplatePainter::Quad
{
    osg::Pnt2f origin;
    osg::Vec2f x;
    osg::Vec2f y;
    osg::ImagePtr image;  ///< null: the colour alone
    osg::Color4f color;  ///< factor, multiplied by its alpha

    void addTo(osg::ContentStamp& stamp) const
    {
        stamp.add(origin.getValues(), 2);
        stamp.add(x.getValues(), 2);
        stamp.add(y.getValues(), 2);
        stamp.add(image);
        stamp.add(color.getValuesRGBA(), 4);
    }
};

void SceneplatePainter::update(const osg::NodePtr& root)
{
    const osg::UInt32 id = root == osg::NullFC ? 0 : root.getFieldContainerId();
    const osg::UInt64 count = osg::getTreeChangeCount(root);
    if (id == rootId && count == treeCount) {
        return;
    }
    rootId = id;
    treeCount = count;
    plates = nbSceneplateList::collectShown(root);
    const auto front = std::find_if(plates.begin(), plates.end(),
                                    [](const auto& entry) { return entry.plate->getFront(); });
    frontBegin = static_cast<std::size_t>(front - plates.begin());
    hasMarkers = std::any_of(plates.begin(), plates.end(), [](const auto& entry) {
        return entry.plate->getMarker() != osg::Sceneplate::NoMarker;
    });
}

void SceneplatePainter::addTo(osg::ContentStamp& stamp, const Frame& frame, Side side) const
{
    for (const Quad& quad : quadsOf(frame, side)) {
        quad.addTo(stamp);
    }
}

PixelBox SceneplatePainter::frontPixels(const Frame& frame) const
{
    constexpr float kMarginPx = 2.0F;
    PixelBox box;
    for (const Quad& quad : quadsOf(frame, Side::Front)) {
        const osg::Pnt2f far = quad.origin + quad.x + quad.y;
        const osg::Pnt2f sideX = quad.origin + quad.x;
        const osg::Pnt2f sideY = quad.origin + quad.y;
        const auto [left, right] = std::minmax({ quad.origin.x(), far.x(), sideX.x(), sideY.x() });
        const auto [upper, lower] = std::minmax({ quad.origin.y(), far.y(), sideX.y(), sideY.y() });
        const auto height = static_cast<float>(frame.heightPx);
        box.unite(pixelsAround(frame, osg::Pnt2f(left, height - lower),
                               osg::Pnt2f(right, height - upper), kMarginPx));
    }
    return box;
}

SceneplatePainter::Quads SceneplatePainter::quadsOf(const Frame& frame, Side side) const
{
    const bool isFront = side == Side::Front;
    const std::size_t end = isFront ? plates.size() : frontBegin;
    Quads quads;
    for (std::size_t i = isFront ? frontBegin : 0; i < end; ++i) {
        quads.push_back(plateQuad(frame, plates[i].plate));
    }
    for (const nbSceneplateList::Entry& entry : plates) {
        if (isFront && entry.plate->getMarker() != osg::Sceneplate::NoMarker) {
            addMarker(quads, frame, entry.plate);
        }
    }
    return quads;
}

void SceneplatePainter::draw(Gl& gl, const Frame& frame, Side side, ShaderPrograms& programs,
                             GpuTextures& textures) const
{
    const Quads quads = quadsOf(frame, side);
    GlProgram* const program = quads.empty() ? nullptr : begin(gl, frame, programs);
    if (program == nullptr) {
        return;
    }
    gl.glBindSampler(0, textures.getSampler(gl, false, false));
    for (const Quad& quad : quads) {
        drawQuad(gl, *program, quad, textures);
        frame.drew(2);
    }
    end(gl);
}

GlProgram* SceneplatePainter::begin(Gl& gl, const Frame& frame, ShaderPrograms& programs)
{
    GlProgram* const program =
        programs.use(gl, "scene plates", kPlateVertexBody, kPlateFragmentBody);
    if (program == nullptr) {
        return nullptr;
    }
    program->set(gl, "picture", GLint(0));
    program->set(gl, "viewSize", static_cast<float>(frame.widthPx),
                 static_cast<float>(frame.heightPx));
    gl.glColorMaski(kEffectBuffer, GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    gl.glDisable(GL_DEPTH_TEST);
    gl.glDepthMask(GL_FALSE);
    gl.glDisable(GL_CULL_FACE);
    gl.glEnable(GL_BLEND);
    gl.glBlendEquation(GL_FUNC_ADD);
    gl.glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    gl.glActiveTexture(GL_TEXTURE0);
    gl.glBindVertexArray(frame.emptyArray);
    return program;
}

void SceneplatePainter::end(Gl& gl)
{
    gl.glBindSampler(0, 0);
    gl.glDisable(GL_BLEND);
    gl.glColorMaski(kEffectBuffer, GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
}

SceneplatePainter::Quad SceneplatePainter::plateQuad(const Frame& frame,
                                                     const osg::SceneplatePtr& plate)
{
    const nbSceneplateLayout::Corners corners =
        nbSceneplateLayout::corners(plate, frame.widthPx, frame.heightPx);
    Quad quad;
    quad.origin = corners[0];
    quad.x = corners[1] - corners[0];
    quad.y = corners[3] - corners[0];
    if (!nbSceneplateLayout::isOnPixels(plate)) {
        quad.origin += osg::Vec2f(frame.shiftXPx, -frame.shiftYPx);
    }
    quad.image = nbSceneplatePicture::imageOf(plate);
    const osg::Color4f color =
        quad.image != osg::NullFC ? osg::Color4f(1.0F, 1.0F, 1.0F, 1.0F) : plate->getColor();
    quad.color = premultiplied(color, plate->getOpacity());
    return quad;
}

void SceneplatePainter::addMarker(Quads& quads, const Frame& frame, const osg::SceneplatePtr& plate)
{
    const OutlineStyle& style =
        plate->getMarker() == osg::Sceneplate::SelectedMarker ? kSelectedStyle : kPreselectedStyle;
    const nbSceneplateLayout::Corners corners =
        nbSceneplateLayout::corners(plate, frame.widthPx, frame.heightPx);
    const float bright = devicePixels(style.brightPx, frame.pixelRatio);
    const float dark = devicePixels(style.darkPx, frame.pixelRatio);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const osg::Pnt2f& begin = corners[i];
        osg::Vec2f along = corners[(i + 1) % corners.size()] - begin;
        osg::Vec2f unit = along;
        unit.normalize();
        // The corners run counter-clockwise on screen.
        const osg::Vec2f outwards(-unit.y(), unit.x());
        const auto addLine = [&](float inner, float outer, const osg::Color4f& color) {
            Quad quad;
            quad.origin = begin + outwards * inner - unit * inner;
            quad.x = along + unit * (inner + outer);
            quad.y = outwards * (outer - inner);
            quad.color = premultiplied(color, 1.0F);
            quads.push_back(quad);
        };
        addLine(0.0F, bright, style.color);
        addLine(bright, bright + dark, kDarkLine);
    }
}

void SceneplatePainter::drawQuad(Gl& gl, GlProgram& program, const Quad& quad,
                                 GpuTextures& textures)
{
    const osg::Color4f& color = quad.color;
    program.set(gl, "origin", quad.origin.x(), quad.origin.y());
    program.set(gl, "sideX", quad.x.x(), quad.x.y());
    program.set(gl, "sideY", quad.y.x(), quad.y.y());
    program.set(gl, "color", color.red(), color.green(), color.blue(), color.alpha());
    const GLuint texture =
        quad.image != osg::NullFC ? textures.get(gl, quad.image, PixelForm::Plate).name : 0;
    program.set(gl, "textured", GLint(texture != 0 ? 1 : 0));
    gl.glBindTexture(GL_TEXTURE_2D, texture);
    gl.glDrawArrays(GL_TRIANGLE_STRIP, 0, kCorners);
}

}  // namespace nbrender
