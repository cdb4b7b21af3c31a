// SPDX-License-Identifier: MIT
#include "manipulator/detail/HandleNodes.h"

#include "manipulator/detail/ContainerReference.h"
#include "manipulator/detail/EditBracket.h"

#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbGeoFactory.h>

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <array>
#include <cstddef>

namespace nbec::manipulator::detail {

namespace {

constexpr float kArrowLength = 2.0F;
constexpr float kConeHeight = 0.4F;
constexpr float kConeRadius = 0.1F;
constexpr osg::UInt16 kConeSides = 24;
constexpr float kScaleShaftLength = 1.5F;
constexpr float kCubeSize = 0.175F;
constexpr float kRingRadius = 1.5F;
constexpr osg::UInt16 kRingSegments = 36;
constexpr float kRingAxisLength = 20.0F;
constexpr float kPlaneSize = 0.4F;
constexpr float kPlaneBarRadius = 0.02F;
constexpr osg::UInt16 kPlaneBarSides = 8;
constexpr float kSphereRadius = 0.125F;
constexpr std::size_t kShapeCount = static_cast<std::size_t>(HandleShape::CentreSphere) + 1;

osg::Matrix translation(float x, float y)
{
    osg::Matrix matrix;
    matrix.setTranslate(x, y, 0.0F);
    return matrix;
}

/// Where a shape lies in its handle's frame; the identity for most.
osg::Matrix placeOf(HandleShape shape)
{
    switch (shape) {
    case HandleShape::ScaleShaft:
        return translation(0.0F, kScaleShaftLength / 2);
    case HandleShape::ScaleCube:
        return translation(0.0F, kScaleShaftLength);
    case HandleShape::PlanePatch:
        return translation(kPlaneSize / 2, kPlaneSize / 2);
    case HandleShape::PlaneBarX: {
        osg::Matrix place = translation(kPlaneSize / 2, kPlaneSize);
        place.setRotate(
            osg::Quaternion(osg::Vec3f(0.0F, 1.0F, 0.0F), osg::Vec3f(1.0F, 0.0F, 0.0F)));
        return place;
    }
    case HandleShape::PlaneBarY:
        return translation(kPlaneSize, kPlaneSize / 2);
    default:
        return osg::Matrix();
    }
}

osg::NodePtr buildShape(HandleShape shape)
{
    switch (shape) {
    case HandleShape::ArrowShaft:
        return nbGeoFactory::makeLine(kArrowLength);
    case HandleShape::ArrowHead:
        return osg::makeCone(kConeHeight, kConeRadius, kConeSides, true, true);
    case HandleShape::ScaleShaft:
        return nbGeoFactory::makeLine(kScaleShaftLength);
    case HandleShape::ScaleCube:
    case HandleShape::Cube:
        return osg::makeBox(kCubeSize, kCubeSize, kCubeSize, 1, 1, 1);
    case HandleShape::Ring:
        return nbGeoFactory::makeLineTorus(kRingRadius, kRingSegments, false);
    case HandleShape::RingAxis:
        return nbGeoFactory::makeLine(kRingAxisLength);
    case HandleShape::PlanePatch:
        return osg::makePlane(kPlaneSize, kPlaneSize, 1, 1);
    case HandleShape::PlaneBarX:
    case HandleShape::PlaneBarY:
        return osg::makeCylinder(kPlaneSize, kPlaneBarRadius, kPlaneBarSides, true, true, true);
    case HandleShape::CentreSphere:
        return osg::makeSphere(2, kSphereRadius);
    }
    return osg::NodePtr();
}

/// Moves a geometry's points and turns its normals, so that its handle needs no node for the place.
void moveGeometry(const osg::GeometryPtr& geometry, const osg::Matrix& place)
{
    const EditBracket edit(geometry, osg::FieldBits::AllFields);
    const osg::GeoPositionsPtr positions = geometry->getPositions();
    for (osg::UInt32 i = 0; i < positions->getSize(); ++i) {
        osg::Pnt3f point = positions->getValue(i);
        place.multMatrixPnt(point);
        positions->setValue(point, i);
    }
    const osg::GeoNormalsPtr normals = geometry->getNormals();
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
        osg::NodePtr node = buildShape(shape);
        prototype = osg::GeometryPtr::dcast(node->getCore());
        osg::addRefCP(prototype);
        moveGeometry(prototype, placeOf(shape));
        osg::subRefCP(node);
        id = containerId(prototype);
    }
    return prototype;
}

}  // namespace

osg::NodePtr makeNode(const osg::NodeCorePtr& core)
{
    const osg::NodePtr node = osg::Node::create();
    const EditBracket edit(node, osg::Node::CoreFieldMask);
    node->setCore(core);
    return node;
}

osg::NodePtr makeGroupNode()
{
    return makeNode(osg::Group::create());
}

osg::NodePtr makePlacedNode(const osg::Vec3f& translation, const osg::Quaternion& rotation)
{
    const osg::ComponentTransformPtr core = osg::ComponentTransform::create();
    {
        const EditBracket edit(core,
                               osg::ComponentTransform::TranslationFieldMask |
                                   osg::ComponentTransform::RotationFieldMask);
        core->setTranslation(translation);
        core->setRotation(rotation);
    }
    return makeNode(core);
}

osg::NodePtr makeTransform3DNode(const osg::Vec3f& eulerDeg)
{
    const osg::Transform3DPtr core = osg::Transform3D::create();
    {
        const EditBracket edit(core, osg::FieldBits::AllFields);
        core->setRotation(eulerDeg);
    }
    return makeNode(core);
}

osg::NodePtr addChild(const osg::NodePtr& parent, const osg::NodePtr& child)
{
    const EditBracket edit(parent, osg::Node::ChildrenFieldMask);
    parent->addChild(child);
    return parent;
}

void setGeometryMaterial(const osg::NodePtr& node, const osg::MaterialPtr& material)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    if (geometry == osg::NullFC || geometry->getMaterial() == material) {
        return;
    }
    const EditBracket edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(material);
}

osg::NodePtr makeSharingNode(const osg::GeometryPtr& prototype)
{
    const osg::GeometryPtr geometry = osg::Geometry::create();
    {
        const EditBracket edit(geometry, osg::FieldBits::AllFields);
        geometry->setTypes(prototype->getTypes());
        geometry->setLengths(prototype->getLengths());
        geometry->setPositions(prototype->getPositions());
        geometry->setNormals(prototype->getNormals());
        geometry->setIndices(prototype->getIndices());
        geometry->getIndexMapping() = prototype->getIndexMapping();
    }
    return makeNode(geometry);
}

osg::NodePtr makeShapeNode(HandleShape shape)
{
    return makeSharingNode(prototypeOf(shape));
}

}  // namespace nbec::manipulator::detail
