// SPDX-License-Identifier: MIT
#include "nbOffscreenView.h"

#include <QOpenGLFramebufferObject>
#include <QtGui/QGuiApplication>
#include <QtGui/QOffscreenSurface>
#include <QtGui/QOpenGLContext>
#include <QtGui/QSurfaceFormat>

#include <algorithm>
#include <vector>

namespace {

constexpr int kMostPasses = 64;

/// Makes a context current for a scope and the former one afterwards.
class CurrentContext
{
public:
    [[nodiscard]] CurrentContext(QOpenGLContext& context, QOffscreenSurface& surface)
        : own(context)
        , formerContext(QOpenGLContext::currentContext())
        , formerSurface(formerContext == nullptr ? nullptr : formerContext->surface())
        , current(context.makeCurrent(&surface))
    { }

    ~CurrentContext()
    {
        if (formerContext != nullptr && formerContext != &own) {
            formerContext->makeCurrent(formerSurface);
        } else if (formerContext == nullptr) {
            own.doneCurrent();
        }
    }

    CurrentContext(const CurrentContext&) = delete;
    CurrentContext& operator=(const CurrentContext&) = delete;

    bool isCurrent() const { return current; }

private:
    QOpenGLContext& own;
    QOpenGLContext* formerContext;
    QSurface* formerSurface;
    bool current;
};

/// Element of a sequence that fills 0 .. 1 evenly, whatever its length.
float radicalInverse(int index, int base)
{
    float result = 0.0F;
    float place = 1.0F;
    for (int rest = index; rest > 0; rest /= base) {
        place /= static_cast<float>(base);
        result += place * static_cast<float>(rest % base);
    }
    return result;
}

}  // namespace

nbOffscreenView::nbOffscreenView() = default;

nbOffscreenView::~nbOffscreenView()
{
    close();
}

void nbOffscreenView::close()
{
    if (context != nullptr && surface != nullptr) {
        const CurrentContext current(*context, *surface);
        action.release();
    }
    context.reset();
    surface.reset();
}

bool nbOffscreenView::open()
{
    error.clear();
    if (context != nullptr && context->isValid()) {
        return true;
    }
    close();
    if (qGuiApp == nullptr) {
        error = "rendering without a window needs a running QGuiApplication";
        return false;
    }
    constexpr int kDepthBits = 24;
    QSurfaceFormat format;
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setDepthBufferSize(kDepthBits);
    auto newContext = std::make_unique<QOpenGLContext>();
    newContext->setFormat(format);
    if (!newContext->create()) {
        error = "no OpenGL context can be made on this display; OpenGL 3.3 core is needed";
        return false;
    }
    auto newSurface = std::make_unique<QOffscreenSurface>();
    newSurface->setFormat(newContext->format());
    newSurface->create();
    const CurrentContext current(*newContext, *newSurface);
    if (!newSurface->isValid() || !current.isCurrent()) {
        error = "no surface for rendering without a window can be made on this display";
        return false;
    }
    if (!action.initialise(&error)) {
        return false;
    }
    context = std::move(newContext);
    surface = std::move(newSurface);
    return true;
}

QImage nbOffscreenView::render(const osg::ViewportPtr& viewport, int widthPx, int heightPx)
{
    if (!open()) {
        return {};
    }
    if (widthPx <= 0 || heightPx <= 0) {
        error = "a picture of " + std::to_string(widthPx) + " x " + std::to_string(heightPx) +
            " pixels has no area";
        return {};
    }
    const CurrentContext current(*context, *surface);
    QOpenGLFramebufferObject target(widthPx, heightPx);
    if (!target.isValid() || !action.render(viewport, widthPx, heightPx, target.handle())) {
        error = "the driver cannot draw a picture of " + std::to_string(widthPx) + " x " +
            std::to_string(heightPx) + " pixels";
        return {};
    }
    return target.toImage().convertToFormat(QImage::Format_RGB32);
}

QImage nbOffscreenView::render(const osg::ViewportPtr& viewport, int widthPx, int heightPx,
                               int passes)
{
    const int count = std::clamp(passes, 1, kMostPasses);
    if (count == 1) {
        return render(viewport, widthPx, heightPx);
    }
    std::vector<unsigned int> sums;
    for (int pass = 0; pass < count; ++pass) {
        action.setSubpixelShift(radicalInverse(pass + 1, 2) - 0.5F,
                                radicalInverse(pass + 1, 3) - 0.5F);
        const QImage picture = render(viewport, widthPx, heightPx);
        action.setSubpixelShift(0.0F, 0.0F);
        if (picture.isNull()) {
            return {};
        }
        sums.resize(static_cast<std::size_t>(picture.sizeInBytes()), 0);
        const uchar* bytes = picture.constBits();
        for (std::size_t i = 0; i < sums.size(); ++i) {
            sums[i] += bytes[i];
        }
    }
    QImage average(widthPx, heightPx, QImage::Format_RGB32);
    uchar* bytes = average.bits();
    const auto divisor = static_cast<unsigned int>(count);
    for (std::size_t i = 0; i < sums.size(); ++i) {
        bytes[i] = static_cast<uchar>((sums[i] + divisor / 2) / divisor);
    }
    return average;
}
