// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNode.h>

#include <unordered_map>

#include "HandleTable.h"

namespace nbec::interaction::detail {

/// Picks manipulator handles: keeps a HandleTable in step with a subtree, its place in the world,
/// and the view.
class HandlePicking
{
public:
    /// Finds the handle at a position on screen.
    /// @param pickNode     top of the handles; null: below worldRoot, what is marked manipulator or
    /// selectable auxiliary
    /// @param rankOf       see HandleTable::pick(); null: all alike
    bool pick(const osg::NodePtr& pickNode, const osg::NodePtr& worldRoot, const PickView& view,
              const ScreenPoint& position, const HandleReach& reach,
              const std::function<int(osg::UInt32)>& rankOf, HandleHit& hit);

private:
    /// What holds for a node because of its ancestors.
    struct Inherited
    {
        osg::Matrix tableFromParent;
        osg::MaterialPtr outermostMaterial;  ///< of the material groups above
        bool isBelowManipulator = false;
        bool isHandle = false;  ///< below a node whose geometry counts as handles
    };

    /// Shape of a handle, kept while its geometry stays unedited: moving a gizmo must not read all
    /// of it again.
    struct Shape
    {
        GeometrySoup soup;
        osg::UInt32 changeCount = 0;
        std::size_t lastFill = 0;  ///< number of the last filling that used it
    };

    void fill(const osg::NodePtr& top);
    const GeometrySoup& shapeOf(const osg::GeometryPtr& geometry);
    void refresh(const osg::NodePtr& top, bool allCount, const PickView& view);
    void collect(const osg::NodePtr& node, Inherited inherited);
    void addHandle(const osg::NodePtr& node, const Inherited& inherited);
    static Inherited inheritedBy(const osg::NodePtr& top);

    HandleTable table;
    std::unordered_map<osg::UInt32, Shape> shapes;  ///< by container id of the geometry
    osg::UInt32 topId = 0;
    osg::UInt64 topChanges = 0;
    bool topCounts = false;  ///< all geometry below the top counts as handles
    osg::Matrix worldFromTable;
    PickView projectedView;
    std::size_t fillCount = 0;  ///< how often the table was filled
};

}  // namespace nbec::interaction::detail
