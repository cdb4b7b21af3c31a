// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <cstddef>
#include <vector>

/// The sets of ClipPlane3D cores that hold at the places of a tree, for those who walk it: renderer
/// and picker cut alike.
///
/// A walk begins with clear(), asks for a set at each node whose core is a clip plane, and keeps
/// the number for everything below it; set 0 has no plane. update() reads where the planes are.
class NB_PLATFORM_API nbClipSets
{
public:
    /// Planes in world space: what is there has a x + b y + c z + d >= 0 for each of them; the
    /// normal (a, b, c) has unit length.
    using Planes = std::vector<osg::Vec4f>;

    /// How many planes a set has at most, the outermost in the tree first; further ones are
    /// ignored.
    static constexpr std::size_t kMostPlanes = 6;

    /// Forgets all sets but 0.
    void clear();

    /// The set below a node.
    /// @param above  the set above it
    /// @return `above` if the node's core is no clip plane
    osg::UInt32 below(osg::UInt32 above, const osg::NodePtr& node);

    /// Reads the planes; a core that was destroyed or is off has none.
    void update();

    /// Of the last update. @param set  from below()
    const Planes& planesOf(osg::UInt32 set) const { return planes[set]; }

private:
    /// One clip plane core in the tree.
    struct Source
    {
        osg::UInt32 coreId = 0;
        osg::UInt32 nodeId = 0;
    };

    std::vector<std::vector<Source>> sources { 1 };  ///< by set; the first stays empty
    std::vector<Planes> planes { 1 };
};
