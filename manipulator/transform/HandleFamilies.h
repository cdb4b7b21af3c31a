// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleSet.h"
#include "manipulator/transform/TransformStance.h"

#include <vector>

namespace nbec::manipulator::transform {

/// Places the handles of a transform gizmo below their root, each family along its own axes, and
/// brings those that have sides to the viewer's.
class HandleFamilies
{
public:
    /// What a placement follows.
    struct Frame
    {
        const TransformStance& stance;
        ManipulatorMode mode;
        const osg::NodePtr& node;  ///< the first that is edited
        osg::Quaternion worldFromGizmo;  ///< of the root
        osg::Vec3f sight;  ///< at the gizmo, world, unit length
        bool isHeld;  ///< handles stay on their sides
    };

    /// Shows further handles, which are built when this is called first. @param copies  of the
    /// handles, see makeHandleRootOfPasses()
    void setFurther(HandleSet& handles, const FurtherHandles& wanted, const osg::NodePtr& copies);

    /// Whether places depend on the view.
    bool turnWithView() const { return !sides.empty(); }

    void place(HandleSet& handles, const Frame& frame);

private:
    osg::Quaternion sideOf(const HandleSet& handles, std::size_t row,
                           const osg::Quaternion& worldFromAxes, const Frame& frame);

    FurtherHandles further;
    /// Of each handle the axes along which it is turned to the viewer; empty before setFurther().
    std::vector<unsigned> sides;
};

}  // namespace nbec::manipulator::transform
