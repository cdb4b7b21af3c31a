// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <functional>
#include <string>
#include <vector>

/// Arranges scene plates as they lie in a view, by the upright boxes around them as they are drawn.
/// Each operation is a step of undo; nodes that are no plates are passed over.
class NB_PLATFORM_API nbSceneplateArranging
{
public:
    nbSceneplateArranging() = delete;

    /// What of a box is brought in line.
    enum class Side : int
    {
        Low = -1,  ///< left or top
        Middle = 0,
        High = 1  ///< right or bottom
    };

    /// Brings plates in line with that side of the box around all of them; one plate alone with
    /// that side of the view. @param axis  0 across, 1 down
    static void align(const std::vector<osg::NodePtr>& nodes, osg::UInt32 axis, Side side,
                      int widthPx, int heightPx);

    /// Makes the gaps between neighbours along an axis equal; the outermost plates stay.
    /// @return false for fewer than three plates
    static bool distribute(const std::vector<osg::NodePtr>& nodes, osg::UInt32 axis, int widthPx,
                           int heightPx);

    /// Moves plates by device pixels, y down.
    static void move(const std::vector<osg::NodePtr>& nodes, const osg::Vec2f& wayPx, int heightPx);

    /// Hangs copies of plates into the scene, in front of all others, a little below and right of
    /// the originals. @param nameOf  called with the name of an original for that of its copy
    /// @return the copies, in the order of the plates
    static std::vector<osg::NodePtr>
    duplicate(const std::vector<osg::NodePtr>& nodes,
              const std::function<std::string(const std::string&)>& nameOf);
};
