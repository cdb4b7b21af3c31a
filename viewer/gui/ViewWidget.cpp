// SPDX-License-Identifier: MIT
#include "viewer/gui/ViewWidget.h"

#include "viewer/commands/Commands.h"
#include "viewer/gui/CursorShapes.h"
#include "viewer/gui/SelectionRectangle.h"
#include "viewer/gui/TextPainter.h"
#include "viewer/stage/StageTool.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QJsonObject>
#include <QMimeData>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QPainter>
#include <QUrl>

#include <cmath>

namespace viewer {
namespace {

/// Pictures that are averaged into one that is written to a file.
constexpr int kPicturePasses = 4;

/// Above this many pixels one is too small to be told from its neighbours, and memory and time
/// count more: one pass must do, and the view itself is drawn without samples.
constexpr int kHugePx = 16 * 1024 * 1024;
constexpr int kSamples = 8;

bool isHuge(const QSize& sizePx)
{
    return sizePx.width() > kHugePx / qMax(sizePx.height(), 1);
}

constexpr QSize kPreferredSize(1200, 800);
constexpr QSize kSmallestSize(16, 16);
constexpr int kFar = 100000;  ///< from everything in a view, logical pixels

QString graphicsText(QOpenGLFunctions& gl)
{
    const auto textOf = [&gl](GLenum name) {
        return QString::fromLatin1(reinterpret_cast<const char*>(gl.glGetString(name)));
    };
    return QStringLiteral("%1, %2").arg(textOf(GL_VERSION), textOf(GL_RENDERER));
}

QStringList localFiles(const QMimeData* data)
{
    QStringList files;
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile()) {
            files.append(url.toLocalFile());
        }
    }
    return files;
}

}  // namespace

ViewWidget::ViewWidget(QWidget* parent)
    : QOpenGLWidget(parent)
    , viewStage(renderWidget)
    , translator(viewStage.interaction(), &renderWidget)
{
    setObjectName(QStringLiteral("view"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setMinimumSize(kSmallestSize);
    renderWidget.setObserver(this);
    addCommands();
}

ViewWidget::~ViewWidget()
{
    renderWidget.setObserver(nullptr);
    releaseGraphics();
    // The context ends after the members that the slot needs.
    if (context() != nullptr) {
        disconnect(context(), nullptr, this, nullptr);
    }
}

void ViewWidget::fixSize(const QSize& newSizePx)
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

QSize ViewWidget::sizePx() const
{
    if (fixedSizePx.isValid()) {
        return fixedSizePx;
    }
    const double ratio = devicePixelRatioF();
    return { qRound(width() * ratio), qRound(height() * ratio) };
}

QPointF ViewWidget::toLogical(const osg::Pnt2f& px) const
{
    const double ratio = devicePixelRatioF();
    return { static_cast<double>(px[0]) / ratio, static_cast<double>(px[1]) / ratio };
}

void ViewWidget::adoptSize()
{
    const double ratio = devicePixelRatioF();
    translator.setDevicePixelRatio(ratio);
    renderAction.setPixelRatio(static_cast<float>(ratio));
    pictureView.getAction().setPixelRatio(static_cast<float>(ratio));
    const QSize size = sizePx();
    renderAction.setSamples(isHuge(size) ? 1 : kSamples);
    viewStage.resize(size.width(), size.height(), static_cast<float>(ratio));
}

QImage ViewWidget::takePicture(QString& error)
{
    viewStage.update();
    const QSize size = sizePx();
    const int passes = isHuge(size) ? 1 : kPicturePasses;
    QImage picture =
        pictureView.render(renderWidget.getViewport(), size.width(), size.height(), passes);
    if (picture.isNull()) {
        error =
            tr("the view cannot be drawn: %1").arg(QString::fromStdString(pictureView.getError()));
        return picture;
    }
    paintOverlayOver(picture);
    return picture;
}

QSize ViewWidget::logicalSize() const
{
    const double ratio = devicePixelRatioF();
    const QSize px = sizePx();
    return { qRound(px.width() / ratio), qRound(px.height() / ratio) };
}

void ViewWidget::paintOverlayOver(QImage& picture) const
{
    if (!hasOverlay()) {
        return;
    }
    picture = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    painter.scale(devicePixelRatioF(), devicePixelRatioF());
    paintOverlay(painter);
}

bool ViewWidget::hasOverlay() const
{
    return hasVisibleTexts(logicalSize()) || hasSelectionRectangle(renderWidget) ||
        (viewStage.activeTool() != nullptr && !viewStage.activeTool()->labels().empty());
}

void ViewWidget::paintOverlay(QPainter& painter) const
{
    paintSelectionRectangle(painter, renderWidget, devicePixelRatioF());
    paintTexts(painter, logicalSize());
    if (const StageTool* tool = viewStage.activeTool()) {
        for (const StageTool::Label& label : tool->labels()) {
            paintLabel(painter, toLogical(label.px), label.text);
        }
    }
}

void ViewWidget::updateCursor()
{
    const HandleCursor wanted = cursorOfHandle(viewStage, viewStage.hoveredHandle());
    if (wanted != shownCursor) {
        shownCursor = wanted;
        setCursor(wanted.action == HandleAction::None ? QCursor(hostCursor) : cursorShape(wanted));
    }
}

void ViewWidget::renewContext()
{
    // What a move to another window tells a view.
    QEvent moved(QEvent::WindowChangeInternal);
    QCoreApplication::sendEvent(this, &moved);
    update();
}

void ViewWidget::showEffectBuffer(bool on)
{
    renderAction.showEffectBuffer(on);
    pictureView.getAction().showEffectBuffer(on);
    renderWidget.update();
}

void ViewWidget::showFrameStatistics(bool on)
{
    frameStatisticsShown = on;
    renderAction.setTimed(on);
    emit stateChanged();
}

QString ViewWidget::frameText() const
{
    if (!frameStatisticsShown) {
        return {};
    }
    constexpr int kDecimals = 1;
    const nbRenderAction::Statistics frame = frameStatistics();
    const QString text = frame.reused > 0
        ? tr("%1 ms, %2 draw calls, %L3 triangles, scene image reused")
        : tr("%1 ms, %2 draw calls, %L3 triangles");
    return text.arg(frame.milliseconds, 0, 'f', kDecimals)
        .arg(frame.drawCalls)
        .arg(frame.triangles);
}

void ViewWidget::addCommands()
{
    Commands& commands = viewStage.commands();
    commands.add(QStringLiteral("view.setFrameStatistics"),
                 [this](const QJsonValue& value, QString& error) {
                     if (!value.isBool() && !value.isNull()) {
                         error = QStringLiteral("expected true or false");
                         return false;
                     }
                     showFrameStatistics(value.toBool(!frameStatisticsShown));
                     return true;
                 });
    commands.addValue(QStringLiteral("view.frameStatistics"), [this]() -> QJsonValue {
        const nbRenderAction::Statistics frame = frameStatistics();
        return QJsonObject { { "shown", frameStatisticsShown },
                             { "frames", static_cast<double>(frame.frames) },
                             { "milliseconds", frame.milliseconds },
                             { "drawCalls", static_cast<double>(frame.drawCalls) },
                             { "triangles", static_cast<double>(frame.triangles) },
                             { "sceneReused", frame.reused > 0 } };
    });
}

QSize ViewWidget::sizeHint() const
{
    return kPreferredSize;
}

bool ViewWidget::event(QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool wasDragging = viewStage.isDragging();
    const bool taken = translator.handleEvent(*event);
    if (wasDragging && !viewStage.isDragging()) {
        viewStage.tellEverybody();
    }
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease) {
        followRightButton(static_cast<const QMouseEvent&>(*event));
    }
    if (type == QEvent::MouseMove || type == QEvent::Leave) {
        viewStage.gizmo().setPointerInside(type == QEvent::MouseMove);
    }
    if (type == QEvent::MouseMove || type == QEvent::Leave || type == QEvent::MouseButtonRelease) {
        updateCursor();
        emit stateChanged();
    }
    if (taken) {
        event->accept();
        return true;
    }
    return QOpenGLWidget::event(event);
}

void ViewWidget::followRightButton(const QMouseEvent& event)
{
    if (event.type() == QEvent::MouseButtonPress) {
        const bool isAlone = event.buttons() == Qt::RightButton;
        rightPress = isAlone ? event.pos() : QPoint(-kFar, -kFar);
    } else if (event.button() == Qt::RightButton &&
               (event.pos() - rightPress).manhattanLength() < QApplication::startDragDistance()) {
        emit menuAsked(viewStage.view().getMousePosition(), event.globalPos());
    }
}

void ViewWidget::initializeGL()
{
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &ViewWidget::releaseGraphics);
    graphicsName = graphicsText(*context()->functions());
    std::string reason;
    failed = !renderAction.initialise(&reason);
    if (failed) {
        emit drawingFailed(tr("the view cannot be drawn: %1").arg(QString::fromStdString(reason)));
    }
}

void ViewWidget::paintGL()
{
    // What update() changes belongs to this picture, so its requests for another one are answered
    // by it.
    viewStage.update();
    renderWidget.redrawDone();
    if (failed) {
        return;
    }
    const QSize size = sizePx();
    renderAction.render(renderWidget.getViewport(), size.width(), size.height(),
                        defaultFramebufferObject());
    if (hasOverlay()) {
        QPainter painter(this);
        paintOverlay(painter);
    }
    emit stateChanged();
}

void ViewWidget::resizeGL(int, int)
{
    adoptSize();
}

void ViewWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void ViewWidget::dropEvent(QDropEvent* event)
{
    const QStringList files = localFiles(event->mimeData());
    if (!files.isEmpty()) {
        event->acceptProposedAction();
        const double ratio = devicePixelRatioF();
        emit filesDropped(files,
                          { static_cast<float>(event->posF().x() * ratio),
                            static_cast<float>(event->posF().y() * ratio) });
    }
}

void ViewWidget::redrawRequested()
{
    if (context() != nullptr && !context()->isValid()) {
        renewContext();
    }
    update();
}

void ViewWidget::cursorChanged(Qt::CursorShape shape)
{
    hostCursor = shape;
    if (shownCursor.action == HandleAction::None) {
        setCursor(shape);
    }
}

void ViewWidget::releaseGraphics()
{
    if (context() == nullptr) {
        return;
    }
    makeCurrent();
    renderAction.release();
    doneCurrent();
}

}  // namespace viewer
