// SPDX-License-Identifier: MIT
#include "manipulator/transform/PivotMarks.h"

#include <nbOpenSGExt/nbSameBits.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbGeoFactory.h>

#include <OpenSG/OSGGeometry.h>

#include <algorithm>

namespace nbec::manipulator::transform {

namespace {

/// Ends of the three lines of a cross.
constexpr std::size_t kPoints = 6;

/// Exactly the same; the operators of points allow for a tolerance, which small scenes feel.
bool isSame(const PivotMarks::Places& left, const PivotMarks::Places& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const auto& one, const auto& other) {
                          return one.has_value() == other.has_value() &&
                              (!one || nbSameBits(one->subZero(), other->subZero()));
                      });
}

}  // namespace

void PivotMarks::make(const osg::NodePtr& parent, std::size_t count,
                      const osg::MaterialPtr& material)
{
    const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
    if (node != osg::NullFC) {
        parent->subChild(node.get());
    }
    node =
        osg::makeNodeFor(nbGeoFactory::makeGeo(GL_LINES, std::vector<osg::Pnt3f>(count * kPoints)));
    setGeometryMaterial(node.get(), material);
    parent->addChild(node.get());
    drawn.assign(count, std::nullopt);
    drawnReach = 0.0F;
}

void PivotMarks::draw(const Places& places, float reach)
{
    if (places.empty() || (reach == drawnReach && isSame(places, drawn))) {
        return;
    }
    const auto crosses = osg::GeometryPtr::dcast(node->getCore());
    const auto positions = osg::GeoPositions3fPtr::dcast(crosses->getPositions());
    const nbEdit edit(positions, osg::FieldBits::AllFields);
    osg::Pnt3f* point = &positions->getField()[0];
    for (const std::optional<osg::Pnt3f>& place : places) {
        const osg::Pnt3f center = place.value_or(osg::Pnt3f());
        const float length = place ? reach : 0.0F;
        for (osg::UInt32 axis = 0; axis < 3; ++axis) {
            for (const float end : { -length, length }) {
                *point = center;
                (*point++)[axis] += end;
            }
        }
    }
    drawn = places;
    drawnReach = reach;
}

}  // namespace nbec::manipulator::transform
