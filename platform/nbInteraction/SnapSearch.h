// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace nbec::interaction {

/// Finds what a dragged point can snap to: places on the scene's geometry near a pixel of the main
/// render widget.
///
/// The scene is taken up once, when a drag begins, with the search trees that pickers use; what is
/// edited later is not followed, so that a step costs no walk over the scene. Nothing throws.
/// User-interface thread only.
class NB_PLATFORM_API SnapSearch
{
public:
    /// Kinds of places, to be joined with |. Points go before edges, edges before faces; among
    /// those of one rank the nearest on screen wins.
    enum Kind : unsigned
    {
        Vertex = 1,  ///< corner of a triangle that is seen
        EdgeMiddle = 2,  ///< middle of an edge
        Centre = 4,  ///< of the box around a geometry, whatever hides it
        Pivot = 8,  ///< rotate pivot of a Transform3D above geometry, whatever hides it
        Edge = 16,  ///< nearest point of an edge of a triangle that is seen; not of the diagonal of
                    ///< a flat rectangle
        Face = 32  ///< where the pixel shows the surface
    };

    struct Target
    {
        Kind kind = Face;
        osg::Pnt3f point;  ///< world space
        std::array<osg::Pnt3f, 2> ends;  ///< of an edge, world space; else both are the point
    };

    SnapSearch();
    ~SnapSearch();
    SnapSearch(const SnapSearch&) = delete;
    SnapSearch& operator=(const SnapSearch&) = delete;

    /// Takes up the scene below the world root as a picker with the SceneFilter sees it.
    /// @param without  these and what is below them are left out; null ones are passed by
    void begin(const std::vector<osg::NodePtr>& without);

    /// Gives up what was taken up; nothing is found until the next begin().
    void end();

    /// @param px  device pixels, y from the top; outside the view or NaN: nothing
    /// @param kinds  those that count
    /// @param reachPx  how near points and edges have to be on screen, device pixels, >= 0
    /// @param held  what was found in the step before: it counts as kStickPx nearer, so that it is
    ///              left a little later than it was met. Faces are not held
    std::optional<Target> find(const osg::Pnt2f& px, unsigned kinds, float reachPx,
                               const std::optional<Target>& held) const;

    /// Device pixels.
    static constexpr float kStickPx = 4.0F;

private:
    struct Scene;
    std::unique_ptr<Scene> scene;
};

}  // namespace nbec::interaction
