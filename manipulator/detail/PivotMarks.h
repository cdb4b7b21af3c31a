// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGVector.h>

#include <cstddef>
#include <vector>

namespace nbec::manipulator::detail {

/// Small crosses at places in the world, all of them one geometry. Placing them edits nothing until
/// draw(), which edits the geometry once, and only if something is to look different.
class PivotMarks
{
public:
    /// Hangs new marks, all hidden, below a node whose frame is the world's; earlier ones go.
    void make(const osg::NodePtr& parent, std::size_t count, const osg::MaterialPtr& material);

    /// Hides all until the next make().
    void hide();

    std::size_t size() const { return marks.size(); }

    /// Before the marks are placed one by one.
    void startPlacing();

    /// @param index  below size()
    void place(std::size_t index, const osg::Pnt3f& center)
    {
        Mark& mark = marks[index];
        isCurrent = isCurrent && mark.isShown && mark.center.x() == center.x() &&
            mark.center.y() == center.y() && mark.center.z() == center.z();
        mark = { center, true };
    }

    /// Hides one until it is placed.
    void hide(std::size_t index)
    {
        isCurrent = isCurrent && !marks[index].isShown;
        marks[index] = Mark();
    }

    /// Moves all marks away from where they were placed. @param offset  from there, world units
    void moveTo(const osg::Vec3f& offset)
    {
        moved = offset;
        isCurrent = false;
    }

    /// Brings the geometry into step with the places.
    /// @param reach  half the length of a cross, world units
    void draw(float reach);

private:
    static constexpr std::size_t kPoints = 6;

    struct Mark
    {
        osg::Pnt3f center;
        bool isShown = false;
    };

    std::vector<Mark> marks;
    osg::Vec3f moved;  ///< of all marks since they were placed
    float drawnReach = 0.0F;
    bool isCurrent = false;  ///< the geometry shows the places
    osg::RefPtr<osg::NodePtr> node;
};

}  // namespace nbec::manipulator::detail
