// SPDX-License-Identifier: MIT
#include "nbRenderAction.h"

#include <nbOpenSGRenderAction/nbBackgroundPainter.h>
#include <nbOpenSGRenderAction/nbFrameTargets.h>
#include <nbOpenSGRenderAction/nbItemPainter.h>
#include <nbOpenSGRenderAction/nbMagnifierPainter.h>
#include <nbOpenSGRenderAction/nbSceneplatePainter.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberCamera/nbUberCameraUtils.h>
#include <nbUtils/nbLog.h>

#include <QtCore/QPointer>
#include <QtGui/QOpenGLContext>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int kDefaultSamples = 8;
/// Programs, textures and buffers of containers that are gone are looked for once per so many
/// frames.
constexpr unsigned int kFramesPerCollection = 64;

using nbrender::BackgroundFrame;
using nbrender::DepthLayout;
using nbrender::FrameTargets;
using nbrender::FrameView;
using nbrender::Gl;
using nbrender::GlProgram;
using nbrender::ShaderPrograms;

bool isZUp(const osg::CameraPtr& camera)
{
    const auto uber = osg::UberCameraPtr::dcast(camera);
    return uber != osg::NullFC && uber->isZUp();
}

void encloseScene(const osg::CameraPtr& camera, const osg::BoxVolume& bounds)
{
    const auto uber = osg::UberCameraPtr::dcast(camera);
    if (uber == osg::NullFC) {
        return;
    }
    if (bounds.isEmpty()) {
        uber->setNearFarFromBounds(uber->getPivot(), uber->getPivot());
    } else {
        uber->setNearFarFromBounds(bounds.getMin(), bounds.getMax());
    }
}

FrameView viewOf(const osg::CameraPtr& camera, int widthPx, int heightPx)
{
    FrameView view;
    const auto width = static_cast<osg::UInt32>(widthPx);
    const auto height = static_cast<osg::UInt32>(heightPx);
    view.widthPx = static_cast<float>(widthPx);
    view.heightPx = static_cast<float>(heightPx);
    osg::Matrix translation;
    camera->getProjection(view.clipFromView, width, height);
    camera->getProjectionTranslation(translation, width, height);
    view.clipFromView.mult(translation);
    camera->getViewing(view.viewFromWorld, width, height);
    view.orthographic = nbUberCameraUtils::isOrthographicCamera(camera);
    const osg::Vec3f worldUp =
        isZUp(camera) ? osg::Vec3f(0.f, 0.f, 1.f) : osg::Vec3f(0.f, 1.f, 0.f);
    view.viewFromWorld.multMatrixVec(worldUp, view.viewUp);
    view.viewUp.normalize();
    return view;
}

/// Whether a program of its own decides where an item is seen: its bounds then say nothing.
bool placesItself(const nbrender::ItemList& list, const nbrender::RenderItem& item)
{
    return list.getStates()[item.stateIndex].shaderId != 0;
}

/// Depths along the view axis, world units.
struct DepthSpan
{
    double nearest = 0.0;
    double farthest = 0.0;
};

/// Which items of the list to draw.
enum class Items
{
    All,
    Scene,
    Handles
};

/// What encloses the handles in view; nothing without any. In a perspective the nearest depth is
/// positive.
DepthSpan handleSpan(const nbrender::ItemList& list, const FrameView& view)
{
    // Of what reaches behind the eye, such as a long axis line, the parts very near to the eye are
    // cut.
    constexpr double kMostRatio = 1e3;
    constexpr double kMargin = 0.01;
    double nearest = std::numeric_limits<double>::max();
    double farthest = std::numeric_limits<double>::lowest();
    for (const nbrender::RenderItem& item : list.getItems()) {
        if (!item.handle || placesItself(list, item) ||
            !nbrender::isInView(item.bounds, view.usualClipFromWorld, true)) {
            continue;
        }
        osg::BoxVolume box = item.bounds;
        box.transform(view.viewFromWorld);
        nearest = std::min<double>(nearest, -box.getMax().z());
        farthest = std::max<double>(farthest, -box.getMin().z());
    }
    DepthSpan span;
    if (farthest >= nearest) {
        const double margin =
            kMargin * (farthest - nearest) + kMargin * kMargin * std::fabs(farthest);
        span.nearest = nearest - margin;
        span.farthest = farthest + margin;
        if (!view.orthographic) {
            span.nearest = std::max(span.nearest, span.farthest / kMostRatio);
        }
    }
    return span;
}

}  // namespace

/// Everything behind the interface.
struct nbRenderAction::Impl
{
    bool prepareContext(std::string& error);
    void forgetContext();
    void clear();
    bool bindTargets(int widthPx, int heightPx, std::string& error);
    void drawFrame(const osg::ViewportPtr& viewport, int widthPx, int heightPx, Items which);
    FrameView prepareView(const osg::ViewportPtr& viewport, int widthPx, int heightPx);
    void drawScene(const osg::ViewportPtr& viewport, const FrameView& view,
                   const BackgroundFrame& behind);
    bool isLensShown(const osg::ViewportPtr& viewport) const;
    void keepForLens(int widthPx, int heightPx);
    void present(const osg::ViewportPtr& viewport, int widthPx, int heightPx,
                 osg::UInt32 targetFramebuffer);
    void drawItems(const FrameView& view, const std::vector<osg::UInt32>& order, Items which);
    void collect();
    bool fail(const std::string& reason);

    int samples = kDefaultSamples;
    float pixelRatio = 1.f;
    float shiftX = 0.f;
    float shiftY = 0.f;
    bool effectShown = false;

    QPointer<QOpenGLContext> context;
    Gl* gl = nullptr;
    GLuint emptyArray = 0;  ///< vertex array of programs that have no attributes
    DepthLayout depth;
    FrameTargets targets;
    ShaderPrograms programs;
    nbrender::GpuMeshes meshes;
    nbrender::GpuTextures textures;
    nbrender::BackgroundPainter background;
    nbrender::MagnifierPainter magnifier;
    nbrender::SceneplatePainter plates;
    nbrender::ItemList list;
    Statistics statistics;
    unsigned int framesSinceCollection = 0;
    std::string lastFailure;
};

bool nbRenderAction::Impl::prepareContext(std::string& error)
{
    QOpenGLContext* current = QOpenGLContext::currentContext();
    if (current == nullptr) {
        error = "no OpenGL context is current";
        return false;
    }
    if (current == context && gl != nullptr) {
        return true;
    }
    forgetContext();
    Gl* functions = current->versionFunctions<Gl>();
    if (functions == nullptr || !functions->initializeOpenGLFunctions()) {
        const QSurfaceFormat format = current->format();
        error = "OpenGL 3.3 core is needed, the driver gives " +
            std::to_string(format.majorVersion()) + "." + std::to_string(format.minorVersion());
        return false;
    }
    if (!programs.initialise(*functions, error)) {
        programs.release(*functions);
        return false;
    }
    depth = DepthLayout::choose();
    functions->glGenVertexArrays(1, &emptyArray);
    context = current;
    gl = functions;
    return true;
}

void nbRenderAction::Impl::forgetContext()
{
    targets.forget();
    programs.forget();
    meshes.forget();
    textures.forget();
    background.forget();
    magnifier.forget();
    plates.forget();
    emptyArray = 0;
    context.clear();
    gl = nullptr;
}

void nbRenderAction::Impl::clear()
{
    constexpr GLfloat kNothing[] = { 0.f, 0.f, 0.f, 0.f };
    const GLfloat farthest = depth.getClearValue();
    gl->glDisable(GL_SCISSOR_TEST);
    gl->glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    gl->glDepthMask(GL_TRUE);
    gl->glClearBufferfv(GL_COLOR, 1, kNothing);
    gl->glClearBufferfv(GL_DEPTH, 0, &farthest);
}

void nbRenderAction::Impl::drawFrame(const osg::ViewportPtr& viewport, int widthPx, int heightPx,
                                     Items which)
{
    gl->glViewport(0, 0, widthPx, heightPx);
    clear();
    const BackgroundFrame behind { widthPx, heightPx, shiftX, shiftY, emptyArray };
    background.draw(*gl, viewport, behind, programs, textures);
    statistics.items = 0;
    statistics.drawn = 0;
    if (viewport == osg::NullFC || viewport->getCamera() == osg::NullFC) {
        return;
    }
    const FrameView view = prepareView(viewport, widthPx, heightPx);
    if (which == Items::Handles) {
        drawItems(view, list.getOrder(view.viewFromWorld), which);
    } else {
        drawScene(viewport, view, behind);
    }
    statistics.items = list.getItems().size();
}

FrameView nbRenderAction::Impl::prepareView(const osg::ViewportPtr& viewport, int widthPx,
                                            int heightPx)
{
    const osg::CameraPtr camera = viewport->getCamera();
    if (list.update(viewport->getRoot())) {
        ++statistics.listBuilds;
    }
    encloseScene(camera, list.getSceneBounds());
    FrameView view = viewOf(camera, widthPx, heightPx);
    view.pixelRatio = pixelRatio;
    view.depth = depth;
    osg::Matrix shift;
    shift.setTranslate(2.f * shiftX / view.widthPx, 2.f * shiftY / view.heightPx, 0.f);
    view.clipFromView.multLeft(shift);
    view.usualClipFromWorld = view.clipFromView;
    view.usualClipFromWorld.mult(view.viewFromWorld);
    const osg::Matrix usual = view.clipFromView;
    view.clipFromView = depth.project(usual, camera->getNear(), camera->getFar());
    const DepthSpan span = handleSpan(list, view);
    view.handleClipFromView = depth.project(usual, span.nearest, span.farthest);
    return view;
}

void nbRenderAction::Impl::drawScene(const osg::ViewportPtr& viewport, const FrameView& view,
                                     const BackgroundFrame& behind)
{
    const nbrender::PlateFrame plateFrame { behind.widthPx, behind.heightPx, pixelRatio, shiftX,
                                            shiftY };
    plates.update(viewport->getRoot());
    plates.drawBack(*gl, plateFrame, emptyArray);
    const std::vector<osg::UInt32>& order = list.getOrder(view.viewFromWorld);
    if (plates.hasFront() || nbrender::BackgroundPainter::hasVeil(viewport)) {
        drawItems(view, order, Items::Scene);
        background.drawVeil(*gl, viewport, behind, textures);
        plates.drawFront(*gl, plateFrame, emptyArray);
        drawItems(view, order, Items::Handles);
    } else {
        drawItems(view, order, Items::All);
    }
}

void nbRenderAction::Impl::drawItems(const FrameView& view, const std::vector<osg::UInt32>& order,
                                     Items which)
{
    depth.enter();
    nbrender::ItemPainter painter(*gl, meshes, textures, programs, view);
    for (const osg::UInt32 index : order) {
        const nbrender::RenderItem& item = list.getItems()[index];
        const bool isWanted = which == Items::All || item.handle == (which == Items::Handles);
        if (isWanted &&
            (placesItself(list, item) ||
             nbrender::isInView(item.bounds, view.usualClipFromWorld, item.handle))) {
            painter.draw(item, list);
            ++statistics.drawn;
        }
    }
    depth.leave();
}

bool nbRenderAction::Impl::bindTargets(int widthPx, int heightPx, std::string& error)
{
    return targets.bind(*gl, widthPx, heightPx, samples, depth.getFormat(), error);
}

bool nbRenderAction::Impl::isLensShown(const osg::ViewportPtr& viewport) const
{
    return !effectShown && nbrender::MagnifierPainter::isShown(viewport);
}

void nbRenderAction::Impl::keepForLens(int widthPx, int heightPx)
{
    targets.resolve(*gl, FrameTargets::Buffer::Color);
    magnifier.keep(*gl, targets.getResolved(), widthPx, heightPx, pixelRatio);
}

void nbRenderAction::Impl::present(const osg::ViewportPtr& viewport, int widthPx, int heightPx,
                                   osg::UInt32 targetFramebuffer)
{
    const auto shown = effectShown ? FrameTargets::Buffer::Effect : FrameTargets::Buffer::Color;
    const bool isLens = isLensShown(viewport);
    if (isLens && !nbrender::BackgroundPainter::hasPhotograph(viewport)) {
        keepForLens(widthPx, heightPx);
    } else {
        targets.resolve(*gl, shown);
    }
    gl->glBindFramebuffer(GL_FRAMEBUFFER, targetFramebuffer);
    gl->glViewport(0, 0, widthPx, heightPx);
    gl->glDisable(GL_DEPTH_TEST);
    GlProgram& program = programs.getStandard(ShaderPrograms::Standard::Present);
    program.use(*gl);
    program.set(*gl, "picture", GLint(0));
    gl->glActiveTexture(GL_TEXTURE0);
    gl->glBindTexture(GL_TEXTURE_2D, targets.getTexture(shown));
    gl->glBindVertexArray(emptyArray);
    gl->glDrawArrays(GL_TRIANGLES, 0, 3);
    if (isLens) {
        magnifier.draw(*gl, pixelRatio, emptyArray);
    }
    gl->glBindTexture(GL_TEXTURE_2D, 0);
    gl->glBindVertexArray(0);
    gl->glUseProgram(0);
}

void nbRenderAction::Impl::collect()
{
    if (++framesSinceCollection < kFramesPerCollection) {
        return;
    }
    framesSinceCollection = 0;
    meshes.collect(*gl);
    textures.collect(*gl);
    plates.collect(*gl);
    programs.collect(*gl);
}

bool nbRenderAction::Impl::fail(const std::string& reason)
{
    if (reason != lastFailure) {
        nbLog::error("nbRenderAction: " + reason);
        lastFailure = reason;
    }
    return false;
}

nbRenderAction::nbRenderAction()
    : impl(std::make_unique<Impl>())
{ }

nbRenderAction::~nbRenderAction() = default;

bool nbRenderAction::initialise(std::string* error)
{
    std::string reason;
    const bool ready = impl->prepareContext(reason);
    if (!ready && error != nullptr) {
        *error = reason;
    }
    return ready;
}

bool nbRenderAction::render(const osg::ViewportPtr& viewport, int widthPx, int heightPx,
                            osg::UInt32 targetFramebuffer)
{
    if (widthPx <= 0 || heightPx <= 0) {
        return false;
    }
    std::string error;
    if (!impl->prepareContext(error) || !impl->bindTargets(widthPx, heightPx, error)) {
        return impl->fail(error);
    }
    impl->lastFailure.clear();
    if (impl->isLensShown(viewport) && nbrender::BackgroundPainter::hasPhotograph(viewport)) {
        impl->drawFrame(viewport, widthPx, heightPx, Items::Handles);
        impl->keepForLens(widthPx, heightPx);
        impl->bindTargets(widthPx, heightPx, error);
    }
    impl->drawFrame(viewport, widthPx, heightPx, Items::All);
    impl->present(viewport, widthPx, heightPx, targetFramebuffer);
    impl->collect();
    return true;
}

void nbRenderAction::setSamples(int samples)
{
    impl->samples = std::max(samples, 1);
}

int nbRenderAction::getSamples() const
{
    const int made = impl->targets.getSamples();
    return made > 0 ? made : impl->samples;
}

void nbRenderAction::setPixelRatio(float ratio)
{
    if (ratio > 0.f) {
        impl->pixelRatio = ratio;
    }
}

void nbRenderAction::setSubpixelShift(float xPx, float yPx)
{
    impl->shiftX = xPx;
    impl->shiftY = yPx;
}

void nbRenderAction::showEffectBuffer(bool on)
{
    impl->effectShown = on;
}

QImage nbRenderAction::readColour()
{
    return impl->gl == nullptr ? QImage()
                               : impl->targets.read(*impl->gl, FrameTargets::Buffer::Color);
}

QImage nbRenderAction::readEffect()
{
    return impl->gl == nullptr ? QImage()
                               : impl->targets.read(*impl->gl, FrameTargets::Buffer::Effect);
}

void nbRenderAction::release()
{
    if (impl->gl != nullptr && QOpenGLContext::currentContext() == impl->context) {
        impl->targets.release(*impl->gl);
        impl->programs.release(*impl->gl);
        impl->meshes.release(*impl->gl);
        impl->textures.release(*impl->gl);
        impl->background.release(*impl->gl);
        impl->magnifier.release(*impl->gl);
        impl->plates.release(*impl->gl);
        impl->gl->glDeleteVertexArrays(1, &impl->emptyArray);
    }
    impl->forgetContext();
}

nbRenderAction::Statistics nbRenderAction::getStatistics() const
{
    Statistics result = impl->statistics;
    result.meshes = impl->meshes.size();
    return result;
}
