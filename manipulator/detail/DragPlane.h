// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGVector.h>

class nbOSGWidget;

namespace nbec::manipulator::detail {

/// The plane of the world in which a drag follows the pointer. A drag starts where the pointer
/// meets it first.
class DragPlane
{
public:
    /// Takes another plane; a drag that has started keeps its start.
    /// @param normal  shorter than 1e-6: nothing meets the plane
    void set(const osg::Vec3f& normal, const osg::Pnt3f& point);

    /// Begins a drag in a plane, at the pointer if it meets it.
    void begin(const osg::Vec3f& normal, const osg::Pnt3f& point, const nbOSGWidget& widget);

    /// Where the pointer's ray meets the plane. @return false, and the hit untouched, if it does
    /// not
    bool follow(const nbOSGWidget& widget, osg::Pnt3f& hit);

    /// Where the drag started; valid once follow() has answered true.
    const osg::Pnt3f& getStart() const { return start; }

private:
    osg::Plane plane;
    osg::Pnt3f start;
    bool hasStart = false;
};

}  // namespace nbec::manipulator::detail
