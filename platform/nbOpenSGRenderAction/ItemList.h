// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/nbClipSets.h>
#include <nbOpenSGRenderAction/DrawState.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <cstddef>
#include <map>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

namespace nbrender {

constexpr std::size_t kMatrixSize = 16;  ///< numbers in a matrix

/// One geometry of a tree with all that drawing it depends on.
struct RenderItem
{
    osg::UInt32 geometryId = 0;  ///< container id
    osg::UInt32 nodeId = 0;  ///< of the geometry's node
    osg::UInt32 stateIndex = 0;  ///< into ItemList::getStates()
    osg::Matrix worldFromObject;
    osg::BoxVolume bounds;  ///< world space
    osg::Int32 key = 0;  ///< sort key, of the material group below a manipulator node
    osg::Int32 secondKey = 0;  ///< below a manipulator node the geometry's own sort key
    bool blended = false;
    bool handle = false;  ///< below a manipulator node
    bool auxiliary = false;  ///< below a node that is marked auxiliary
    bool moved = false;  ///< see ItemList::forgetMoved
    /// Whether its place among its like does not show: opaque, tests and writes depth, no program
    /// of its own.
    bool sortsFreely = false;
    /// Handles: how many steps nearer than its place the item is drawn. It is the own sort key
    /// minus the lowest one below the same manipulator node, at most kMostDepthSteps, so that of
    /// coincident lines the one with the higher key, such as a highlighted shaft, is seen.
    osg::Int32 depthSteps = 0;
    osg::UInt32 manipulator = 0;  ///< number of the manipulator node that the item is below, from 1
    osg::UInt32 clipSet = 0;  ///< into ItemList::getClipPlanes; 0 for an item that nothing cuts
    osg::UInt32 surfaceSpace = 0;  ///< into ItemList::getSurfaceSpace; 0: the item's own space
    /// Differs when anything that the item is drawn with may, but for the view and its clip planes:
    /// geometry, material with everything in it, place.
    osg::UInt64 stamp = 0;
};

/// The space of the node that carries an item's material. Matrices are 4x4 for column vectors.
struct SurfaceSpace
{
    osg::Matrix surfaceFromItem;
    osg::Matrix worldFromSurface;
};

constexpr osg::Int32 kMostDepthSteps = 8;

/// The geometries of a tree in drawing order, kept until something in the tree changes.
///
/// Order: sort key ascending, opaque and blended items alike; within a key opaque items first,
/// grouped by material, then the blended ones from back to front. Scene items are drawn with the
/// material of the outermost material group above them, otherwise with their own. Below a
/// manipulator node the groups above that node play no role; the outermost group below it replaces
/// chunks of the same kind and gives the first key, while the rest of the material stays the
/// geometry's. Of items below one manipulator node that are alike in geometry, material and place,
/// as a depth pass copy has them, the last one in order is kept: each of them would paint the same
/// picture. Inactive nodes, and what a Switch does not choose, are left out. ClipPlane3D cores cut
/// the scene items below them, handles never.
///
/// Items of the scene that were edited last, such as those that are being dragged, count as moved
/// until others are edited or somebody forgets them. They come last among neighbours whose order
/// does not show, so that most of the frame stays as it was.
class NB_PLATFORM_API ItemList
{
public:
    using Order = std::vector<osg::UInt32>;

    /// Brings the list up to date; cheap when nothing below the root has changed.
    /// @return whether the list was made anew
    bool update(const osg::NodePtr& root);

    /// The items by key, opaque before blended; blended ones of a key in the order of the tree.
    const std::vector<RenderItem>& getItems() const { return items; }

    const std::vector<DrawState>& getStates() const { return states; }

    /// Indices into getItems() in drawing order for a view.
    /// @param viewFromWorld  4x4, column vectors; the camera looks along -z
    const Order& getOrder(const osg::Matrix& viewFromWorld);

    /// The planes of a set of the last update.
    const nbClipSets::Planes& getClipPlanes(osg::UInt32 clipSet) const
    {
        return clipSets.planesOf(clipSet);
    }

    /// Where the node is that carries an item's material, if not the item itself does.
    /// @param surfaceSpace  of the item, > 0
    const SurfaceSpace& getSurfaceSpace(osg::UInt32 surfaceSpace) const
    {
        return surfaceSpaces[surfaceSpace - 1];
    }

    /// World bounds of the items that are neither handles nor auxiliary; empty without any. While
    /// items count as moved they stay as they are if they enclose everything, and otherwise grow
    /// with room for a long way.
    const osg::BoxVolume& getSceneBounds() const { return sceneBounds; }

    bool hasMoved() const { return !movedNodes.empty(); }

    /// Brings moved items back to their places in the tree's order, and the bounds to the items.
    void forgetMoved();

private:
    struct Place;

    /// Ids of material and group, and whether it is a handle's.
    using StateKey = std::tuple<osg::UInt32, osg::UInt32, bool>;

    struct LocalBounds
    {
        osg::UInt64 stamp = 0;
        osg::BoxVolume box;
    };

    void visit(const osg::NodePtr& node, const Place& above);
    void addItem(const osg::NodePtr& node, const osg::GeometryPtr& geometry, const Place& place);
    void placePictures(RenderItem& item, const Place& place);
    osg::UInt64 stampOf(const RenderItem& item, osg::UInt64 geometry) const;
    osg::UInt32 stateFor(const osg::MaterialPtr& material, const osg::MaterialPtr& group,
                         bool handle);
    const LocalBounds& localBounds(const osg::GeometryPtr& geometry);
    void assignDepthSteps();
    void sortItems();
    void dropCopies();
    void sortFromBack(Order::iterator first, Order::iterator last,
                      const osg::Matrix& viewFromWorld) const;
    void noteMoved();
    void measure();

    std::vector<RenderItem> items;
    std::vector<DrawState> states;
    std::vector<osg::UInt64> stateStamps;  ///< by state
    Order order;
    nbClipSets clipSets;
    std::vector<SurfaceSpace> surfaceSpaces;
    std::map<StateKey, osg::UInt32> stateIndices;
    std::unordered_map<osg::UInt32, LocalBounds> boundsById;
    std::vector<std::pair<osg::UInt32, osg::UInt64>> sceneStamps;  ///< by node, as in the tree
    std::vector<osg::UInt32> movedNodes;  ///< ascending
    osg::BoxVolume sceneBounds;
    osg::BoxVolume roomyBounds;  ///< empty unless items count as moved
    osg::UInt32 rootId = 0;
    osg::UInt64 treeCount = 0;
    osg::UInt32 manipulatorCount = 0;
};

}  // namespace nbrender
