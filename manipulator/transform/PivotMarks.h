// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleNodes.h"

#include <OpenSG/OSGRefPtr.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace nbec::manipulator::transform {

/// Small crosses at places in the world, all of them one geometry.
class PivotMarks
{
public:
    /// A place for each cross; nothing for one that is hidden.
    using Places = std::vector<std::optional<osg::Pnt3f>>;

    /// Hangs new crosses, all hidden, below a node whose frame is the world's; earlier ones go.
    void make(const osg::NodePtr& parent, std::size_t count, const osg::MaterialPtr& material);

    bool exists() const { return node != osg::NullFC; }

    /// Shows or hides all; nothing before the first make(), which shows them.
    void show(bool on) { showNode(node.get(), on); }

    /// Brings the geometry into step with as many places as were made; one edit, and none if
    /// nothing is to look different.
    /// @param reach  half the length of a cross, world units
    void draw(const Places& places, float reach);

private:
    osg::RefPtr<osg::NodePtr> node;
    Places drawn;
    float drawnReach = 0.0F;
};

}  // namespace nbec::manipulator::transform
