// SPDX-License-Identifier: MIT
#include "ItemPainter.h"

#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGRenderAction/StandardShaders.h>
#include <nbOpenSGRenderAction/UberMaterialBinding.h>

#include <array>

namespace nbrender {

namespace {

/// Handles are drawn in depths 0 to this, the rest of the scene behind.
constexpr double kHandleDepth = 0.1;
/// Depth units of the driver per depth step of an item: more than what two lines over the same
/// course differ by through rounding, far less than the thickness of any handle.
constexpr float kUnitsPerDepthStep = 16.0F;
constexpr GLuint kEffectBuffer = 1;
constexpr float kPointSize = 1.0F;  ///< logical pixels

/// Numbers that the fragment program knows texture environments by; others count as replacing.
GLint textureModeNumber(GLenum mode)
{
    constexpr GLenum kModulate = 0x2100;
    constexpr GLenum kDecal = 0x2101;
    constexpr GLenum kBlend = 0x0BE2;
    switch (mode) {
    case kModulate:
        return 2;
    case kBlend:
        return 3;
    case kDecal:
        return 4;
    default:
        return 1;
    }
}

void setColor(Gl& gl, GlProgram& program, const char* name, const osg::Color3f& color)
{
    program.set(gl, name, color.red(), color.green(), color.blue());
}

/// Whether only a picture makes parts of a surface transparent.
bool hasCutouts(const DrawState& state)
{
    return state.uber != nullptr && state.uber->hasCutouts && state.shaderId == 0 &&
        state.alphaFunc == GL_ALWAYS;
}

/// A plane of the world in view space; the view neither scales nor mirrors.
osg::Vec4f inView(const osg::Vec4f& plane, const osg::Matrix& viewFromWorld)
{
    osg::Vec3f normal(plane.x(), plane.y(), plane.z());
    viewFromWorld.multMatrixVec(normal);
    const osg::Vec4f& origin = viewFromWorld[3];
    const float offset = plane.w() - normal.dot(osg::Vec3f(origin.x(), origin.y(), origin.z()));
    return { normal.x(), normal.y(), normal.z(), offset };
}

}  // namespace

ItemPainter::ItemPainter(Gl& functions, GpuMeshes& meshCache, GpuTextures& textureCache,
                         ShaderPrograms& programCache, const FrameView& frameView,
                         const Frame& drawnFrame)
    : gl(functions)
    , meshes(meshCache)
    , textures(textureCache)
    , programs(programCache)
    , view(frameView)
    , frame(drawnFrame)
{
    gl.glEnable(GL_DEPTH_TEST);
    gl.glEnable(GL_PROGRAM_POINT_SIZE);
    gl.glEnable(GL_POLYGON_OFFSET_FILL);
    gl.glEnable(GL_POLYGON_OFFSET_LINE);
    gl.glEnable(GL_POLYGON_OFFSET_POINT);
}

ItemPainter::~ItemPainter()
{
    switchClipping(0);
    if (boundPictures) {
        unbindUberMaterial(gl);
    }
    for (const GLenum switchedOn :
         { GL_DEPTH_TEST, GL_PROGRAM_POINT_SIZE, GL_POLYGON_OFFSET_FILL, GL_POLYGON_OFFSET_LINE,
           GL_POLYGON_OFFSET_POINT, GL_DEPTH_CLAMP, GL_BLEND, GL_CULL_FACE }) {
        gl.glDisable(switchedOn);
    }
    gl.glColorMaski(kEffectBuffer, GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    gl.glBlendEquation(GL_FUNC_ADD);
    gl.glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
}

void ItemPainter::draw(const RenderItem& item, const ItemList& list)
{
    const auto geometry = resolveContainer<osg::GeometryPtr>(item.geometryId);
    if (geometry == osg::NullFC) {
        return;
    }
    const GpuMesh& mesh = meshes.get(gl, geometry);
    viewClipPlanes.clear();
    for (const osg::Vec4f& plane : list.getClipPlanes(item.clipSet)) {
        viewClipPlanes.push_back(inView(plane, view.viewFromWorld));
    }
    if (item.surfaceSpace != 0) {
        surfaceSpace = list.getSurfaceSpace(item.surfaceSpace);
    } else {
        surfaceSpace = SurfaceSpace { osg::Matrix(), item.worldFromObject };
    }
    const DrawState& state = list.getStates()[item.stateIndex];
    if (item.blended && hasCutouts(state)) {
        drawCutout(item, state, mesh);
    } else {
        drawMesh(item, state, mesh);
    }
}

void ItemPainter::drawCutout(const RenderItem& item, const DrawState& state, const GpuMesh& mesh)
{
    // From here on a byte of alpha is full.
    constexpr float kOpaque = 254.5F / 255.0F;
    DrawState part = state;
    part.alphaValue = kOpaque;
    part.alphaFunc = GL_GEQUAL;
    part.depthWrite = true;
    drawMesh(item, part, mesh);
    part.alphaFunc = GL_LESS;
    part.depthWrite = false;
    if (state.cullFace != GL_NONE) {
        drawMesh(item, part, mesh);
        return;
    }
    // The far side of a closed body before the near one.
    for (const GLenum hidden : { GL_FRONT, GL_BACK }) {
        part.cullFace = hidden;
        drawMesh(item, part, mesh);
    }
}

void ItemPainter::drawMesh(const RenderItem& item, const DrawState& state, const GpuMesh& mesh)
{
    applyDepth(item, state);
    applyBlending(item, state);
    applyPolygons(item, state);
    if (mesh.triangleIndexCount > 0) {
        drawSurfaces(item, state, mesh);
    }
    if (mesh.lineCount > 0) {
        drawLines(item, state, mesh);
    }
    if (mesh.pointCount > 0) {
        drawPoints(item, state, mesh);
    }
}

void ItemPainter::applyDepth(const RenderItem& item, const DrawState& state)
{
    if (item.handle) {
        view.depth.setRange(gl, 0.0, kHandleDepth);
        gl.glEnable(GL_DEPTH_CLAMP);
    } else {
        const double size = 1.0 - kHandleDepth;
        view.depth.setRange(gl, kHandleDepth + size * state.depthNear,
                            kHandleDepth + size * state.depthFar);
        gl.glDisable(GL_DEPTH_CLAMP);
    }
    // OpenGL writes no depth without the test; a test that always passes is the same otherwise.
    gl.glDepthFunc(state.depthTest ? view.depth.getComparison(state.depthFunc) : GLenum(GL_ALWAYS));
    gl.glDepthMask(state.depthTest && state.depthWrite ? GL_TRUE : GL_FALSE);
}

void ItemPainter::applyBlending(const RenderItem& item, const DrawState& state)
{
    // A handle that counts as opaque covers what is behind it, whatever its chunks.
    if (item.handle && !item.blended) {
        gl.glDisable(GL_BLEND);
    } else {
        gl.glEnable(GL_BLEND);
        gl.glDisablei(GL_BLEND, kEffectBuffer);
        gl.glBlendFuncSeparate(state.blendSource, state.blendDestination, state.blendSourceAlpha,
                               state.blendDestinationAlpha);
        gl.glBlendEquation(state.blendEquation);
        gl.glBlendColor(state.blendColor.red(), state.blendColor.green(), state.blendColor.blue(),
                        state.blendColor.alpha());
    }
    const GLboolean hasEffect = item.blended ? GL_FALSE : GL_TRUE;
    gl.glColorMaski(kEffectBuffer, hasEffect, hasEffect, hasEffect, hasEffect);
}

void ItemPainter::applyPolygons(const RenderItem& item, const DrawState& state)
{
    if (state.cullFace == GL_NONE) {
        gl.glDisable(GL_CULL_FACE);
    } else {
        gl.glEnable(GL_CULL_FACE);
        gl.glCullFace(state.cullFace);
    }
    // A mirrored object shows its triangles the other way round.
    const bool mirrored = item.worldFromObject.det3() < 0.0F;
    const bool counterClockwise = (state.frontFace == GL_CCW) != mirrored;
    gl.glFrontFace(counterClockwise ? GL_CCW : GL_CW);
    gl.glPolygonMode(GL_FRONT_AND_BACK, state.polygonMode);
    view.depth.setOffset(gl, state.offsetFactor,
                         state.offsetBias -
                             kUnitsPerDepthStep * static_cast<float>(item.depthSteps));
}

void ItemPainter::switchClipping(std::size_t count)
{
    while (clippingCount > count) {
        --clippingCount;
        gl.glDisable(GL_CLIP_DISTANCE0 + static_cast<GLenum>(clippingCount));
    }
    while (clippingCount < count) {
        gl.glEnable(GL_CLIP_DISTANCE0 + static_cast<GLenum>(clippingCount));
        ++clippingCount;
    }
}

void ItemPainter::setClipPlanes(GlProgram& program)
{
    constexpr std::array<const char*, nbClipSets::kMostPlanes> kNames {
        "clipPlanes[0]", "clipPlanes[1]", "clipPlanes[2]",
        "clipPlanes[3]", "clipPlanes[4]", "clipPlanes[5]"
    };
    for (std::size_t i = 0; i < viewClipPlanes.size(); ++i) {
        const osg::Vec4f& plane = viewClipPlanes[i];
        program.set(gl, kNames[i], plane.x(), plane.y(), plane.z(), plane.w());
    }
    switchClipping(viewClipPlanes.size());
}

void ItemPainter::setPlace(GlProgram& program, const RenderItem& item)
{
    const osg::Matrix& clipFromView = item.handle ? view.handleClipFromView : view.clipFromView;
    osg::Matrix viewFromObject = view.viewFromWorld;
    viewFromObject.mult(item.worldFromObject);
    osg::Matrix clipFromObject = clipFromView;
    clipFromObject.mult(viewFromObject);
    program.set(gl, "nbClipFromObject", clipFromObject);
    program.set(gl, "nbWorldFromObject", item.worldFromObject);
    program.set(gl, "nbViewFromWorld", view.viewFromWorld);
    program.set(gl, "nbClipFromView", clipFromView);
    program.set(gl, "nbViewportSize", view.widthPx, view.heightPx);
    program.set(gl, "reversedDepth", GLint(view.depth.isReversed() ? 1 : 0));
    program.set(gl, "viewFromObject", viewFromObject);
    program.set(gl, "normalFromObject", normalMatrix(viewFromObject));
}

void ItemPainter::setMaterial(GlProgram& program, const RenderItem& item, const DrawState& state,
                              bool isSurface, bool hasColors)
{
    setColor(gl, program, "ambientColor", state.ambient);
    setColor(gl, program, "diffuseColor", state.diffuse);
    setColor(gl, program, "specularColor", state.specular);
    setColor(gl, program, "emissionColor", state.emission);
    program.set(gl, "shininess", state.shininess);
    const bool covers = item.handle && !item.blended;
    program.set(gl, "opacity", covers ? 1.0F : state.alpha);
    program.set(gl, "vertexColors", GLint(hasColors && state.usesVertexColors ? 1 : 0));
    constexpr GLenum kFirstComparison = GL_NEVER;
    program.set(gl, "alphaTest", static_cast<GLint>(state.alphaFunc - kFirstComparison));
    program.set(gl, "alphaValue", state.alphaValue);
    program.set(gl, "orthographic", GLint(view.orthographic ? 1 : 0));
    program.set(gl, "viewUp", view.viewUp.x(), view.viewUp.y(), view.viewUp.z());
    program.set(gl, "leavesNoEffect", GLint(item.handle ? 1 : 0));
    program.set(gl, "pointSize", kPointSize * view.pixelRatio);
    program.set(gl, "lineWidth", state.lineWidth * view.pixelRatio);
    program.set(gl, "stipplePattern",
                GLint(isSurface ? DrawState::kSolidLine : state.stipplePattern));
    program.set(gl, "stippleRepeat", static_cast<float>(state.stippleRepeat) * view.pixelRatio);
}

bool ItemPainter::bindTexture(const DrawState& state)
{
    boundChunk = resolveContainer<osg::TextureChunkPtr>(state.textureId);
    boundTexture = boundChunk == osg::NullFC ? GpuTexture() : textures.get(gl, boundChunk);
    gl.glActiveTexture(GL_TEXTURE0);
    gl.glBindTexture(GL_TEXTURE_2D, boundTexture.name);
    return boundTexture.name != 0;
}

void ItemPainter::setTexture(GlProgram& program)
{
    const bool isBound = boundTexture.name != 0;
    program.set(gl, "textureMode",
                isBound ? textureModeNumber(boundChunk->getEnvMode()) : GLint(0));
    program.set(gl, "nbTexture", GLint(0));
    if (isBound) {
        program.set(gl, "textureHasColor", GLint(boundTexture.hasColor ? 1 : 0));
        program.set(gl, "textureHasAlpha", GLint(boundTexture.hasAlpha ? 1 : 0));
        program.set(gl, "textureIsIntensity", GLint(boundTexture.isIntensity ? 1 : 0));
        const osg::Color4f& color = boundChunk->getEnvColor();
        program.set(gl, "textureEnvColor", color.red(), color.green(), color.blue(), color.alpha());
    }
}

DrawState ItemPainter::plainState(const DrawState& state)
{
    DrawState plain = state;
    plain.lit = false;
    const auto chunk = resolveContainer<osg::SHLChunkPtr>(state.shaderId);
    osg::Vec4f color;
    if (chunk != osg::NullFC && chunk->getUniformParameter("color", color)) {
        plain.diffuse = osg::Color3f(color.x(), color.y(), color.z());
        plain.alpha = color.w();
    }
    return plain;
}

GlProgram* ItemPainter::prepareMaterial(const RenderItem& item, const DrawState& state,
                                        ShaderPrograms::Shape shape, bool isSurface,
                                        const GpuMesh& mesh)
{
    if (state.shaderId != 0) {
        DrawState plain = plainState(state);
        plain.shaderId = 0;
        return prepareMaterial(item, plain, shape, isSurface, mesh);
    }
    const bool isLine = shape == ShaderPrograms::Shape::Line;
    shaders::Features features;
    features.lit = state.lit && isSurface;
    features.textured = isSurface && bindTexture(state);
    if (isSurface && state.uber != nullptr) {
        features.pictures = pictureKinds(*state.uber, mesh.hasTexCoords);
    }
    features.discards =
        state.alphaFunc != GL_ALWAYS || (isLine && state.stipplePattern != DrawState::kSolidLine);
    const auto clipping = viewClipPlanes.empty() ? shaders::Clipping::Off : shaders::Clipping::On;
    GlProgram* program = programs.getMaterialProgram(gl, shape, clipping, features);
    if (program != nullptr) {
        program->use(gl);
        setClipPlanes(*program);
        setPlace(*program, item);
        setMaterial(*program, item, state, isSurface, mesh.hasColors);
        if (features.textured) {
            setTexture(*program);
        }
        if (shaders::hasPicture(features.pictures)) {
            bindUberMaterial(gl, textures, *program, *state.uber, surfaceSpace, view.viewFromWorld);
            boundPictures = true;
        }
    }
    return program;
}

GlProgram* ItemPainter::prepareShaderChunk(const RenderItem& item, const DrawState& state,
                                           bool lines)
{
    const auto chunk = resolveContainer<osg::SHLChunkPtr>(state.shaderId);
    GlProgram* program = chunk == osg::NullFC ? nullptr : programs.use(gl, chunk, lines);
    if (program != nullptr) {
        switchClipping(0);
        setPlace(*program, item);
        setMaterial(*program, item, state, !lines, false);
        bindTexture(state);
        setTexture(*program);
    }
    return program;
}

void ItemPainter::drawSurfaces(const RenderItem& item, const DrawState& state, const GpuMesh& mesh)
{
    constexpr auto kShape = ShaderPrograms::Shape::Surface;
    if (prepareShaderChunk(item, state, false) == nullptr &&
        prepareMaterial(item, state, kShape, true, mesh) == nullptr) {
        return;
    }
    gl.glBindVertexArray(mesh.surfaces);
    gl.glDrawElements(GL_TRIANGLES, mesh.triangleIndexCount, GL_UNSIGNED_INT, nullptr);
    frame.drew(static_cast<std::size_t>(mesh.triangleIndexCount) / 3);
}

void ItemPainter::drawLines(const RenderItem& item, const DrawState& state, const GpuMesh& mesh)
{
    // What a line is made of has no sides.
    gl.glDisable(GL_CULL_FACE);
    gl.glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    if (prepareShaderChunk(item, state, true) != nullptr) {
        gl.glBindVertexArray(mesh.plainLines);
        gl.glDrawArrays(GL_LINES, 0, 2 * mesh.lineCount);
        frame.drew(0);
        return;
    }
    constexpr auto kShape = ShaderPrograms::Shape::Line;
    if (prepareMaterial(item, state, kShape, false, mesh) != nullptr) {
        gl.glBindVertexArray(mesh.lines);
        gl.glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, shaders::kLinePolygonVertices,
                                 mesh.lineCount);
        constexpr std::size_t kTriangles = shaders::kLinePolygonVertices - 2;
        frame.drew(kTriangles * static_cast<std::size_t>(mesh.lineCount));
    }
}

void ItemPainter::drawPoints(const RenderItem& item, const DrawState& state, const GpuMesh& mesh)
{
    constexpr auto kShape = ShaderPrograms::Shape::Surface;
    if (prepareShaderChunk(item, state, false) == nullptr &&
        prepareMaterial(item, state, kShape, false, mesh) == nullptr) {
        return;
    }
    gl.glBindVertexArray(mesh.points);
    gl.glDrawArrays(GL_POINTS, 0, mesh.pointCount);
    frame.drew(0);
}

}  // namespace nbrender
