// SPDX-License-Identifier: MIT
#include "viewer/gui/ViewWidget.h"

#include "viewer/commands/Commands.h"
#include "viewer/gui/CursorShapes.h"
#include "viewer/gui/SelectionRectangle.h"
#include "viewer/stage/StageTool.h"

#include <nbUtils/nbQt.h>
#include <nbView/nbTextPainter.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QJsonObject>
#include <QMimeData>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QPainter>
#include <QUrl>

namespace viewer {
namespace {

constexpr int kFar = 100000;  ///< from everything in a view, logical pixels

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
    : nbViewWidget(parent)
    , viewStage(view())
{
    setObjectName(QStringLiteral("view"));
    setAcceptDrops(true);
    setInteractionManager(viewStage.interaction());
    addCommands();
}

void ViewWidget::viewResized(const QSize& size, float pixelRatio)
{
    viewStage.resize(size.width(), size.height(), pixelRatio);
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
    return nbViewWidget::hasOverlay() || hasSelectionRectangle(view()) ||
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
}

void ViewWidget::updateCursor()
{
    const HandleCursor wanted = cursorOfHandle(viewStage, viewStage.hoveredHandle());
    if (wanted != shownCursor) {
        shownCursor = wanted;
        setCursor(wanted.action == HandleAction::None ? QCursor(hostCursor) : cursorShape(wanted));
    }
}

void ViewWidget::showFrameStatistics(bool on)
{
    frameStatisticsShown = on;
    getAction().setTimed(on);
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
        QStringLiteral("view.setFrameStatistics"),
        [this](bool on, QString&) {
            showFrameStatistics(on);
            return true;
        },
        [this] { return frameStatisticsShown; });
    commands.addValue(QStringLiteral("view.frameStatistics"), [this]() -> QJsonValue {
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

bool ViewWidget::event(QEvent* event)
{
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
