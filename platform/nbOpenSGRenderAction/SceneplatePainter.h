// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/Frame.h>
#include <nbOpenSGRenderAction/GpuTextures.h>
#include <nbOpenSGRenderAction/ShaderPrograms.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>

#include <vector>

#include <ContentStamp.h>

namespace nbrender {

/// Draws scene plates and the outlines of those that are marked.
///
/// Plates are blended over what is there, without depth test, and leave depths and the effect
/// buffer alone. A plate on whole pixels (see nbSceneplateLayout) covers exactly these and shows a
/// picture of as many pixels unchanged; it also stays where it is when the rest of the picture is
/// shifted by parts of a pixel. Others have smooth edges. Outlines lie around the plate, so that
/// they hide nothing of it.
class SceneplatePainter
{
public:
    /// Looks for the plates of a tree, if it has changed; to be called once per frame.
    void update(const osg::NodePtr& root);

    /// Whether there is anything to draw in front of the scene.
    bool hasFront() const { return frontBegin < plates.size() || hasMarkers; }

    /// Which plates: those behind the scene, or those in front of it with the outlines of all
    /// marked ones.
    enum class Side
    {
        Back,
        Front
    };

    void draw(Gl& gl, const Frame& frame, Side side, ShaderPrograms& programs,
              GpuTextures& textures) const;

    /// Adds what draw() depends on.
    void addTo(osg::ContentStamp& stamp, const Frame& frame, Side side) const;

    /// Pixels outside of which nothing is drawn in front of the scene.
    PixelBox frontPixels(const Frame& frame) const;

private:
    struct Quad;

    using Quads = std::vector<Quad>;

    Quads quadsOf(const Frame& frame, Side side) const;
    static Quad plateQuad(const Frame& frame, const osg::SceneplatePtr& plate);
    static void addMarker(Quads& quads, const Frame& frame, const osg::SceneplatePtr& plate);
    /// Sets what all quads share. @return the program in use; null without one
    static GlProgram* begin(Gl& gl, const Frame& frame, ShaderPrograms& programs);
    static void end(Gl& gl);
    static void drawQuad(Gl& gl, GlProgram& program, const Quad& quad, GpuTextures& textures);

    std::vector<nbSceneplateList::Entry> plates;  ///< in drawing order
    osg::UInt32 rootId = 0;
    osg::UInt64 treeCount = 0;
    std::size_t frontBegin = 0;  ///< index of the first one in front of the scene
    bool hasMarkers = false;
};

}  // namespace nbrender
