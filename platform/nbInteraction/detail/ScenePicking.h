// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>

#include <optional>
#include <vector>

#include "ItemTree.h"
#include "PickView.h"
#include "SceneOutline.h"

namespace nbec::interaction::detail {

/// What a ray found in the scene.
struct SceneHit
{
    osg::NodePtr node;
    osg::Pnt3f point;  ///< world space
    osg::Vec3f normal;  ///< world space, unit length
    std::optional<osg::Vec2f> texCoord;  ///< nothing for a geometry without
};

/// Picks the geometry of a scene from a flat list of what is drawn in it, which follows the scene's
/// change counters.
class ScenePicking
{
public:
    /// Finds the nearest triangle between near and far plane at a position on screen.
    bool pick(const osg::NodePtr& root, const PickView& view, const ScreenPoint& position,
              SceneHit& hit);

    /// Collects the nodes whose positions all lie in a box on screen, in tree order.
    std::vector<osg::NodePtr> pickInside(const osg::NodePtr& root, const PickView& view,
                                         const ScreenBox& box);

    /// Takes the scene up as it is now, without some nodes and what is below them; instead of the
    /// other operations.
    const ItemTree& hold(const osg::NodePtr& root, const std::vector<osg::NodePtr>& without);

private:
    /// The geometry behind an item and the state in which it was taken up.
    struct Source
    {
        osg::UInt32 geometryId;
        osg::UInt32 changeCount;
    };

    /// What is yet to be done of a walk, which a deep tree must not do on the program's stack.
    struct Step
    {
        osg::NodePtr node;  ///< to be entered; null: `record` is complete
        osg::Matrix matrix;  ///< world from parent
        osg::UInt32 clipSet;
        std::size_t record;
    };

    void useView(const PickView& view);
    void refresh(const osg::NodePtr& root);
    void walk(const osg::NodePtr& root);
    void collect(const osg::NodePtr& root, std::vector<PickItem>& items);
    void enter(Step step, std::vector<Step>& steps, std::vector<PickItem>& items);
    void refreshItems(const std::vector<osg::UInt32>& touched);
    bool refreshItem(std::size_t index);
    bool isInside(const PickItem& item, const ScreenBox& box) const;

    ItemTree tree;
    std::vector<Source> sources;  ///< one per item
    SceneOutline outline;
    std::vector<osg::NodePtr> leftOut;
    osg::UInt32 rootId = 0;
    osg::UInt64 rootChanges = 0;

    PickView projectedView;
    ScreenProjection projection;
};

}  // namespace nbec::interaction::detail
