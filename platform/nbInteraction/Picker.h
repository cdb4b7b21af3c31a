// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>

#include <QRect>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nbec::interaction {

namespace detail {
class HandlePicking;
class ScenePicking;
class WidgetView;
}  // namespace detail

/// What moves the pointer.
enum class PointerDevice
{
    Mouse,
    Pen,
    Touch
};

/// From how far handles are hit with each device, logical pixels, >= 0.
struct PickSlop
{
    float mouse = 4.0F;
    float pen = 6.0F;
    float touch = 14.0F;
};

/// Finds what lies under a pixel of the main render widget: scene geometry, manipulator handles or
/// scene plates.
///
/// The filter says which. Flags of a node hold for its whole subtree, inactive subtrees (travMask
/// 0) are never hit.
/// - SceneFilter: the nearest triangle of the scene below the world root, back faces too. Auxiliary
/// subtrees are ignored, lines and points are never hit, the pick node plays no role.
/// - HandleFilter: active, named geometry below the pick node, whatever lies in front of it;
/// without a pick node, below
///   every node marked manipulator or selectable auxiliary. Triangles, lines and points are hit
///   within a tolerance on screen. The least distance beyond the drawn half width wins, then the
///   least depth; ties (0.5 device pixels, 1e-4 of the depth) go to the handle first in the tree.
///   Unnamed geometry is never hit.
/// - SceneplateFilter: the foremost scene plate below the world root, those in front of the scene
///   before those behind it, whatever the scene hides. Exact to the pixel: a plate is hit where the
///   pixel's centre lies on it, turned or not, and its picture or colour has an alpha of at least
///   kPlateAlphaThreshold, so that one clicks through the holes of a logo; its opacity does not
///   count. There is no tolerance, no need of a camera, and the hit has no point and no normal.
///
/// The picker owns nothing of the scene: nodes are kept by container id, so one that was destroyed
/// reads as null. What it derives from the scene follows the containers' change counters, so edits
/// must be closed with endEditCP. Nothing throws. User-interface thread only.
class NB_PLATFORM_API Picker
{
public:
    enum Filter : int
    {
        SceneFilter = 0,
        HandleFilter = 5,
        SceneplateFilter = 6
    };

    /// Least alpha of a plate's picture at which it is hit: 0.1, about what can be seen.
    static constexpr float kPlateAlphaThreshold = 0.1F;

    /// Distance in logical pixels within which handles are hit.
    static constexpr float kTolerance = 4.0F;

    Picker();
    ~Picker();
    Picker(const Picker&) = delete;
    Picker& operator=(const Picker&) = delete;

    /// Sets the top of the handles to test (a manipulator's collider); null clears. Not owned.
    void setPickNode(const osg::NodePtr& node)
    {
        pickNodeId = node == osg::NullFC ? 0 : node.getFieldContainerId();
    }

    /// @return the pick node; null if none was set or it no longer exists
    osg::NodePtr getPickNode() const;

    /// Sets the filter. Values other than those of Filter are kept and pick nothing.
    void setFilter(int value) { filter = value; }

    int getFilter() const { return filter; }

    /// Has handles hit from as far as suits the device, for example setSlop(PickSlop()): of those
    /// within reach the nearest on screen, of several as near the smaller. Nothing, as at the
    /// start: within kTolerance, and of several as near the foremost. For all pickers.
    static void setSlop(const std::optional<PickSlop>& reach);
    static const std::optional<PickSlop>& getSlop();

    /// What moves the pointer from now on; a mouse at the start. An InputTranslator says so before
    /// each event. For all pickers.
    static void setDevice(PointerDevice device);

    /// Tells the main widget its device pixels per logical one, by which the tolerance counts; for
    /// programs whose window does not tell them. See nbOSGWidget::setPixelRatio().
    static void setPixelRatio(float ratio);

    /// Picks under the main widget's pointer and remembers the hit.
    /// @return the hit geometry node; null if there is none, no widget, no camera or no area
    osg::NodePtr pick() { return pick(HandleRank()); }

    /// Rank of a handle by its node; 0 before 1, and so on.
    using HandleRank = std::function<int(const osg::NodePtr&)>;

    /// The same, but of all handles within the tolerance those of the least rank count alone. Other
    /// filters ignore it.
    /// @param rankOf  asked only if there is a choice, of nodes within the tolerance
    osg::NodePtr pick(const HandleRank& rankOf);

    /// Picks at a pixel of the main widget and remembers the hit.
    /// The ray goes through the centre of the pixel that holds the position.
    /// @param px  device pixels, y from the top; outside the view or NaN: no hit
    osg::NodePtr pickAt(const osg::Pnt2f& px) { return pickAt(px, HandleRank()); }

    /// @return the node of the last pick; null if it missed or the node no longer exists
    osg::NodePtr getHitNode() const;

    /// @return the point of the last hit, world space; the origin after a miss.
    /// On a handle hit beside its edge: the point of the handle nearest to the pointer on screen.
    osg::Pnt3f getHitPoint() const { return hitPoint; }

    /// @return the surface normal of the last hit as it is shaded (mixed from the triangle's
    /// vertices, if they have normals), world space, unit length, on the front side of the triangle
    /// as its vertices wind; on a line or point towards the eye; zero after a miss
    osg::Vec3f getHitNormal() const { return hitNormal; }

    /// @return the first texture coordinates where the last hit of the scene was; nothing without
    /// such a hit or for a geometry that has none
    const std::optional<osg::Vec2f>& getHitTexCoord() const { return hitTexCoord; }

    /// Collects the scene's geometry nodes that lie wholly inside a rectangle of the main widget:
    /// every position of the geometry is projected inside it and in front of the near plane.
    /// Occluded nodes count. Auxiliary and inactive subtrees, filter and pick node as in
    /// SceneFilter; lines and points count. Not remembered as hit.
    ///
    /// With the SceneplateFilter: the shown scene plates instead, each if all of it that is in view
    /// lies inside, in the order of drawing. So a rectangle drawn over a large plate in the
    /// background does not take that along.
    /// @param rect  device pixels, y from the top; right and bottom inclusive as in Qt; need not be
    /// normalised: one drawn up or to the left counts the same
    /// @return nodes in tree order; empty for a rectangle without area
    std::vector<osg::NodePtr> pickRectangle(const QRect& rect);

    /// Builds or refreshes the search trees of all geometry below a node ahead of the first pick
    /// (after loading). Trees are shared by all pickers and all nodes with the same core. Null:
    /// nothing.
    static void buildTrees(const osg::NodePtr& root);

    /// Name and version of the library that searches the trees, such as "Embree 3.13.5".
    static std::string getSearchLibrary();

private:
    osg::NodePtr pickAt(const osg::Pnt2f& px, const HandleRank& rankOf);
    void rememberHit(const osg::NodePtr& node, const osg::Pnt3f& point, const osg::Vec3f& normal);
    void forgetHit();

    osg::UInt32 pickNodeId = 0;
    int filter = SceneFilter;

    osg::UInt32 hitNodeId = 0;
    osg::Pnt3f hitPoint;
    osg::Vec3f hitNormal;
    std::optional<osg::Vec2f> hitTexCoord;

    std::unique_ptr<detail::WidgetView> widgetView;
    std::unique_ptr<detail::ScenePicking> scenePicking;
    std::unique_ptr<detail::HandlePicking> handlePicking;
};

}  // namespace nbec::interaction
