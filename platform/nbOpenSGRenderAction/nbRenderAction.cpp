// SPDX-License-Identifier: MIT
#include "nbRenderAction.h"

#include <nbOpenSGRenderAction/FramePainter.h>
#include <nbOpenSGRenderAction/FrameTargets.h>
#include <nbOpenSGRenderAction/HostState.h>
#include <nbOpenSGRenderAction/MagnifierPainter.h>
#include <nbUtils/nbLog.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>

#include <algorithm>
#include <utility>

namespace {

constexpr int kDefaultSamples = 8;
constexpr double kNanosecondsPerMillisecond = 1e6;
/// A picture while the camera moves is to take no longer.
constexpr double kSmoothMilliseconds = 50.0;
/// One that takes less than this part of it may be finer.
constexpr double kFinerPart = 0.2;
/// Pixels to a side of those that are drawn while the camera moves, at most.
constexpr int kMostCoarseness = 2;
/// Programs, textures and buffers of containers that are gone are looked for once per so many
/// frames.
constexpr unsigned int kFramesPerCollection = 64;

using nbrender::Frame;
using nbrender::FrameTargets;
using nbrender::Gl;

}  // namespace

/// Everything behind the interface.
struct nbRenderAction::Impl
{
    bool prepareContext(std::string& error);
    void forgetContext();
    bool bindTargets(int widthPx, int heightPx, std::string& error);
    bool isLensShown(const osg::ViewportPtr& viewport) const;
    void keepForLens(const Frame& frame, bool crossed);
    void present(const osg::ViewportPtr& viewport, const Frame& frame,
                 osg::UInt32 targetFramebuffer);
    /// Draws the scene with fewer pixels below handles with all of them.
    bool drawCoarsely(const osg::ViewportPtr& viewport, const Frame& frame);
    /// Makes the next picture of a moving camera coarser or finer by the time of this one.
    void adaptCoarseness();
    void collect();
    bool fail(const std::string& reason);

    int samples = kDefaultSamples;
    float pixelRatio = 1.0F;
    float shiftX = 0.0F;
    float shiftY = 0.0F;
    bool effectShown = false;
    bool isTimed = false;
    bool isHurried = false;
    int coarseness = 0;  ///< 0: all samples; otherwise one, and pixels to a side of it
    nbrender::PixelBox wholePixels;  ///< of a coarse frame

    QPointer<QOpenGLContext> context;
    Gl* gl = nullptr;
    GLuint emptyArray = 0;  ///< vertex array of programs that have no attributes
    FrameTargets targets;
    FrameTargets coarseTargets;
    nbrender::FramePainter painter;
    nbrender::MagnifierPainter magnifier;
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
    Gl* functions = nbrender::functionsOf(*current);
    if (functions == nullptr || !functions->initializeOpenGLFunctions()) {
        const QSurfaceFormat format = current->format();
        error = "OpenGL 3.3 core is needed, the driver gives " +
            std::to_string(format.majorVersion()) + "." + std::to_string(format.minorVersion());
        return false;
    }
    if (!painter.initialise(*functions, error)) {
        return false;
    }
    functions->glGenVertexArrays(1, &emptyArray);
    context = current;
    gl = functions;
    return true;
}

void nbRenderAction::Impl::forgetContext()
{
    targets.forget();
    coarseTargets.forget();
    painter.forget();
    magnifier.forget();
    emptyArray = 0;
    context.clear();
    gl = nullptr;
}

bool nbRenderAction::Impl::bindTargets(int widthPx, int heightPx, std::string& error)
{
    return targets.bind(*gl, widthPx, heightPx, samples, painter.getDepth().getFormat(), error);
}

bool nbRenderAction::Impl::isLensShown(const osg::ViewportPtr& viewport) const
{
    return !effectShown && nbrender::MagnifierPainter::isShown(viewport);
}

void nbRenderAction::Impl::keepForLens(const Frame& frame, bool crossed)
{
    targets.resolve(*gl, FrameTargets::Buffer::Color);
    magnifier.keep(*gl, targets.getResolved(), frame.widthPx, frame.heightPx, pixelRatio, crossed);
}

void nbRenderAction::Impl::present(const osg::ViewportPtr& viewport, const Frame& frame,
                                   osg::UInt32 targetFramebuffer)
{
    const auto shown = effectShown ? FrameTargets::Buffer::Effect : FrameTargets::Buffer::Color;
    const bool isLens = isLensShown(viewport);
    if (isLens && !nbrender::BackgroundPainter::hasPhotograph(viewport)) {
        keepForLens(frame, false);
    } else {
        targets.resolve(*gl, shown);
    }
    gl->glBindFramebuffer(GL_FRAMEBUFFER, targetFramebuffer);
    gl->glViewport(0, 0, frame.widthPx, frame.heightPx);
    if (statistics.coarse) {
        painter.drawPicture(*gl, frame, coarseTargets.getTexture(shown), GL_LINEAR);
        const nbrender::PixelBox& box = wholePixels;
        gl->glEnable(GL_SCISSOR_TEST);
        gl->glScissor(box.left, box.bottom, box.right - box.left, box.top - box.bottom);
    }
    painter.drawPicture(*gl, frame, targets.getTexture(shown));
    gl->glDisable(GL_SCISSOR_TEST);
    if (isLens) {
        magnifier.draw(*gl, pixelRatio, emptyArray, painter.getPrograms());
        frame.drew(1);
    }
}

bool nbRenderAction::Impl::drawCoarsely(const osg::ViewportPtr& viewport, const Frame& frame)
{
    Frame coarse = frame;
    coarse.widthPx = (frame.widthPx + coarseness - 1) / coarseness;
    coarse.heightPx = (frame.heightPx + coarseness - 1) / coarseness;
    const float part = 1.0F / static_cast<float>(coarseness);
    coarse.pixelRatio *= part;
    coarse.shiftXPx *= part;
    coarse.shiftYPx *= part;
    std::string error;
    if (!coarseTargets.bind(*gl, coarse.widthPx, coarse.heightPx, 1, painter.getDepth().getFormat(),
                            error)) {
        bindTargets(frame.widthPx, frame.heightPx, error);
        return false;
    }
    painter.drawScene(*gl, coarse, viewport, coarseTargets);
    coarseTargets.resolve(*gl, FrameTargets::Buffer::Color);
    bindTargets(frame.widthPx, frame.heightPx, error);
    wholePixels = painter.drawHandles(*gl, frame, viewport, targets,
                                      coarseTargets.getTexture(FrameTargets::Buffer::Color));
    return true;
}

void nbRenderAction::Impl::adaptCoarseness()
{
    if (statistics.milliseconds > kSmoothMilliseconds) {
        coarseness = std::min(coarseness + 1, kMostCoarseness);
    } else if (statistics.milliseconds < kFinerPart * kSmoothMilliseconds) {
        coarseness = std::max(coarseness - 1, 0);
    }
}

void nbRenderAction::Impl::collect()
{
    if (++framesSinceCollection < kFramesPerCollection) {
        return;
    }
    framesSinceCollection = 0;
    painter.collect(*gl);
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
    if (!impl->prepareContext(error)) {
        return impl->fail(error);
    }
    const nbrender::HostState hostState(*impl->gl);
    if (!impl->bindTargets(widthPx, heightPx, error)) {
        return impl->fail(error);
    }
    impl->lastFailure.clear();
    QElapsedTimer clock;
    clock.start();
    Statistics& statistics = impl->statistics;
    const Statistics former = std::exchange(statistics, {});
    statistics.frames = former.frames + 1;
    statistics.listBuilds = former.listBuilds;
    const Frame frame { widthPx,      heightPx,         impl->pixelRatio, impl->shiftX,
                        impl->shiftY, impl->emptyArray, &statistics };
    const bool hasCamera = viewport != osg::NullFC && viewport->getCamera() != osg::NullFC;
    const bool isLens = impl->isLensShown(viewport);
    if (isLens && hasCamera && nbrender::BackgroundPainter::hasPhotograph(viewport)) {
        impl->painter.drawBackground(*impl->gl, frame, viewport, impl->targets);
        impl->keepForLens(frame, true);
        impl->bindTargets(widthPx, heightPx, error);
    }
    const bool isHurried = impl->isHurried && !impl->effectShown && !isLens && hasCamera;
    statistics.coarse = isHurried && impl->coarseness > 0 && impl->drawCoarsely(viewport, frame);
    if (!statistics.coarse) {
        impl->painter.draw(*impl->gl, frame, viewport, impl->targets);
    }
    impl->present(viewport, frame, targetFramebuffer);
    if (impl->isTimed || isHurried) {
        impl->gl->glFinish();
    }
    statistics.milliseconds =
        static_cast<double>(clock.nsecsElapsed()) / kNanosecondsPerMillisecond;
    if (isHurried) {
        impl->adaptCoarseness();
    }
    impl->collect();
    return true;
}

void nbRenderAction::setSamples(int samples)
{
    impl->samples = std::max(samples, 1);
}

void nbRenderAction::setPixelRatio(float ratio)
{
    if (ratio > 0.0F) {
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

void nbRenderAction::setSceneKept(bool on)
{
    impl->painter.setSceneKept(on);
}

void nbRenderAction::setMovedLast(bool on)
{
    impl->painter.setMovedLast(on);
}

void nbRenderAction::setHurried(bool on)
{
    impl->isHurried = on;
}

void nbRenderAction::setTimed(bool on)
{
    impl->isTimed = on;
}

void nbRenderAction::release()
{
    if (impl->gl != nullptr && QOpenGLContext::currentContext() == impl->context) {
        impl->targets.release(*impl->gl);
        impl->coarseTargets.release(*impl->gl);
        impl->painter.release(*impl->gl);
        impl->magnifier.release(*impl->gl);
        impl->gl->glDeleteVertexArrays(1, &impl->emptyArray);
    }
    impl->forgetContext();
}

nbRenderAction::Statistics nbRenderAction::getStatistics() const
{
    Statistics result = impl->statistics;
    result.meshes = impl->painter.getMeshCount();
    return result;
}
