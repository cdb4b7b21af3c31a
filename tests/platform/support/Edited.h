// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>

namespace nbtest {

/// One call within an edit of its own: edited(core, mask)->setScale(scale).
template <class Pointer>
class Edited
{
public:
    Edited(const Pointer& container, osg::BitVector mask)
        : pointer(container)
        , edit(container, mask)
    { }

    const Pointer& operator->() const { return pointer; }

private:
    const Pointer& pointer;
    nbEdit edit;
};

template <class Pointer>
Edited<Pointer> edited(const Pointer& container, osg::BitVector mask = osg::FieldBits::AllFields)
{
    return Edited<Pointer>(container, mask);
}

/// Gives each point of a geometry another place, in one edit: changePoints(node, [](auto p) {...}).
template <class Change>
void changePoints(const osg::NodePtr& node, const Change& change)
{
    const osg::GeoPositionsPtr points = osg::GeometryPtr::dcast(node->getCore())->getPositions();
    const nbEdit edit(points, osg::FieldBits::AllFields);
    for (osg::UInt32 i = 0; i < points->getSize(); ++i) {
        points->setValue(change(points->getValue(i)), i);
    }
}

}  // namespace nbtest
