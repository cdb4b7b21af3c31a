// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/nbRenderAction.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGViewport.h>

#include <QtGui/QImage>

#include <memory>
#include <string>

class QOffscreenSurface;
class QOpenGLContext;

/// Renders viewports into images without a window. Needs a QGuiApplication; makes a surface and an
/// OpenGL 3.3 core context of its own on first use and gives them back with its end. Another
/// context that was current stays current after each operation.
class NB_PLATFORM_API nbOffscreenView
{
public:
    nbOffscreenView();
    ~nbOffscreenView();

    nbOffscreenView(const nbOffscreenView&) = delete;
    nbOffscreenView& operator=(const nbOffscreenView&) = delete;

    /// Makes surface and context; the other operations do it by themselves.
    /// @return false, with one line in getError(), if this machine cannot
    bool open();

    /// Gives surface and context back, with everything that was made in them; the next operation
    /// makes new ones, and the same pictures. open() does this by itself where the driver has lost
    /// the context.
    void close();

    /// Why the last operation failed; empty if it did not.
    const std::string& getError() const { return error; }

    /// Picture of what the viewport shows, device pixels, opaque.
    /// @return null on failure, see getError()
    QImage render(const osg::ViewportPtr& viewport, int widthPx, int heightPx);

    /// The average of several pictures, each shifted by parts of a pixel: smoother edges where the
    /// driver has few samples. The same number gives the same picture.
    /// @param passes  1 .. 64, 1 is render() without passes
    QImage render(const osg::ViewportPtr& viewport, int widthPx, int heightPx, int passes);

    /// The action that draws, for its settings and statistics.
    nbRenderAction& getAction() { return action; }

private:
    std::unique_ptr<QOpenGLContext> context;
    std::unique_ptr<QOffscreenSurface> surface;
    nbRenderAction action;
    std::string error;
};
