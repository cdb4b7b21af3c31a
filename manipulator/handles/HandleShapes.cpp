// SPDX-License-Identifier: MIT
#include "manipulator/handles/HandleShapes.h"

#include "manipulator/handles/HandleNodes.h"

#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbGeoFactory.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <array>
#include <cstddef>
#include <vector>

namespace nbec::manipulator {

namespace {

constexpr float kHalfSqrt2 = 0.7071068F;
constexpr std::size_t kShapeCount = static_cast<std::size_t>(HandleShape::SquareOutline) + 1;

enum class Solid
{
    Line,  ///< length
    LineRing,  ///< radius, pieces
    Cone,  ///< height, radius, pieces
    Cylinder,  ///< height, radius, pieces
    Box,  ///< the three sides
    Plane,  ///< the two sides
    Outline,  ///< the two sides
    Torus,  ///< radius of the tube and of the ring, pieces of each
    Sphere  ///< radius, subdivisions
};

/// How a shape is built and where it lies in its handle's frame.
struct ShapeRow
{
    HandleShape shape;
    Solid solid;
    std::array<float, 3> size;
    std::array<osg::UInt16, 2> pieces;
    std::array<float, 3> place;
    Turn turn;
};

constexpr std::array<float, 3> kOrigin = { 0.0F, 0.0F, 0.0F };

// clang-format off
constexpr std::array<ShapeRow, kShapeCount> kShapes = { {
    { HandleShape::ArrowShaft, Solid::Line, { 2.0F }, {}, kOrigin, Turn::None },
    { HandleShape::ArrowHead, Solid::Cone, { 0.4F, 0.1F }, { 24 }, kOrigin, Turn::None },
    { HandleShape::ScaleShaft, Solid::Line, { 1.5F }, {}, { 0.0F, 0.75F, 0.0F }, Turn::None },
    { HandleShape::ScaleCube, Solid::Box, { 0.175F, 0.175F, 0.175F }, {}, { 0.0F, 1.5F, 0.0F }, Turn::None },
    { HandleShape::Cube, Solid::Box, { 0.175F, 0.175F, 0.175F }, {}, kOrigin, Turn::None },
    { HandleShape::Ring, Solid::LineRing, { 1.5F }, { 36 }, kOrigin, Turn::None },
    { HandleShape::RingAxis, Solid::Line, { 20.0F }, {}, kOrigin, Turn::None },
    { HandleShape::PlanePatch, Solid::Plane, { 0.4F, 0.4F }, {}, { 0.2F, 0.2F, 0.0F }, Turn::None },
    { HandleShape::PlaneBarX, Solid::Cylinder, { 0.4F, 0.02F }, { 8 }, { 0.2F, 0.4F, 0.0F }, Turn::OntoX },
    { HandleShape::PlaneBarY, Solid::Cylinder, { 0.4F, 0.02F }, { 8 }, { 0.4F, 0.2F, 0.0F }, Turn::None },
    { HandleShape::CentreSphere, Solid::Sphere, { 0.125F }, { 2 }, kOrigin, Turn::None },
    { HandleShape::SolidArrowShaft, Solid::Cylinder, { 2.0F, 0.03F }, { 8 }, kOrigin, Turn::None },
    { HandleShape::SolidArrowHead, Solid::Cone, { 0.4F, 0.1F }, { 24 }, { 0.0F, 1.0F, 0.0F }, Turn::None },
    { HandleShape::SolidPatch, Solid::Box, { 0.4F, 0.4F, 0.025F }, {}, { 0.2F, 0.2F, 0.0F }, Turn::None },
    { HandleShape::SolidBarX, Solid::Cylinder, { 0.4F, 0.03F }, { 8 }, { 0.2F, 0.4F, 0.0F }, Turn::OntoX },
    { HandleShape::SolidBarY, Solid::Cylinder, { 0.4F, 0.03F }, { 8 }, { 0.4F, 0.2F, 0.0F }, Turn::None },
    { HandleShape::SolidScaleShaftX, Solid::Cylinder, { 2.5F, 0.02F }, { 8 }, { 1.25F, 0.0F, 0.0F }, Turn::OntoX },
    { HandleShape::SolidScaleShaftY, Solid::Cylinder, { 2.5F, 0.02F }, { 8 }, { 0.0F, 1.25F, 0.0F }, Turn::None },
    { HandleShape::SolidScaleShaftMinusZ, Solid::Cylinder, { 2.5F, 0.02F }, { 8 }, { 0.0F, 0.0F, -1.25F }, Turn::OntoMinusZ },
    { HandleShape::ScaleTabX, Solid::Box, { 0.3F, 0.25F, 0.025F }, {}, { 2.5F, 0.0F, 0.0F }, Turn::None },
    { HandleShape::ScaleTabY, Solid::Box, { 0.25F, 0.3F, 0.025F }, {}, { 0.0F, 2.5F, 0.0F }, Turn::None },
    { HandleShape::ScaleTabMinusZ, Solid::Box, { 0.25F, 0.25F, 0.025F }, {}, { 0.0F, 0.0F, -2.5F }, Turn::AboutY },
    { HandleShape::BigCube, Solid::Box, { 0.25F, 0.25F, 0.25F }, {}, kOrigin, Turn::None },
    { HandleShape::SolidRing, Solid::Torus, { 0.03F, 1.0F }, { 6, 36 }, kOrigin, Turn::None },
    { HandleShape::RingGrip, Solid::Sphere, { 0.125F }, { 2 }, { -1.0F, 0.0F, 0.0F }, Turn::None },
    { HandleShape::UprightTab, Solid::Box, { 0.2F, 0.4F, 0.025F }, {}, kOrigin, Turn::None },
    { HandleShape::LyingTab, Solid::Box, { 0.4F, 0.2F, 0.025F }, {}, kOrigin, Turn::None },
    { HandleShape::SquareTab, Solid::Box, { 0.4F, 0.4F, 0.025F }, {}, kOrigin, Turn::None },
    { HandleShape::ScaleTabXY, Solid::Box, { 0.25F, 0.3F, 0.025F }, {}, { 2.5F, 2.5F, 0.0F }, Turn::None },
    { HandleShape::SlimArrowShaft, Solid::Cylinder, { 1.9125F, 0.02F }, { 8 }, kOrigin, Turn::None },
    { HandleShape::LongScaleShaft, Solid::Line, { 2.5F }, {}, kOrigin, Turn::None },
    { HandleShape::SolidBigRing, Solid::Torus, { 0.02F, 1.5F }, { 6, 36 }, kOrigin, Turn::None },
    { HandleShape::UnitCircle, Solid::LineRing, { 1.0F }, { 72 }, kOrigin, Turn::OntoX },
    { HandleShape::Square, Solid::Plane, { 1.0F, 1.0F }, {}, kOrigin, Turn::None },
    { HandleShape::SquareOutline, Solid::Outline, { 1.0F, 1.0F }, {}, kOrigin, Turn::None },
} };

// clang-format on

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < kShapes.size(); ++i) {
        if (static_cast<std::size_t>(kShapes[i].shape) != i) {
            return false;
        }
    }
    return true;
}

static_assert(isInOrder(), "rows stand in the order of the enumerators");

/// The sides of a rectangle in the xy plane as lines.
osg::NodePtr buildOutline(float halfX, float halfY)
{
    return osg::makeNodeFor(
        nbGeoFactory::makeGeo(GL_LINES,
                              { osg::Pnt3f(-halfX, -halfY, 0.0F), osg::Pnt3f(halfX, -halfY, 0.0F),
                                osg::Pnt3f(halfX, halfY, 0.0F), osg::Pnt3f(-halfX, halfY, 0.0F) },
                              { 0, 1, 1, 2, 2, 3, 3, 0 }));
}

osg::NodePtr build(const ShapeRow& row)
{
    const std::array<float, 3>& size = row.size;
    switch (row.solid) {
    case Solid::Line:
        return nbGeoFactory::makeLine(size[0]);
    case Solid::LineRing:
        return nbGeoFactory::makeLineTorus(size[0], row.pieces[0], false);
    case Solid::Cone:
        return osg::makeCone(size[0], size[1], row.pieces[0], true, true);
    case Solid::Cylinder:
        return osg::makeCylinder(size[0], size[1], row.pieces[0], true, true, true);
    case Solid::Box:
        return osg::makeBox(size[0], size[1], size[2], 1, 1, 1);
    case Solid::Plane:
        return osg::makePlane(size[0], size[1], 1, 1);
    case Solid::Outline:
        return buildOutline(size[0] / 2, size[1] / 2);
    case Solid::Torus:
        return osg::makeTorus(size[0], size[1], row.pieces[0], row.pieces[1]);
    case Solid::Sphere:
        return osg::makeSphere(row.pieces[0], size[0]);
    }
    return osg::NodePtr();
}

/// Moves a geometry's points and turns its normals, so that its handle needs no node for the place.
void moveGeometry(const osg::GeometryPtr& geometry, const ShapeRow& row)
{
    osg::Matrix place;
    place.setTransform(osg::Vec3f(row.place[0], row.place[1], row.place[2]),
                       quaternionOf(row.turn));
    const osg::GeoPositionsPtr positions = geometry->getPositions();
    const osg::GeoNormalsPtr normals = geometry->getNormals();
    const nbEdit edit(geometry, osg::FieldBits::AllFields);
    const nbEdit positionsEdit(positions, osg::FieldBits::AllFields);
    const nbEdit normalsEdit(normals, osg::FieldBits::AllFields);
    for (osg::UInt32 i = 0; i < positions->getSize(); ++i) {
        osg::Pnt3f point = positions->getValue(i);
        place.multMatrixPnt(point);
        positions->setValue(point, i);
    }
    for (osg::UInt32 i = 0; normals != osg::NullFC && i < normals->getSize(); ++i) {
        osg::Vec3f normal = normals->getValue(i);
        place.multMatrixVec(normal);
        normals->setValue(normal, i);
    }
}

/// The one geometry of a shape from which all others take their properties. It is held for the rest
/// of the process and found by its id, so that a scene graph that is shut down and started again
/// builds it anew.
osg::GeometryPtr prototypeOf(HandleShape shape)
{
    static std::array<osg::UInt32, kShapeCount> prototypeIds {};
    osg::UInt32& id = prototypeIds[static_cast<std::size_t>(shape)];
    osg::GeometryPtr prototype = resolveContainer<osg::GeometryPtr>(id);
    if (prototype == osg::NullFC) {
        const ShapeRow& row = kShapes[static_cast<std::size_t>(shape)];
        osg::NodePtr node = build(row);
        prototype = osg::GeometryPtr::dcast(node->getCore());
        osg::addRefCP(prototype);
        moveGeometry(prototype, row);
        osg::subRefCP(node);
        id = containerId(prototype);
    }
    return prototype;
}

}  // namespace

osg::Quaternion quaternionOf(Turn turn)
{
    // About which axes, in the order of the enumerators.
    constexpr float kAxes[][3] = { { 0.0F, 0.0F, 0.0F },  { 0.0F, 0.0F, -1.0F },
                                   { 1.0F, 0.0F, 0.0F },  { 0.0F, 0.0F, 1.0F },
                                   { -1.0F, 0.0F, 0.0F }, { 0.0F, -1.0F, 0.0F },
                                   { 0.0F, 1.0F, 0.0F } };
    const auto& [x, y, z] = kAxes[static_cast<std::size_t>(turn)];
    osg::Quaternion result;
    if (turn != Turn::None) {
        result.setValueAsQuat(x * kHalfSqrt2, y * kHalfSqrt2, z * kHalfSqrt2, kHalfSqrt2);
    }
    return result;
}

osg::Vec3f eulerDegOf(Turn turn)
{
    constexpr float kRightAngleDeg = 90.0F;
    // One component of the quaternion beside the last is not zero, and tells axis and sense.
    const osg::Quaternion rotation = quaternionOf(turn);
    return osg::Vec3f(rotation.x(), rotation.y(), rotation.z()) * (kRightAngleDeg / kHalfSqrt2);
}

osg::NodePtr makeShapeNode(HandleShape shape)
{
    return makeSharingNode(prototypeOf(shape));
}

}  // namespace nbec::manipulator
