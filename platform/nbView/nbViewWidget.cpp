// SPDX-License-Identifier: MIT
#include <nbUtils/nbLog.h>
#include <nbView/nbTextPainter.h>
#include <nbView/nbViewWidget.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QInputEvent>
#include <QtGui/QOpenGLContext>
#include <QtGui/QOpenGLFunctions>
#include <QtGui/QPainter>

namespace {

/// Pictures that are averaged into one that is written to a file.
constexpr int kPicturePasses = 4;

/// Above this many pixels one is too small to be told from its neighbours, and memory and time
/// count more: one pass must do, and the view itself is drawn without samples.
constexpr int kHugePx = 16 * 1024 * 1024;
constexpr int kSamples = 8;
constexpr double kNanosecondsPerMs = 1e6;

bool isHuge(const QSize& sizePx)
{
    return sizePx.width() > kHugePx / qMax(sizePx.height(), 1);
}

/// From the last move of the camera to the whole picture.
constexpr int kRestMs = 150;

constexpr QSize kPreferredSize(1200, 800);
constexpr QSize kSmallestSize(16, 16);

QString graphicsText(QOpenGLFunctions& gl)
{
    const auto textOf = [&gl](GLenum name) {
        return QString::fromLatin1(reinterpret_cast<const char*>(gl.glGetString(name)));
    };
    return QStringLiteral("%1, %2").arg(textOf(GL_VERSION), textOf(GL_RENDERER));
}

QSurfaceFormat openGlFormat()
{
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    return format;
}

}  // namespace

nbViewWidget::nbViewWidget(QWidget* parent)
    : QOpenGLWidget(parent)
{
    setFormat(openGlFormat());
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(kSmallestSize);
    renderWidget.setObserver(this);
    renderAction.setMovedLast(true);
    sinceMove.setSingleShot(true);
    sinceMove.setInterval(kRestMs);
    connect(&sinceMove, &QTimer::timeout, this, [this] {
        if (renderAction.getStatistics().coarse) {
            renderWidget.update();
        }
    });
    connect(this, &QOpenGLWidget::frameSwapped, this, [this] {
        if (sinceInput.isValid()) {
            lastInputMs = static_cast<double>(sinceInput.nsecsElapsed()) / kNanosecondsPerMs;
            sinceInput.invalidate();
        }
    });
}

nbViewWidget::~nbViewWidget()
{
    renderWidget.setObserver(nullptr);
    releaseGraphics();
    // The context ends after the members that the slot needs.
    if (context() != nullptr) {
        disconnect(context(), nullptr, this, nullptr);
    }
}

void nbViewWidget::setInteractionManager(nbec::interaction::InteractionManager& manager)
{
    translator = std::make_unique<nbec::interaction::InputTranslator>(manager, &renderWidget);
    translator->setDevicePixelRatio(devicePixelRatioF());
}

void nbViewWidget::setMiddleOrbits(bool on)
{
    if (translator != nullptr) {
        translator->setMiddleOrbits(on);
    }
}

bool nbViewWidget::doesMiddleOrbit() const
{
    return translator != nullptr && translator->doesMiddleOrbit();
}

// == Size

void nbViewWidget::fixSize(const QSize& newSizePx)
{
    fixedSizePx = newSizePx;
    if (newSizePx.isValid()) {
        const double ratio = devicePixelRatioF();
        setFixedSize(qRound(newSizePx.width() / ratio), qRound(newSizePx.height() / ratio));
    } else {
        setMinimumSize(kSmallestSize);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }
    adoptSize();
}

QSize nbViewWidget::sizePx() const
{
    if (fixedSizePx.isValid()) {
        return fixedSizePx;
    }
    const double ratio = devicePixelRatioF();
    return { qRound(width() * ratio), qRound(height() * ratio) };
}

QPointF nbViewWidget::toLogical(const osg::Pnt2f& px) const
{
    const double ratio = devicePixelRatioF();
    return { static_cast<double>(px[0]) / ratio, static_cast<double>(px[1]) / ratio };
}

QSize nbViewWidget::logicalSize() const
{
    const double ratio = devicePixelRatioF();
    const QSize px = sizePx();
    return { qRound(px.width() / ratio), qRound(px.height() / ratio) };
}

QSize nbViewWidget::sizeHint() const
{
    return kPreferredSize;
}

void nbViewWidget::adoptSize()
{
    const double ratio = devicePixelRatioF();
    if (translator != nullptr) {
        translator->setDevicePixelRatio(ratio);
    }
    renderWidget.setPixelRatio(static_cast<float>(ratio));
    renderAction.setPixelRatio(static_cast<float>(ratio));
    pictureView.getAction().setPixelRatio(static_cast<float>(ratio));
    const QSize size = sizePx();
    renderAction.setSamples(isHuge(size) ? 1 : kSamples);
    viewResized(size, static_cast<float>(ratio));
}

void nbViewWidget::viewResized(const QSize& size, float)
{
    renderWidget.resize(size.width(), size.height());
}

// == Pictures

QImage nbViewWidget::takePicture(std::string* error)
{
    const nbOSGWidget::Drawing drawing(renderWidget);
    prepareFrame();
    const QSize size = sizePx();
    const int passes = isHuge(size) ? 1 : kPicturePasses;
    QImage picture =
        pictureView.render(renderWidget.getViewport(), size.width(), size.height(), passes);
    if (picture.isNull()) {
        if (error != nullptr) {
            *error = pictureView.getError();
        }
        return picture;
    }
    if (hasOverlay()) {
        picture = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&picture);
        painter.scale(devicePixelRatioF(), devicePixelRatioF());
        paintOverlay(painter);
    }
    return picture;
}

bool nbViewWidget::hasOverlay() const
{
    return renderWidget.isMain() && nbTextPainter::hasTexts(logicalSize());
}

void nbViewWidget::paintOverlay(QPainter& painter) const
{
    if (renderWidget.isMain()) {
        nbTextPainter::paintTexts(painter, logicalSize());
    }
}

void nbViewWidget::setCoarseWhileMoving(bool on)
{
    coarseWhileMoving = on;
    renderWidget.update();
}

void nbViewWidget::setExact(bool on)
{
    exact = on;
    renderAction.setMovedLast(!on);
    renderWidget.update();
}

void nbViewWidget::showEffectBuffer(bool on)
{
    renderAction.showEffectBuffer(on);
    pictureView.getAction().showEffectBuffer(on);
    renderWidget.update();
}

// == OpenGL

void nbViewWidget::renewContext()
{
    // What a move to another window tells a view.
    QEvent moved(QEvent::WindowChangeInternal);
    QCoreApplication::sendEvent(this, &moved);
    update();
}

void nbViewWidget::initializeGL()
{
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, [this] { releaseGraphics(); });
    graphicsName = graphicsText(*context()->functions());
    std::string reason;
    failed = !renderAction.initialise(&reason);
    if (failed) {
        drawingIsImpossible(reason);
    }
}

void nbViewWidget::drawingIsImpossible(const std::string& reason)
{
    nbLog::error("nbViewWidget: the view cannot be drawn: " + reason);
}

void nbViewWidget::paintGL()
{
    const nbOSGWidget::Drawing drawing(renderWidget);
    // What this changes belongs to this picture, so its requests for another one are answered by
    // it.
    prepareFrame();
    renderWidget.redrawDone();
    if (failed) {
        return;
    }
    const QSize size = sizePx();
    const osg::Matrix place = renderWidget.getUberCamera()->getInternalParentNode()->getToWorld();
    const bool moved = !place.equals(lastPlace, 0.0F);
    lastPlace = place;
    renderAction.setHurried(coarseWhileMoving && !exact && (moved || sinceMove.isActive()));
    renderAction.render(renderWidget.getViewport(), size.width(), size.height(),
                        defaultFramebufferObject());
    if (moved) {
        sinceMove.start();
    }
    if (hasOverlay()) {
        QPainter painter(this);
        paintOverlay(painter);
    }
    frameDrawn();
}

void nbViewWidget::resizeGL(int, int)
{
    adoptSize();
}

void nbViewWidget::releaseGraphics()
{
    if (context() == nullptr) {
        return;
    }
    makeCurrent();
    renderAction.release();
    doneCurrent();
}

// == Events

bool nbViewWidget::event(QEvent* event)
{
    const bool isFirst = dynamic_cast<QInputEvent*>(event) != nullptr && !sinceInput.isValid();
    if (isFirst) {
        sinceInput.start();
    }
    const bool taken = translator != nullptr && translator->handleEvent(*event);
    if (isFirst && !renderWidget.isRedrawPending()) {
        sinceInput.invalidate();
    }
    if (taken) {
        event->accept();
        return true;
    }
    const bool isDone = QOpenGLWidget::event(event);
    if (event->type() == QEvent::ScreenChangeInternal) {
        adoptSize();  // that may have other pixels
    }
    return isDone;
}

void nbViewWidget::redrawRequested()
{
    if (context() != nullptr && !context()->isValid()) {
        renewContext();
    }
    update();
}

void nbViewWidget::cursorChanged(Qt::CursorShape shape)
{
    setCursor(shape);
}
