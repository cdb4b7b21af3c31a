// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGViewport.h>

#include <cstddef>
#include <memory>
#include <string>

/// Draws what a viewport shows with OpenGL 3.3 core.
///
/// Every operation that draws, reads or releases needs the same current QOpenGLContext. What was
/// made for a context is made anew from the containers when another one is current; who destroys a
/// context calls release() in it before. Belongs to one thread.
///
/// A host may draw with the same context between frames: a frame sets what it needs, and gives the
/// state back that it found, but for textures and samplers of units above 0 and buffers that are
/// bound to other targets than GL_ARRAY_BUFFER.
///
/// Drawing order and the rules of material groups are those of nbrender::ItemList. Handles, all
/// items below a manipulator node, are tested LEQUAL and write depth in the front tenth of the
/// depth range, whatever their chunks say, so that they show through every object and occlude each
/// other; the near and far plane do not cut them. Blended items write no depth, except that of a
/// surface which only a projected picture makes transparent the opaque parts do. Line widths are
/// logical pixels.
///
/// The pictures of UberMaterials are projected per pixel, in the space of the node that carries the
/// material: a geometry's own node or that of a material group, as osg::ColorComponentSettings has
/// it. A texture environment of GL_BLEND, GL_MODULATE, GL_DECAL or GL_REPLACE mixes as in OpenGL,
/// alpha and brightness formats included. Mipmaps that an image lacks are made.
///
/// Lit surfaces get a light that travels with the camera, from above its left shoulder, and a sky
/// and ground light; both sides of a surface are lit alike. Unlit ones show diffuse + emission, or
/// the vertex colour
/// + emission, exactly. Colours are not converted on their way to the frame buffer. There is a
/// second output, the effect buffer, for effects on the finished picture: opaque scene items write
/// their normal in view space, turned to the eye, as 0.5 n + 0.5 with alpha 1; the background and
/// handles write zeros, blended items nothing. Programs of shader chunks write what they like and
/// where they like, so that their items are always in view; see nbShaderHeader.h for what they get.
/// A program that does not compile costs one line in the log,
/// and its items are drawn in plain colour.
///
/// The background is the gradient of an UberViewport, or the colour of a SolidBackground, or black,
/// and over it the UberViewport's photograph, which can also cover the scene as a veil below the
/// handles. Of an UberCamera, near and far are set to enclose the scene and handles around it.
///
/// Over pictures of the main render widget lies the lens of nbMagnifierRenderer while that is
/// shown; the buffers that can be read do not have it. It enlarges the picture or, if there is a
/// photograph, that alone, as scene and handles could hide what is to be seen, under a thin cross.
///
/// What was drawn before the first handle is kept, colours, effect buffer and depth of all samples,
/// from the second frame on in which it is the same: a frame in which only handles, or things drawn
/// with them, have changed takes that image, where they were, and draws them anew; see
/// nbrender::SceneImage. Everything that a frame depends on is compared: view, size, background and
/// photograph, plates, and of each item its place, geometry, material and clip planes. Scene items
/// that come after a handle in drawing order are drawn each time, and while the magnifier is shown
/// over a photograph everything is.
///
/// Scene plates (see osg::Sceneplate) lie over the background before the scene, or over the scene
/// below the handles; where there are plates of the latter kind, all handles are drawn after all of
/// the scene. The effect buffer does not know them.
class NB_PLATFORM_API nbRenderAction
{
public:
    /// What the last frame took.
    struct Statistics
    {
        std::size_t frames = 0;  ///< drawn since construction
        std::size_t items = 0;  ///< in the list
        std::size_t drawn = 0;  ///< of these in view
        std::size_t reused = 0;  ///< of these not drawn but taken from the kept scene image
        std::size_t listBuilds = 0;  ///< how often the item list was made since construction
        std::size_t meshes = 0;  ///< geometries that have buffers
        std::size_t drawCalls = 0;  ///< items, plates, background and the copy to the target
        std::size_t triangles = 0;  ///< in these, those that lines are widened to included
        bool coarse = false;  ///< see setHurried()
        /// Time of render(): until the driver had all commands or, when timed, had done them.
        double milliseconds = 0.0;
    };

    nbRenderAction();
    /// Releases nothing on the graphics card: call release() before in the context.
    ~nbRenderAction();

    nbRenderAction(const nbRenderAction&) = delete;
    nbRenderAction& operator=(const nbRenderAction&) = delete;

    /// Gets ready for the current context; render() does it by itself if need be.
    /// @param error  receives one line on failure; may be null
    /// @return false without a current context with OpenGL 3.3 core
    bool initialise(std::string* error);

    /// Draws one frame and copies it into a framebuffer, from its lower left corner on.
    /// @param viewport   camera, root and background; null, or one without camera, shows the
    /// background
    /// @param widthPx, heightPx  device pixels; sizes without area draw nothing
    /// @param targetFramebuffer  OpenGL name; 0 is the context's own
    /// @return false if nothing could be drawn; the log then has a line, once per cause
    bool render(const osg::ViewportPtr& viewport, int widthPx, int heightPx,
                osg::UInt32 targetFramebuffer);

    /// Samples per pixel, 1 to what the driver has; 8 at the start.
    void setSamples(int samples);

    /// Device pixels per logical pixel, > 0; 1 at the start. Lines and points follow it.
    void setPixelRatio(float ratio);

    /// Shifts the picture by parts of a device pixel, x to the right and y up, for an average over
    /// several frames.
    void setSubpixelShift(float xPx, float yPx);

    /// Shows the effect buffer instead of the colours.
    void showEffectBuffer(bool on);

    /// Whether the finished image of the scene is kept and used again; it is at the start. Pictures
    /// are the same either way.
    void setSceneKept(bool on);

    /// Whether objects that are being moved are drawn last among those whose order does not show,
    /// with near and far that leave them room, so that a drag draws little else anew; not at the
    /// start. From the full picture of the same scene such a picture differs where surfaces lie so
    /// near to each other that the order or the rounding of depths decides.
    void setMovedLast(bool on);

    /// Whether the next pictures are of a camera that moves; not at the start. Where they take
    /// longer than 50 ms the scene is drawn with one sample per pixel, and if need be for every
    /// second pixel of a row and column, and spread below plates and handles that are as always.
    /// The effect buffer is then of no use. While that or the lens is shown pictures
    /// are whole.
    void setHurried(bool on);

    /// Whether render() waits until the driver has done everything, so that its time is told
    /// wholly; it does not at the start.
    void setTimed(bool on);

    /// Gives everything on the graphics card back; the next frame makes it anew.
    void release();

    Statistics getStatistics() const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl;
};
