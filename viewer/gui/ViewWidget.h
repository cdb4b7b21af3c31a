// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/HandleCursor.h"
#include "viewer/stage/Stage.h"

#include <nbInteraction/InputTranslator.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGRenderAction/nbOffscreenView.h>
#include <nbOpenSGRenderAction/nbRenderAction.h>

#include <QImage>
#include <QOpenGLWidget>

namespace viewer {

/// The 3D view of the window: draws the stage with OpenGL and hands it the person's input.
/// Draws only when the render widget asked for it. Nothing is lost with an OpenGL context, as when
/// the view moves to another window: the next picture is the same. Pixel ratios are converted here
/// and in the input translator only.
class ViewWidget : public QOpenGLWidget, private nbOSGWidget::Observer
{
    Q_OBJECT

public:
    explicit ViewWidget(QWidget* parent = nullptr);
    ViewWidget(const ViewWidget&) = delete;
    ViewWidget& operator=(const ViewWidget&) = delete;
    ~ViewWidget() override;

    Stage& stage() { return viewStage; }

    /// Fixes the size of the view, device pixels; an invalid size lets the layout decide again.
    void fixSize(const QSize& sizePx);

    /// Device pixels.
    QSize sizePx() const;

    /// Logical position of a device pixel.
    QPointF toLogical(const osg::Pnt2f& px) const;

    /// Picture of the view now, at its size, with smoothed edges. Draws by itself, so that the
    /// window need not be seen.
    /// @return null with one line in `error`
    QImage takePicture(QString& error);

    /// Gives the view a new OpenGL context, in which everything is made anew from the scene. The
    /// view does it by itself where the driver has lost the old one.
    void renewContext();

    /// Shows the effect buffer instead of the colours.
    void showEffectBuffer(bool on);

    /// Version of OpenGL and name of the renderer, such as "4.5, llvmpipe"; empty before the first
    /// picture.
    const QString& graphics() const { return graphicsName; }

    /// Whether each frame is timed until the driver is done, for frameText().
    void showFrameStatistics(bool on);

    /// What the last frame took; what it says of the time is whole only while that is shown.
    nbRenderAction::Statistics frameStatistics() const { return renderAction.getStatistics(); }

    /// The same as a line of text; empty while it is not shown.
    QString frameText() const;

    QSize sizeHint() const override;

signals:
    /// The pointer moved, the scene was drawn, or something else that a status line shows may have
    /// changed.
    void stateChanged();
    /// Drawing is not possible; one line. Comes once.
    void drawingFailed(const QString& reason);
    /// A click of the right button asked for a menu. @param px  device pixels, y from the top
    void menuAsked(const osg::Pnt2f& px, const QPoint& screenPlace);
    /// Files were dropped on the view, at least one. @param px  device pixels, y from the top
    void filesDropped(const QStringList& files, const osg::Pnt2f& px);

protected:
    bool event(QEvent* event) override;
    void initializeGL() override;
    void paintGL() override;
    void resizeGL(int width, int height) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void addCommands();
    void redrawRequested() override;
    void cursorChanged(Qt::CursorShape shape) override;
    void adoptSize();
    QSize logicalSize() const;
    /// Whether something is painted over the picture.
    bool hasOverlay() const;
    /// @param painter  in logical pixels of the view
    void paintOverlay(QPainter& painter) const;
    void paintOverlayOver(QImage& picture) const;
    void updateCursor();
    void followRightButton(const QMouseEvent& event);
    void releaseGraphics();

    nbOSGWidget renderWidget;
    Stage viewStage;
    nbec::interaction::InputTranslator translator;
    nbRenderAction renderAction;
    nbOffscreenView pictureView;
    QSize fixedSizePx;
    QPoint rightPress;  ///< of the right button alone
    HandleCursor shownCursor;
    Qt::CursorShape hostCursor = Qt::ArrowCursor;
    QString graphicsName;
    bool failed = false;
    bool frameStatisticsShown = false;
};

}  // namespace viewer
