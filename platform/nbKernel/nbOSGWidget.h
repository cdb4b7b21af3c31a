// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberViewport/UberViewport.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGPassiveWindow.h>
#include <OpenSG/OSGVector.h>
#include <OpenSG/OSGViewport.h>

#include <QtCore/QRect>
#include <QtCore/Qt>

// Of X11's headers.
#pragma push_macro("CursorShape")
#undef CursorShape

/// One view of the scene: camera, viewport, pointer, selection rectangle. Not a window: a host lays
/// it over one and tells it sizes and pointer positions; without one it works all the same.
///
/// Positions and sizes are device pixels, y from the top edge of the view. The live widgets form a
/// list in order of construction; index -1 stands for the main one, which is the first unless
/// setMain() chose another. Construct between osgInit and osgExit, on the user-interface thread.
///
/// Several views show one scene: pickers and manipulators work in the main one, which the input
/// translator makes that under the pointer. While a view draws it stands for the main one, see
/// Drawing, so that handles have their size and place in it.
class NB_PLATFORM_API nbOSGWidget
{
public:
    /// Told by a widget what its window has to do; what it throws is logged. The widget does not
    /// own it.
    class NB_PLATFORM_API Observer
    {
    public:
        virtual ~Observer() = default;

        /// The view wants to be drawn once; answer with nbOSGWidget::redrawDone() when it is.
        virtual void redrawRequested() { }

        /// The pointer is to look like this over the view.
        virtual void cursorChanged(Qt::CursorShape) { }

        /// A still picture's progressive antialiasing starts anew.
        virtual void antialiasingCancelled() { }

    protected:
        Observer() = default;
        Observer(const Observer&) = default;
        Observer& operator=(const Observer&) = default;
    };

    using ResizeCallback = void (*)();

    /// Field of view without a widget and in a new one, degrees.
    static constexpr float kDefaultFovDeg = 45.0F;

    /// A view without area, showing the world root from (0, 0, 10) along -z.
    nbOSGWidget();
    nbOSGWidget(const nbOSGWidget&) = delete;
    nbOSGWidget& operator=(const nbOSGWidget&) = delete;
    /// Leaves the list; if it was the main widget, the first of the rest is.
    ~nbOSGWidget();

    // == The live widgets

    /// Widget of an index, -1 for the main one; null if there is none.
    static nbOSGWidget* getMGLW(int index);
    /// Makes this the main widget.
    void setMain();
    /// Whether it is the main one, also while another view draws.
    bool isMain() const;

    /// While it lives a view draws, and is what getMGLW() answers for -1. A host with several views
    /// has one around each picture, with the update of the manipulators and the drawing itself.
    class NB_PLATFORM_API Drawing
    {
    public:
        /// @param view  may die meanwhile
        explicit Drawing(nbOSGWidget& view);
        Drawing(const Drawing&) = delete;
        Drawing& operator=(const Drawing&) = delete;
        ~Drawing();

    private:
        nbOSGWidget* former;
    };

    /// Asks for one redraw of every view, after an edit of what they show.
    static void updateAll();

    // == Its camera, by index as in getMGLW(). World space, degrees.

    /// Eye; (0, 0, 0) without a widget.
    static osg::Pnt3f getFrom(int index);
    /// Exactly the float that the camera's Fov field holds; 45 without a widget.
    static float getFov(int index);
    /// Without a widget (0, 0, 0), (0, 0, -1), (0, 1, 0).
    static void getFromAtUp(int index, osg::Pnt3f& from, osg::Pnt3f& at, osg::Vec3f& up);
    /// What the view turns about; (0, 0, 0) without a widget.
    static osg::Pnt3f getPivot(int index);
    /// Device pixels per logical one. @param untold  the answer without a widget and for a view
    /// that was not told, see setPixelRatio()
    static float getPixelRatio(int index, float untold = 1.0F);
    /// Whether z is up in the world of the main widget; false without one.
    static bool isCameraZUp();

    // == Settings of all widgets

    /// What a click is for; 0 selects (at the start), the other numbers are the host's.
    static int getInteractionMode();
    static void setInteractionMode(int mode);

    /// Adds a function that is called after a widget was resized. Added n times it is still called
    /// once, until it was removed n times. A callback may add and remove callbacks, itself
    /// included. Null is ignored; what a callback throws is logged.
    static void addMGLWResizeCB(ResizeCallback callback);
    static void subMGLWResizeCB(ResizeCallback callback);

    // == Parts. The widget owns them; they live as long as it does.

    osg::UberCameraPtr getUberCamera() const { return camera; }

    osg::CameraPtr getCamera() const { return camera.get(); }

    /// Always inside a window of the widget's size, so that calcViewRay() may be used.
    osg::ViewportPtr getViewport() const { return viewport.get(); }

    osg::UberViewportPtr getUberViewport() const { return viewport; }

    // == Size

    /// New size. A side of 0 or less makes a view without area, for which calcViewRay() is false.
    /// Sides are limited to what a window can have, 65535. Calls the resize callbacks and update(),
    /// unless the size is the one that it has.
    void resize(int width, int height);

    int getWidth() const { return widthPx; }

    int getHeight() const { return heightPx; }

    /// Device pixels per logical one, as the window tells them; what is not finite or not above 0
    /// is ignored.
    void setPixelRatio(float ratio);

    // == Pointer

    osg::Pnt2f getMousePosition() const { return mousePositionPx; }

    /// A position that is not finite is ignored. May lie outside the view, but is pulled in to a
    /// million pixels, here and below.
    void setMousePosition(const osg::Pnt2f& position);

    /// Where the button went down; opens the rectangle. A position that is not finite is ignored.
    void setPressPosition(const osg::Pnt2f& position);

    /// Closes the rectangle, when the button is up again.
    void clearPressPosition() { pressed = false; }

    /// Whether the rectangle from press to pointer is being used to select.
    bool getRectSelection() const { return rectSelection; }

    void setRectSelection(bool enabled) { rectSelection = enabled; }

    /// Whole pixels from press to pointer, both included, whichever way it was drawn; a null
    /// rectangle without a press.
    QRect getMouseRect() const;

    // == Requests to the window

    /// Asks for one redraw. Further requests are dropped until redrawDone(), so that any number of
    /// changes costs one. A request made before there is an observer is passed on to the first one.
    void update();

    /// The requested redraw is under way with all changes so far; the next update() asks again.
    void redrawDone() { redrawPending = false; }

    bool isRedrawPending() const { return redrawPending; }

    void setCursor(Qt::CursorShape shape);

    Qt::CursorShape getCursor() const { return cursor; }

    /// Has progressive antialiasing start anew, because something is about to change.
    void cancelAntialiasing();

    /// Replaces the observer; null for none. The observer must outlive the widget or be taken away.
    void setObserver(Observer* newObserver);

private:
    friend class nbScenegraph;

    /// Hangs a root (or null) into the viewports of all live widgets.
    static void setRootOfAll(const osg::NodePtr& root);
    static void callResizeCallbacks();

    osg::UberCameraRefPtr camera;
    osg::UberViewportRefPtr viewport;
    osg::RefPtr<osg::PassiveWindowPtr> window;
    int widthPx = 0;
    int heightPx = 0;
    float pixelRatio = 0.0F;  ///< 0 until it is told
    osg::Pnt2f mousePositionPx;
    osg::Pnt2f pressPositionPx;
    bool pressed = false;
    bool rectSelection = false;
    bool redrawPending = false;
    Qt::CursorShape cursor = Qt::ArrowCursor;
    Observer* observer = nullptr;
};

#pragma pop_macro("CursorShape")
