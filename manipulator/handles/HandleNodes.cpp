// SPDX-License-Identifier: MIT
#include "manipulator/handles/HandleNodes.h"

#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGTransform.h>

#include <algorithm>

namespace nbec::manipulator {

namespace {

/// Exactly equal numbers; the operators of vectors allow for a tolerance, which small scenes feel.
template <class Values>
bool isSame(const Values& left, const Values& right, osg::UInt32 count)
{
    for (osg::UInt32 i = 0; i < count; ++i) {
        if (left[i] != right[i]) {
            return false;
        }
    }
    return true;
}

}  // namespace

osg::NodePtr makeNode(const osg::NodeCorePtr& core)
{
    const osg::NodePtr node = osg::Node::create();
    const nbEdit edit(node, osg::Node::CoreFieldMask);
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
        const nbEdit edit(core,
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
        const nbEdit edit(core, osg::FieldBits::AllFields);
        core->setRotation(eulerDeg);
    }
    return makeNode(core);
}

void placeTransform(const osg::Transform3DPtr& transform, const osg::Vec3f& translation,
                    const osg::Quaternion& rotation, const osg::Vec3f& scale)
{
    if (transform->getRotationMode() == osg::Transform3D::QuaternionMode &&
        isSame(transform->getTranslation(), translation, 3) &&
        isSame(transform->getScale(), scale, 3) &&
        isSame(transform->getRotationQuaternion(), rotation, 4)) {
        return;
    }
    const nbEdit edit(transform,
                      osg::Transform3D::TranslationFieldMask | osg::Transform3D::RotationFieldMask |
                          osg::Transform3D::ScaleFieldMask);
    transform->setTranslation(translation);
    transform->setScale(scale);
    transform->setRotation(rotation);
}

void moveNode(const osg::NodePtr& node, const osg::Vec3f& translation,
              const osg::Quaternion& rotation)
{
    const osg::ComponentTransformPtr core = osg::ComponentTransformPtr::dcast(node->getCore());
    if (core == osg::NullFC ||
        (isSame(core->getTranslation(), translation, 3) &&
         isSame(core->getRotation(), rotation, 4))) {
        return;
    }
    const nbEdit edit(core,
                      osg::ComponentTransform::TranslationFieldMask |
                          osg::ComponentTransform::RotationFieldMask);
    core->setTranslation(translation);
    core->setRotation(rotation);
}

void setMatrix(const osg::NodePtr& node, const osg::Matrix& matrix)
{
    constexpr osg::UInt32 kSize = 16;
    const auto core = osg::TransformPtr::dcast(node->getCore());
    const float* const known = core->getMatrix().getValues();
    if (!std::equal(known, known + kSize, matrix.getValues())) {
        const nbEdit edit(core, osg::Transform::MatrixFieldMask);
        core->setMatrix(matrix);
    }
}

osg::NodePtr addChild(const osg::NodePtr& parent, const osg::NodePtr& child)
{
    const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
    parent->addChild(child);
    return parent;
}

void setGeometryMaterial(const osg::NodePtr& node, const osg::MaterialPtr& material)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    if (geometry == osg::NullFC || geometry->getMaterial() == material) {
        return;
    }
    const nbEdit edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(material);
}

void showNode(const osg::NodePtr& node, bool visible)
{
    if (node == osg::NullFC || node->getCore() == osg::NullFC) {
        return;
    }
    for (const osg::NodePtr& sharer : node->getCore()->getParents()) {
        // A host's own mask is neither active nor hidden.
        const bool isDone = visible ? sharer->getActive() : sharer->getTravMask() == 0;
        if (!isDone) {
            const nbEdit edit(sharer, osg::Node::TravMaskFieldMask);
            sharer->setActive(visible);
        }
    }
}

osg::GeometryPtr makeLineGeometry(const std::vector<osg::Pnt3f>& points,
                                  const std::vector<osg::UInt32>& indices)
{
    const osg::GeoPTypesPtr types = osg::GeoPTypesUI8::create();
    const osg::GeoPLengthsPtr lengths = osg::GeoPLengthsUI32::create();
    const osg::GeoPositionsPtr positions = osg::GeoPositions3f::create();
    const osg::GeometryPtr lines = osg::Geometry::create();
    const nbEdit typesEdit(types, osg::FieldBits::AllFields);
    const nbEdit lengthsEdit(lengths, osg::FieldBits::AllFields);
    const nbEdit positionsEdit(positions, osg::FieldBits::AllFields);
    const nbEdit edit(lines, osg::FieldBits::AllFields);
    types->push_back(GL_LINES);
    lengths->push_back(static_cast<osg::UInt32>(indices.empty() ? points.size() : indices.size()));
    for (const osg::Pnt3f& point : points) {
        positions->push_back(point);
    }
    lines->setTypes(types);
    lines->setLengths(lengths);
    lines->setPositions(positions);
    if (!indices.empty()) {
        const osg::GeoIndicesPtr order = osg::GeoIndicesUI32::create();
        const nbEdit orderEdit(order, osg::FieldBits::AllFields);
        for (const osg::UInt32 index : indices) {
            order->push_back(index);
        }
        lines->setIndices(order);
    }
    return lines;
}

osg::NodePtr makeSharingNode(const osg::GeometryPtr& prototype)
{
    const osg::GeometryPtr geometry = osg::Geometry::create();
    {
        const nbEdit edit(geometry, osg::FieldBits::AllFields);
        geometry->setTypes(prototype->getTypes());
        geometry->setLengths(prototype->getLengths());
        geometry->setPositions(prototype->getPositions());
        geometry->setNormals(prototype->getNormals());
        geometry->setIndices(prototype->getIndices());
        geometry->getIndexMapping() = prototype->getIndexMapping();
    }
    return makeNode(geometry);
}

}  // namespace nbec::manipulator
