// SPDX-License-Identifier: MIT
#include "viewer/gui/ViewWidget.h"

#include "viewer/commands/Commands.h"
#include "viewer/gui/ThemeIcon.h"
#include "viewer/stage/StageTool.h"

#include <nbUtils/nbQt.h>
#include <nbView/nbTextPainter.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QJsonObject>
#include <QMimeData>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QPainter>
#include <QTextDocument>
#include <QUrl>
#include <QWheelEvent>

#include <cmath>

namespace viewer {
namespace {

// Of the rectangle that selects; dashes of two colours show on any ground.
const QColor kFill(255, 255, 255, 28);
const QColor kDarkLine(20, 22, 26, 160);
const QColor kLightLine(245, 246, 250);

constexpr int kFar = 100000;  ///< from everything in a view, logical pixels

/// Whether a wheel event is two fingers on a touchpad, which pan; with Ctrl they zoom.
bool isOfTouchpad(const QWheelEvent& event)
{
    return event.phase() != Qt::NoScrollPhase && !event.pixelDelta().isNull() &&
        (event.modifiers() & Qt::ControlModifier) == 0;
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

bool hasSelectionRectangle(const nbOSGWidget& view)
{
    return view.getRectSelection() && !view.getMouseRect().isEmpty();
}

void paintSelectionRectangle(QPainter& painter, const nbOSGWidget& view, double pixelRatio)
{
    if (!hasSelectionRectangle(view)) {
        return;
    }
    const QRect px = view.getMouseRect();
    const QRectF rectangle(px.left() / pixelRatio, px.top() / pixelRatio,
                           (px.width() - 1) / pixelRatio, (px.height() - 1) / pixelRatio);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(rectangle, kFill);
    painter.setPen(QPen(kDarkLine, 0.0));
    painter.drawRect(rectangle);
    painter.setPen(QPen(kLightLine, 0.0, Qt::DashLine));
    painter.drawRect(rectangle);
    painter.restore();
}

// Of captions, by the smaller side of the view.
constexpr double kTextPart = 0.026;
constexpr double kMarginPart = 0.03;
constexpr int kLeastTextPx = 11;

const QColor kCaptionGround(16, 20, 26, 215);
const QColor kCaptionAccent(0xe8, 0xb0, 0x4a);

/// Paints a caption over the lower part of an area: a title and below it what is being shown, on a
/// dark ground that lets the picture through.
/// @param area   whose size decides that of the letters
/// @param title  not empty
void paintCaption(QPainter& painter, const QRect& area, const QString& title, const QString& text)
{
    const int side = qMin(area.width(), area.height());
    const int margin = qRound(kMarginPart * side);
    QFont font = QApplication::font();
    font.setPixelSize(qMax(kLeastTextPx, qRound(kTextPart * side)));
    QTextDocument caption;
    caption.setDefaultFont(font);
    caption.setDocumentMargin(margin);
    caption.setHtml(QStringLiteral("<div style='color: #d6dce4'><big style='color: white'><b>%1</b>"
                                   "</big><br/>%2</div>")
                        .arg(title.toHtmlEscaped(), text.toHtmlEscaped()));
    caption.setTextWidth(
        qMin(caption.idealWidth(), static_cast<double>(area.width() - 2 * margin)));
    painter.save();
    painter.translate(area.left() + margin, area.bottom() - margin - caption.size().height());
    painter.fillRect(QRectF({ 0.0, 0.0 }, caption.size()), kCaptionGround);
    painter.fillRect(QRectF(0.0, 0.0, margin / 4.0, caption.size().height()), kCaptionAccent);
    caption.drawContents(&painter);
    painter.restore();
}

}  // namespace

ViewWidget::ViewWidget(QWidget* parent)
    : nbViewWidget(parent)
    , viewStage(view())
{
    setObjectName("view");
    setAcceptDrops(true);
    setInteractionManager(viewStage.interaction());
    addCommands();
}

void ViewWidget::viewResized(const QSize& size, float /*pixelRatio*/)
{
    viewStage.resize(size.width(), size.height());
}

QImage ViewWidget::takePicture(QString& error)
{
    std::string reason;
    const QImage picture = nbViewWidget::takePicture(&reason);
    if (picture.isNull()) {
        error = tr("the view cannot be drawn: %1").arg(QString::fromStdString(reason));
    }
    return picture;
}

QImage ViewWidget::lastFrame()
{
    if (!isValid()) {
        return {};
    }
    makeCurrent();
    QImage frame(sizePx(), QImage::Format_RGBA8888);
    context()->functions()->glReadPixels(0, 0, frame.width(), frame.height(), GL_RGBA,
                                         GL_UNSIGNED_BYTE, frame.bits());
    doneCurrent();
    return std::move(frame).mirrored();
}

void ViewWidget::drawingIsImpossible(const std::string& reason)
{
    emit drawingFailed(tr("the view cannot be drawn: %1").arg(QString::fromStdString(reason)));
}

bool ViewWidget::hasOverlay() const
{
    return nbViewWidget::hasOverlay() || hasSelectionRectangle(view()) || !captionTitle.isEmpty() ||
        (viewStage.activeTool() != nullptr && !viewStage.activeTool()->labels().empty());
}

void ViewWidget::paintOverlay(QPainter& painter) const
{
    paintSelectionRectangle(painter, view(), devicePixelRatioF());
    nbViewWidget::paintOverlay(painter);
    if (const StageTool* tool = viewStage.activeTool()) {
        for (const StageTool::Label& label : tool->labels()) {
            nbTextPainter::paintLabel(painter, toLogical(label.px), label.text);
        }
    }
    if (!captionTitle.isEmpty()) {
        paintCaption(painter, QRect(QPoint(), logicalSize()), captionTitle, captionText);
    }
}

void ViewWidget::setCaption(const QString& title, const QString& text)
{
    captionTitle = title;
    captionText = text;
    setAccessibleDescription(title.isEmpty() ? title : title + QStringLiteral(": ") + text);
    viewStage.view().update();
}

void ViewWidget::updateCursor()
{
    const HandleCursor wanted = cursorOfHandle(viewStage, viewStage.hoveredHandle());
    if (wanted != shownCursor) {
        shownCursor = wanted;
        setCursor(wanted.action == HandleAction::None ? QCursor(hostCursor) : cursorShape(wanted));
    }
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
    return tr("%1; input to picture %2 ms")
        .arg(text.arg(frame.milliseconds, 0, 'f', kDecimals)
                 .arg(frame.drawCalls)
                 .arg(frame.triangles))
        .arg(inputToPictureMs(), 0, 'f', kDecimals);
}

void ViewWidget::addCommands()
{
    Commands& commands = viewStage.commands();
    commands.addSwitch(
        "view.setFrameStatistics",
        [this](bool on) {
            frameStatisticsShown = on;
            // Until the driver is done.
            getAction().setTimed(on);
            emit stateChanged();
        },
        [this] { return frameStatisticsShown; });
    commands.addValue("view.frameStatistics", [this]() -> QJsonValue {
        const nbRenderAction::Statistics frame = frameStatistics();
        return QJsonObject { { "shown", frameStatisticsShown },
                             { "frames", static_cast<double>(frame.frames) },
                             { "milliseconds", frame.milliseconds },
                             { "drawCalls", static_cast<double>(frame.drawCalls) },
                             { "triangles", static_cast<double>(frame.triangles) },
                             { "sceneReused", frame.reused > 0 },
                             { "coarse", frame.coarse },
                             { "inputToPicture", inputToPictureMs() } };
    });
}

bool ViewWidget::followTouchpad(QEvent* event)
{
    if (event->type() == QEvent::Wheel && isOfTouchpad(static_cast<QWheelEvent&>(*event))) {
        // As a drag of the middle button.
        const auto& wheel = static_cast<const QWheelEvent&>(*event);
        const Qt::KeyboardModifiers keys = doesMiddleOrbit() ? Qt::ShiftModifier : Qt::NoModifier;
        const QPointF to = wheel.position() + wheel.pixelDelta();
        const QPointF onScreen = wheel.globalPosition();
        QMouseEvent press(QEvent::MouseButtonPress, wheel.position(), onScreen, Qt::MiddleButton,
                          Qt::MiddleButton, keys);
        QMouseEvent move(QEvent::MouseMove, to, onScreen, Qt::NoButton, Qt::MiddleButton, keys);
        QMouseEvent release(QEvent::MouseButtonRelease, to, onScreen, Qt::MiddleButton,
                            Qt::NoButton, keys);
        for (QMouseEvent* step : { &press, &move, &release }) {
            QCoreApplication::sendEvent(this, step);
        }
        return true;
    }
    if (event->type() != QEvent::NativeGesture) {
        return false;
    }
    const auto& gesture = static_cast<const QNativeGestureEvent&>(*event);
    if (gesture.gestureType() == Qt::ZoomNativeGesture && gesture.value() > -1.0) {
        constexpr double kAngleOfStep = 120.0;
        const double steps = -std::log1p(gesture.value()) /
            std::log(nbec::interaction::CameraInteractionContext::kWheelFactor);
        const QPointF at = nbQt::position(gesture);
        QWheelEvent wheel(at, mapToGlobal(at.toPoint()), QPoint(),
                          QPoint(0, qRound(kAngleOfStep * steps)), Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(this, &wheel);
    }
    return true;
}

bool ViewWidget::event(QEvent* event)
{
    if (followTouchpad(event)) {
        event->accept();
        return true;
    }
    const QEvent::Type type = event->type();
    const bool wasDragging = viewStage.isDragging();
    const bool taken = nbViewWidget::event(event);
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
    return taken;
}

void ViewWidget::followRightButton(const QMouseEvent& event)
{
    const QPoint place = nbQt::position(event).toPoint();
    if (event.type() == QEvent::MouseButtonPress) {
        rightPress = event.buttons() == Qt::RightButton ? place : QPoint(-kFar, -kFar);
    } else if (event.button() == Qt::RightButton &&
               (place - rightPress).manhattanLength() < QApplication::startDragDistance()) {
        emit menuAsked(viewStage.view().getMousePosition(), mapToGlobal(place));
    }
}

void ViewWidget::prepareFrame()
{
    viewStage.update();
}

void ViewWidget::frameDrawn()
{
    emit stateChanged();
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
        const QPointF px = nbQt::position(*event) * devicePixelRatioF();
        emit filesDropped(files, { static_cast<float>(px.x()), static_cast<float>(px.y()) });
    }
}

void ViewWidget::cursorChanged(Qt::CursorShape shape)
{
    hostCursor = shape;
    if (shownCursor.action == HandleAction::None) {
        setCursor(shape);
    }
}

}  // namespace viewer
