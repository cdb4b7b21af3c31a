// SPDX-License-Identifier: MIT
#include "manipulator/detail/PivotMarks.h"

#include "manipulator/detail/EditBracket.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/NodeVisibility.h"

#include <OpenSG/OSGGeometry.h>

namespace nbec::manipulator::detail {

void PivotMarks::make(const osg::NodePtr& parent, std::size_t count,
                      const osg::MaterialPtr& material)
{
    const osg::GeoPTypesPtr types = osg::GeoPTypesUI8::create();
    const osg::GeoPLengthsPtr lengths = osg::GeoPLengthsUI32::create();
    const osg::GeoPositionsPtr positions = osg::GeoPositions3f::create();
    types->push_back(GL_LINES);
    lengths->push_back(static_cast<osg::UInt32>(count * kPoints));
    positions->resize(count * kPoints);
    const osg::GeometryPtr crosses = osg::Geometry::create();
    {
        const EditBracket edit(crosses, osg::FieldBits::AllFields);
        crosses->setTypes(types);
        crosses->setLengths(lengths);
        crosses->setPositions(positions);
        crosses->setMaterial(material);
    }
    const EditBracket edit(parent, osg::Node::ChildrenFieldMask);
    if (node != osg::NullFC) {
        parent->subChild(node.get());
    }
    node = makeNode(crosses);
    parent->addChild(node.get());
    marks.assign(count, Mark());
    moved = osg::Vec3f();
    isCurrent = false;
}

void PivotMarks::hide()
{
    if (node != osg::NullFC) {
        showNode(node.get(), false);
    }
    marks.clear();
}

void PivotMarks::startPlacing()
{
    for (Mark& mark : marks) {
        mark.center += moved;
    }
    moved = osg::Vec3f();
}

void PivotMarks::draw(float reach)
{
    if (marks.empty() || (isCurrent && reach == drawnReach)) {
        return;
    }
    const auto crosses = osg::GeometryPtr::dcast(node->getCore());
    const auto positions = osg::GeoPositions3fPtr::dcast(crosses->getPositions());
    const EditBracket edit(positions, osg::GeoPositions3f::GeoPropDataFieldMask);
    osg::Pnt3f* point = positions->getField().data();
    for (const Mark& mark : marks) {
        const float length = mark.isShown ? reach : 0.0F;
        const float x = mark.center.x() + moved.x();
        const float y = mark.center.y() + moved.y();
        const float z = mark.center.z() + moved.z();
        point++->setValues(x - length, y, z);
        point++->setValues(x + length, y, z);
        point++->setValues(x, y - length, z);
        point++->setValues(x, y + length, z);
        point++->setValues(x, y, z - length);
        point++->setValues(x, y, z + length);
    }
    drawnReach = reach;
    isCurrent = true;
}

}  // namespace nbec::manipulator::detail
