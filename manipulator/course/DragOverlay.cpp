// SPDX-License-Identifier: MIT
#include "manipulator/course/DragOverlay.h"

#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/handles/HandleNodes.h"

#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbGeoFactory.h>

#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGTransform.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace nbec::manipulator {

namespace {

constexpr int kFillSortKey = 64013;  // beneath the handles
constexpr int kLineSortKey = 64018;
constexpr float kFillTransparency = 0.7F;
constexpr osg::UInt32 kPieces = 72;
constexpr osg::UInt32 kMostTicks = 72;
constexpr int kMostDashes = 12;
constexpr double kFullTurnDeg = 360.0;
constexpr double kUsualTickDeg = 15.0;
constexpr double kDashDeg = 3.0;  ///< half of a dash for a whole turn
constexpr double kRadPerDeg = 3.14159265358979324 / 180.0;
/// Length of ticks and marks, by the distance from the centre to the grabbed point.
constexpr float kTickPart = 0.08F;
constexpr float kAxisUnits = 1.8F;  ///< half of the axis of a free turn

bool isShown = false;

/// A geometry with room for points of which none is drawn.
osg::GeometryPtr makeDrawn(osg::UInt8 type, osg::UInt32 room, int sortKey, float transparency)
{
    const osg::GeometryPtr geometry =
        nbGeoFactory::makeGeo(GL_LINES, std::vector<osg::Pnt3f>(room));
    const LineChunks chunks = makeLineChunks();
    const nbEdit typesEdit(geometry->getTypes(), osg::FieldBits::AllFields);
    const nbEdit lengthsEdit(geometry->getLengths(), osg::FieldBits::AllFields);
    const nbEdit edit(geometry, osg::FieldBits::AllFields);
    geometry->getTypes()->setValue(type, 0);
    geometry->getLengths()->setValue(0, 0);
    geometry->setMaterial(
        makeHandleMaterial(osg::Color3f(1.0F, 1.0F, 1.0F), sortKey, &chunks, transparency).get());
    return geometry;
}

void setCount(const osg::GeometryPtr& geometry, osg::UInt32 count)
{
    if (geometry->getLengths()->getValue(0) != count) {
        const nbEdit edit(geometry->getLengths(), osg::FieldBits::AllFields);
        geometry->getLengths()->setValue(count, 0);
    }
}

}  // namespace

void setDragOverlayShown(bool on)
{
    isShown = on;
}

bool isDragOverlayShown()
{
    return isShown;
}

void DragOverlay::build(const osg::NodePtr& parent)
{
    constexpr osg::UInt32 kEnds = 2 * (2 + kMostTicks + kMostDashes);
    lines = makeDrawn(GL_LINES, kEnds, kLineSortKey, kTraceOfTransparency);
    sector = makeDrawn(GL_TRIANGLES, 3 * kPieces, kFillSortKey, kFillTransparency);
    node = osg::makeNodeFor(osg::Transform::create());
    addChild(node.get(), osg::makeNodeFor(sector));
    addChild(node.get(), osg::makeNodeFor(lines));
    ghost = osg::makeCoredNode<osg::Group>();
    addChild(node.get(), ghost);
    addChild(parent, node.get());
}

/// The handle as it stands now.
void DragOverlay::buildGhost()
{
    const nbEdit edit(ghost, osg::Node::ChildrenFieldMask);
    while (ghost->getNChildren() > 0) {
        ghost->subChild(0U);
    }
    for (const osg::NodePtr& part : start.parts) {
        const osg::NodePtr place = osg::makeNodeFor(osg::Transform::create());
        const osg::NodePtr copy = makeSharingNode(osg::GeometryPtr::dcast(part->getCore()));
        setMatrix(place, part->getToWorld());
        setGeometryMaterial(copy, sector->getMaterial());
        ghost->addChild(addChild(place, copy));
    }
}

void DragOverlay::begin(const osg::NodePtr& parent, const OverlayStart& from)
{
    end();
    isOn = isDragOverlayShown();
    if (!isOn) {
        return;
    }
    if (node == osg::NullFC) {
        build(parent);
    }
    start = from;
    if (!(start.tickDeg > 0.0)) {
        start.tickDeg = kUsualTickDeg;
    }
    while (kFullTurnDeg / start.tickDeg > kMostTicks) {
        start.tickDeg *= 2.0;
    }
    towards = start.grabbed - start.centre;
    if (start.action.kind == DragParameters::Kind::Angle) {
        towards -= start.axis * start.axis.dot(towards);
    }
    radius = towards.length();
    towards.normalize();
    if (start.action.kind == DragParameters::Kind::Offset) {
        buildGhost();
    }
    start.parts.clear();
}

void DragOverlay::end()
{
    isOn = false;
    showNode(node.get(), false);
}

osg::Pnt3f DragOverlay::onRing(double angleDeg, float distance) const
{
    const double angle = angleDeg * kRadPerDeg;
    return start.centre +
        (towards * static_cast<float>(std::cos(angle)) +
         start.axis.cross(towards) * static_cast<float>(std::sin(angle))) *
        distance;
}

void DragOverlay::addLine(const osg::Pnt3f& from, const osg::Pnt3f& to)
{
    lines->getPositions()->setValue(from, lineEnds++);
    lines->getPositions()->setValue(to, lineEnds++);
}

void DragOverlay::drawTurn(double angleDeg)
{
    const double swept = std::fmod(angleDeg, kFullTurnDeg);
    addLine(start.centre, onRing(0.0, radius));
    addLine(start.centre, onRing(swept, radius));
    const double tick = std::copysign(start.tickDeg, swept);
    for (double each = tick; std::abs(each) <= std::abs(swept); each += tick) {
        addLine(onRing(each, radius), onRing(each, radius * (1.0F - kTickPart)));
    }
    const int whole =
        static_cast<int>(std::min<double>(std::abs(angleDeg / kFullTurnDeg), kMostDashes));
    for (int i = 1; i <= whole; ++i) {
        const float distance = radius * (1.0F + kTickPart * static_cast<float>(i));
        addLine(onRing(-kDashDeg, distance), onRing(kDashDeg, distance));
    }
    const nbEdit edit(sector->getPositions(), osg::FieldBits::AllFields);
    for (osg::UInt32 i = 0; i < kPieces; ++i) {
        sector->getPositions()->setValue(start.centre, 3 * i);
        sector->getPositions()->setValue(onRing(swept * i / kPieces, radius), 3 * i + 1);
        sector->getPositions()->setValue(onRing(swept * (i + 1) / kPieces, radius), 3 * i + 2);
    }
}

void DragOverlay::drawFreeTurn(const DragParameters& parameters)
{
    const osg::Vec2f turn = parameters.vec2();
    osg::Vec3f axis = start.axis * turn.x() + start.axis.cross(start.sight) * turn.y();
    axis.normalize();
    axis *= kAxisUnits * start.unit;
    addLine(start.centre - axis, start.centre + axis);
}

void DragOverlay::drawLength(double factor)
{
    osg::Vec3f across = towards.cross(start.sight);
    across.normalize();
    across *= radius * kTickPart;
    addLine(start.centre, start.centre + towards * (radius * static_cast<float>(factor)));
    addLine(start.grabbed - across, start.grabbed + across);
}

void DragOverlay::drawWay(const osg::Pnt3f& centre)
{
    osg::Vec3f across = (centre - start.centre).cross(start.sight);
    across.normalize();
    across *= radius * kTickPart;
    const osg::Vec3f along = across.cross(start.sight);
    addLine(start.centre, centre);
    addLine(start.centre - across, start.centre + across);
    addLine(start.centre - along, start.centre + along);
}

void DragOverlay::show(const DragParameters& parameters, const osg::Pnt3f& centre)
{
    using Kind = DragParameters::Kind;
    if (!isOn) {
        return;
    }
    lineEnds = 0;
    const bool isTurn = parameters.kind == Kind::Angle;
    const nbEdit edit(lines->getPositions(), osg::FieldBits::AllFields);
    if (isTurn) {
        drawTurn(parameters.values[0]);
    } else if (parameters.kind == Kind::Factor) {
        drawLength(parameters.values[0]);
    } else if (parameters.kind == Kind::Turns) {
        drawFreeTurn(parameters);
    } else if (parameters.kind == Kind::Offset || parameters.kind == Kind::Pixels) {
        drawWay(centre);
    }
    showNode(ghost, parameters.kind == Kind::Offset);
    setCount(lines, lineEnds);
    setCount(sector, isTurn ? 3 * kPieces : 0);
    osg::Matrix localFromWorld = node->getParent()->getToWorld();
    if (localFromWorld.invert()) {
        setMatrix(node.get(), localFromWorld);
    }
    showNode(node.get(), lineEnds > 0);
}

}  // namespace nbec::manipulator
