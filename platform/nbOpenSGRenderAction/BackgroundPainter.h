// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/Frame.h>
#include <nbOpenSGRenderAction/GpuTextures.h>
#include <nbOpenSGRenderAction/ShaderPrograms.h>

#include <OpenSG/OSGViewport.h>

#include <ContentStamp.h>

namespace nbrender {

/// Draws what lies behind the scene: the gradient or colour of a viewport, and over it the
/// photograph of an UberViewport, where nbPhotographFit places it. Touches the colours alone.
class BackgroundPainter
{
public:
    /// @param viewport  null: black
    static void draw(Gl& gl, const osg::ViewportPtr& viewport, const Frame& frame,
                     ShaderPrograms& programs, GpuTextures& textures);

    /// Draws the photograph once more, over the scene, as far as the viewport's veil says.
    static void drawVeil(Gl& gl, const osg::ViewportPtr& viewport, const Frame& frame,
                         ShaderPrograms& programs, GpuTextures& textures);

    /// Adds what draw() depends on, the frame left out.
    static void addTo(osg::ContentStamp& stamp, const osg::ViewportPtr& viewport,
                      const Frame& frame);
    /// Adds what drawVeil() depends on beyond that.
    static void addVeilTo(osg::ContentStamp& stamp, const osg::ViewportPtr& viewport);

    /// Whether a viewport has a photograph, and one that covers the scene.
    static bool hasPhotograph(const osg::ViewportPtr& viewport);
    static bool hasVeil(const osg::ViewportPtr& viewport);

private:
    /// @param opacity  0 .. 1
    static void drawPhotograph(Gl& gl, const osg::ViewportPtr& viewport, float opacity,
                               const Frame& frame, ShaderPrograms& programs, GpuTextures& textures);
};

}  // namespace nbrender
