// SPDX-License-Identifier: MIT
#include "manipulator/detail/DragPlane.h"

#include "manipulator/detail/DragGeometry.h"

namespace nbec::manipulator::detail {

void DragPlane::set(const osg::Vec3f& normal, const osg::Pnt3f& point)
{
    plane = osg::Plane(normal, point);
}

void DragPlane::begin(const osg::Vec3f& normal, const osg::Pnt3f& point, const nbOSGWidget& widget)
{
    set(normal, point);
    hasStart = false;
    osg::Pnt3f hit;
    follow(widget, hit);
}

bool DragPlane::follow(const nbOSGWidget& widget, osg::Pnt3f& hit)
{
    osg::Line ray;
    if (!pointerRay(widget, ray) || !intersectPlane(plane, ray, hit)) {
        return false;
    }
    if (!hasStart) {
        start = hit;
        hasStart = true;
    }
    return true;
}

}  // namespace nbec::manipulator::detail
