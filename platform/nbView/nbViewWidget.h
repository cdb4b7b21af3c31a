// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/InputTranslator.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGRenderAction/nbOffscreenView.h>
#include <nbOpenSGRenderAction/nbRenderAction.h>
#include <nbUtils/nbPlatformExport.h>

#include <QOpenGLWidget>
#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtGui/QImage>

#include <memory>
#include <string>

// Of X11's headers.
#pragma push_macro("CursorShape")
#undef CursorShape

/// A view of the scene in a window of Qt's: draws it with OpenGL, hands a person's input to an
/// interaction manager and shows the on-screen texts. To be derived from, or used as it is.
///
/// Draws only when its render widget asks for it, which input to any view does that changed
/// something; after an edit of the program's own the program calls view().update(), or
/// nbOSGWidget::updateAll() with several views. On-screen texts are shown in the main view. Nothing
/// is lost with an OpenGL context, as when the widget moves to another window: the next picture is
/// the same. Needs OpenGL 3.3 core, which it asks of Qt itself. Construct between osgInit and
/// osgExit.
class NB_PLATFORM_API nbViewWidget : public QOpenGLWidget, private nbOSGWidget::Observer
{
public:
    explicit nbViewWidget(QWidget* parent = nullptr);
    nbViewWidget(const nbViewWidget&) = delete;
    nbViewWidget& operator=(const nbViewWidget&) = delete;
    ~nbViewWidget() override;

    /// Camera, viewport and pointer of the view.
    nbOSGWidget& view() { return renderWidget; }

    const nbOSGWidget& view() const { return renderWidget; }

    /// Sets who gets the input; nobody at the start.
    /// @param manager  not owned, outlives the events that come to this widget
    void setInteractionManager(nbec::interaction::InteractionManager& manager);

    /// Whether the middle button orbits instead of the right one, see InputTranslator. Has no
    /// effect before there is an interaction manager.
    void setMiddleOrbits(bool on);
    bool doesMiddleOrbit() const;

    /// Fixes the size of the view, device pixels; an invalid size lets the layout decide again.
    void fixSize(const QSize& sizePx);

    /// Device pixels.
    QSize sizePx() const;

    /// Logical position of a device pixel.
    QPointF toLogical(const osg::Pnt2f& px) const;

    /// Picture of the view now, at its size, with smoothed edges. Draws by itself, so that the
    /// window need not be seen.
    /// @return null with one line in `error`, which may be null
    QImage takePicture(std::string* error = nullptr);

    /// Gives the view a new OpenGL context, in which everything is made anew from the scene. The
    /// view does it by itself where the driver has lost the old one.
    void renewContext();

    /// Shows the effect buffer instead of the colours.
    void showEffectBuffer(bool on);

    /// Whether pictures while the camera moves may be coarse where they take long, see
    /// nbRenderAction::setHurried(); they may at the start. A whole one follows 150 ms after the
    /// last move.
    void setCoarseWhileMoving(bool on);

    bool isCoarseWhileMoving() const { return coarseWhileMoving; }

    /// Whether what the window shows is drawn as takePicture() draws it, always whole and in the
    /// tree's order; not at the start, see nbRenderAction::setMovedLast().
    void setExact(bool on);

    /// Time from an event of a person's to the picture that it changed, or to the one that showed
    /// several events at once from the first of them, when that was last shown. Milliseconds.
    double inputToPictureMs() const { return lastInputMs; }

    /// Version of OpenGL and name of the renderer, such as "4.5, llvmpipe"; empty before the first
    /// picture.
    const QString& graphics() const { return graphicsName; }

    QSize sizeHint() const override;

protected:
    /// Called before each picture, while this is the view that getMGLW() answers for -1:
    /// manipulators are updated here, which places them for this view. What it edits is in the
    /// picture and asks for no further one.
    virtual void prepareFrame() { }

    /// Called after each picture.
    virtual void frameDrawn() { }

    /// Brings a new size to the render widget, which knows the ratio already; to be extended by who
    /// has to know them. @param size  device pixels @param pixelRatio  of these per logical one
    virtual void viewResized(const QSize& size, float pixelRatio);

    /// Drawing is not possible. Called once; logs the reason, which is one line.
    virtual void drawingIsImpossible(const std::string& reason);

    /// Whether something is painted over the picture: the on-screen texts.
    virtual bool hasOverlay() const;

    /// Paints it. @param painter  in logical pixels of the view
    virtual void paintOverlay(QPainter& painter) const;

    /// Size in logical pixels, to which overlays are painted.
    QSize logicalSize() const;

    /// What draws the view, for its settings and statistics.
    nbRenderAction& getAction() { return renderAction; }

    const nbRenderAction& getAction() const { return renderAction; }

    void cursorChanged(Qt::CursorShape shape) override;

    bool event(QEvent* event) override;
    void initializeGL() override;
    void paintGL() override;
    void resizeGL(int width, int height) override;

private:
    void redrawRequested() override;
    void adoptSize();
    void releaseGraphics();

    nbOSGWidget renderWidget;
    std::unique_ptr<nbec::interaction::InputTranslator> translator;
    nbRenderAction renderAction;
    nbOffscreenView pictureView;
    QSize fixedSizePx;
    QString graphicsName;
    bool failed = false;
    bool coarseWhileMoving = true;
    bool exact = false;
    osg::Matrix lastPlace;  ///< of the camera, in the last picture
    QTimer sinceMove;  ///< runs a while after each move of the camera
    QElapsedTimer sinceInput;  ///< valid while a picture has not shown it
    double lastInputMs = 0.0;
};

#pragma pop_macro("CursorShape")
