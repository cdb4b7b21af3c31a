// SPDX-License-Identifier: MIT
#include "nbRenderAction.h"

#include <nbOpenSGRenderAction/FramePainter.h>
#include <nbOpenSGRenderAction/FrameTargets.h>
#include <nbOpenSGRenderAction/HostState.h>
#include <nbOpenSGRenderAction/MagnifierPainter.h>
#include <nbUtils/nbLog.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtGui/QOpenGLContext>

#include <algorithm>

namespace {

constexpr int kDefaultSamples = 8;
constexpr double kNanosecondsPerMillisecond = 1e6;
/// Programs, textures and buffers of containers that are gone are looked for once per so many
/// frames.
constexpr unsigned int kFramesPerCollection = 64;

using nbrender::DrawCount;
using nbrender::Frame;
using nbrender::FrameTargets;
using nbrender::Gl;
using nbrender::GlProgram;
using nbrender::ShaderPrograms;

}  // namespace

/// Everything behind the interface.
struct nbRenderAction::Impl
{
    bool prepareContext(std::string& error);
    void forgetContext();
    bool bindTargets(int widthPx, int heightPx, std::string& error);
    bool isLensShown(const osg::ViewportPtr& viewport) const;
    void keepForLens(const Frame& frame);
    void present(const osg::ViewportPtr& viewport, const Frame& frame,
                 osg::UInt32 targetFramebuffer);
    void collect();
    bool fail(const std::string& reason);

    int samples = kDefaultSamples;
    float pixelRatio = 1.0F;
    float shiftX = 0.0F;
    float shiftY = 0.0F;
    bool effectShown = false;
    bool isTimed = false;

    QPointer<QOpenGLContext> context;
    Gl* gl = nullptr;
    GLuint emptyArray = 0;  ///< vertex array of programs that have no attributes
    FrameTargets targets;
    nbrender::FramePainter painter;
    nbrender::MagnifierPainter magnifier;
    std::size_t frames = 0;
    DrawCount count;
    double milliseconds = 0.0;
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

void nbRenderAction::Impl::keepForLens(const Frame& frame)
{
    targets.resolve(*gl, FrameTargets::Buffer::Color);
    magnifier.keep(*gl, targets.getResolved(), frame.widthPx, frame.heightPx, pixelRatio);
}

void nbRenderAction::Impl::present(const osg::ViewportPtr& viewport, const Frame& frame,
                                   osg::UInt32 targetFramebuffer)
{
    const auto shown = effectShown ? FrameTargets::Buffer::Effect : FrameTargets::Buffer::Color;
    const bool isLens = isLensShown(viewport);
    if (isLens && !nbrender::BackgroundPainter::hasPhotograph(viewport)) {
        keepForLens(frame);
    } else {
        targets.resolve(*gl, shown);
    }
    gl->glBindFramebuffer(GL_FRAMEBUFFER, targetFramebuffer);
    gl->glViewport(0, 0, frame.widthPx, frame.heightPx);
    gl->glDisable(GL_DEPTH_TEST);
    GlProgram& program = painter.getPrograms().getStandard(ShaderPrograms::Standard::Present);
    program.use(*gl);
    program.set(*gl, "picture", GLint(0));
    gl->glActiveTexture(GL_TEXTURE0);
    gl->glBindTexture(GL_TEXTURE_2D, targets.getTexture(shown));
    gl->glBindVertexArray(emptyArray);
    gl->glDrawArrays(GL_TRIANGLES, 0, 3);
    count.add(1);
    if (isLens) {
        magnifier.draw(*gl, pixelRatio, emptyArray);
        count.add(1);
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
    impl->count = DrawCount();
    const Frame frame { widthPx,      heightPx,         impl->pixelRatio, impl->shiftX,
                        impl->shiftY, impl->emptyArray, &impl->count };
    if (impl->isLensShown(viewport) && nbrender::BackgroundPainter::hasPhotograph(viewport)) {
        impl->painter.drawHandles(*impl->gl, frame, viewport, impl->targets);
        impl->keepForLens(frame);
        impl->bindTargets(widthPx, heightPx, error);
    }
    impl->painter.draw(*impl->gl, frame, viewport, impl->targets);
    impl->present(viewport, frame, targetFramebuffer);
    if (impl->isTimed) {
        impl->gl->glFinish();
    }
    impl->milliseconds = static_cast<double>(clock.nsecsElapsed()) / kNanosecondsPerMillisecond;
    ++impl->frames;
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

void nbRenderAction::setTimed(bool on)
{
    impl->isTimed = on;
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
        impl->painter.release(*impl->gl);
        impl->magnifier.release(*impl->gl);
        impl->gl->glDeleteVertexArrays(1, &impl->emptyArray);
    }
    impl->forgetContext();
}

nbRenderAction::Statistics nbRenderAction::getStatistics() const
{
    const nbrender::FramePainter::Taken& taken = impl->painter.getTaken();
    Statistics result;
    result.frames = impl->frames;
    result.items = taken.items;
    result.drawn = taken.inView;
    result.reused = taken.reused;
    result.listBuilds = taken.listBuilds;
    result.meshes = impl->painter.getMeshCount();
    result.drawCalls = impl->count.calls;
    result.triangles = impl->count.triangles;
    result.milliseconds = impl->milliseconds;
    return result;
}
