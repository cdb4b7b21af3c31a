// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/nbGlProgram.h>
#include <nbOpenSGRenderAction/nbSceneplateTextures.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>

#include <string>
#include <vector>

namespace nbrender {

/// The view in which plates are drawn, device pixels.
struct PlateFrame
{
    int widthPx = 0;
    int heightPx = 0;
    float pixelRatio = 1.f;  ///< device pixels per logical pixel
    float shiftXPx = 0.f;  ///< of the picture, to the right
    float shiftYPx = 0.f;  ///< of the picture, up
};

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

    /// Whether drawFront has anything to draw.
    bool hasFront() const { return frontBegin < plates.size() || hasMarkers; }

    /// Draws the plates behind the scene.
    /// @param emptyArray  vertex array without attributes
    void drawBack(Gl& gl, const PlateFrame& frame, GLuint emptyArray);

    /// Draws the plates in front of the scene, then the outlines of all marked ones.
    void drawFront(Gl& gl, const PlateFrame& frame, GLuint emptyArray);

    void collect(Gl& gl) { textures.collect(gl); }

    void release(Gl& gl);
    void forget();

private:
    struct Quad;

    bool begin(Gl& gl, const PlateFrame& frame, GLuint emptyArray);
    static void end(Gl& gl);
    void drawPlates(Gl& gl, const PlateFrame& frame, std::size_t first, std::size_t last);
    void drawPlate(Gl& gl, const PlateFrame& frame, const osg::SceneplatePtr& plate);
    void drawMarker(Gl& gl, const PlateFrame& frame, const osg::SceneplatePtr& plate);
    void drawQuad(Gl& gl, const Quad& quad);

    std::vector<nbSceneplateList::Entry> plates;  ///< in drawing order
    osg::UInt32 rootId = 0;
    osg::UInt64 treeCount = 0;
    std::size_t frontBegin = 0;  ///< index of the first one in front of the scene
    bool hasMarkers = false;
    SceneplateTextures textures;
    GlProgram program;
    bool programTried = false;
};

}  // namespace nbrender
